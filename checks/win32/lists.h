#pragma once

#include "desk/desk.h"
#include "rules/list_form.h"

namespace brx::checks {

class ListTest : public OnWindows {};

} // namespace brx::checks
