#pragma once

#include "common/values/variant.h"
#include "host/call_log.h"
#include "host/instead.h"

#include <atomic>
#include <memory>
#include <string>
#include <vector>

namespace brx::checks {

/// An object of the fake host: each call is noted under the object's interface before anything comes of it.
class Recorded {
public:
    std::string untold; ///< the property that cannot be read

    Recorded(const Recorded&) = delete;
    Recorded& operator=(const Recorded&) = delete;

    /// How many objects of fake hosts there are.
    static int alive() { return alive_; }

protected:
    Recorded(CallLog& calls, const char* class_name) : calls_(calls), class_name_(class_name) { ++alive_; }
    ~Recorded() { --alive_; }

    void note(const std::string& member) const { calls_.note(class_name_ + ("." + member)); }
    template <class Value> Value read(const std::string& member, const Value& value) const {
        note(member);
        if (member == untold) throw Error(error::invalid_procedure_call);
        return answered(value);
    }
    /// What the call under way answers.
    template <class Value> Value answered(const Value& value) const {
        return calls_.instead() ? instead_of(value, *calls_.instead()) : value;
    }
    template <class Field, class Value>
    void write(const std::string& member, Field& field, const Value& value) const {
        note(member + "=");
        field = value;
    }

    CallLog& calls_;

private:
    const char* class_name_;
    inline static std::atomic<int> alive_ = 0;
};

/// A collection of the fake host that dialogs add to and remove from.
template <class Collection, class Interface, class Entry>
class RecordedCollection : public Collection, public Recorded {
public:
    std::vector<std::shared_ptr<Entry>> entries;
    bool keeps_all = false;       ///< Remove fails
    bool drops_and_fails = false; ///< Remove fails, and has removed it all the same
    bool adds_and_fails = false;  ///< Add fails, and has added it all the same
    bool gives_nothing = false;   ///< Add gives Nothing, and has added it all the same

    std::int32_t Count() override { return read("Count", static_cast<std::int32_t>(entries.size())); }
    std::shared_ptr<Interface> Item(const Variant& position) override {
        note("Item");
        const auto* index = std::get_if<std::int32_t>(&position);
        if (!index || *index < 1 || static_cast<std::size_t>(*index) > entries.size())
            throw Error(error::subscript_out_of_range);
        return answered(std::shared_ptr<Interface>(entries[static_cast<std::size_t>(*index) - 1]));
    }
    void Remove(std::int32_t position) override {
        note("Remove");
        if (keeps_all) throw Error(error::invalid_procedure_call);
        if (position < 1 || static_cast<std::size_t>(position) > entries.size())
            throw Error(error::subscript_out_of_range);
        entries.erase(entries.begin() + position - 1);
        if (drops_and_fails) throw Error(error::invalid_procedure_call);
    }
    /// From 1; 0 for one that is not there.
    std::int32_t position_of(const Interface* entry) const {
        std::int32_t position = 0;
        for (const auto& each : entries) {
            ++position;
            if (each.get() == entry) return position;
        }
        return 0;
    }

protected:
    using Recorded::Recorded;

    std::shared_ptr<Interface> added(const std::shared_ptr<Entry>& entry) const {
        if (adds_and_fails) throw Error(error::invalid_procedure_call);
        return gives_nothing ? nullptr : entry;
    }
};

} // namespace brx::checks
