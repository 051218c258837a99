#pragma once

#include "plant/plant.h"
#include "win32/com_ptr.h"

#include <windows.h>

#include <oleauto.h>

#include <memory>
#include <vector>

namespace brx::server {

/// From now on the plant's objects go out as COM objects that have, beside what the dialogs use, what a host
/// needs: connecting, and the values of items.
void publish_plant_objects();

/// What they can be called by.
std::vector<IID> published_interfaces();

/// An automation server that is not connected.
com_ptr<IDispatch> new_server(plant::Plant& plant);

} // namespace brx::server
