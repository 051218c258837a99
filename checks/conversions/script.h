#pragma once

#include <windows.h>

#include <oleauto.h>

#include <memory>
#include <string>

namespace brx::conversions {

/// The system's script engine, ready to call its conversion functions. It follows the user's locale.
class Script {
public:
    /// Throws Error where the system has none.
    Script();
    ~Script();
    Script(const Script&) = delete;
    Script& operator=(const Script&) = delete;

    /// What `function` makes of a value: as a text like those of the other functions.
    std::string call(const std::string& function, const VARIANT& argument) const;
    std::string call(const std::string& function, const std::string& text) const;
    std::string call(const std::string& function, double number) const;

private:
    class Engine;
    std::unique_ptr<Engine> engine_;
};

} // namespace brx::conversions
