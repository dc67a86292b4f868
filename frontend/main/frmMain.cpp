#include "frontend/main/frmMain.h"

#include <QAbstractButton>
#include <QAction>
#include <QCloseEvent>
#include <QDialog>
#include <QGroupBox>
#include <QKeySequence>
#include <QShortcut>
#include <QWindow>

#include <exception>
#include <system_error>
#include <utility>

#include "calc/RuntimeFault.h"
#include "frontend/controls/Descriptions.h"
#include "frontend/controls/Scrolling.h"
#include "frontend/dialogs/ExplanationForm.h"
#include "frontend/dialogs/Frm_tarn_vik_fak_klass.h"
#include "frontend/dialogs/Sheet_saving.h"
#include "frontend/dialogs/frmAbout.h"
#include "frontend/dialogs/frmDetailed.h"
#include "frontend/dialogs/frmSetup.h"
#include "frontend/main/Languages.h"
#include "frontend/main/Placement.h"
#include "frontend/painting/Texts.h"
#include "report/PrintReport.h"
#include "session/Start_finding.h"

namespace tarnvik {

namespace {

constexpr const char* manual = "Tarnvik User & Theory Manual.pdf";

} // namespace

frmMain::frmMain(ConnectionState& state, const Services& services, Folders folders)
    : s_(state), services_(services), folders_(std::move(folders)), session_(state, *this), controls_(Prepared()),
      view_(controls_, state), editing_(*this, state, services_.boxes), boxes_(controls_, session_, editing_, view_),
      lists_(controls_, session_), selections_(controls_, session_, boxes_, lists_),
      projects_(controls_, session_, services_, editing_, boxes_, [this] { Show_project(); }),
      marks_(controls_, session_), recovery_(controls_, session_, boxes_, services_.boxes, folders_.state),
      classes_(std::make_unique<Frm_tarn_vik_fak_klass>(*this, session_)) {
    connect(&projects_, &ProjectMenu::Named, this, &frmMain::Set_caption);
    connect(&projects_, &ProjectMenu::Stored, &recovery_, &Recovery::Note);
    connect(&projects_, &ProjectMenu::Stored, &marks_, &Marks::Show);
    connect(&editing_, &BoxEditing::Refused, &marks_, &Marks::Show);
    connect(&boxes_, &InputBoxes::Splitting_checked, &marks_, &Marks::Show);
    // What changes the state without a pass; the selections, which were connected before, have taken the choice.
    connect(&controls_.Find<QAbstractButton>("Check_man"), &QAbstractButton::toggled, &marks_, &Marks::Show);
    connect(&controls_.Find<QAbstractButton>("Check_man"), &QAbstractButton::toggled, &recovery_, &Recovery::Note);
    connect(&boxes_, &InputBoxes::Splitting_checked, &recovery_, &Recovery::Note);
    connect(&editing_, &BoxEditing::Refused, &recovery_, &Recovery::Note);
    Connect_windows();
}

frmMain::~frmMain() = default;

// Before anything else: the children take font and scale from the window.
QMainWindow& frmMain::Prepared() {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Tarnvik"));
    resize(Shown_in(Room_on_screen(*this), {{}, Laid_out_size(*this)}).size());
    setContextMenuPolicy(Qt::NoContextMenu);
    return *this;
}

void frmMain::Load() {
    s_.Loading = true;
    projects_.Load_recent();
    const StartReport report = session_.Start(folders_.App_path);
    StartValue_controls();
    lists_.WritefrmCboBulldog();
    lists_.WritefrmCboMatProf();
    WritefrmInput1(*this, controls_);
    lists_.WritefrmInput2();
    title_prefix_ = "Tarnvik: ";
    Set_caption();
    Write_language(); // before the first sight of the window: no caption turns before the user's eyes
    show();
    connect(windowHandle(), &QWindow::yChanged, this, &frmMain::Stay_on_screen, Qt::SingleShotConnection);
    connect(windowHandle(), &QWindow::activeChanged, this, &frmMain::Stay_on_screen, Qt::SingleShotConnection);
    const PassResult first = session_.First_pass();
    if (folders_.data_is_new) {
        services_.boxes.Show((Is_english(s_)
                                  ? "The data files were copied to your own folder, where they can be edited:\n"
                                  : "Datafilene er kopiert til din egen mappe, der de kan endres:\n") +
                                 folders_.App_path.string(),
                             box_plain);
    }
    if (report.setup) {
        services_.boxes.Show(Setup_problem_text(*report.setup, folders_.App_path, Is_english(s_)), box_exclamation);
    }
    if (const std::string finding = Start_finding(s_, first, folders_.App_path); !finding.empty()) {
        services_.boxes.Show(finding, box_exclamation);
    }
    session_.Note_saved(boxes_.Names());
    recovery_.Note();
    recovery_.Offer([this](const std::string& path, const std::string& project) { projects_.Recover(path, project); });
}

// Once the window manager has given the window its frame, and again with the first focus, which a box may have before
// it.
void frmMain::Stay_on_screen() {
    const QRect room = Room_on_screen(*this);
    if (size().boundedTo(room.size()) != size()) {
        setGeometry(Shown_in(room, {geometry().topLeft(), Laid_out_size(*this)}));
    }
}

void frmMain::Open(const std::string& path) {
    projects_.Open_path(path);
}

void frmMain::StartValue_controls() {
    classes_->Select_classes(s_.Lastvar, s_.Klima);
    selections_.StartValue_controls();
}

// ---------------------------------------------------------------------------------------------------------------------
// The pass and what it shows

void frmMain::Before_pass() {
    // The pass reads the free entry as it stands now, accepted or not.
    boxes_.Read_free_entry();
    session_.Shown().controls = {}; // only what this pass writes: what the user has typed since the last one stays
}

void frmMain::After_pass() {
    view_.Show(session_.Shown());
    marks_.Show();
    recovery_.Note();
    emit Calculated();
}

void frmMain::Show_project() {
    lists_.WritefrmCboMatProf();
    Write_language();
    classes_->Select_classes(s_.Lastvar, s_.Klima);
    selections_.Show_project();
}

void frmMain::Set_caption_of(std::string_view control, std::string_view caption) {
    constexpr std::string_view classes_form = "Frm_tarn_vik_fak_klass";
    if (control.starts_with(classes_form)) {
        control.remove_prefix(classes_form.size());
        classes_->Set_caption_of(control.empty() ? control : control.substr(1), caption);
        return;
    }
    QObject* object = controls_.Look_up(control);
    const WriteCaption write = object != nullptr ? Caption_of(*object) : WriteCaption{};
    if (!write) {
        MainControls::Missing(control);
    }
    write(Q(caption));
}

void frmMain::Write_language() {
    const auto set = [this](std::string_view control, std::string_view caption) { Set_caption_of(control, caption); };
    if (Is_english(s_)) {
        English(s_, about_, set);
    } else {
        Norsk(s_, about_, set);
    }
    controls_.Find<PictureArea>("Pic_forbindelse")
        .Set_names(Is_english(s_) ? MemberNames::english : MemberNames::norwegian);
    Describe_controls();
    Set_values_off(controls_);
}

// The members go by the names that the window shows.
void frmMain::Describe_controls() {
    const bool english = Is_english(s_);
    const auto member = [this](const char* frame) { return controls_.Find<QGroupBox>(frame).title().trimmed(); };
    Describe(*this, "frmMain", english, member("Fra_dim_1"), member("Fra_dim_2"));
    classes_->Describe_controls(english);
}

void frmMain::Set_caption() {
    setWindowTitle(Q(title_prefix_ + s_.File_name));
}

// ---------------------------------------------------------------------------------------------------------------------
// The other windows, the manual, the printer

void frmMain::Connect_action(const char* name, std::function<void()> run) {
    connect(&controls_.Find<QAction>(name), &QAction::triggered, this, [run = std::move(run)] { run(); });
}

void frmMain::Connect_explanation(const char* button, const char* name) {
    connect(&controls_.Find<QAbstractButton>(button), &QAbstractButton::clicked, this, [this, name] {
        ExplanationForm window{*this, *this, session_, name};
        Show_modal(window);
    });
}

void frmMain::Connect_windows() {
    auto& detail = controls_.Find<QAbstractButton>("Cmd_detail");
    connect(&detail, &QAbstractButton::clicked, this, [this] {
        frmDetailed window{*this, session_};
        connect(&window, &frmDetailed::Sheet_wanted, this, [this] { Save_sheet(session_, services_); });
        Show_modal(window);
    });
    // Of the window: a caption that is written anew would take a shortcut of the button's own.
    connect(new QShortcut{QKeySequence{Qt::CTRL | Qt::Key_D}, this}, &QShortcut::activated, &detail, [&detail] {
        if (detail.isVisible()) {
            detail.click();
        }
    });
    Connect_explanation("Cmd_Bolt_eff_bolt", "Frm_tarn_vik_effbolt");
    Connect_explanation("Cmd_tverr", "Frm_tarn_vik_txt_tverr_brudd");
    Connect_action("mnuexit", [this] { close(); });
    Connect_action("mnusetup", [this] { Show_setup(); });
    Connect_action("mnuklasse", [this] { Show_modal(*classes_); });
    Connect_action("mnuabout", [this] {
        frmAbout window{*this, Is_english(s_), about_, services_.opener, services_.boxes};
        Show_modal(window);
    });
    Connect_action("mnuprint", [this] { editing_.Carry_out([this] { Print_report(); }); });
    Connect_action("mmuTheory", [this] { Open_manual(); });
}

void frmMain::Show_setup() {
    frmSetup window{*this, session_, editing_};
    connect(&window, &frmSetup::Language_chosen, this, [this] {
        Write_language();
        lists_.Refill_bulldog();
    });
    Show_modal(window);
}

void frmMain::Show_modal(QDialog& window) {
    if (!editing_.Ready_for_command()) {
        return;
    }
    activated_ = false;
    window.exec();
    if (isActiveWindow()) {
        Activate();
    }
}

// The first sight of the window and the return from one of the others: not a change between programs.
void frmMain::Activate() {
    if (!activated_) {
        activated_ = true;
        controls_.Find<TextBox>("txtprosjekt").setFocus(Qt::OtherFocusReason);
    }
}

void frmMain::Open_manual() {
    const std::filesystem::path path = folders_.program / "Documentation" / manual;
    std::error_code error;
    if (!std::filesystem::exists(path, error) || !services_.opener.Open_file(path.string())) {
        services_.boxes.Show((Is_english(s_) ? " Can't open the file " : " Kan ikke åpne filen ") + path.string(),
                             box_exclamation);
    }
}

void frmMain::Print_report() {
    try {
        const auto target = services_.printer.Show_printer(
            {no_selection | hide_print_to_file, Report_title(s_), Is_english(s_) ? "Print" : "Skriv ut"});
        if (target != nullptr) {
            session_.Print(*target, services_.clock.Now());
            target->EndDoc();
            return;
        }
    } catch (const RuntimeFault&) {   // NOLINT(bugprone-empty-catch): told as a cancelled dialog is
    } catch (const std::exception&) { // NOLINT(bugprone-empty-catch): the same
    }
    // Whatever happened, in English in both languages, and then the end of the work with the window.
    services_.boxes.Show_then("User pressed the Cancel button", box_exclamation, [this] {
        work_stays_ = true;
        close();
    });
}

bool frmMain::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        Activate();
    }
    return QMainWindow::event(event);
}

void frmMain::closeEvent(QCloseEvent* event) {
    event->accept();
    if (work_stays_) {
        recovery_.Keep();
    } else {
        recovery_.Drop();
    }
    emit Unloaded();
}

} // namespace tarnvik
