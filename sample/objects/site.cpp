#include "objects/site.h"

#include "host/plant_source.h"
#include "objects/wrapper_source.h"

namespace brx::host {

Site& site() {
    static Site the_site = [] {
        Site made;
        made.plant = std::make_shared<PlantSource>(
            std::make_shared<plant::Plant>(plant::sample_plant(), std::make_shared<plant::SystemClock>()));
        made.wrapper = std::make_shared<WrapperSource>();
        made.source = made.plant;
        return made;
    }();
    return the_site;
}

} // namespace brx::host
