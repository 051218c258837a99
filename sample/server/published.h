#pragma once

#include "com/com_ptr.h"
#include "plant/plant.h"

#include <windows.h>

#include <oleauto.h>

#include <memory>

namespace brx::server {

/// From now on the plant's objects go out as COM objects that have, beside what the dialogs use, what a host
/// needs: connecting, and the values of items.
void publish_plant_objects();

/// An automation server that is not connected.
com_ptr<IDispatch> new_server(plant::Plant& plant);

} // namespace brx::server
