#pragma once

#include "scenario.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace brx::checks {

/// The host's help file, which is really there for as long as this lives.
class HelpFile {
public:
    explicit HelpFile(Play& its) : its_(its), path_(std::filesystem::temp_directory_path() / unique_name()) {
        std::ofstream(path_) << "help";
        its.host.help_service->path = path_.string();
    }
    ~HelpFile() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }
    HelpFile(const HelpFile&) = delete;
    HelpFile& operator=(const HelpFile&) = delete;

    /// F1 opens it at the topic.
    void expect_f1_to_open_at(int topic) const {
        its_.person.hits(Key::f1);
        EXPECT_EQ(its_.person.screen().help(), path_.string() + " at " + std::to_string(topic));
    }

private:
    static std::string unique_name() {
        static int made = 0;
        return "brx help " + std::to_string(std::random_device()()) + "." + std::to_string(++made) + ".chm";
    }

    Play& its_;
    std::filesystem::path path_;
};

} // namespace brx::checks
