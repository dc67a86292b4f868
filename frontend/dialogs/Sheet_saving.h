// The command "Check sheet..." of the detailed calculations.
#pragma once

namespace tarnvik {

class Session;
struct Services;

// Asks for a place, beside the project at first, writes the check sheet there and opens it with the desktop's own
// program. A cancelled dialog writes nothing; what fails is told in a box. The results have to be current.
void Save_sheet(const Session& session, const Services& services);

} // namespace tarnvik
