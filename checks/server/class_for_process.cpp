#include "server/class_for_process.h"

#include "windows/error_object.h"

#include <gtest/gtest.h>

namespace brx::checks {

ClassForProcess::ClassForProcess(REFCLSID clsid, std::function<com_ptr<IDispatch>()> make) {
    const auto factory = make_factory(std::move(make));
    EXPECT_EQ(CoRegisterClassObject(clsid, factory.get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie_),
              S_OK);
}

ClassForProcess::~ClassForProcess() { CoRevokeClassObject(cookie_); }

} // namespace brx::checks
