#include "plant/opc_errors.h"

#include <array>

namespace brx::plant {

namespace {

struct Text {
    std::uint32_t code;
    const char* text;
};

constexpr auto error_texts = std::to_array<Text>({
    {0, "The operation completed successfully."},
    {0x8000'4001, "Not implemented"},
    {com_error::no_interface, "No such interface supported"},
    {com_error::unspecified, "Unspecified error"},
    {0x8004'0154, "Class not registered"},
    {com_error::access_denied, "Access is denied."},
    {com_error::invalid_argument, "The parameter is incorrect."},
    {com_error::node_unavailable, "The RPC server is unavailable."},
    {com_error::server_execution_failed, "Server execution failed"},
    {opc_error::invalid_handle, "The handle is not known to the server."},
    {opc_error::bad_type, "The server cannot convert the item's value to the requested data type."},
    {0xC004'0005, "The operation cannot be done on a public group."},
    {opc_error::bad_rights, "The access rights of the item do not allow the operation."},
    {opc_error::unknown_item_id, "The item identifier is not known to the server."},
    {opc_error::invalid_item_id, "The item identifier does not follow the server's syntax."},
    {0xC004'0009, "The filter is not valid."},
    {opc_error::unknown_path, "The access path is not known to the server."},
    {0xC004'000B, "The value is out of range."},
    {opc_error::duplicate_name, "The name is already in use."},
    {0x0004'000D, "The server uses the nearest update rate that it supports."},
    {0x0004'000E, "The value was accepted but limited."},
    {0x0004'000F, "The object is still in use."},
    {0xC004'0010, "The server's configuration file is not valid."},
    {0xC004'0011, "The object was not found."},
    {0xC004'0203, "The property is not valid for the item."},
});

} // namespace

std::string failure_text(std::uint32_t code) {
    for (const Text& known : error_texts)
        if (known.code == code) return known.text;
    return {};
}

Error failure(std::uint32_t code) { return {as_number(code), failure_text(code), "OPC simulation"}; }

} // namespace brx::plant
