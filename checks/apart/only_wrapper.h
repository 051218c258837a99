#pragma once

#include "apart/server_program.h"

#include <gtest/gtest.h>

namespace brx::checks {

/// A check for which the sample's server program has to be the computer's only wrapper.
template <class Base = testing::Test> class OnlyWrapper : public Base {
protected:
    void SetUp() override {
        if (const std::string reason = other_wrapper(); !reason.empty()) GTEST_SKIP() << reason;
    }
};

} // namespace brx::checks
