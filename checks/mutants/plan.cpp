#include "mutants/plan.h"

#include <algorithm>
#include <random>
#include <sstream>

namespace brx::mutants {

std::vector<const Edit*> drawn(const Catalogue& catalogue, std::uint64_t seed, std::size_t how_many) {
    std::vector<const Edit*> all;
    for (const File& file : catalogue.files())
        for (const Edit& edit : file.edits) all.push_back(&edit);
    // Spelt out, for a library's own shuffle is nowhere said to be the same everywhere.
    std::mt19937_64 random(seed);
    how_many = std::min(how_many, all.size());
    for (std::size_t i = 0; i < how_many; ++i) std::swap(all[i], all[i + random() % (all.size() - i)]);
    all.resize(how_many);
    return all;
}

std::vector<Turn> turns_for(std::string_view reach, const std::string& number) {
    struct Check {
        std::string name;
        int milliseconds;
        std::size_t cost;
    };
    constexpr int patience = 10; // seconds, and so many times what it takes without the edit
    constexpr std::size_t few = 12;
    std::vector<Check> checks;
    std::istringstream lines{std::string(reach)};
    for (std::string line; std::getline(lines, line);) {
        const std::size_t name_end = line.find('\t');
        const std::size_t reached = line.find('\t', name_end + 1);
        const std::string numbers = line.substr(reached + 1) + " ";
        if (numbers.find(" " + number + " ") == std::string::npos) continue;
        const std::string name = line.substr(0, name_end);
        if (name == "before all checks") return {{30 * patience, "*"}};
        const int milliseconds = std::stoi(line.substr(name_end + 1));
        checks.push_back({name, milliseconds, numbers.size() + 100 * static_cast<std::size_t>(milliseconds)});
    }
    std::stable_sort(checks.begin(), checks.end(),
                     [](const Check& a, const Check& b) { return a.cost < b.cost; });
    std::vector<Turn> turns;
    int milliseconds = 0;
    for (std::size_t i = 0; i < checks.size(); ++i) {
        if (i == 0 || i == few) {
            turns.emplace_back();
            milliseconds = 0;
        }
        milliseconds += checks[i].milliseconds;
        Turn& turn = turns.back();
        turn.filter += (turn.filter.empty() ? "" : ":") + checks[i].name;
        turn.seconds = patience + patience * milliseconds / 1000;
    }
    return turns;
}

std::string one_line(std::string text) {
    std::replace(text.begin(), text.end(), '\n', ' ');
    std::replace(text.begin(), text.end(), '\t', ' ');
    return text;
}

} // namespace brx::mutants
