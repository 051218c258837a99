#include "random/deed.h"

#include "random/values.h"
#include "screen.h"

#include <array>
#include <cstdio>
#include <sstream>
#include <stdexcept>
#include <string_view>

namespace brx::checks {

namespace {

constexpr auto verb_names = std::to_array<const char*>(
    {"begins",        "shows",   "changes",          "fails",   "answers", "lasts",   "presses", "chooses",
     "double_clicks", "expands", "collapses",        "toggles", "sets",    "goes_to", "types",   "pastes",
     "copies",        "hits",    "uses_accelerator", "leaves",  "decides", "waits",   "stops"});

constexpr auto key_names = std::to_array<const char*>({"Enter",
                                                       "Escape",
                                                       "Tab",
                                                       "Shift+Tab",
                                                       "Space",
                                                       "Up",
                                                       "Down",
                                                       "Left",
                                                       "Right",
                                                       "Home",
                                                       "End",
                                                       "+",
                                                       "-",
                                                       "F1",
                                                       "F3",
                                                       "Shift+F3",
                                                       "Ctrl+F",
                                                       "Backspace",
                                                       "Home, Shift+End, Delete",
                                                       "Ctrl+V",
                                                       "Ctrl+Tab",
                                                       "Ctrl+Shift+Tab"});

/// Without tabs and ends of lines, which part the fields.
std::string escaped(const std::string& text) {
    std::string safe;
    for (const char c : text) {
        if (static_cast<unsigned char>(c) >= 0x20 && c != '%') {
            safe += c;
            continue;
        }
        std::array<char, 4> code{};
        std::snprintf(code.data(), code.size(), "%%%02X",
                      static_cast<unsigned>(static_cast<unsigned char>(c)));
        safe += code.data();
    }
    return safe;
}

std::string unescaped(const std::string& text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%' || i + 2 >= text.size()) {
            plain += text[i];
            continue;
        }
        plain += static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16));
        i += 2;
    }
    return plain;
}

std::string quoted(const std::string& text) {
    constexpr std::size_t longest = 60;
    const std::string shown = text.size() > longest ? text.substr(0, longest) + "..." : text;
    return '"' + escaped(shown) + '"';
}

std::string plain_sentence(const Deed& deed) {
    const std::string number = std::to_string(deed.number);
    const std::string line = "line " + number + " of " + deed.on;
    switch (deed.verb) {
    case Verb::begins:
        return "There is a host.";
    case Verb::shows:
        return "It shows " + deed.on + (deed.number == 0 ? "" : " for something else (" + number + ")") +
               (deed.text.empty() ? "." : " with " + quoted(deed.text) + ".");
    case Verb::changes:
        return "The host changes: " + deed.on + " (" + number + ", " + quoted(deed.text) + ").";
    case Verb::fails:
        return "It fails with error " + std::to_string(error_at(deed.number).number()) + ".";
    case Verb::answers:
        return "It answers " + told_value(deed.number) + ".";
    case Verb::lasts:
        return "It lasts " + number + " ms.";
    case Verb::presses:
        return "She presses " + deed.on + ".";
    case Verb::chooses:
        return "She clicks on " + line + ".";
    case Verb::double_clicks:
        return "She double-clicks on " + line + ".";
    case Verb::expands:
        return "She opens " + line + ".";
    case Verb::collapses:
        return "She closes " + line + ".";
    case Verb::toggles:
        return "She ticks " + deed.on + ".";
    case Verb::sets:
        return "She sets " + deed.on + " to " + deed.text + ".";
    case Verb::goes_to:
        return "She goes to " + deed.on + ".";
    case Verb::types:
        return "She types " + quoted(deed.text) + ".";
    case Verb::pastes:
        return "She pastes " + quoted(deed.text) + ".";
    case Verb::copies:
        return "She copies " + quoted(deed.text) + " elsewhere.";
    case Verb::hits:
        return std::string("She hits ") + key_names.at(static_cast<std::size_t>(deed.number)) + ".";
    case Verb::uses_accelerator:
        return "She uses Alt+" + deed.text + ".";
    case Verb::leaves:
        return "She closes the window.";
    case Verb::decides:
        return deed.number == 1 ? "She answers OK." : "She answers Cancel.";
    case Verb::waits:
        return "The timers tick" + (deed.number == 1 ? std::string(".") : ' ' + number + " times.");
    case Verb::stops:
        return "She presses Stop.";
    }
    return {};
}

} // namespace

std::string line_of(const Deed& deed) {
    return std::string(verb_names.at(static_cast<std::size_t>(deed.verb))) + '\t' +
           std::to_string(deed.in_call) + '\t' + std::to_string(deed.number) + '\t' + escaped(deed.on) +
           '\t' + escaped(deed.text);
}

Deed deed_of(const std::string& line) {
    std::array<std::string, 5> fields;
    std::istringstream parts(line);
    for (std::string& field : fields) std::getline(parts, field, '\t');
    for (std::size_t i = 0; i < verb_names.size(); ++i)
        if (std::string_view(verb_names.at(i)) == fields[0])
            return {.verb = static_cast<Verb>(i),
                    .on = unescaped(fields[3]),
                    .text = unescaped(fields[4]),
                    .number = std::stoi(fields[2]),
                    .in_call = std::stoi(fields[1])};
    throw std::runtime_error("This is no deed: " + line);
}

std::string sentence_of(const Deed& deed) {
    if (deed.in_call == 0) return plain_sentence(deed);
    return "In the host's call " + std::to_string(deed.in_call) + " from here: " + plain_sentence(deed);
}

} // namespace brx::checks
