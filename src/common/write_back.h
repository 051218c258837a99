#pragma once

#include "common/trap.h"

#include <functional>
#include <utility>
#include <vector>

namespace brx {

/// Writes to a host's object that belong together: unless they are kept, the former values are written back.
class WriteBack {
public:
    WriteBack() = default;
    WriteBack(const WriteBack&) = delete;
    WriteBack& operator=(const WriteBack&) = delete;
    ~WriteBack() {
        for (auto each = undo_.rbegin(); each != undo_.rend(); ++each) attempt(*each);
    }

    /// Reads the former value and writes the new one.
    template <class Object, class Get, class Set, class Value>
    void write(Object& object, Get get, Set set, const Value& value) {
        undo_.push_back([&object, set, former = (object.*get)()] { (object.*set)(former); });
        (object.*set)(value);
    }
    /// Runs after everything that is written from now on has been written back.
    void after_undo(std::function<void()> step) { undo_.push_back(std::move(step)); }
    void keep() { undo_.clear(); }

private:
    std::vector<std::function<void()>> undo_;
};

} // namespace brx
