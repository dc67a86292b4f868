// The report of a session as the results show it.
#pragma once

#include "check/Json.h"
#include "ports/Clock.h"
#include "session/Session.h"

namespace tarnvik {

// Prints the report of the session's state as it stands when it is called. Both have to outlive it.
RecordReport Recording(Session& session, Clock& clock);

} // namespace tarnvik
