#include "window/host_model.h"

namespace sample {

HostModel::HostModel(const std::wstring& database) : host_(create<_Host>(L"brxSample.Host")) {
    if (!database.empty()) check(host_->put_DatabaseFile(Text(database).get()));
    check(host_->get_Servers(servers_.out()));
    collection_ = servers_.as<_hlxOPCServers>();
    if (!collection_) check(E_NOINTERFACE);
}

std::wstring HostModel::database_file() const {
    Text file;
    check(host_->get_DatabaseFile(file.out()));
    return file.text();
}

long HostModel::count() const {
    long count = 0;
    check(collection_->get_Count(&count));
    return count;
}

Ref<_hlxOPCServer> HostModel::entry(long position) const {
    VARIANT index{};
    V_VT(&index) = VT_I4;
    V_I4(&index) = position;
    Ref<_hlxOPCServer> entry;
    check(collection_->get_Item(index, entry.out()));
    return entry;
}

std::vector<TableLine> HostModel::servers() const {
    std::vector<TableLine> lines;
    const long all = count();
    for (long position = 1; position <= all; ++position) {
        const auto server = entry(position);
        Text name;
        Text node;
        check(server->get_ServerName(name.out()));
        check(server->get_Node(node.out()));
        const std::wstring state = state_text(position);
        lines.push_back({{name.text(), node.text().empty() ? L"(this computer)" : node.text(), state},
                         state.rfind(L"Not connected", 0) == 0 ? Tone::pale : Tone::plain});
    }
    return lines;
}

Ref<IDispatch> HostModel::automation_server(long position) const {
    Ref<IDispatch> server;
    check(entry(position)->get_OPCServer(server.out()));
    return server;
}

std::wstring HostModel::state_text(long position) const {
    Text state;
    check(host_->get_StateText(position, state.out()));
    return state.text();
}

std::wstring HostModel::display_text(long position) const {
    const auto server = entry(position);
    Text name;
    Text node;
    check(server->get_ServerName(name.out()));
    check(server->get_Node(node.out()));
    return node.text().empty() ? name.text() : node.text() + L"." + name.text();
}

std::wstring HostModel::last_item(long position) const {
    Text item;
    check(host_->get_LastItem(position, item.out()));
    return item.text();
}

void HostModel::remember_item(long position, const std::wstring& item) {
    check(host_->put_LastItem(position, Text(item).get()));
}

bool HostModel::connect(long position) {
    VARIANT_BOOL connected = VARIANT_FALSE;
    check(host_->Connect(position, &connected));
    return connected != VARIANT_FALSE;
}

void HostModel::remove(long position) { check(host_->Remove(position)); }

bool HostModel::uses_wrapper() const {
    OpcServerSource source = SimulatedPlant;
    check(host_->get_Source(&source));
    return source == AutomationWrapper;
}

void HostModel::use_wrapper(bool wrapper) {
    check(host_->put_Source(wrapper ? AutomationWrapper : SimulatedPlant));
}

bool HostModel::wrapper_installed() const {
    VARIANT_BOOL installed = VARIANT_FALSE;
    check(host_->get_WrapperInstalled(&installed));
    return installed != VARIANT_FALSE;
}

void HostModel::log(const std::wstring& text) { check(host_->Log(Text(text).get())); }

std::wstring HostModel::error_text() const {
    Text text;
    check(host_->get_ErrorText(text.out()));
    return text.text();
}

std::vector<std::wstring> HostModel::new_log_lines() {
    long count = 0;
    check(host_->get_LogCount(&count));
    std::vector<std::wstring> lines;
    while (log_lines_read_ < count) {
        Text line;
        check(host_->get_LogLine(++log_lines_read_, line.out()));
        lines.push_back(line.text());
    }
    return lines;
}

} // namespace sample
