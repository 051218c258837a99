#include "host/host.h"

namespace brx::host {

std::shared_ptr<Host> Host::open(const std::string& path, std::shared_ptr<OpcSource> source, Log& log) {
    auto host = std::make_shared<Host>(path, std::move(source), log);
    log.add("Opened " + path.substr(path.find_last_of("/\\") + 1) +
            (host->database_.file().is_read_only() ? " (write-protected)." : "."));
    return host;
}

Host::Host(const std::string& path, std::shared_ptr<OpcSource> source, Log& log)
    : log_(log), database_(path), servers_(*this, database_.file(), std::move(source)) {}

} // namespace brx::host
