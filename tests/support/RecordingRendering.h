// The painter of the headless tool that paints nothing: it keeps what would be painted.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "calc/RuntimeFault.h"
#include "ports/Clock.h"
#include "ports/Rendering.h"
#include "report/Recorder.h"

namespace tarnvik::test {

class RecordingRendering final : public Rendering {
public:
    int Write_pictures(const std::filesystem::path& /*folder*/) override { return 0; }
    void Write_report(const std::filesystem::path& file, const std::string& title,
                      const std::function<void(PrintTarget&, const Moment&)>& draw) override {
        if (fault != 0) {
            Raise(fault, "Write_report");
        }
        files.push_back(file);
        titles.push_back(title);
        draw(recorder, {"21.11.2026", "08:09:10"});
    }

    std::vector<std::filesystem::path> files;
    std::vector<std::string> titles;
    Recorder recorder;
    int fault{}; // raised in place of painting; 0 for none
};

} // namespace tarnvik::test
