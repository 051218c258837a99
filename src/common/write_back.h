#pragma once

#include "common/call_gate.h"
#include "common/trap.h"

#include <functional>
#include <optional>
#include <type_traits>
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
        const call_gate::Undoing undoing;
        for (auto each = undo_.rbegin(); each != undo_.rend(); ++each) attempt(*each);
    }

    /// Writes the value over the former one. Where that is not known, the new one stays whatever happens.
    template <class Object, class Value>
    void replace(Object& object, void (Object::*set)(Value),
                 const std::optional<std::remove_cvref_t<Value>>& former,
                 const std::remove_cvref_t<Value>& value) {
        if (former) undo_.push_back([&object, set, former = *former] { (object.*set)(former); });
        (object.*set)(value);
    }
    void keep() { undo_.clear(); }

private:
    std::vector<std::function<void()>> undo_;
};

} // namespace brx
