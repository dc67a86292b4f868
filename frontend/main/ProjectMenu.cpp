#include "frontend/main/ProjectMenu.h"

#include <QAction>

#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include "calc/RuntimeFault.h"
#include "frontend/dialogs/File_words.h"
#include "frontend/painting/Texts.h"
#include "platform/Path.h"

namespace tarnvik {

namespace {

FileDialogWords Dialog_words(bool english, bool saves) {
    if (english) {
        return File_words(english, saves, saves ? "Save project as" : "Open project", "Tarnvik projects");
    }
    return File_words(english, saves, saves ? "Lagre prosjekt som" : "Åpne prosjekt", "Tarnvik-prosjekter");
}

} // namespace

ProjectMenu::ProjectMenu(const MainControls& controls, Session& session, const Services& services, BoxEditing& editing,
                         const InputBoxes& boxes, std::function<void()> show_project)
    : session_(session), services_(services), editing_(editing), boxes_(boxes), show_project_(std::move(show_project)) {
    for (int i = 1; i <= 3; ++i) {
        connect(&controls.Find<QAction>("mnuFileItem(" + std::to_string(i) + ")"), &QAction::triggered, this,
                [this, i] { File_menu(i); });
    }
    for (int i = 1; i <= recent_count; ++i) {
        auto& entry = controls.Find<QAction>("mnurecentfile(" + std::to_string(i) + ")");
        entries_[static_cast<std::size_t>(i - 1)] = &entry;
        connect(&entry, &QAction::triggered, this, [this, i] { Recent_open(i); });
    }
}

void ProjectMenu::Load_recent() {
    Recent_load(services_.settings, recent_);
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        const RecentEntry& entry = recent_.entries[i];
        const bool line = entry.caption == "-";
        entries_[i]->setSeparator(line);
        // A path may hold "&", which a menu would take for an accelerator; a text on a separator would be drawn.
        entries_[i]->setText(line ? QString{} : Q(entry.caption).replace(QLatin1Char('&'), QLatin1String("&&")));
        entries_[i]->setVisible(entry.visible);
    }
}

void ProjectMenu::File_menu(int Index) {
    switch (Index) {
    case 1:
        Open();
        break;
    case 2:
        editing_.Carry_out([this] { Save(); });
        break;
    case 3:
        editing_.Carry_out([this] { Save_as(); });
        break;
    default:
        break;
    }
}

// Where the last project lay that was opened or saved, in this run or before.
std::string ProjectMenu::Last_folder() const {
    const ConnectionState& s = session_.State();
    const std::filesystem::path last = Path_of(s.File_named         ? s.File_name
                                               : recent_(1).visible ? Recent_path(recent_, 1)
                                                                    : "");
    std::error_code ignored;
    return std::filesystem::is_directory(last.parent_path(), ignored) ? last.parent_path().string() : std::string{};
}

void ProjectMenu::Open() {
    FileRequest request;
    request.folder = Last_folder();
    request.filter = "*.tnvik";
    request.file_name = "*.tnvik";
    request.flags = file_must_exist | hide_read_only;
    request.words = Dialog_words(Is_english(session_.State()), false);
    const std::optional<std::string> path = services_.files.Open(request);
    if (!path) {
        services_.boxes.Show("Cancel were pressed", box_plain);
        return;
    }
    Open_path(*path);
}

void ProjectMenu::Save() {
    ConnectionState& s = session_.State();
    try {
        session_.Save(s.File_name, boxes_.Names(), s.File_named);
        s.File_named = true;
    } catch (const RuntimeFault& fault) {
        services_.boxes.Show(Fault_text(fault), box_plain);
    }
    emit Stored();
}

void ProjectMenu::Save_as() {
    FileRequest request;
    request.filter = "*.tnvik";
    request.file_name = session_.State().File_name;
    request.default_extension = "tnvik";
    request.flags = prompt_on_overwrite | hide_read_only;
    request.words = Dialog_words(Is_english(session_.State()), true);
    const std::optional<std::string> path = services_.files.Save(request);
    if (!path) {
        services_.boxes.Show("Cancel were pressed", box_plain);
        return;
    }
    session_.Name(*path);
    try {
        session_.Save(*path, boxes_.Names());
    } catch (const RuntimeFault&) { // NOLINT(bugprone-empty-catch): a failed statement of save as is skipped
    }
    emit Named();
    emit Stored();
    Recent_shift(services_.settings, *path);
    Load_recent();
}

void ProjectMenu::Recent_open(int Index) {
    try {
        Open_path(Recent_path(recent_, Index));
    } catch (const RuntimeFault&) { // NOLINT(bugprone-empty-catch): an entry without a path opens nothing
    }
}

void ProjectMenu::Open_path(const std::string& path) {
    const bool opened = !session_.Open_project(path, show_project_);
    // What follows runs whether or not the file could be read.
    emit Named();
    try {
        Recent_front(services_.settings, recent_, path);
    } catch (const RuntimeFault&) { // NOLINT(bugprone-empty-catch): until four files are known the list stays
    }
    Load_recent();
    session_.First_pass(); // a fault is passed over, as any failed statement of the opening
    if (opened) {
        session_.Note_saved(boxes_.Names());
    }
    emit Stored();
}

void ProjectMenu::Recover(const std::string& path, const std::string& project) {
    session_.Recover(path, project, show_project_);
    emit Named();
    session_.First_pass();
    emit Stored();
}

} // namespace tarnvik
