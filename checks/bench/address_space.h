#pragma once

#include "win32/com_ptr.h"

#include <windows.h>

#include <OPCAutomation.h>

#include <string>
#include <string_view>

namespace brx::bench {

/// What a server has to offer, two levels deep.
struct AddressSpace {
    bool flat = false;
    int leaves = 0;       ///< of a flat space
    int branches = 0;     ///< at the root of a hierarchical one
    int sub_branches = 0; ///< of each of them
};

/// Names of equal length that differ in their number, made at hardly any cost.
class Names {
public:
    explicit Names(const wchar_t* stem) : name_(std::wstring(stem) + L"0000000") {}

    /// In characters.
    static constexpr int length_of_leaf = 27;

    static Names of_leaves() { return Names(L"Line07.Station12.Tag"); }
    static Names of_branches() { return Names(L"Station"); }
    static Names of_sub_branches() { return Names(L"Machine"); }

    /// Holds until the next one is made.
    const std::wstring& of(int number) {
        for (auto digit = name_.rbegin(); digit != name_.rbegin() + 7; ++digit, number /= 10)
            *digit = static_cast<wchar_t>(L'0' + number % 10);
        return name_;
    }

private:
    std::wstring name_;
};

/// A connected server with that space. Its browser is as quick as a browser can be.
com_ptr<IOPCAutoServer> make_server(const AddressSpace& space);

/// A group of such a server. It has no items and takes none.
com_ptr<IOPCGroup> make_group();

} // namespace brx::bench
