#pragma once

#include "host/host.h"
#include "host/plant_source.h"
#include "plant/opc_errors.h"
#include "plant/server.h"
#include "sample/hand_clock.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <random>

namespace brx::host {

/// A folder of this check's own, removed with everything in it.
class TemporaryFolder {
public:
    TemporaryFolder() : path_(std::filesystem::temp_directory_path() / ("brx-store-" + random_name())) {
        std::filesystem::create_directories(path_);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    std::string file(const std::string& name) const { return (path_ / name).string(); }

private:
    static std::string random_name() {
        std::random_device random;
        return std::to_string(random()) + std::to_string(random());
    }
    std::filesystem::path path_;
};

/// A host on a database file of its own, with the sample plant behind it.
class StoreCheck : public testing::Test {
protected:
    std::shared_ptr<Host> opened() { return opened(file); }
    std::shared_ptr<Host> opened(const std::string& path) { return Host::open(path, source, log); }

    /// What opening the file fails with; "" when it does not fail.
    std::string failure_to_open(const std::string& path) {
        try {
            opened(path);
            return {};
        } catch (const Error& error) {
            EXPECT_EQ(error.number(), database_error);
            EXPECT_EQ(error.source(), "brxSample");
            return error.description();
        }
    }

    /// The number of the error that a call ends with; 0 when it succeeds.
    static std::int32_t error_of(const std::function<void()>& call) {
        try {
            call();
            return 0;
        } catch (const Error& error) {
            return error.number();
        }
    }

    /// From now on such a change of the file, "UPDATE ON test" for one, fails for want of room.
    static void fill_the_disk(Host& opened_host, const std::string& change) {
        opened_host.database()->file().run(
            ("CREATE TEMP TRIGGER full BEFORE " + change + " BEGIN SELECT RAISE(ABORT, 'no room left'); END")
                .c_str());
    }

    void write(const std::string& path, const std::string& content) {
        std::ofstream(path, std::ios::binary) << content;
    }

    TemporaryFolder folder;
    std::string file = folder.file("host.db");
    Log log;
    std::shared_ptr<plant::HandClock> clock = std::make_shared<plant::HandClock>();
    std::shared_ptr<PlantSource> source =
        std::make_shared<PlantSource>(std::make_shared<plant::Plant>(plant::sample_plant(), clock));
};

} // namespace brx::host
