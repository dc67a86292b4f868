// Work that no project file holds yet: a label that says so, a recovery file while it is so, and the offer of what a
// former run could not save. The program's own.
#pragma once

#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <filesystem>
#include <functional>
#include <optional>

#include "data/RecoveryFile.h"
#include "frontend/controls/Controls.h"
#include "frontend/main/InputBoxes.h"
#include "frontend/main/MainControls.h"
#include "ports/Services.h"
#include "session/Session.h"

namespace tarnvik {

class Recovery : public QObject {
    Q_OBJECT

public:
    // `folder` is where the files lie; empty: none are written.
    Recovery(const MainControls& controls, const Session& session, const InputBoxes& boxes, BoxService& box_service,
             std::filesystem::path folder);
    ~Recovery() override;

    // After whatever may change what a save would write.
    void Note();

    // The work that a former run left, in one box. `open` is given its path and the project that it belongs to.
    using OpenLeftWork = std::function<void(const std::string& path, const std::string& project)>;
    void Offer(const OpenLeftWork& open);

    // The run ends, and what is not saved is to be offered at the next start; or is not.
    void Keep();
    void Drop();

private:
    void Write();
    void Run(const std::function<void()>& work);

    const Session& session_;
    const InputBoxes& boxes_;
    BoxService& box_service_;
    CornerLabel& label_;
    std::filesystem::path folder_;
    RecoveryFile file_; // in the hands of the thread
    std::string written_;
    QTimer timer_;
    QThreadPool thread_; // one: a slow disk never holds the window up
};

} // namespace tarnvik
