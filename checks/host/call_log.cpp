#include "host/call_log.h"

#include "common/trap.h"

namespace brx::checks {

std::string CallLog::current_location_text() { return current_location(); }

} // namespace brx::checks
