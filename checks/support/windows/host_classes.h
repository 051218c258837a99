#pragma once

#include "host/fake_host.h"
#include "win32/com_ptr.h"

#include <windows.h>

#include <map>
#include <string>

namespace brx::checks {

/// For its lifetime the host's classes can be created on this thread, its error libraries among them. Not
/// more than one at a time.
class HostClasses {
public:
    explicit HostClasses(FakeHost& host);
    ~HostClasses();
    HostClasses(const HostClasses&) = delete;
    HostClasses& operator=(const HostClasses&) = delete;

    /// Offers the services and error classes that the host has now, and those only.
    void offer_what_it_has();

private:
    void offer(const CLSID& clsid, const com_ptr<IClassFactory>& factory);
    void withdraw(const CLSID& clsid);
    void offer_if(bool has_it, const CLSID& clsid, const com_ptr<IClassFactory>& factory);
    com_ptr<IClassFactory> factory_of(const char* name);

    FakeHost& host_;
    std::map<std::wstring, DWORD> offered_; ///< by the identifier's text
};

} // namespace brx::checks
