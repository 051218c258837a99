#pragma once

#include "com/describe.h"
#include "common/model/configuration.h"
#include "common/model/database.h"
#include "common/model/opc_automation.h"
#include "common/model/services.h"

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace brx::checks {

// A double of each of the host's objects: its members answer what `answers` holds under their names, writers
// put their value there, every call is noted, and all of them fail while `failure` is set.

class Double {
public:
    std::map<std::string, Variant> answers;
    std::optional<Error> failure;

    std::vector<std::string> take_calls() { return std::exchange(calls_, {}); }

protected:
    ~Double() = default;

    template <class... Values> void note(const std::string& member, const Values&... values) {
        std::string text = member;
        ((text += " (" + describe(values) + ")"), ...);
        calls_.push_back(text);
        if (failure) throw *failure;
    }

    /// A call with a result.
    template <class Result, class... Values>
    Result answer(const std::string& member, const Values&... values) {
        note(member, Variant(values)...);
        return converted(answers.at(member), static_cast<Result*>(nullptr));
    }

    template <class Value> void put(const std::string& member, const Value& value) {
        note("set " + member, Variant(value));
        answers[member] = value;
    }

private:
    template <class Result> static Result converted(const Variant& value, Result*) {
        return std::get<Result>(value);
    }
    static Variant converted(const Variant& value, Variant*) { return value; }
    template <class Model>
    static std::shared_ptr<Model> converted(const Variant& value, std::shared_ptr<Model>*) {
        return std::dynamic_pointer_cast<Model>(std::get<ObjectPtr>(value));
    }

    std::vector<std::string> calls_;
};

/// The node argument, in words.
inline Variant optional_text_value(const std::optional<std::string>& text) {
    return text ? Variant(*text) : Variant(Missing{});
}
template <class T> std::string optional_array_text(const std::optional<Array<T>>& array) {
    return array ? describe(*array) : "omitted";
}

template <class Model> class DoubleOf;

} // namespace brx::checks
