#include "common/values/variant.h"

namespace brx {

std::uint16_t vartype(const Variant& value) {
    struct Visitor {
        std::uint16_t operator()(Empty) const { return 0; }
        std::uint16_t operator()(Null) const { return 1; }
        std::uint16_t operator()(std::int16_t) const { return 2; }
        std::uint16_t operator()(std::int32_t) const { return 3; }
        std::uint16_t operator()(float) const { return 4; }
        std::uint16_t operator()(double) const { return 5; }
        std::uint16_t operator()(Currency) const { return 6; }
        std::uint16_t operator()(Date) const { return 7; }
        std::uint16_t operator()(const std::string&) const { return 8; }
        std::uint16_t operator()(const ObjectPtr&) const { return 9; }
        std::uint16_t operator()(Missing) const { return 10; }
        std::uint16_t operator()(bool) const { return 11; }
        std::uint16_t operator()(const StringArray&) const { return 0x2008; }
        std::uint16_t operator()(const Opaque& v) const { return v.vartype; }
    };
    return std::visit(Visitor{}, value);
}

} // namespace brx
