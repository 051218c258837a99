// Random deeds at one public class, and what is to be done with a story that ends badly.
//
//   brx_random play CLASS SEED DEEDS FILE    as many, by chance; the file has those since all was well
//   brx_random retell FILE                   the story in a file once more
//   brx_random cut FILE COMMAND              into FILE.cut, the shortest that ends like it; COMMAND retells
//   brx_random tell FILE                     in sentences
//
// It ends with 0 when nothing is wrong, and with a line "FOUND: " when something is.

#include "random/cutter.h"
#include "random/finding.h"
#include "random/play.h"
#include "random/retelling.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#endif

namespace {

using namespace brx::checks;

/// A crash must end the program, not wait in a dialog for somebody to press a button.
void end_at_a_crash() {
#ifdef _WIN32
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
#endif
}

int cut(const std::string& file, const std::string& command) {
    constexpr std::chrono::minutes patience{3};
    const auto end = std::chrono::steady_clock::now() + patience;
    const std::string ending = ending_of(command, file);
    if (ending.empty()) {
        std::printf("It ends well this time.\n");
        return 1;
    }
    const Deeds shortest = cut_down(read_story(file), [&](const Deeds& story) {
        if (std::chrono::steady_clock::now() > end) return false;
        write_story(file + ".try", story);
        return ending_of(command, file + ".try") == ending;
    });
    write_story(file + ".cut", shortest);
    std::printf("%s\n", ending.c_str());
    return 0;
}

int tell(const std::string& file) {
    int number = 0;
    for (const Deed& deed : read_story(file)) std::printf("%3d. %s\n", ++number, sentence_of(deed).c_str());
    return 0;
}

int run(const std::vector<std::string>& arguments) {
    const std::string what = arguments.empty() ? "" : arguments[0];
    if (what == "play" && arguments.size() == 5)
        return play(arguments[1], std::stoull(arguments[2]), std::stoi(arguments[3]), arguments[4]);
    if (what == "retell" && arguments.size() == 2) return retell(arguments[1]);
    if (what == "cut" && arguments.size() == 3) return cut(arguments[1], arguments[2]);
    if (what == "tell" && arguments.size() == 2) return tell(arguments[1]);
    std::fprintf(stderr,
                 "brx_random play CLASS SEED DEEDS FILE | retell FILE | cut FILE COMMAND | tell FILE\n");
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    end_at_a_crash();
    int status = 1;
    try {
        status = run({argv + 1, argv + argc});
    } catch (const Finding& finding) {
        std::printf("FOUND: %s\n    %s\n", finding.kind.c_str(), finding.what());
    } catch (const std::exception& other) {
        std::printf("FOUND: an end\n    %s\n", other.what());
    }
    std::fflush(stdout);
    // What the story left open cannot be taken down.
    std::_Exit(status);
}
