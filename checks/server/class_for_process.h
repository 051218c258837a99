#pragma once

#include "win32/com_ptr.h"

#include <windows.h>

#include <oleauto.h>

#include <functional>

namespace brx::checks {

/// For its lifetime this process offers a class under an identifier, with nothing registered.
class ClassForProcess {
public:
    ClassForProcess(REFCLSID clsid, std::function<com_ptr<IDispatch>()> make);
    ClassForProcess(const ClassForProcess&) = delete;
    ClassForProcess& operator=(const ClassForProcess&) = delete;
    ~ClassForProcess();

private:
    DWORD cookie_ = 0;
};

} // namespace brx::checks
