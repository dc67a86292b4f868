// The controls of the main window, their natural sizes and their layout.
#include "frontend/main/frmMain.h"

#include <QFontMetricsF>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

#include "frontend/controls/Style.h"

namespace tarnvik {

namespace {

enum class Kind : std::uint8_t {
    frame,
    label,
    text_box,
    list,
    option,
    check,
    button,
    picture_button,
    picture,
    table,
    plain
};

// Built place and size in pixels at 96 dpi; a width of 0 is measured from the texts that the control takes. What the
// layout gives overrides them.
struct ControlRow {
    const char* name;
    Kind kind;
    const char* parent; // empty: the window
    const char* caption;
    double left, top, width, height;
    const char* sample; // the widest text that a result takes, where the captions do not tell
};

constexpr double line = 14.0;       // a line of text
constexpr double box_height = 17.0; // a text box
constexpr double list_height = 19.0;

using enum Kind;

// In reading order, which is also the order of the Tab key.
// clang-format off
constexpr std::array control_rows{
    ControlRow{"fra_input",               frame,          "",                       "Input",       0, 0, 0, 0, ""},
    ControlRow{"lbl_prosjekt",            label,          "fra_input",              "",            0, 0, 0, line, ""},
    ControlRow{"txtprosjekt",             text_box,       "fra_input",              "",            0, 0, 0, box_height, ""},
    ControlRow{"lblid",                   label,          "fra_input",              "",            0, 0, 0, 13, ""},
    ControlRow{"txtid",                   text_box,       "fra_input",              "",            0, 0, 0, box_height, ""},

    ControlRow{"Fra_valg_bolt_bulldog",   frame,          "fra_input",              "",            0, 0, 0, 0, ""},
    ControlRow{"Opt_bolt_bulldog(0)",     option,         "Fra_valg_bolt_bulldog",  "",            6, 16, 103, 20, ""},
    ControlRow{"Opt_bolt_bulldog(1)",     option,         "Fra_valg_bolt_bulldog",  "",            6, 40, 0, 30, ""},
    ControlRow{"Fra_bolter",              frame,          "fra_input",              "",            0, 0, 0, 0, ""},
    ControlRow{"Comb_bolter",             list,           "Fra_bolter",             "",            8, 17, 107, list_height, ""},
    ControlRow{"Lbl_ant_bolt",            label,          "Fra_bolter",             "",            4, 48, 79, line, ""},
    ControlRow{"Comb_ant_bolt",           list,           "Fra_bolter",             "",            84, 46, 37, list_height, ""},
    ControlRow{"Fra_bulldog",             frame,          "fra_input",              "",            0, 0, 0, 0, ""},
    ControlRow{"Comb_bulldog",            list,           "Fra_bulldog",            "",            0, 0, 0, list_height, ""},
    ControlRow{"Lbl_bulldog1",            label,          "Fra_bulldog",            "",            0, 0, 148, 28, ""},
    ControlRow{"Lbl_bulldog2",            label,          "Fra_bulldog",            "",            0, 0, 38, 28, ""},

    ControlRow{"Fra_material",            frame,          "fra_input",              "",            0, 0, 0, 0, ""},
    ControlRow{"cboMat",                  list,           "Fra_material",           "",            8, 19, 96, list_height, ""},
    ControlRow{"Lbl_densitet1",           label,          "Fra_material",           "",            122, 22, 54, line, ""},
    ControlRow{"lbl_densitet2",           label,          "Fra_material",           "",            177, 22, 32, line, ""},
    ControlRow{"Lbl_fc90k1",              label,          "Fra_material",           "fc90k =",     232, 22, 42, line, ""},
    ControlRow{"Lbl_fc90k2",              label,          "Fra_material",           "",            275, 22, 32, line, ""},
    ControlRow{"Lbl_gm1",                 label,          "Fra_material",           "gm =",        334, 22, 32, line, ""},
    ControlRow{"lbl_gm",                  label,          "Fra_material",           "",            367, 22, 36, line, ""},

    ControlRow{"Fra_dim_main",            frame,          "fra_input",              "",            0, 0, 0, 0, ""},
    ControlRow{"Opt_stand",               option,         "Fra_dim_main",           "",            0, 0, 0, 0, ""},
    ControlRow{"Opt_valg",                option,         "Fra_dim_main",           "",            0, 0, 0, 0, ""},
    ControlRow{"Fra_standard",            frame,          "Fra_dim_main",           "Standard",    0, 0, 0, 0, ""},
    ControlRow{"Fra_b1_h1",               frame,          "Fra_standard",           "",            0, 0, 0, 0, ""},
    ControlRow{"cboProf1",                list,           "Fra_b1_h1",              "",            0, 0, 87, list_height, ""},
    ControlRow{"Fra_b2_h2",               frame,          "Fra_standard",           "",            0, 0, 0, 0, ""},
    ControlRow{"cboProf2",                list,           "Fra_b2_h2",              "",            0, 0, 87, list_height, ""},
    ControlRow{"Fra_valgfri",             frame,          "Fra_dim_main",           "Valgfri (mm)", 0, 0, 248, 0, ""},
    ControlRow{"Pic_Dim",                 plain,          "Fra_valgfri",            "",            0, 0, 0, 0, ""},
    ControlRow{"Fra_dim_1",               frame,          "Pic_Dim",                "",            0, 0, 0, 0, ""},
    ControlRow{"Pic_dim_1",               plain,          "Fra_dim_1",              "",            0, 0, 0, 0, ""},
    ControlRow{"Lbl_b1",                  label,          "Pic_dim_1",              "b =",         0, 0, 26, 18, ""},
    ControlRow{"Lbl_h1",                  label,          "Pic_dim_1",              "h =",         0, 0, 26, 18, ""},
    ControlRow{"Txt_h1",                  text_box,       "Pic_dim_1",              "",            0, 0, 62, 18, ""},
    ControlRow{"Txt_b1",                  text_box,       "Pic_dim_1",              "",            0, 0, 62, 18, ""},
    ControlRow{"Fra_dim_2",               frame,          "Pic_Dim",                "",            0, 0, 0, 0, ""},
    ControlRow{"Pic_dim_2",               plain,          "Fra_dim_2",              "",            0, 0, 0, 0, ""},
    ControlRow{"Lbl_b2",                  label,          "Pic_dim_2",              "b =",         0, 0, 26, 18, ""},
    ControlRow{"Lbl_h2",                  label,          "Pic_dim_2",              "h =",         0, 0, 26, 18, ""},
    ControlRow{"Txt_h2",                  text_box,       "Pic_dim_2",              "",            0, 0, 62, 18, ""},
    ControlRow{"Txt_b2",                  text_box,       "Pic_dim_2",              "",            0, 0, 62, 18, ""},

    ControlRow{"Fra_klasse",              frame,          "fra_input",              "",            0, 0, 0, 0, ""},
    ControlRow{"Lbl_lastvar_1",           label,          "Fra_klasse",             "",            0, 0, 0, line, ""},
    ControlRow{"Lbl_lastvar_2",           label,          "Fra_klasse",             "",            0, 0, 0, line, ""},
    ControlRow{"Lbl_klima_1",             label,          "Fra_klasse",             "",            0, 0, 0, line, ""},
    ControlRow{"Lbl_klima_2",             label,          "Fra_klasse",             "",            0, 0, 14, line, ""},
    ControlRow{"Lbl_kmod1",               label,          "Fra_klasse",             "kmod =",      0, 0, 39, line, ""},
    ControlRow{"Lbl_kmod2",               label,          "Fra_klasse",             "",            0, 0, 36, line, ""},

    ControlRow{"Fra_type",                frame,          "fra_input",              "",            0, 0, 0, 0, ""},
    ControlRow{"Cmd_type(0)",             picture_button, "Fra_type",               "1",           8, 15, 82, 43, ""},
    ControlRow{"Cmd_type(1)",             picture_button, "Fra_type",               "2",           95, 15, 82, 43, ""},
    ControlRow{"Cmd_type(2)",             picture_button, "Fra_type",               "3",           182, 15, 82, 43, ""},
    ControlRow{"Cmd_type(3)",             picture_button, "Fra_type",               "4",           269, 15, 82, 43, ""},
    ControlRow{"Cmd_type(4)",             picture_button, "Fra_type",               "5",           356, 15, 82, 43, ""},

    ControlRow{"Fra_forbindelse",         frame,          "fra_input",              "",            0, 0, 249, 0, ""},
    ControlRow{"Pic_forbindelse",         picture,        "Fra_forbindelse",        "",            5, 0, 239, 0, ""},
    ControlRow{"Fra_last",                frame,          "fra_input",              "",            0, 0, 0, 0, ""},
    ControlRow{"Pic_last",                plain,          "Fra_last",               "",            0, 0, 0, 0, ""},
    ControlRow{"Lbl_last",                label,          "Pic_last",               "P=",          0, 0, 16, 18, ""},
    ControlRow{"Txt_last",                text_box,       "Pic_last",               "",            0, 0, 54, 18, ""},
    ControlRow{"Lbl_alp",                 label,          "Pic_last",               "a =",         0, 0, 20, 18, ""},
    ControlRow{"Txt_alp",                 text_box,       "Pic_last",               "",            0, 0, 50, 18, ""},
    ControlRow{"Opt_trykk",               option,         "Fra_last",               "",            0, 0, 86, 20, ""},
    ControlRow{"Opt_strekk",              option,         "Fra_last",               "",            0, 0, 80, 20, ""},
    ControlRow{"Fra_bolt_alt",            frame,          "fra_input",              "",            0, 0, 0, 0, ""},
    ControlRow{"Cmd_boltetype(0)",        button,         "Fra_bolt_alt",           "Alt. 1",      16, 21, 70, 26, ""},
    ControlRow{"Cmd_boltetype(1)",        button,         "Fra_bolt_alt",           "Alt. 2",      104, 21, 70, 26, ""},
    ControlRow{"Fra_skive",               frame,          "fra_input",              "",            0, 0, 0, 0, ""},
    ControlRow{"Lbl_skive_diameter1",     label,          "Fra_skive",              "Diameter=",   10, 0, 56, line, ""},
    ControlRow{"Lbl_skive_diameter2",     label,          "Fra_skive",              "",            74, 0, 50, line, ""},
    ControlRow{"Lbl_skive_tykk1",         label,          "Fra_skive",              "Tykkelse=",   10, 0, 56, line, ""},
    ControlRow{"Lbl_skive_tykk2",         label,          "Fra_skive",              "",            0, 0, 50, line, ""},

    ControlRow{"Fra_bolt_for",            frame,          "fra_input",              "",            0, 0, 0, 0, ""},
    ControlRow{"Fra_snitt_1",             frame,          "Fra_bolt_for",           "",            0, 0, 0, 0, ""},
    ControlRow{"Opt_enk_1",               option,         "Fra_snitt_1",            "",            0, 0, 96, 24, ""},
    ControlRow{"Opt_dob_1",               option,         "Fra_snitt_1",            "",            0, 0, 92, 24, ""},
    ControlRow{"Fra_snitt_2",             frame,          "Fra_bolt_for",           "",            0, 0, 0, 0, ""},
    ControlRow{"Opt_enk_2",               option,         "Fra_snitt_2",            "",            0, 0, 96, 24, ""},
    ControlRow{"Opt_dob_2",               option,         "Fra_snitt_2",            "",            0, 0, 92, 24, ""},

    ControlRow{"Fra_results",             frame,          "",                       "Results",     0, 0, 0, 0, ""},
    ControlRow{"Fra_bolt_kap",            frame,          "Fra_results",            "",            0, 0, 0, 0, ""},
    ControlRow{"Lbl_bolt_kap1",           label,          "Fra_bolt_kap",           "",            0, 0, 158, line, ""},
    ControlRow{"Lbl_bolt_kap2",           label,          "Fra_bolt_kap",           "",            0, 0, 40, line, ""},
    ControlRow{"Lbl_bulldog_kap1",        label,          "Fra_bolt_kap",           "",            0, 0, 180, line, ""},
    ControlRow{"Lbl_bulldog_kap2",        label,          "Fra_bolt_kap",           "",            0, 0, 40, line, ""},
    ControlRow{"Lbl_bolt_kontroll",       label,          "Fra_bolt_kap",           "",            0, 0, 51, line, ""},
    ControlRow{"Lbl_last_kontroll",       label,          "Fra_bolt_kap",           "",            0, 0, 29, line, ""},
    ControlRow{"Lbl_strek",               label,          "Fra_bolt_kap",           "/ (",         0, 0, 11, line, ""},
    ControlRow{"Lbl_Rd_kontroll",         label,          "Fra_bolt_kap",           "",            0, 0, 29, line, ""},
    ControlRow{"Lbl_pluss",               label,          "Fra_bolt_kap",           "+",           0, 0, 9, line, ""},
    ControlRow{"Lbl_Rd_bulldog_kontroll", label,          "Fra_bolt_kap",           "",            0, 0, 29, line, ""},
    ControlRow{"Lbl_lik",                 label,          "Fra_bolt_kap",           ") = ",        0, 0, 15, line, ""},
    ControlRow{"Lbl_uf",                  label,          "Fra_bolt_kap",           "",            0, 0, 40, line, ""},
    ControlRow{"Cmd_detail",              button,         "Fra_bolt_kap",           "",            0, 0, 0, 0, ""},
    ControlRow{"Fra_tverr_brudd",         frame,          "Fra_bolt_kap",           "",            0, 0, 0, 0, ""},
    ControlRow{"Pic_tverr_brudd",         plain,          "Fra_tverr_brudd",        "",            0, 0, 0, 0, ""},
    ControlRow{"Check_man",               check,          "Pic_tverr_brudd",        "Man. he",     0, 0, 86, 17, ""},
    ControlRow{"Lbl_man_he",              label,          "Pic_tverr_brudd",        "he =",        0, 0, 24, 18, ""},
    ControlRow{"Txt_man_he",              text_box,       "Pic_tverr_brudd",        "",            0, 0, 36, 18, ""},
    ControlRow{"lbl_tverr_1",             label,          "Pic_tverr_brudd",        "",            0, 0, 0, 0, ""},
    ControlRow{"Lbl_tverr_2",             label,          "Pic_tverr_brudd",        "",            0, 0, 0, 0, ""},
    ControlRow{"Cmd_tverr",               button,         "Pic_tverr_brudd",        "?",           0, 0, 40, 20, ""},
    ControlRow{"Fra_nef",                 frame,          "Fra_bolt_kap",           "",            0, 0, 0, 0, ""},
    ControlRow{"Lbl_tot_eff_bolts_1",     label,          "Fra_nef",                "",            0, 0, 0, 0, ""},
    ControlRow{"Lbl_2_nef_max",           label,          "Fra_nef",                "",            0, 0, 27, 17, ""},
    ControlRow{"Lbl_tot_eff_bulldog_1",   label,          "Fra_nef",                "",            0, 0, 0, 17, ""},
    ControlRow{"Lbl_tot_eff_bulldog_2",   label,          "Fra_nef",                "",            0, 0, 25, 17, ""},
    ControlRow{"lbl_txt_avstand",         label,          "Fra_nef",                "",            0, 0, 0, 0, ""},
    ControlRow{"Comb_bolt_avstand",       list,           "Fra_nef",                "",            0, 0, 54, list_height, ""},
    ControlRow{"Cmd_Bolt_eff_bolt",       button,         "Fra_nef",                "?",           0, 0, 40, 20, ""},

    ControlRow{"fra_av_bolter",           frame,          "Fra_results",            "",            0, 0, 0, 0, ""},
    ControlRow{"Pic_av_bolter",           picture,        "fra_av_bolter",          "",            0, 0, 0, 0, ""},
    ControlRow{"Fra_av_bolter_verdier",   frame,          "fra_av_bolter",          "",            0, 0, 0, 0, ""},
    ControlRow{"Pic_av_bolter_dif",       table,          "Fra_av_bolter_verdier",  "",            0, 0, 0, 0, ""},
    ControlRow{"Fra_av_bulldog",          frame,          "Fra_results",            "",            0, 0, 0, 0, ""},
    ControlRow{"Pic_av_bulldog",          picture,        "Fra_av_bulldog",         "",            8, 0, 0, 0, ""},
    ControlRow{"Fra_av_bulldog_verdier",  frame,          "Fra_av_bulldog",         "",            0, 0, 0, 0, ""},
    ControlRow{"Pic_av_bulldog_dif",      table,          "Fra_av_bulldog_verdier", "",            0, 0, 0, 0, ""},
};

// A box and the label that names it; a list without one is named by its frame.
struct Buddy {
    const char* label;
    const char* box;
};
constexpr std::array buddies{
    Buddy{"lbl_prosjekt", "txtprosjekt"}, Buddy{"lblid", "txtid"},       Buddy{"Lbl_ant_bolt", "Comb_ant_bolt"},
    Buddy{"Lbl_b1", "Txt_b1"},            Buddy{"Lbl_h1", "Txt_h1"},     Buddy{"Lbl_b2", "Txt_b2"},
    Buddy{"Lbl_h2", "Txt_h2"},            Buddy{"Lbl_last", "Txt_last"}, Buddy{"Lbl_alp", "Txt_alp"},
    Buddy{"Lbl_man_he", "Txt_man_he"},    Buddy{"lbl_txt_avstand", "Comb_bolt_avstand"},
};

struct AccessibleName {
    const char* control;
    const char* name;
};
constexpr std::array accessible_names{
    AccessibleName{"Comb_bolter", "Bolt"},
    AccessibleName{"Comb_bulldog", "Tooth-plate connector"},
    AccessibleName{"cboMat", "Timber quality"},
    AccessibleName{"cboProf1", "Section of member 1"},
    AccessibleName{"cboProf2", "Section of member 2"},
    AccessibleName{"Cmd_type(0)", "Connection type 1: top chord on bottom chord"},
    AccessibleName{"Cmd_type(1)", "Connection type 2: column under beam"},
    AccessibleName{"Cmd_type(2)", "Connection type 3: collar beam on rafter"},
    AccessibleName{"Cmd_type(3)", "Connection type 4: beam on column"},
    AccessibleName{"Cmd_type(4)", "Connection type 5: beam under column"},
    AccessibleName{"Pic_forbindelse", "Picture of the connection"},
    AccessibleName{"Pic_av_bolter", "Sketch of the distances of the bolts"},
    AccessibleName{"Pic_av_bulldog", "Sketch of the distances of the connectors"},
    AccessibleName{"Pic_av_bolter_dif", "Minimum distances of the bolts"},
    AccessibleName{"Pic_av_bulldog_dif", "Minimum distances of the connectors"},
    AccessibleName{"Cmd_tverr", "Explanation of the splitting check"},
    AccessibleName{"Cmd_Bolt_eff_bolt", "Explanation of the effective number"},
};
// clang-format on

constexpr double twips_per_inch = 1440.0;
constexpr double twips_per_pixel = 15.0; // at 96 dpi

struct LeastHeights {
    const frmMain* window;
    double points; // height of a text box, twips
};

} // namespace

QObject* frmMain::Control_of(std::string_view name) const {
    const auto found = controls_.find(name);
    return found == controls_.end() ? nullptr : found->second;
}

void frmMain::Missing(std::string_view name) {
    throw std::logic_error("no control named " + std::string{name});
}

void frmMain::Build_controls() {
    auto* ground = new QWidget{this};
    ground->setObjectName(QStringLiteral("ground"));
    setCentralWidget(ground);
    controls_.emplace("frmMain", this);
    for (const ControlRow& row : control_rows) {
        QWidget* parent = *row.parent == '\0' ? ground : &Find<QWidget>(row.parent);
        const QString caption = Q(row.caption);
        QWidget* control = nullptr;
        switch (row.kind) {
        case frame:
            control = new Frame{caption, parent};
            break;
        case label: {
            auto* made = new Label{caption, parent};
            made->setTextFormat(Qt::PlainText);
            made->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
            control = made;
            break;
        }
        case text_box:
            control = new TextBox{parent};
            break;
        case list:
            control = new ListBox{parent};
            break;
        case option:
            control = new Option{caption, parent};
            break;
        case check:
            control = new QCheckBox{caption, parent};
            break;
        case button: {
            auto* made = new QPushButton{caption, parent};
            made->setAutoDefault(false);
            control = made;
            break;
        }
        case picture_button: {
            auto* made = new PictureButton{parent};
            made->setText(caption);
            made->setFocusPolicy(Qt::StrongFocus);
            control = made;
            break;
        }
        case picture:
            control = new PictureArea{parent};
            break;
        case table:
            control = new TableArea{parent};
            break;
        case plain:
            control = new QWidget{parent};
            break;
        }
        control->setObjectName(Q(row.name));
        controls_.emplace(row.name, control);
        boxes_[row.name] = Box{row.left * twips_per_pixel, row.top * twips_per_pixel, row.width * twips_per_pixel,
                               row.height * twips_per_pixel};
    }
    for (const Buddy& buddy : buddies) {
        Find<Label>(buddy.label).setBuddy(&Find<QWidget>(buddy.box));
    }
    for (const AccessibleName& named : accessible_names) {
        Find<QWidget>(named.control).setAccessibleName(Q(named.name));
    }
    for (int i = 0; i < 5; ++i) {
        const std::string digit = std::to_string(i);
        auto& type = Find<PictureButton>("Cmd_type(" + digit + ")");
        type.Set_picture("frmMain/Cmd_type(" + digit + ")");
        type.setToolTip(type.accessibleName());
    }
    // The last box of the free entry hands the focus on to the area that holds them.
    Find<QWidget>("Pic_Dim").setFocusPolicy(Qt::ClickFocus);
    Find<Label>("Lbl_last").setToolTip(QStringLiteral("kN"));
    Find<QWidget>("Cmd_detail").hide();
}

void frmMain::Build_menus() {
    struct Entry {
        const char* name;
        const char* caption;
    };
    const auto add = [this](QMenu* menu, const Entry& entry) {
        QAction* action = menu->addAction(Q(entry.caption));
        action->setObjectName(Q(entry.name));
        action->setMenuRole(QAction::NoRole);
        actions_.emplace(entry.name, action);
        controls_.emplace(entry.name, action);
        return action;
    };
    const auto top = [this](const Entry& entry) {
        QMenu* menu = menuBar()->addMenu(Q(entry.caption));
        menu->setObjectName(Q(entry.name));
        controls_.emplace(entry.name, menu);
        return menu;
    };
    const auto plain_entry = [this](const Entry& entry) {
        QAction* action = menuBar()->addAction(Q(entry.caption));
        action->setObjectName(Q(entry.name));
        action->setMenuRole(QAction::NoRole);
        actions_.emplace(entry.name, action);
        controls_.emplace(entry.name, action);
    };

    QMenu* file = top({"mnufile", "&File"});
    add(file, {"mnuFileItem(1)", "&Åpne"})->setShortcut(QKeySequence::Open);
    add(file, {"mnuFileItem(2)", "&Lagre"})->setShortcut(QKeySequence::Save);
    add(file, {"mnuFileItem(3)", "&Lagre som"});
    add(file, {"mnurecentfile(0)", ""})->setSeparator(true);
    add(file, {"mnurecentfile(1)", "&oldfile1"})->setVisible(false);
    add(file, {"mnurecentfile(2)", "&oldfile2"})->setVisible(false);
    add(file, {"mnurecentfile(3)", "&oldfile3"})->setVisible(false);
    add(file, {"mnurecentfile(4)", "-"})->setSeparator(true);
    add(file, {"mnuexit", "&Exit"});
    plain_entry({"mnusetup", "&Setup"});
    plain_entry({"mnuklasse", "&Klasser"});
    plain_entry({"mnuDatabase", "&Database"});
    plain_entry({"mnuprint", "&Skriv ut"});
    QMenu* help = top({"mnuhelp", "&Hjelp"});
    add(help, {"mmuTheory", "&User && Theory Manual"});
    add(help, {"mnuabout", "&Om Tarnvik"});
}

void frmMain::Set_tab_order() {
    QWidget* last = nullptr;
    for (const ControlRow& row : control_rows) {
        auto& control = Find<QWidget>(row.name);
        if (control.focusPolicy() == Qt::NoFocus || row.kind == plain) {
            continue;
        }
        if (last != nullptr) {
            setTabOrder(last, &control);
        }
        last = &control;
    }
}

// Labels whose built size is not given get the room that their texts need in both languages.
void frmMain::Natural_sizes() {
    const QFontMetricsF metrics{font()};
    const double to_twips = twips_per_inch / logicalDpiX();
    constexpr double gap = 5.0 * twips_per_pixel; // before the value that follows
    const auto widen = [&](std::string_view control, const char* caption) {
        const auto box = boxes_.find(control);
        if (caption == nullptr || box == boxes_.end()) {
            return;
        }
        const double width = metrics.horizontalAdvance(Q(caption)) * to_twips + gap;
        box->second.width = std::max(box->second.width, width);
    };
    std::map<std::string_view, bool> measured;
    for (const ControlRow& row : control_rows) {
        measured[row.name] = row.kind == label && row.width == 0.0;
        if (measured[row.name]) {
            widen(row.name, row.caption);
        }
    }
    for (const CaptionRow& row : Caption_rows()) {
        if (const auto found = measured.find(row.control); found != measured.end() && found->second) {
            widen(row.control, row.english);
            widen(row.control, row.norwegian);
        }
    }
}

void frmMain::WritefrmInput1() {
    Natural_sizes();
    const Box window{0.0, 0.0, width() * twips_per_inch / logicalDpiX(), height() * twips_per_inch / logicalDpiY()};
    // A text box or a list never gets lower than a line of text and its frame.
    static constexpr double least = 16.5 * twips_per_pixel;
    const auto least_height = [](std::string_view control, const void* context) {
        const auto* self = static_cast<const frmMain*>(context);
        QObject* object = self->Control_of(control);
        return dynamic_cast<TextBox*>(object) != nullptr || dynamic_cast<ListBox*>(object) != nullptr ? least : 0.0;
    };
    Apply_layout(boxes_, window, least_height, this);
    Apply_geometry();
}

void frmMain::Apply_geometry() {
    const double dpi_x = logicalDpiX();
    const double dpi_y = logicalDpiY();
    // Edges are rounded where they lie in the window, not where they lie in the parent: neighbours keep their distance.
    // The lower ones are rounded down, so that neighbours whose rules let them touch do not overlap; the right ones
    // stay inside the frame.
    std::map<std::string_view, QPointF> origins;
    std::map<std::string_view, QPoint> ends;
    const int border = Scaled(2, dpi_x);
    for (const ControlRow& row : control_rows) {
        const Box& box = boxes_.find(row.name)->second;
        const QPointF parent = *row.parent == '\0' ? QPointF{} : origins[row.parent];
        const double left = parent.x() + box.left * dpi_x / twips_per_inch;
        const double top = parent.y() + box.top * dpi_y / twips_per_inch;
        const double right = left + box.width * dpi_x / twips_per_inch;
        const double bottom = top + box.height * dpi_y / twips_per_inch;
        origins[row.name] = QPointF{left, top};
        const QPoint corner{static_cast<int>(std::lround(parent.x())), static_cast<int>(std::lround(parent.y()))};
        const QPoint from{static_cast<int>(std::lround(left)), static_cast<int>(std::lround(top))};
        QPoint to{static_cast<int>(std::lround(right)), static_cast<int>(std::floor(bottom + 0.001))};
        if (const auto end = ends.find(row.parent); end != ends.end()) {
            to.setX(std::min(to.x(), end->second.x() - border));
        }
        ends[row.name] = to;
        Find<QWidget>(row.name).setGeometry(QRect{from - corner, QSize{to.x() - from.x(), to.y() - from.y()}});
    }
    const int covered = Scaled(400.0 / twips_per_pixel, dpi_x);
    for (const char* sketch : {"Pic_av_bolter", "Pic_av_bulldog"}) {
        Find<PictureArea>(sketch).Set_covered(covered);
    }
    for (const char* cover : {"Fra_av_bolter_verdier", "Fra_av_bulldog_verdier"}) {
        auto& table_frame = Find<QWidget>(cover);
        table_frame.setAutoFillBackground(true);
        table_frame.raise();
    }
}

} // namespace tarnvik
