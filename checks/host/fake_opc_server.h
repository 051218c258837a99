#pragma once

#include "common/model/opc_automation.h"
#include "host/recorded.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace brx::checks {

/// A simulated connection to an OPC server. What it answers is in its fields.
class FakeOPCServer : public OPCServer, public Recorded {
public:
    explicit FakeOPCServer(CallLog& calls) : Recorded(calls, "OPCServer") {}

    std::string server_name;
    std::string server_node;
    Date start_time{46000.25};
    Date current_time{46001.5};
    Date last_update_time{46001.25};
    std::int16_t major_version = 3;
    std::int16_t minor_version = 0;
    std::string vendor_info = "Plant Simulations";
    /// What is registered on each node; "" is the local computer. A node that is not listed fails.
    std::map<std::string, Variant> registered;
    bool can_browse = true;
    OPCBrowserPtr browser;
    OPCGroupsPtr groups;
    std::string error_string = "The item is not known to the server.";
    /// What GetErrorString was asked for.
    std::vector<std::int32_t> error_codes;
    /// Runs inside each enumeration.
    std::function<void()> while_enumerating = [] {};

    Date StartTime() override { return read("StartTime", start_time); }
    Date CurrentTime() override { return read("CurrentTime", current_time); }
    Date LastUpdateTime() override { return read("LastUpdateTime", last_update_time); }
    std::int16_t MajorVersion() override { return read("MajorVersion", major_version); }
    std::int16_t MinorVersion() override { return read("MinorVersion", minor_version); }
    std::int16_t BuildNumber() override { return read("BuildNumber", std::int16_t{17}); }
    std::string VendorInfo() override { return read("VendorInfo", vendor_info); }
    std::int32_t ServerState() override { return read("ServerState", 1); }
    std::string ServerName() override { return read("ServerName", server_name); }
    std::string ServerNode() override { return read("ServerNode", server_node); }
    std::string ClientName() override { return read("ClientName", std::string()); }
    std::int32_t Bandwidth() override { return read("Bandwidth", 4); }
    OPCGroupsPtr OPCGroups() override { return read("OPCGroups", groups); }
    OPCBrowserPtr CreateBrowser() override {
        note("CreateBrowser");
        if (!can_browse) throw Error(-2147467263, "Not implemented", "OPCServer"); // 0x80004001
        return answered(browser);
    }
    std::string GetErrorString(std::int32_t error_code) override {
        note("GetErrorString");
        error_codes.push_back(error_code);
        return answered(error_string);
    }

    Variant GetOPCServers(const std::optional<std::string>& node) override {
        note("GetOPCServers(" + node.value_or("") + ")");
        while_enumerating();
        const auto found = registered.find(node.value_or(""));
        if (found == registered.end())
            throw Error(-2147023174, "The RPC server is unavailable.", "OPCServer");
        return answered(found->second);
    }
};

} // namespace brx::checks
