// The main window: all inputs on the left, all results on the right, the menus, and the one place where the program
// starts.
#pragma once

#include <QMainWindow>

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "calc/GlobalParameter.h"
#include "data/Folders.h"
#include "frontend/dialogs/AboutTexts.h"
#include "frontend/main/BoxEditing.h"
#include "frontend/main/InputBoxes.h"
#include "frontend/main/Lists.h"
#include "frontend/main/MainControls.h"
#include "frontend/main/Marks.h"
#include "frontend/main/ProjectMenu.h"
#include "frontend/main/Recovery.h"
#include "frontend/main/ScreenView.h"
#include "frontend/main/Selections.h"
#include "ports/Services.h"
#include "session/Session.h"

class QDialog;

namespace tarnvik {

class Frm_tarn_vik_fak_klass;

class frmMain : public QMainWindow, private SessionView {
    Q_OBJECT

public:
    // Builds the window without reading anything.
    frmMain(ConnectionState& state, const Services& services, Folders folders);
    ~frmMain() override;

    // The load step: reads the files, fills and lays out the controls, shows the window, runs the first pass. A table
    // that a new project cannot be calculated with is told in a box, and the program goes on.
    // Errors: throws DataFileError: the program cannot start.
    void Load();

    // Opens a project as the File menu does.
    void Open(const std::string& path);

    // What the window shows, and the editing of its boxes.
    [[nodiscard]] Session& Work() { return session_; }
    [[nodiscard]] BoxEditing& Editing() { return editing_; }

    // The language procedures, by Lang.
    void Write_language();

signals:
    void Unloaded();
    // A pass has run, however it ended, and its results are on the controls.
    void Calculated();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    MessageBox& Box() override { return services_.boxes; }
    void Before_pass() override;
    void After_pass() override;

    QMainWindow& Prepared();
    void Connect_windows();
    void Connect_action(const char* name, std::function<void()> run);
    void Connect_explanation(const char* button, const char* name);
    void StartValue_controls();
    void Stay_on_screen();
    void Show_project();
    void Set_caption();
    void Set_caption_of(std::string_view control, std::string_view caption);
    void Describe_controls();

    // Runs one of the program's own windows as a modal one. The box in editing is left first, and one that is refused
    // keeps the window from opening; afterwards the focus is where an activation of the main window puts it.
    void Show_modal(QDialog& window);
    void Show_setup();
    void Activate();
    void Open_manual();
    void Print_report();

    ConnectionState& s_;
    Services services_;
    Folders folders_;
    Session session_;
    MainControls controls_;
    ScreenView view_;
    BoxEditing editing_;
    InputBoxes boxes_;
    Lists lists_;
    Selections selections_;
    ProjectMenu projects_;
    Marks marks_;
    Recovery recovery_;
    std::unique_ptr<Frm_tarn_vik_fak_klass> classes_;
    AboutTexts about_;
    std::string title_prefix_;
    bool activated_{};
    bool work_stays_{}; // the window closes on unsaved work, which the next start offers
};

} // namespace tarnvik
