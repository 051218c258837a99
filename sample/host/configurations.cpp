#include "host/configurations.h"

#include "host/host.h"
#include "host/positions.h"

namespace brx::host {

void Configurations::load() {
    for (StoredConfiguration& stored : host_.configurations().of_server(server_.id()))
        configurations_.push_back(Configuration::make(host_, server_.weak_from_this(), std::move(stored)));
}

std::shared_ptr<Configuration> Configurations::at(std::int32_t position) {
    return host_.kept(configurations_[index_of(configurations_, position)]);
}

std::shared_ptr<Configuration> Configurations::add() {
    configurations_.reserve(configurations_.size() + 1);
    const auto added =
        Configuration::make(host_, server_.weak_from_this(), host_.configurations().add(server_.id()));
    configurations_.push_back(added);
    added->fill_group(server_.OPCServer(), server_.source());
    return host_.kept(added);
}

void Configurations::remove(std::int32_t position) {
    const std::size_t index = index_of(configurations_, position);
    const auto removed = configurations_[index];
    host_.configurations().remove(removed->id());
    erase_at(configurations_, index);
    removed->drop_group();
    host_.log().add("Removed the configuration " + removed->Name() + ".");
}

bool Configurations::settle(std::int32_t position) {
    Configuration& configuration = *configurations_[index_of(configurations_, position)];
    if (configuration.tests().Count() == 0) {
        remove(position);
        return false;
    }
    configuration.fill_group(server_.OPCServer(), server_.source());
    configuration.collection().take_over();
    return true;
}

void Configurations::collect(Date now) {
    for (const auto& each : configurations_) {
        Collection& collection = each->collection();
        for (const std::string& news :
             {collection.tick(server_, now), collection.store_complete(host_.subgroups(), now)})
            if (!news.empty()) host_.log().add(each->Name() + ": " + news);
    }
}

void Configurations::fill_groups() {
    for (const auto& each : configurations_) each->fill_group(server_.OPCServer(), server_.source());
}

void Configurations::drop_groups() noexcept {
    for (const auto& each : configurations_) each->drop_group();
}

} // namespace brx::host
