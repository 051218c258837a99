#pragma once

#include "common/error.h"

#include <cstdint>
#include <string>

namespace brx::plant {

/// Failure codes of the automation platform.
namespace com_error {
inline constexpr std::uint32_t no_interface = 0x8000'4002;
inline constexpr std::uint32_t unspecified = 0x8000'4005;
inline constexpr std::uint32_t access_denied = 0x8007'0005;
inline constexpr std::uint32_t invalid_argument = 0x8007'0057;
inline constexpr std::uint32_t node_unavailable = 0x8007'06BA;
inline constexpr std::uint32_t server_execution_failed = 0x8008'0005;
} // namespace com_error

/// Failure codes of OPC Data Access, as OPCErrors names them.
namespace opc_error {
inline constexpr std::uint32_t invalid_handle = 0xC004'0001;
inline constexpr std::uint32_t bad_type = 0xC004'0004;
inline constexpr std::uint32_t bad_rights = 0xC004'0006;
inline constexpr std::uint32_t unknown_item_id = 0xC004'0007;
inline constexpr std::uint32_t invalid_item_id = 0xC004'0008;
inline constexpr std::uint32_t unknown_path = 0xC004'000A;
inline constexpr std::uint32_t duplicate_name = 0xC004'000C;
} // namespace opc_error

/// What OPCServer.ServerState says.
namespace server_state {
inline constexpr std::int32_t running = 1;
inline constexpr std::int32_t failed = 2;
inline constexpr std::int32_t no_configuration = 3;
inline constexpr std::int32_t suspended = 4;
inline constexpr std::int32_t test = 5;
inline constexpr std::int32_t disconnected = 6;
} // namespace server_state

/// A failure code as the signed number that the automation interfaces carry.
constexpr std::int32_t as_number(std::uint32_t code) { return static_cast<std::int32_t>(code); }

/// The text for a failure code; "" for one that nobody knows.
std::string failure_text(std::uint32_t code);

/// The failure of a call to a simulated server.
Error failure(std::uint32_t code);

} // namespace brx::plant
