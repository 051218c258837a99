#include "server/options.h"

#include <windows.h>

#include <cwchar>

namespace brx::server {

namespace {

bool is(const std::wstring& argument, const wchar_t* name) {
    return CompareStringOrdinal(argument.c_str(), -1, name, -1, TRUE) == CSTR_EQUAL;
}

std::optional<unsigned> number_in(const std::wstring& text) {
    wchar_t* end = nullptr;
    const unsigned long number = std::wcstoul(text.c_str(), &end, 10);
    if (text.empty() || *end || number > 10'000'000) return std::nullopt;
    return static_cast<unsigned>(number);
}

/// Where an option's number goes; null for what is no such option.
unsigned* number_of(Options& options, const std::wstring& name) {
    if (is(name, L"--delay")) return &options.switches.delay;
    if (is(name, L"--turn-away")) return &options.switches.turn_away;
    if (is(name, L"--end-at")) return &options.switches.end_at;
    if (is(name, L"--items")) return &options.items;
    return nullptr;
}

} // namespace

const wchar_t* const usage =
    L"brxSampleServer [--delay MILLISECONDS] [--turn-away N] [--end-at N] [--hold] [--items N] [--log "
    L"FILE]\n\n"
    L"--delay: each call takes so long.\n"
    L"--turn-away: so many tries are turned away before each call is answered.\n"
    L"--end-at: the program ends in the middle of its N-th call.\n"
    L"--hold: calls wait until you let them go on.\n"
    L"--items: this computer has a server more, Simulation.Many.1, with so many items.\n"
    L"--log: the file gets a line for each call.\n\n"
    L"brxSampleServer --install | --uninstall [--user]\n\n"
    L"makes it the OPC automation wrapper that programs create by the name OPC.Automation, unless another "
    L"one is "
    L"installed: for everybody, as an administrator, or for you alone.";

std::optional<Options> options_from(const std::vector<std::wstring>& arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::wstring& name = arguments[i];
        const bool has_more = i + 1 < arguments.size();
        if (is(name, L"--install")) {
            options.deed = Options::Deed::install;
        } else if (is(name, L"--uninstall")) {
            options.deed = Options::Deed::uninstall;
        } else if (is(name, L"--user")) {
            options.for_user = true;
        } else if (is(name, L"--hold")) {
            options.switches.hold = true;
        } else if (is(name, L"-Embedding") || is(name, L"/Embedding")) {
            options.until_released = true; // the system started it for a client
        } else if (is(name, L"--log") && has_more) {
            options.log = arguments[++i];
        } else if (unsigned* const number = number_of(options, name); number && has_more) {
            const auto given = number_in(arguments[++i]);
            if (!given) return std::nullopt;
            *number = *given;
        } else {
            return std::nullopt;
        }
    }
    return options;
}

} // namespace brx::server
