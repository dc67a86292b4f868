// One session with a connection: the state, what the controls show of it and the texts of its reports, from the start
// over opening, calculating and printing to saving. The window and the headless tool each run on one; what differs
// between them is behind SessionView.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "calc/GlobalParameter.h"
#include "calc/RuntimeFault.h"
#include "calc/Screen.h"
#include "calc/pass/Main_beregn.h"
#include "data/ProjectFile.h"
#include "data/Startup.h"
#include "ports/Clock.h"
#include "ports/MessageBox.h"
#include "ports/PrintTarget.h"
#include "report/PrintReport.h"
#include "session/File_standing.h"
#include "session/Standing.h"

namespace tarnvik {

// What a session asks of whoever shows it.
class SessionView {
public:
    SessionView() = default;
    SessionView(const SessionView&) = delete;
    SessionView& operator=(const SessionView&) = delete;
    virtual ~SessionView() = default;

    // Where the messages of a pass and of an opening go.
    virtual MessageBox& Box() = 0;

    // Before a pass: brings into the state what stands in controls that have not been left.
    virtual void Before_pass() {}

    // After a pass, however it ended.
    virtual void After_pass() {}
};

// Names that stand in the window's boxes and need not have reached the state yet.
struct TypedNames {
    std::string Prosjekt, Id;
};

class Session {
public:
    // Nothing is read yet. Both have to outlive the session.
    Session(ConnectionState& s, SessionView& view) : s_(s), view_(view) {}

    [[nodiscard]] ConnectionState& State() { return s_; }
    [[nodiscard]] const ConnectionState& State() const { return s_; }
    [[nodiscard]] Screen& Shown() { return screen_; }

    // Whether the results belong to the inputs.
    [[nodiscard]] Standing& Results() { return results_; }
    [[nodiscard]] const Standing& Results() const { return results_; }

    // The program's folder, from the start on.
    [[nodiscard]] const std::filesystem::path& Folder() const { return folder_; }

    // What the start found.
    [[nodiscard]] const StartReport& Started() const { return started_; }

    // A new project from the files of the folder, as Start_state. Loading is set until First_pass.
    // Errors: throws DataFileError.
    const StartReport& Start(const std::filesystem::path& folder, std::optional<std::string_view> lang = std::nullopt);

    enum class Showing : std::uint8_t { screen, nothing };

    // A pass. With Showing::nothing it formats no text for the screen.
    PassResult Pass(Showing showing = Showing::screen);

    // The pass that ends a start, an opening or a change of inputs by name: Loading is off afterwards, also where the
    // pass was stopped.
    PassResult First_pass(Showing showing = Showing::screen);

    // A pass. Errors: throws its RuntimeFault, after the view has shown what was reached.
    void Main_beregn();

    // A pass with the last resort: a fault is told in a box and the program goes on.
    void Recalculate();

    // Reads a project into the state; `show` then brings it onto the controls. A failure of either is told in the box,
    // restores nothing, and is handed back. The project has its name in any case. The caller's pass ends the opening.
    std::optional<RuntimeFault> Open_project(const std::string& path, const std::function<void()>& show = {});

    // What the last opening or saving has to say for itself.
    [[nodiscard]] const FileStanding& File() const { return file_; }

    // The path of the project from now on.
    void Name(const std::string& path);

    // Writes the project, which keeps its name. What would be lost by it is kept as NAME~: FileStanding::Request.
    // Errors: throws RuntimeFault, as Safe_write.
    void Save(const std::string& path, const std::optional<TypedNames>& typed = std::nullopt, bool asked = true);

    // What Save would write now, as bytes.
    [[nodiscard]] std::string Bytes(const std::optional<TypedNames>& typed = std::nullopt) const;

    // What Save would write now is what the user has on the disk, or has not touched yet.
    void Note_saved(const std::optional<TypedNames>& typed = std::nullopt);

    // Save would write something else than what was last noted as saved.
    [[nodiscard]] bool Unsaved(const std::optional<TypedNames>& typed = std::nullopt) const;

    // Opens the recovered work on a project, as Open_project; its name becomes `project`, that of a new file where that
    // is empty, and stays where the work cannot be read. It counts as unsaved.
    std::optional<RuntimeFault> Recover(const std::string& path, const std::string& project,
                                        const std::function<void()>& show = {});

    // The report of the state as it stands. Errors: as PrintReport.
    void Print(PrintTarget& target, const Moment& now);

private:
    // What a project file holds of the inputs. Its tables change with an opening only.
    struct Content {
        Project_record record;
        SetupRecord Setup;

        friend bool operator==(const Content& one, const Content& other) = default;
    };
    [[nodiscard]] Content Content_now(const std::optional<TypedNames>& typed) const;
    // `content`: what the file holds, where it has been read already.
    using FileContent = std::optional<std::string>;
    void Read_project(const std::string& path, const FileContent& content, const std::function<void()>& show);
    std::optional<RuntimeFault> Try_read(const std::string& path, const FileContent& content,
                                         const std::function<void()>& show);

    ConnectionState& s_;
    SessionView& view_;
    std::filesystem::path folder_;
    StartReport started_;
    Screen screen_;
    Standing results_;
    std::optional<Content> saved_; // nothing: no file holds what a failed opening left
    SpacingTexts report_texts_;    // outlive a print
    FileStanding file_;
};

} // namespace tarnvik
