// The File menu: opening and saving projects, and the last four of them.
#pragma once

#include <QObject>

#include <array>
#include <functional>
#include <string>

#include "data/RecentFiles.h"
#include "frontend/main/InputBoxes.h"
#include "frontend/main/MainControls.h"
#include "ports/Services.h"
#include "session/Session.h"

class QAction;

namespace tarnvik {

class ProjectMenu : public QObject {
    Q_OBJECT

public:
    // `show_project` brings an opened project onto the controls; it may throw RuntimeFault.
    ProjectMenu(const MainControls& controls, Session& session, const Services& services, BoxEditing& editing,
                const InputBoxes& boxes, std::function<void()> show_project);

    // Opens the project of that path.
    void Open_path(const std::string& path);

    // The last files from the settings store onto the menu.
    void Load_recent();

    // Opens the work that a former run left on a project.
    void Recover(const std::string& path, const std::string& project);

signals:
    // The project has a name now.
    void Named();
    // What is on the disk may be what the window shows, or may be so no longer.
    void Stored();

private:
    // File menu: 1 open, 2 save, 3 save as.
    void File_menu(int Index);
    void Open();
    [[nodiscard]] std::string Last_folder() const;
    void Save();
    void Save_as();
    void Recent_open(int Index);

    Session& session_;
    Services services_;
    BoxEditing& editing_;
    const InputBoxes& boxes_;
    std::function<void()> show_project_;
    RecentMenu recent_;
    std::array<QAction*, recent_count> entries_{};
};

} // namespace tarnvik
