// The headless tool's painter: pictures without a screen.
#pragma once

#include <memory>

#include "ports/Rendering.h"

class QGuiApplication;

namespace tarnvik {

class QtRendering : public Rendering {
public:
    // `argc` and `argv` are those of main(); the toolkit starts with the first picture, so that a check without one
    // starts at once.
    QtRendering(int& argc, char** argv);
    ~QtRendering() override;

    int Write_pictures(const std::filesystem::path& folder) override;
    void Write_report(const std::filesystem::path& file, const std::string& title,
                      const std::function<void(PrintTarget&, const Moment&)>& draw) override;

private:
    void Start();

    int& argc_;
    char** argv_;
    std::unique_ptr<QGuiApplication> application_;
};

} // namespace tarnvik
