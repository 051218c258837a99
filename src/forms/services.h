#pragma once

#include "common/model/factory.h"
#include "common/model/services.h"
#include "forms/engine.h"

#include <cstdint>
#include <string>

namespace brx {

/// The host's message and help services where it has them, and what stands in for them where it has not. Each
/// is created on first use and kept.
class Services {
public:
    Services(ObjectFactory& objects, FormEngine& engine) : objects_(objects), engine_(engine) {}

    /// Shows a message box, the system's when the host has no message service, and returns the button
    /// pressed.
    std::int32_t show_message(const Message& message);

    /// Tells the person something that must not be lost: the system's box does where the host's service
    /// fails.
    void tell(const Message& message);

    /// The path of the help file. Error 429 when the host has no help service.
    std::string help_file();

private:
    std::int32_t answer_to(const Message& message);

    ObjectFactory& objects_;
    FormEngine& engine_;
    hlxMessagePtr message_;
    hlxHelpPtr help_;
    bool looked_for_message_ = false;
};

} // namespace brx
