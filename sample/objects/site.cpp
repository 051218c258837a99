#include "objects/site.h"

#include "host/plant_source.h"
#include "objects/wrapper_source.h"

#include <windows.h>

namespace brx::host {

Site::Site()
    : plant(std::make_shared<PlantSource>(
          std::make_shared<plant::Plant>(plant::sample_plant(), std::make_shared<plant::SystemClock>()))),
      wrapper(std::make_shared<WrapperSource>()),
      source(plant) {}

Site& site() {
    static Site the_site;
    return the_site;
}

double seconds() { return static_cast<double>(GetTickCount64()) / 1000; }

} // namespace brx::host
