#pragma once

#include "common/common_tools.h"
#include "common/model/configuration.h"
#include "forms/environment.h"

namespace brx {

/// Lets a person edit one test of a collection configuration.
class TestConfiguration : private Module {
public:
    explicit TestConfiguration(Environment& environment)
        : Module("TestConfiguration", environment.errors),
          environment_(environment),
          tools_(environment.errors) {}

    /// True when the person confirmed. The test must belong to a configuration, whose server leads to the
    /// host's database.
    bool Show(const ObjectPtr& hlxOPCTest);

private:
    hlxOPCTestPtr ResolvehlxOPCTest(const ObjectPtr& object) const;

    Environment& environment_;
    CommonTools tools_;
};

} // namespace brx
