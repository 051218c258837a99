#include "kit/sentence.h"

#include <cctype>
#include <initializer_list>
#include <string_view>
#include <vector>

namespace brx::kit {

namespace {

bool is_upper(char c) { return std::isupper(static_cast<unsigned char>(c)) != 0; }
bool is_lower(char c) { return std::islower(static_cast<unsigned char>(c)) != 0; }
char to_lower(char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); }
char to_upper(char c) { return static_cast<char>(std::toupper(static_cast<unsigned char>(c))); }

/// The words of "AFormOfCOMObjects": each begins with a capital, but those within COM.
std::vector<std::string> words_of(const std::string& name) {
    std::vector<std::string> words;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const bool within_capitals =
            i > 0 && is_upper(name[i - 1]) && (i + 1 == name.size() || !is_lower(name[i + 1]));
        if (words.empty() || (is_upper(name[i]) && !within_capitals)) words.emplace_back();
        words.back() += name[i];
    }
    return words;
}

std::string in_words(const std::string& name) {
    std::string text;
    for (std::string word : words_of(name)) {
        if (word.size() == 1 || !is_upper(word[1])) word[0] = to_lower(word[0]);
        text += (text.empty() ? "" : " ") + word;
    }
    return text;
}

std::string without_ending(std::string suite) {
    for (const std::string_view ending : {"Tests", "Test", "Checks", "Check"})
        if (suite.size() > ending.size() && suite.ends_with(ending)) {
            suite.resize(suite.size() - ending.size());
            return suite;
        }
    return suite;
}

} // namespace

std::string sentence(const std::string& check) {
    const std::size_t dot = check.find('.');
    if (dot == std::string::npos) return check;
    std::string suite = check.substr(0, dot);
    // Before it stands the name of the set of values that the check is made with.
    suite.erase(0, suite.find('/') + 1);
    std::string name = check.substr(dot + 1), value;
    if (const std::size_t slash = name.find('/'); slash != std::string::npos) {
        value = " (" + name.substr(slash + 1) + ")";
        name.resize(slash);
    }
    std::string subject = in_words(without_ending(suite));
    if (!subject.empty()) subject[0] = to_upper(subject[0]);
    return subject + ": " + in_words(name) + value;
}

} // namespace brx::kit
