#pragma once

#include "apart/main_stories.h"
#include "apart/only_wrapper.h"

#include <gtest/gtest.h>

#include <memory>

namespace brx::checks {

/// Each dialog's main story in turn, while the server program is installed.
class Apart : public OnlyWrapper<testing::TestWithParam<MainStory>> {
protected:
    static void SetUpTestSuite() { installed_ = std::make_unique<InstalledServer>(); }
    static void TearDownTestSuite() { installed_ = nullptr; }

    const ApartStory& story() const { return GetParam().tell; }

private:
    static inline std::unique_ptr<InstalledServer> installed_;
};

} // namespace brx::checks
