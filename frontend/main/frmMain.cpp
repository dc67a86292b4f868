#include "frontend/main/frmMain.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QDialog>
#include <QDir>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalBlocker>

#include <array>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "calc/RuntimeFault.h"
#include "calc/Splitting.h"
#include "data/ProjectFile.h"
#include "data/SetupFile.h"
#include "data/Startup.h"
#include "data/Tables.h"
#include "frontend/controls/Style.h"
#include "frontend/dialogs/ExplanationForm.h"
#include "frontend/dialogs/Frm_tarn_vik_fak_klass.h"
#include "frontend/dialogs/frmAbout.h"
#include "frontend/dialogs/frmDetailed.h"
#include "frontend/dialogs/frmSetup.h"

namespace tarnvik {

namespace {

// A numeric box: what it writes, how it shows the accepted value, and what it says of a value at or below zero.
struct NumberBox {
    const char* name;
    float ConnectionValues::*value;
    const char* picture;
    const char* refusal_eng;
    const char* refusal_nor;
};

// clang-format off
constexpr std::array number_boxes{
    NumberBox{"Txt_alp",  &ConnectionValues::alp, "0.00", "alp =< 0 ",  "alp = < 0 "},
    NumberBox{"Txt_b1",   &ConnectionValues::b1,  "0.0",  "b1 =< 0 ",   "b1 = < 0 "},
    NumberBox{"Txt_b2",   &ConnectionValues::b2,  "0.0",  " b < 0 ",    " b < 0 "},
    NumberBox{"Txt_h1",   &ConnectionValues::h1,  "0.00", " h =< 0 ",   " h =< 0 "},
    NumberBox{"Txt_h2",   &ConnectionValues::h2,  "0.0",  " h =< 0 ",   " h =< 0 "},
    NumberBox{"Txt_last", &ConnectionValues::P,   "0.00", " Load has to be given as a posetiv value > 0  ",
                                                          "Last må angies som posetiv > 0"},
};

// Where the Enter key moves on to; a box that is not named here does nothing with it.
struct EnterMove {
    const char* from;
    const char* to;
};
constexpr std::array enter_moves{
    EnterMove{"Txt_h1",   "Txt_b1"},
    EnterMove{"Txt_b1",   "Txt_h2"},
    EnterMove{"Txt_h2",   "Txt_b2"},
    EnterMove{"Txt_b2",   "Pic_Dim"},
    EnterMove{"Txt_last", "Txt_alp"},
};

// Shown with connectors only; Fra_av_bulldog and Fra_bulldog go with them, but not everywhere.
constexpr std::array connector_labels{"Lbl_bulldog_kap1", "Lbl_bulldog_kap2", "Lbl_pluss", "Lbl_Rd_bulldog_kontroll"};
// clang-format on

constexpr const char* manual = "Tarnvik User & Theory Manual.pdf";

} // namespace

frmMain::frmMain(ConnectionState& state, const Services& services, std::filesystem::path App_path)
    : s_(state), services_(services), app_path_(std::move(App_path)) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Tarnvik"));
    // Before anything else: the children take font and scale from the window.
    resize(Scaled(1024.0, logicalDpiX()), static_cast<int>(std::lround(0.965 * 768.0 * logicalDpiY() / 96.0)));
    setContextMenuPolicy(Qt::NoContextMenu);
    Build_menus();
    Build_controls();
    Set_tab_order();
    classes_ = std::make_unique<Frm_tarn_vik_fak_klass>(*this);
    Connect_handlers();
    qApp->installEventFilter(this);
}

frmMain::~frmMain() = default;

void frmMain::Load() {
    s_.Loading = true;
    Recent_load(services_.settings, recent_);
    Show_recent();
    const StartReport report = Start_state(s_, app_path_);
    StartValue_controls();
    WritefrmCboBulldog();
    WritefrmCboMatProf();
    WritefrmInput1();
    WritefrmInput2();
    title_prefix_ = "Tarnvik: ";
    Set_caption();
    Write_language(); // before the first sight of the window: no caption turns before the user's eyes
    show();
    Main_beregn();
    s_.Loading = false;
    if (report.setup_missing) {
        services_.boxes.Show(
            std::string{setup_file_read} + " in " + app_path_.string() +
                ": file not found.\nNorwegian texts and the partial factors 1.3, 1.25, 1.2, 1.25 are used.",
            box_exclamation);
    }
}

void frmMain::StartValue_controls() {
    classes_->Select_classes(s_.Lastvar, s_.Klima);
    Select("Opt_bolt_bulldog(0)");
    Select("Opt_stand");
    Find<QWidget>("Fra_valgfri").setEnabled(false);
    Select("Opt_trykk");
    Find<QWidget>("Opt_strekk").setEnabled(true);
    Find<TextBox>("Txt_last").setText(Q(Format(s_.P, "0.0")));
    Find<TextBox>("Txt_alp").setText(Q(Format(s_.alp, "0.0")));
    Select("Opt_enk_1");
    Select("Opt_enk_2");
    Find<QCheckBox>("Check_man").setChecked(false);
    Find<QWidget>("Txt_man_he").setEnabled(false);
    Find<QWidget>("Lbl_man_he").setEnabled(false);
    Show_connector_frames(false);
}

// ---------------------------------------------------------------------------------------------------------------------
// The pass and what it shows

void frmMain::Main_beregn() {
    // The pass reads the free entry as it stands now, accepted or not.
    s_.Txt_b1 = U(Find<TextBox>("Txt_b1").text());
    s_.Txt_h1 = U(Find<TextBox>("Txt_h1").text());
    s_.Txt_b2 = U(Find<TextBox>("Txt_b2").text());
    s_.Txt_h2 = U(Find<TextBox>("Txt_h2").text());
    screen_.controls = {}; // only what this pass writes: what the user has typed since the last one stays
    const PassResult result = Run_pass(s_, &screen_, services_.boxes);
    Apply_screen();
    emit Calculated();
    if (result.fault) {
        throw RuntimeFault{*result.fault};
    }
}

void frmMain::Recalculate() {
    try {
        Main_beregn();
    } catch (const RuntimeFault& fault) {
        services_.boxes.Show(Fault_text(fault), box_plain);
    }
}

void frmMain::Apply_screen() {
    // A control that is disabled or hidden under the focus is not left by the user.
    const bool loading = std::exchange(s_.Loading, true);
    for (std::size_t i = 0; i < control_count; ++i) {
        const ControlView& view = screen_.controls[i];
        const std::string_view name = Control_name(static_cast<Control>(i));
        QObject* control = Control_of(name);
        if (auto* action = dynamic_cast<QAction*>(control)) {
            if (view.enabled) {
                action->setEnabled(*view.enabled);
            }
            continue;
        }
        auto& widget = Find<QWidget>(name);
        if (view.caption) {
            Set_caption_of(name, *view.caption);
        }
        if (view.visible) {
            widget.setVisible(*view.visible);
        }
        if (view.enabled) {
            widget.setEnabled(*view.enabled);
        }
        if (view.bold && widget.font().bold() != *view.bold) {
            QFont bold = widget.font();
            bold.setBold(*view.bold);
            widget.setFont(bold);
        }
        if (view.fore) {
            QPalette palette = widget.palette();
            if (palette.color(QPalette::Active, widget.foregroundRole()) != To_colour(*view.fore)) {
                palette.setColor(widget.foregroundRole(), To_colour(*view.fore));
                widget.setPalette(palette);
            }
        }
        if (view.back) {
            if (auto* list = dynamic_cast<ListBox*>(control)) {
                list->Set_back(*view.back);
            } else if (auto* box = dynamic_cast<TextBox*>(control)) {
                box->Set_back(*view.back);
            }
        }
        if (view.index) {
            auto& list = Find<ListBox>(name);
            const QSignalBlocker quiet{list}; // the state holds this row already
            list.setCurrentIndex(*view.index);
        }
    }
    Find<TableArea>("Pic_av_bolter_dif").Set_rows(screen_.Pic_av_bolter_dif);
    Find<TableArea>("Pic_av_bulldog_dif").Set_rows(screen_.Pic_av_bulldog_dif);
    Find<PictureArea>("Pic_forbindelse").Set_picture(screen_.Pic_forbindelse);
    Find<PictureArea>("Pic_av_bolter").Set_picture(screen_.Pic_av_bolter);
    Find<PictureArea>("Pic_av_bulldog").Set_picture(screen_.Pic_av_bulldog);
    for (int i = 0; i < 5; ++i) {
        Find<PictureButton>("Cmd_type(" + std::to_string(i) + ")").Set_pressed_look(s_.Con_type == i + 1);
    }
    s_.Loading = loading;
}

void frmMain::Set_caption_of(std::string_view control, std::string_view caption) {
    constexpr std::string_view classes_form = "Frm_tarn_vik_fak_klass";
    if (control.starts_with(classes_form)) {
        control.remove_prefix(classes_form.size());
        classes_->Set_caption_of(control.empty() ? control : control.substr(1), caption);
        return;
    }
    QObject* object = Control_of(control);
    const QString text = Q(caption);
    if (auto* label = dynamic_cast<QLabel*>(object)) {
        label->setText(text);
    } else if (auto* box = dynamic_cast<QLineEdit*>(object)) {
        if (box->text() != text) {
            box->setText(text);
        }
    } else if (auto* group = dynamic_cast<QGroupBox*>(object)) {
        group->setTitle(text);
    } else if (auto* button = dynamic_cast<QAbstractButton*>(object)) {
        button->setText(text);
    } else if (auto* menu = dynamic_cast<QMenu*>(object)) {
        menu->setTitle(text);
    } else if (auto* action = dynamic_cast<QAction*>(object)) {
        action->setText(text);
    } else {
        Missing(control);
    }
}

void frmMain::Write_language() {
    const auto set = [this](std::string_view control, std::string_view caption) { Set_caption_of(control, caption); };
    if (Is_english(s_)) {
        English(s_, about_, set);
    } else {
        Norsk(s_, about_, set);
    }
}

void frmMain::Set_caption() {
    setWindowTitle(Q(title_prefix_ + s_.File_name));
}

// ---------------------------------------------------------------------------------------------------------------------
// Lists

namespace {

void Fill(ListBox& list, const QStringList& items) {
    const QSignalBlocker quiet{list};
    list.clear();
    list.addItems(items);
    list.setCurrentIndex(-1);
}

} // namespace

void frmMain::Fill_bulldog() {
    QStringList items;
    for (const ConnectorRow& row : connector_table) {
        items << Q(Is_english(s_) ? row.caption_eng : row.caption_nor);
    }
    Fill(Find<ListBox>("Comb_bulldog"), items);
}

void frmMain::Refill_bulldog() {
    Fill_bulldog();
    Find<ListBox>("Comb_bulldog").setCurrentIndex(1);
}

void frmMain::WritefrmCboBulldog() {
    Fill_bulldog();
    Find<ListBox>("Comb_bulldog").setCurrentIndex(s_.Bulldog_index);
}

void frmMain::WritefrmCboMatProf() {
    Check_counts(s_);
    const auto profiles = [this](int count) {
        QStringList items;
        for (int i = 0; i <= count; ++i) {
            items << Q(s_.Prof[static_cast<std::size_t>(i)].Id);
        }
        return items;
    };
    Fill(Find<ListBox>("cboProf1"), profiles(s_.Prof1_count));
    Fill(Find<ListBox>("cboProf2"), profiles(s_.Prof2_count));
    Find<ListBox>("cboProf1").setCurrentIndex(s_.Prof1_index);
    Find<ListBox>("cboProf2").setCurrentIndex(s_.Prof2_index);
    QStringList materials;
    for (int i = 0; i <= s_.Mat_count; ++i) {
        materials << Q(s_.Mat[static_cast<std::size_t>(i)].Id);
    }
    Fill(Find<ListBox>("cboMat"), materials);
    Find<ListBox>("cboMat").setCurrentIndex(s_.Mat_index);
}

void frmMain::WritefrmInput2() {
    QStringList bolts;
    for (const BoltRow& row : bolt_table) {
        bolts << Q(row.caption);
    }
    Fill(Find<ListBox>("Comb_bolter"), bolts);
    Find<ListBox>("Comb_bolter").setCurrentIndex(s_.Bolt_index);
    QStringList numbers;
    for (const std::int16_t number : bolt_numbers) {
        numbers << QString::number(number);
    }
    Fill(Find<ListBox>("Comb_ant_bolt"), numbers);
    Find<ListBox>("Comb_ant_bolt").setCurrentIndex(s_.Ant_index);
    QStringList spacings;
    for (int n = 5; n <= 20; ++n) {
        spacings << QString::number(n) + QLatin1Char('d');
    }
    Fill(Find<ListBox>("Comb_bolt_avstand"), spacings);
    Find<ListBox>("Comb_bolt_avstand").setCurrentIndex(s_.Avstand_index);
}

// ---------------------------------------------------------------------------------------------------------------------
// Options and buttons

void frmMain::Select(std::string_view option) {
    Find<QAbstractButton>(option).setChecked(true);
}

void frmMain::Clear_option(QAbstractButton& option) {
    option.setAutoExclusive(false);
    option.setChecked(false);
    option.setAutoExclusive(true);
}

void frmMain::Show_connector_frames(bool shown) {
    for (const char* label : connector_labels) {
        Find<QWidget>(label).setVisible(shown);
    }
    Find<QWidget>("Fra_bulldog").setVisible(shown);
    Find<QWidget>("Fra_av_bulldog").setVisible(shown);
}

void frmMain::Connect_options() {
    const auto on_select = [this](const char* name, std::function<void()> write) {
        connect(&Find<QAbstractButton>(name), &QAbstractButton::toggled, this,
                [this, write = std::move(write)](bool selected) {
                    if (selected && !s_.Loading) {
                        write();
                        Recalculate();
                    }
                });
    };
    const auto enable = [this](const char* name, bool enabled) { Find<QWidget>(name).setEnabled(enabled); };

    on_select("Opt_bolt_bulldog(0)", [this] { Opt_bolt_bulldog(0); });
    on_select("Opt_bolt_bulldog(1)", [this] { Opt_bolt_bulldog(1); });
    on_select("Opt_stand", [this, enable] {
        s_.Standard = true;
        enable("Fra_standard", true);
        enable("Fra_valgfri", false);
    });
    on_select("Opt_valg", [this, enable] {
        s_.Standard = false;
        enable("Fra_standard", false);
        enable("Fra_valgfri", true);
        enable("Txt_b1", true);
    });
    on_select("Opt_trykk", [this] { s_.P = std::fabs(s_.P); });
    // A plain change of sign: a force typed while tension is selected is stored positive.
    on_select("Opt_strekk", [this] { s_.P = -s_.P; });
    on_select("Opt_enk_1", [this, enable] {
        s_.enk_1 = true;
        s_.dob_1 = false;
        enable("Opt_dob_2", true);
    });
    on_select("Opt_dob_1", [this, enable] {
        s_.dob_1 = true;
        s_.enk_2 = true;
        s_.dob_2 = false;
        s_.enk_1 = false;
        enable("Opt_dob_2", false);
    });
    on_select("Opt_enk_2", [this, enable] {
        s_.enk_2 = true;
        s_.dob_2 = false;
        enable("Opt_dob_1", true);
    });
    on_select("Opt_dob_2", [this, enable] {
        s_.dob_2 = true;
        s_.enk_1 = true;
        s_.enk_2 = false;
        s_.dob_1 = false;
        Clear_option(Find<QAbstractButton>("Opt_dob_1"));
        enable("Opt_dob_1", false);
    });
}

void frmMain::Opt_bolt_bulldog(int Index) {
    if (Index == 0) {
        s_.Kun_bolt = true;
        s_.Med_bulldog = false;
        Show_connector_frames(false);
        return;
    }
    s_.Med_bulldog = true;
    s_.Kun_bolt = false;
    Find<QWidget>("Fra_av_bulldog").setVisible(true);
    for (const char* label : connector_labels) {
        Find<QWidget>(label).setVisible(true);
    }
    Find<QWidget>("Fra_bulldog").setVisible(true);
    Refill_bulldog(); // its handler sets dc and runs a pass of its own
}

void frmMain::Cmd_type(int Index) {
    if (s_.Loading) {
        return;
    }
    Find<QCheckBox>("Check_man").setChecked(false);
    s_.Avstand_index = 0;
    s_.Con_type = static_cast<std::int16_t>(Index + 1);
    s_.alp = Index <= 2 ? 27.0F : 90.0F;
    auto& angle = Find<TextBox>("Txt_alp");
    angle.setText(Q(Format(s_.alp, "0.0")));
    if (Index <= 2) {
        angle.setVisible(true);
        Find<QWidget>("Lbl_alp").setVisible(true);
    }
    s_.enk_1 = true;
    s_.enk_2 = true;
    Find<QWidget>("Opt_dob_1").setEnabled(true);
    Find<QWidget>("Opt_dob_2").setEnabled(true);
    Select("Opt_enk_1");
    Select("Opt_enk_2");
    Recalculate();
}

void frmMain::Cmd_boltetype(int Index) {
    s_.Bolt_ab = Index == 0 ? "a" : "b"; // also while loading
    Recalculate();
}

void frmMain::Check_man_click(bool checked) {
    if (s_.Loading) {
        return;
    }
    s_.Man_he_on = checked;
    Find<QWidget>("Txt_man_he").setEnabled(checked);
    Find<QWidget>("Lbl_man_he").setEnabled(checked);
    if (!checked) {
        Recalculate();
    }
}

// ---------------------------------------------------------------------------------------------------------------------
// Text boxes

void frmMain::Enter_box(TextBox& box) {
    box.Set_back(colour_green_box);
    box.selectAll();
}

void frmMain::Refuse(TextBox& box, std::string_view text, int style, bool give_back) {
    refused_ = &box;
    told_ = !text.empty();
    const auto after = [this, give_back] {
        TextBox* refused = refused_;
        const bool elsewhere = refused == nullptr || !refused->isEnabled() || (!told_ && !refused->isActiveWindow());
        if (give_back && !elsewhere) {
            refused->setFocus(Qt::OtherFocusReason);
            Enter_box(*refused);
        }
        refused_ = nullptr;
        // What was entered while the message waited starts its editing now. Its window need not be active again yet.
        if (auto* entered = dynamic_cast<TextBox*>(focusWidget()); !give_back && entered != nullptr) {
            emit entered->Got_focus();
        }
    };
    if (told_) {
        services_.boxes.Show_then(text, style, after);
    } else if (QApplication::mouseButtons() != Qt::NoButton) {
        on_release_ = after;
    } else {
        QMetaObject::invokeMethod(this, after, Qt::QueuedConnection);
    }
}

void frmMain::Input_error(TextBox& box, int number) {
    std::string_view text;
    if (number == fault_type_mismatch) {
        text = Is_english(s_) ? "Input string mismatch " : "Ikke akseptabel karakter ";
    }
    Refuse(box, text, box_exclamation);
}

void frmMain::Connect_box(const char* name) {
    auto& box = Find<TextBox>(name);
    const bool project = std::string_view{name} == "txtprosjekt";
    connect(&box, &TextBox::Got_focus, this, [this, &box, project] {
        // The project's name turns green also while loading: the first activation of the window leaves it so.
        if ((!s_.Loading || project) && !Refusing()) {
            Enter_box(box);
        }
    });
    for (const EnterMove& move : enter_moves) {
        if (std::string_view{move.from} == name) {
            connect(&box, &TextBox::Enter_pressed, this, [this, to = move.to] {
                auto& next = Find<QWidget>(to);
                if (next.isEnabled()) {
                    next.setFocus(Qt::TabFocusReason);
                } else {
                    focusNextChild();
                }
            });
        }
    }
}

void frmMain::Leave_number(TextBox& box, const char* name) {
    if (s_.Loading || Refusing()) {
        return;
    }
    for (const NumberBox& row : number_boxes) {
        if (std::string_view{row.name} != name) {
            continue;
        }
        try {
            // The value goes into the state before it is tested: a refused one stays there.
            const float value = Str_to_num(U(box.text()));
            s_.*row.value = value;
            if (value <= 0.0F) {
                const bool english = s_.Lang == "Eng";
                const bool norwegian = s_.Lang == "Nor";
                // In English the focus is free to move on from b1.
                const bool give_back = !(english && std::string_view{name} == "Txt_b1");
                Refuse(box, english ? row.refusal_eng : norwegian ? row.refusal_nor : "", box_exclamation, give_back);
                return;
            }
            box.Set_back(colour_white_box);
            box.setText(Q(Format(value, row.picture)));
            Main_beregn();
        } catch (const RuntimeFault& fault) {
            Input_error(box, fault.number);
        }
    }
}

void frmMain::Leave_man_he(TextBox& box) {
    if (s_.Loading || Refusing()) {
        return;
    }
    try {
        s_.man_he = Str_to_num(U(box.text()));
        if (s_.man_he <= 0.0F) {
            Refuse(box, " he < 0.1 ", box_exclamation);
            return;
        }
        float h = 0.0F;
        float b = 0.0F;
        Get_splitting_member(s_, h, b);
        if (s_.man_he > h) {
            Refuse(box,
                   s_.Con_type == 1   ? " he  >  h  (Undergurt)"
                   : s_.Con_type == 2 ? " he   >  h  (Overgurt)"
                                      : " he   >  h  (Bjelke)",
                   box_exclamation);
            return;
        }
        box.Set_back(colour_white_box);
        box.setText(Q(Format(s_.man_he, "0")));
        s_.he = s_.man_he;
        screen_.controls = {};
        Tverr_brudd(s_, h, s_.he, b, ScreenWriter{&screen_});
        Apply_screen();
    } catch (const RuntimeFault& fault) {
        // he = h is accepted although the check divides by zero there: a quiet return with the old results.
        if (fault.number != fault_division_by_zero) {
            Input_error(box, fault.number);
        }
    }
}

// ---------------------------------------------------------------------------------------------------------------------
// Events

void frmMain::Connect_handlers() {
    Connect_options();

    const auto on_pick = [this](const char* name, std::function<void(std::int16_t)> write) {
        connect(&Find<ListBox>(name), &ListBox::Picked, this, [this, write = std::move(write)](int row) {
            if (!s_.Loading) {
                write(static_cast<std::int16_t>(row));
                Recalculate();
            }
        });
    };
    on_pick("Comb_bolter", [this](std::int16_t row) {
        s_.Avstand_index = 0;
        s_.Bolt_index = row;
    });
    on_pick("Comb_ant_bolt", [this](std::int16_t row) {
        s_.Avstand_index = 0;
        s_.Ant_index = row;
    });
    on_pick("Comb_bolt_avstand", [this](std::int16_t row) { s_.Avstand_index = row; });
    on_pick("Comb_bulldog", [this](std::int16_t row) {
        s_.Bulldog_index = row;
        Get_dc(s_);
    });
    on_pick("cboMat", [this](std::int16_t row) { s_.Mat_index = row; });
    on_pick("cboProf1", [this](std::int16_t row) { s_.Prof1_index = row; });
    on_pick("cboProf2", [this](std::int16_t row) { s_.Prof2_index = row; });

    for (int i = 0; i < 5; ++i) {
        connect(&Find<QAbstractButton>("Cmd_type(" + std::to_string(i) + ")"), &QAbstractButton::clicked, this,
                [this, i] { Cmd_type(i); });
    }
    for (int i = 0; i < 2; ++i) {
        connect(&Find<QAbstractButton>("Cmd_boltetype(" + std::to_string(i) + ")"), &QAbstractButton::clicked, this,
                [this, i] { Cmd_boltetype(i); });
    }
    connect(&Find<QCheckBox>("Check_man"), &QCheckBox::toggled, this, &frmMain::Check_man_click);

    connect(&Find<QAbstractButton>("Cmd_detail"), &QAbstractButton::clicked, this, [this] {
        frmDetailed window{*this};
        Show_modal(window);
    });
    const auto on_help = [this](const char* button, const char* name) {
        connect(&Find<QAbstractButton>(button), &QAbstractButton::clicked, this, [this, name] {
            ExplanationForm window{*this, *this, name};
            Show_modal(window);
        });
    };
    on_help("Cmd_Bolt_eff_bolt", "Frm_tarn_vik_effbolt");
    on_help("Cmd_tverr", "Frm_tarn_vik_txt_tverr_brudd");

    for (const NumberBox& row : number_boxes) {
        Connect_box(row.name);
        auto& box = Find<TextBox>(row.name);
        connect(&box, &TextBox::Lost_focus, this, [this, &box, name = row.name] { Leave_number(box, name); });
    }
    Connect_box("Txt_man_he");
    connect(&Find<TextBox>("Txt_man_he"), &TextBox::Lost_focus, this,
            [this] { Leave_man_he(Find<TextBox>("Txt_man_he")); });
    const auto on_text = [this](const char* name, std::string ConnectionState::*text) {
        Connect_box(name);
        auto& box = Find<TextBox>(name);
        connect(&box, &TextBox::Lost_focus, this, [this, &box, text] {
            if (!s_.Loading && !Refusing()) {
                box.Set_back(colour_white_box);
                s_.*text = U(box.text());
            }
        });
    };
    on_text("txtprosjekt", &ConnectionState::Prosjekt);
    on_text("txtid", &ConnectionState::Id);

    const auto on_action = [this](const char* name, std::function<void()> run) {
        connect(actions_.at(name), &QAction::triggered, this, [run = std::move(run)] { run(); });
    };
    for (int i = 1; i <= 3; ++i) {
        on_action(("mnuFileItem(" + std::to_string(i) + ")").c_str(), [this, i] { File_menu(i); });
    }
    for (int i = 1; i <= recent_count; ++i) {
        on_action(("mnurecentfile(" + std::to_string(i) + ")").c_str(), [this, i] { Recent_open(i); });
    }
    on_action("mnuexit", [this] { close(); });
    on_action("mnusetup", [this] {
        frmSetup window{*this};
        Show_modal(window);
    });
    on_action("mnuklasse", [this] { Show_modal(*classes_); });
    on_action("mnuabout", [this] {
        frmAbout window{*this};
        Show_modal(window);
    });
    on_action("mnuprint", [this] { Print_report(); });
    on_action("mmuTheory", [this] { Open_manual(); });
}

void frmMain::Show_modal(QDialog& window) {
    if (auto* box = dynamic_cast<TextBox*>(focusWidget())) {
        box->clearFocus();
        if (Refusing() && told_) {
            return;
        }
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
        Find<TextBox>("txtprosjekt").setFocus(Qt::OtherFocusReason);
    }
}

void frmMain::Open_manual() {
    const std::filesystem::path path = app_path_ / "Documentation" / manual;
    std::error_code error;
    if (!std::filesystem::exists(path, error) || !services_.opener.Open_file(path.string())) {
        services_.boxes.Show((Is_english(s_) ? " Can't open the file " : " Kan ikke åpne filen ") + path.string(),
                             box_exclamation);
    }
}

void frmMain::Print_report() {
    constexpr int no_selection_no_file_box = 0x100004;
    try {
        const auto target = services_.printer.Show_printer({no_selection_no_file_box, s_.Prosjekt});
        if (target != nullptr) {
            PrintReport(*target, s_, {screen_.Pic_forbindelse, screen_.Pic_av_bolter}, services_.clock.Now(),
                        report_texts_);
            target->EndDoc();
            return;
        }
    } catch (const RuntimeFault&) {   // NOLINT(bugprone-empty-catch): told as a cancelled dialog is
    } catch (const std::exception&) { // NOLINT(bugprone-empty-catch): the same
    }
    // Whatever happened, in English in both languages, and then the end of the work with the window.
    services_.boxes.Show_then("User pressed the Cancel button", box_exclamation, [this] { close(); });
}

bool frmMain::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        Activate();
    }
    return QMainWindow::event(event);
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    // Between a refused value and the answer to its message nothing else happens in the box's window: the click or the
    // key that left the box does not act.
    if (on_release_ && event->type() == QEvent::MouseButtonRelease) {
        QMetaObject::invokeMethod(this, std::exchange(on_release_, {}), Qt::QueuedConnection);
    }
    if (Refusing() && told_) {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::ShortcutOverride:
        case QEvent::Wheel: {
            auto* widget = qobject_cast<QWidget*>(watched);
            if (widget != nullptr && widget->window() == refused_->window()) {
                return true;
            }
            break;
        }
        default:
            break;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void frmMain::closeEvent(QCloseEvent* event) {
    event->accept();
    emit Unloaded();
}

// ---------------------------------------------------------------------------------------------------------------------
// Projects

void frmMain::Show_recent() {
    for (int i = 1; i <= recent_count; ++i) {
        const RecentEntry& entry = recent_(i);
        QAction* action = actions_.at("mnurecentfile(" + std::to_string(i) + ")");
        const bool line = entry.caption == "-";
        action->setSeparator(line);
        // A path may hold "&", which a menu would take for an accelerator; a text on a separator would be drawn.
        action->setText(line ? QString{} : Q(entry.caption).replace(QLatin1Char('&'), QLatin1String("&&")));
        action->setVisible(entry.visible);
    }
}

void frmMain::Open_path(const std::string& path) {
    try {
        Project_record record;
        Load_project(s_, record, path);
        Apply_project(s_, record);
        Apply_project_controls();
    } catch (const RuntimeFault& fault) {
        Open_project_failed(s_, fault.number, services_.boxes);
    }
    // What follows runs whether or not the file could be read.
    s_.File_name = path;
    s_.File_named = true;
    Set_caption();
    cur_dir_ = U(QDir::currentPath());
    try {
        Recent_front(services_.settings, recent_, path);
    } catch (const RuntimeFault&) { // NOLINT(bugprone-empty-catch): until four files are known the list stays
    }
    Recent_load(services_.settings, recent_);
    Show_recent();
    try {
        Main_beregn();
    } catch (const RuntimeFault&) { // NOLINT(bugprone-empty-catch): a failed statement of the opening is skipped
    }
    s_.Loading = false;
}

void frmMain::Apply_project_controls() {
    WritefrmCboMatProf();
    Write_language();
    classes_->Select_classes(s_.Lastvar, s_.Klima);
    if (!s_.Med_bulldog) {
        Select("Opt_bolt_bulldog(0)");
        Find<QWidget>("Fra_bulldog").setVisible(false);
        for (const char* label : connector_labels) {
            Find<QWidget>(label).setVisible(false);
        }
    } else {
        Select("Opt_bolt_bulldog(1)");
        for (const char* label : connector_labels) {
            Find<QWidget>(label).setVisible(true);
        }
        Fill_bulldog();
        Find<QWidget>("Fra_bulldog").setVisible(true);
    }
    Find<ListBox>("Comb_bolter").setCurrentIndex(s_.Bolt_index);
    Find<ListBox>("Comb_bulldog").setCurrentIndex(s_.Bulldog_index);
    Find<ListBox>("Comb_ant_bolt").setCurrentIndex(s_.Ant_index);
    Select(s_.Standard ? "Opt_stand" : "Opt_valg");
    Find<QWidget>("Fra_standard").setEnabled(s_.Standard);
    Find<QWidget>("Fra_valgfri").setEnabled(!s_.Standard);
    if (s_.Standard) {
        Find<ListBox>("cboProf1").setCurrentIndex(s_.Prof1_index);
        Find<ListBox>("cboProf2").setCurrentIndex(s_.Prof2_index);
    } else {
        Find<TextBox>("Txt_b1").setText(Q(Format(s_.b1, "0.0")));
        Find<TextBox>("Txt_h1").setText(Q(Format(s_.h1, "0.0")));
        Find<TextBox>("Txt_b2").setText(Q(Format(s_.b2, "0.0")));
        Find<TextBox>("Txt_h2").setText(Q(Format(s_.h2, "0.0")));
    }
    Find<TextBox>("Txt_last").setText(Q(Format(std::fabs(s_.P), "0.0")));
    Select(s_.P < 0.0F ? "Opt_strekk" : "Opt_trykk");
    Find<TextBox>("Txt_alp").setText(Q(Format(s_.alp, "0.0")));
    if (s_.Con_type < 1 || s_.Con_type > 5) {
        Raise(fault_subscript, "Apply_project"); // there is no such button to press
    }
    for (const char* option : {"Opt_enk_1", "Opt_dob_1", "Opt_enk_2", "Opt_dob_2"}) {
        Find<QWidget>(option).setEnabled(true);
        Clear_option(Find<QAbstractButton>(option));
    }
    if (s_.dob_1) {
        Select("Opt_dob_1");
        Find<QWidget>("Opt_dob_2").setEnabled(false);
    }
    if (s_.dob_2) {
        Select("Opt_dob_2");
        Find<QWidget>("Opt_dob_1").setEnabled(false);
    }
    if (s_.enk_1) {
        Select("Opt_enk_1");
        Find<QWidget>("Opt_dob_1").setEnabled(true);
    }
    if (s_.enk_2) {
        Select("Opt_enk_2");
        Find<QWidget>("Opt_dob_1").setEnabled(true); // of member 1 here too
    }
    if (s_.Man_he_on) {
        Find<QCheckBox>("Check_man").setChecked(true);
        Find<QWidget>("Txt_man_he").setEnabled(true);
        Find<QWidget>("Lbl_man_he").setEnabled(true);
        Find<TextBox>("Txt_man_he").setText(Q(Format(s_.man_he, "0")));
    } else {
        Find<QCheckBox>("Check_man").setChecked(false);
    }
}

void frmMain::File_menu(int Index) {
    const auto save = [this] {
        Project_record record;
        Fill_project(s_, record);
        // From the boxes, so that a name typed but not yet accepted goes into the file.
        record.Prosjekt = U(Find<TextBox>("txtprosjekt").text());
        record.Id = U(Find<TextBox>("txtid").text());
        Save_project(s_, record, s_.File_name);
    };
    FileRequest request;
    request.filter = "*.tnvik";
    switch (Index) {
    case 1: {
        request.file_name = "*.tnvik";
        request.flags = 4100; // the file must exist, no read-only box
        const auto path = services_.files.Open(request);
        if (!path) {
            services_.boxes.Show("Cancel were pressed", box_plain);
            return;
        }
        Open_path(*path);
        break;
    }
    case 2:
        try {
            save();
            s_.File_named = true;
        } catch (const RuntimeFault& fault) {
            services_.boxes.Show(Fault_text(fault), box_plain);
        }
        break;
    case 3: {
        request.file_name = s_.File_name;
        request.default_extension = "tnvik";
        request.flags = 6; // prompt on overwrite, no read-only box
        const auto path = services_.files.Save(request);
        if (!path) {
            services_.boxes.Show("Cancel were pressed", box_plain);
            return;
        }
        s_.File_name = *path;
        s_.File_named = true;
        try {
            save();
        } catch (const RuntimeFault&) { // NOLINT(bugprone-empty-catch): a failed statement of save as is skipped
        }
        Set_caption();
        Recent_shift(services_.settings, s_.File_name);
        Recent_load(services_.settings, recent_);
        Show_recent();
        break;
    }
    default:
        break;
    }
}

void frmMain::Recent_open(int Index) {
    try {
        Open_path(Recent_path(recent_, Index));
    } catch (const RuntimeFault&) { // NOLINT(bugprone-empty-catch): an entry without a path opens nothing
    }
}

} // namespace tarnvik
