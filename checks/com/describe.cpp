#include "com/describe.h"

#include "common/model/configuration.h"
#include "common/model/database.h"
#include "common/model/opc_automation.h"
#include "common/model/services.h"

#include <cstdio>
#include <functional>

namespace brx::checks {

namespace {

std::string number(double value) {
    char text[40];
    std::snprintf(text, sizeof(text), "%.17g", value);
    return text;
}

template <class T> std::string elements(const char* type, const Array<T>& array) {
    std::string text = std::string(type) + " from " + std::to_string(array.lower_bound) + ":";
    for (const T& each : array.elements) text += " [" + describe(Variant(each)) + "]";
    return text;
}

struct InWords {
    std::string operator()(Empty) const { return "Empty"; }
    std::string operator()(Null) const { return "Null"; }
    std::string operator()(Missing) const { return "Missing"; }
    std::string operator()(std::int16_t value) const { return "short " + std::to_string(value); }
    std::string operator()(std::int32_t value) const { return "long " + std::to_string(value); }
    std::string operator()(float value) const { return "float " + number(static_cast<double>(value)); }
    std::string operator()(double value) const { return "double " + number(value); }
    std::string operator()(Currency value) const {
        return "currency " + std::to_string(value.ten_thousandths);
    }
    std::string operator()(Date value) const { return "date " + number(value.days); }
    std::string operator()(bool value) const { return value ? "True" : "False"; }
    std::string operator()(const std::string& value) const { return "text " + value; }
    std::string operator()(const ObjectPtr& value) const { return describe(value); }
    std::string operator()(const StringArray& value) const { return elements("texts", value); }
    std::string operator()(const Opaque& value) const {
        return "opaque " + std::to_string(value.vartype) + " " + value.text.value_or("without text");
    }
};

template <class Model, class Tell> std::string told(const ObjectPtr& object, const char* type, Tell tell) {
    try {
        return std::string(type) + " " + describe(Variant(std::invoke(tell, *resolve<Model>(object))));
    } catch (const Error& error) {
        if (error.number() == error::type_mismatch) return "";
        throw;
    }
}

} // namespace

std::string describe(const Variant& value) { return std::visit(InWords{}, value); }
std::string describe(const LongArray& value) { return elements("longs", value); }
std::string describe(const ShortArray& value) { return elements("shorts", value); }

std::string describe(const Error& error) {
    return "error " + std::to_string(error.number()) + " | " + error.description() + " | " + error.source();
}

std::string describe(const ObjectPtr& object) {
    if (!object) return "Nothing";
    const std::string found =
        told<OPCServer>(object, "OPCServer", &OPCServer::ServerName) +
        told<OPCGroups>(object, "OPCGroups", &OPCGroups::Count) +
        told<OPCGroup>(object, "OPCGroup", &OPCGroup::Name) +
        told<OPCItems>(object, "OPCItems", &OPCItems::Count) +
        told<OPCItem>(object, "OPCItem", &OPCItem::ItemID) +
        told<OPCBrowser>(object, "OPCBrowser", &OPCBrowser::Organization) +
        told<hlxApplication>(object, "hlxApplication", [](hlxApplication&) { return Empty{}; }) +
        told<hlxOPCServers>(object, "hlxOPCServers", &hlxOPCServers::LastError) +
        told<hlxOPCServer>(object, "hlxOPCServer", &hlxOPCServer::ServerName) +
        told<hlxOPCServerHolder>(object, "hlxOPCServerHolder", [](hlxOPCServerHolder&) { return Empty{}; }) +
        told<hlxOPCConfiguration>(object, "hlxOPCConfiguration", &hlxOPCConfiguration::Name) +
        told<hlxOPCTests>(object, "hlxOPCTests", &hlxOPCTests::Count) +
        told<hlxOPCTest>(object, "hlxOPCTest", &hlxOPCTest::CharacteristicName) +
        told<hlxOPCDescriptors>(object, "hlxOPCDescriptors", &hlxOPCDescriptors::Count) +
        told<hlxOPCDescriptor>(object, "hlxOPCDescriptor", &hlxOPCDescriptor::ItemName) +
        told<hlxDatabase>(object, "hlxDatabase", [](hlxDatabase&) { return Empty{}; }) +
        told<hlxTestData>(object, "hlxTestData", &hlxTestData::Name) +
        told<hlxRecord>(object, "hlxRecord", &hlxRecord::Name) +
        told<hlxSelection>(object, "hlxSelection", [](hlxSelection&) { return Empty{}; }) +
        told<hlxMessage>(object, "hlxMessage", [](hlxMessage&) { return Empty{}; }) +
        told<hlxHelp>(object, "hlxHelp", &hlxHelp::HelpFile);
    return found.empty() ? "an object of no known interface" : found;
}

} // namespace brx::checks
