#pragma once

#include "classes/dialog_class.h"
#include "common/common_tools.h"
#include "common/model/configuration.h"

namespace brx {

/// Lets a person edit one test of a collection configuration.
class TestConfiguration : private DialogClass {
public:
    explicit TestConfiguration(Environment& environment)
        : DialogClass("TestConfiguration", environment), tools_(environment.errors) {}

    /// True when the person confirmed. The test must belong to a configuration, whose server leads to the
    /// host's database.
    bool Show(const ObjectPtr& hlxOPCTest);

private:
    hlxOPCTestPtr ResolvehlxOPCTest(const ObjectPtr& object) const;

    CommonTools tools_;
};

} // namespace brx
