#pragma once

#include "tour/program.h"

namespace tour {

/// A value in the other program's memory, for messages that carry a pointer.
template <class Value> class Lent {
public:
    Lent(const Program& program, const Value& value)
        : process_(program.handle()),
          address_(
              VirtualAllocEx(process_, nullptr, sizeof(Value), MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE)) {
        if (!address_) throw Disappointment{L"there is no memory in the program"};
        write(value);
    }
    ~Lent() { VirtualFreeEx(process_, address_, 0, MEM_RELEASE); }
    Lent(const Lent&) = delete;
    Lent& operator=(const Lent&) = delete;

    LPARAM address() const { return reinterpret_cast<LPARAM>(address_); }
    void write(const Value& value) const {
        WriteProcessMemory(process_, address_, &value, sizeof value, nullptr);
    }
    Value read() const {
        Value value{};
        ReadProcessMemory(process_, address_, &value, sizeof value, nullptr);
        return value;
    }

private:
    HANDLE process_;
    void* address_;
};

} // namespace tour
