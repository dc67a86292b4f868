#include "check/Recording.h"

#include <utility>

#include "calc/RuntimeFault.h"
#include "report/Recorder.h"

namespace tarnvik {

RecordReport Recording(Session& session, Clock& clock) {
    return [&session, &clock] {
        Recorder recorder;
        try {
            session.Print(recorder, clock.Now());
        } catch (const RuntimeFault&) { // NOLINT(bugprone-empty-catch): a print that fails ends where it fails
        }
        return std::move(recorder.calls);
    };
}

} // namespace tarnvik
