#pragma once

#include "common/error.h"
#include "plant/groups.h"
#include "plant/opc_errors.h"
#include "plant/plant.h"
#include "plant/server.h"
#include "sample/hand_clock.h"

#include <gtest/gtest.h>

#include <functional>

namespace brx::plant {

/// The sample plant on a clock that is moved by hand.
class PlantCheck : public testing::Test {
protected:
    std::shared_ptr<Server> connected(const std::string& program_id, const std::string& node = "") {
        auto server = plant->make_server();
        server->Connect(program_id, node);
        return server;
    }

    /// The failure code that a call ends with; 0 when it succeeds.
    static std::uint32_t code_of(const std::function<void()>& call) {
        try {
            call();
            return 0;
        } catch (const Error& error) {
            return static_cast<std::uint32_t>(error.number());
        }
    }

    std::shared_ptr<HandClock> clock = std::make_shared<HandClock>();
    std::shared_ptr<Plant> plant = std::make_shared<Plant>(sample_plant(), clock);
};

} // namespace brx::plant
