// The main window: all inputs on the left, all results on the right, the menus, and the one place where the program
// starts.
#pragma once

#include <QMainWindow>
#include <QPointer>

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "calc/GlobalParameter.h"
#include "calc/Screen.h"
#include "calc/pass/Main_beregn.h"
#include "data/RecentFiles.h"
#include "frontend/controls/Controls.h"
#include "frontend/main/Languages.h"
#include "frontend/main/Layout.h"
#include "ports/Clock.h"
#include "ports/Services.h"
#include "report/PrintReport.h"

class QAction;
class QDialog;

namespace tarnvik {

class Frm_tarn_vik_fak_klass;

struct Services {
    BoxService& boxes;
    FileDialogs& files;
    DocumentOpener& opener;
    SettingsStore& settings;
    PrinterService& printer;
    Clock& clock;
};

class frmMain : public QMainWindow {
    Q_OBJECT

public:
    // Builds the window without reading anything. `App_path` is the program's folder.
    frmMain(ConnectionState& state, const Services& services, std::filesystem::path App_path);
    ~frmMain() override;

    // The load step: reads the files, fills and lays out the controls, shows the window, runs the first pass.
    // Errors: throws DataFileError and RuntimeFault: the program cannot start.
    void Load();

    ConnectionState& State() { return s_; }
    Screen& Shown() { return screen_; }
    const Services& Platform() const { return services_; }
    const AboutTexts& About() const { return about_; }
    const std::filesystem::path& App_path() const { return app_path_; }
    Frm_tarn_vik_fak_klass& Classes_form() { return *classes_; }

    // A pass and its Screen on the controls. Errors: throws RuntimeFault, after the controls show what was reached.
    void Main_beregn();
    // The same with the last resort: a fault is told in a box and the program goes on.
    void Recalculate();

    // The language procedures, by Lang.
    void Write_language();
    // Comb_bulldog in the language of Lang with D62 selected; the selection runs its handler.
    void Refill_bulldog();
    void WritefrmCboBulldog();
    void WritefrmCboMatProf();
    void WritefrmInput1();
    void WritefrmInput2();

    // Runs one of the program's own windows as a modal one. The box in editing is left first, and one that is refused
    // keeps the window from opening; afterwards the focus is where an activation of the main window puts it.
    void Show_modal(QDialog& window);

    // File menu: 1 open, 2 save, 3 save as.
    void File_menu(int Index);
    void Recent_open(int Index);

    // The sign that a text box was refused and its message is still to be answered: other boxes wait.
    [[nodiscard]] bool Refusing() const { return !refused_.isNull(); }

    // Message, then focus back to the box (unless `give_back` is false); the box stays green. The click or key that
    // left the box does not act. Without a message it does, and the focus goes back afterwards.
    void Refuse(TextBox& box, std::string_view text, int style, bool give_back = true);
    // The common error step of the numeric boxes.
    void Input_error(TextBox& box, int number);
    // Green, and all its text selected.
    void Enter_box(TextBox& box);

    // A control by its name; throws std::logic_error that says the name where there is none.
    template <class T> T& Find(std::string_view name) const {
        T* found = dynamic_cast<T*>(Control_of(name));
        if (found == nullptr) {
            Missing(name);
        }
        return *found;
    }
    void Set_caption_of(std::string_view control, std::string_view caption);

signals:
    void Unloaded();
    // A pass has run, however it ended, and its results are on the controls.
    void Calculated();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QObject* Control_of(std::string_view name) const;
    [[noreturn]] static void Missing(std::string_view name);

    void Build_controls();
    void Build_menus();
    void Connect_handlers();
    void Connect_box(const char* name);
    void Connect_options();
    void Natural_sizes();
    void Apply_geometry();
    void Set_tab_order();
    void Set_caption();

    void StartValue_controls();
    void Apply_screen();
    void Apply_project_controls();
    void Open_path(const std::string& path);
    void Show_recent();

    void Leave_number(TextBox& box, const char* name);
    void Leave_man_he(TextBox& box);
    void Cmd_type(int Index);
    void Cmd_boltetype(int Index);
    void Opt_bolt_bulldog(int Index);
    void Check_man_click(bool checked);
    void Open_manual();
    void Print_report();
    void Show_connector_frames(bool shown);
    void Activate();
    void Fill_bulldog();
    void Select(std::string_view option);
    static void Clear_option(QAbstractButton& option);

    ConnectionState& s_;
    Services services_;
    std::filesystem::path app_path_;
    Screen screen_;
    AboutTexts about_;
    RecentMenu recent_;
    Boxes boxes_;
    std::map<std::string, QObject*, std::less<>> controls_;
    std::map<std::string, QAction*, std::less<>> actions_;
    std::unique_ptr<Frm_tarn_vik_fak_klass> classes_;
    SpacingTexts report_texts_; // outlive a print
    QPointer<TextBox> refused_;
    bool told_{};                      // the refusal has a message
    std::function<void()> on_release_; // waits for the mouse button
    bool activated_{};
    std::string title_prefix_;
    std::string cur_dir_;
};

} // namespace tarnvik
