#pragma once

#include "common/model/object.h"

#include <string>

namespace brx {

/// The classes of the host's libraries of which the dialogs make objects themselves.
namespace class_name {
inline constexpr const char* hlxOPCServer = "brxOpcAuto6.hlxOPCServer";
inline constexpr const char* hlxMessage = "brxOpcAuto6.hlxMessage";
inline constexpr const char* hlxHelp = "brxOpcAuto6.hlxHelp";

inline constexpr const char* hlxTestGroup = "brxDatabase6.hlxTestGroup";
inline constexpr const char* hlxPart = "brxDatabase6.hlxPart";
inline constexpr const char* hlxPartGroup = "brxDatabase6.hlxPartGroup";
inline constexpr const char* hlxProcess = "brxDatabase6.hlxProcess";
inline constexpr const char* hlxProcessGroup = "brxDatabase6.hlxProcessGroup";
inline constexpr const char* hlxJob = "brxDatabase6.hlxJob";
inline constexpr const char* hlxJobGroup = "brxDatabase6.hlxJobGroup";
inline constexpr const char* hlxShift = "brxDatabase6.hlxShift";
inline constexpr const char* hlxShiftGroup = "brxDatabase6.hlxShiftGroup";
inline constexpr const char* hlxDescriptor = "brxDatabase6.hlxDescriptor";
inline constexpr const char* hlxDescriptorGroup = "brxDatabase6.hlxDescriptorGroup";

inline constexpr const char* hlxTestSelection = "brxDatabase6.hlxTestSelection";
inline constexpr const char* hlxPartSelection = "brxDatabase6.hlxPartSelection";
inline constexpr const char* hlxProcessSelection = "brxDatabase6.hlxProcessSelection";
inline constexpr const char* hlxJobSelection = "brxDatabase6.hlxJobSelection";
inline constexpr const char* hlxShiftSelection = "brxDatabase6.hlxShiftSelection";
inline constexpr const char* hlxDescriptorSelection = "brxDatabase6.hlxDescriptorSelection";
} // namespace class_name

/// Makes objects of the host's libraries.
class ObjectFactory {
public:
    virtual ~ObjectFactory() = default;
    /// A new object of a class, given as library, full stop, class. Error 429 when there is no such class or
    /// it cannot be created.
    virtual ObjectPtr create(const std::string& class_name) = 0;
};

/// A new object viewed through the interface it is wanted for.
template <class Interface>
std::shared_ptr<Interface> create(ObjectFactory& factory, const std::string& name) {
    return resolve<Interface>(factory.create(name));
}

} // namespace brx
