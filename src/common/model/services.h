#pragma once

#include "common/model/object.h"

#include <cstdint>
#include <string>

namespace brx {

class hlxMessage;
class hlxHelp;
using hlxMessagePtr = std::shared_ptr<hlxMessage>;
using hlxHelpPtr = std::shared_ptr<hlxHelp>;

// Services of brxOpcAuto6 that a host may supply as objects. Its list tools, focus service and busy cursor
// work on controls of their own process, so the component has its own.

/// Shows every message box.
class hlxMessage : public Object {
public:
    /// (6) `style` is the sum of the standard message-box flags: 0 OK, 1 OK and Cancel; 16 critical, 32
    /// question, 48 exclamation, 64 information. `default_button` counts from 1; Missing leaves it to the
    /// style. Gives the button pressed: 1 OK, 2 Cancel.
    virtual std::int32_t Show(const std::string& text, std::int32_t style, const std::string& title,
                              const Variant& default_button) = 0;
};

/// Knows where the help is.
class hlxHelp : public Object {
public:
    virtual std::string HelpFile() = 0; ///< (1) the help file's path
};

} // namespace brx
