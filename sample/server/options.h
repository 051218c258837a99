#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace brx::server {

/// What the server tries its clients' patience with.
struct Switches {
    unsigned delay = 0;     ///< milliseconds that each call takes
    unsigned turn_away = 0; ///< so many tries are turned away before each call is answered
    unsigned end_at = 0;    ///< the program ends in the middle of this call, as if it had crashed; 0 for none
    bool hold = false;      ///< calls wait until a person lets them go on
};

struct Options {
    enum class Deed { serve, install, uninstall };
    Deed deed = Deed::serve;
    bool for_user = false;       ///< it is installed for the present user only
    bool until_released = false; ///< it ends when its clients have let go of everything
    unsigned items = 0;          ///< of a server more on this computer; 0 for none
    std::filesystem::path log;   ///< gets a line for each call; empty for none
    Switches switches;
};

/// None when the command line cannot be understood.
std::optional<Options> options_from(const std::vector<std::wstring>& arguments);

/// What a person is told then.
extern const wchar_t* const usage;

} // namespace brx::server
