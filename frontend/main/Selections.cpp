#include "frontend/main/Selections.h"

#include <QWidget>

#include <cmath>
#include <string>
#include <utility>

#include "calc/RuntimeFault.h"

namespace tarnvik {

namespace {

void Select(QAbstractButton& option) {
    option.setChecked(true);
}

void Clear(QAbstractButton& option) {
    option.setAutoExclusive(false);
    option.setChecked(false);
    option.setAutoExclusive(true);
}

} // namespace

Selections::Selections(const MainControls& controls, Session& session, InputBoxes& boxes, Lists& lists)
    : session_(session), s_(session.State()), boxes_(boxes), lists_(lists),
      only_bolts_(controls.Find<QAbstractButton>("Opt_bolt_bulldog(0)")),
      with_connectors_(controls.Find<QAbstractButton>("Opt_bolt_bulldog(1)")),
      standard_(controls.Find<QAbstractButton>("Opt_stand")), free_entry_(controls.Find<QAbstractButton>("Opt_valg")),
      compression_(controls.Find<QAbstractButton>("Opt_trykk")), tension_(controls.Find<QAbstractButton>("Opt_strekk")),
      single_1_(controls.Find<QAbstractButton>("Opt_enk_1")), double_1_(controls.Find<QAbstractButton>("Opt_dob_1")),
      single_2_(controls.Find<QAbstractButton>("Opt_enk_2")), double_2_(controls.Find<QAbstractButton>("Opt_dob_2")),
      manual_(controls.Find<QAbstractButton>("Check_man")), connector_frame_(controls.Find<QWidget>("Fra_bulldog")),
      connector_distances_(controls.Find<QWidget>("Fra_av_bulldog")),
      connector_labels_{&controls.Find<QWidget>("Lbl_bulldog_kap1"), &controls.Find<QWidget>("Lbl_bulldog_kap2"),
                        &controls.Find<QWidget>("Lbl_pluss"), &controls.Find<QWidget>("Lbl_Rd_bulldog_kontroll")},
      standard_frame_(controls.Find<QWidget>("Fra_standard")), free_frame_(controls.Find<QWidget>("Fra_valgfri")),
      b1_box_(controls.Find<QWidget>("Txt_b1")), alp_label_(controls.Find<QWidget>("Lbl_alp")),
      alp_box_(controls.Find<QWidget>("Txt_alp")), man_he_label_(controls.Find<QWidget>("Lbl_man_he")),
      man_he_box_(controls.Find<QWidget>("Txt_man_he")) {
    Connect_option(only_bolts_, [this] { Only_bolts(); });
    Connect_option(with_connectors_, [this] { With_connectors(); });
    Connect_sections();
    Connect_force();
    Connect_members();
    for (int i = 0; i < 5; ++i) {
        connect(&controls.Find<QAbstractButton>("Cmd_type(" + std::to_string(i) + ")"), &QAbstractButton::clicked, this,
                [this, i] { Cmd_type(i); });
    }
    for (int i = 0; i < 2; ++i) {
        connect(&controls.Find<QAbstractButton>("Cmd_boltetype(" + std::to_string(i) + ")"), &QAbstractButton::clicked,
                this, [this, i] { Cmd_boltetype(i); });
    }
    connect(&manual_, &QAbstractButton::toggled, this, &Selections::Check_man_click);
}

// ---------------------------------------------------------------------------------------------------------------------
// What a choice writes

// An option acts when it becomes selected, by the user or by the program.
void Selections::Connect_option(QAbstractButton& option, std::function<void()> write) {
    connect(&option, &QAbstractButton::toggled, this, [this, write = std::move(write)](bool selected) {
        if (selected && !s_.Loading) {
            write();
            session_.Recalculate();
        }
    });
}

void Selections::Connect_sections() {
    Connect_option(standard_, [this] {
        s_.Standard = true;
        Enable_sections(true);
    });
    Connect_option(free_entry_, [this] {
        s_.Standard = false;
        Enable_sections(false);
        b1_box_.setEnabled(true);
    });
}

void Selections::Connect_force() {
    Connect_option(compression_, [this] { s_.P = std::fabs(s_.P); });
    // A plain change of sign: a force typed while tension is selected is stored positive.
    Connect_option(tension_, [this] { s_.P = -s_.P; });
}

void Selections::Connect_members() {
    Connect_option(single_1_, [this] {
        s_.enk_1 = true;
        s_.dob_1 = false;
        double_2_.setEnabled(true);
    });
    Connect_option(double_1_, [this] { Select_double_1(); });
    Connect_option(single_2_, [this] {
        s_.enk_2 = true;
        s_.dob_2 = false;
        double_1_.setEnabled(true);
    });
    Connect_option(double_2_, [this] { Select_double_2(); });
}

void Selections::Only_bolts() {
    s_.Kun_bolt = true;
    s_.Med_bulldog = false;
    Show_connector_frames(false);
}

void Selections::With_connectors() {
    s_.Med_bulldog = true;
    s_.Kun_bolt = false;
    connector_distances_.setVisible(true);
    Show_connector_labels(true);
    connector_frame_.setVisible(true);
    lists_.Refill_bulldog(); // its handler sets dc and runs a pass of its own
}

void Selections::Select_double_1() {
    s_.dob_1 = true;
    s_.enk_2 = true;
    s_.dob_2 = false;
    s_.enk_1 = false;
    double_2_.setEnabled(false);
}

void Selections::Select_double_2() {
    s_.dob_2 = true;
    s_.enk_1 = true;
    s_.enk_2 = false;
    s_.dob_1 = false;
    Clear(double_1_);
    double_1_.setEnabled(false);
}

void Selections::Cmd_type(int Index) {
    if (s_.Loading) {
        return;
    }
    manual_.setChecked(false);
    s_.Avstand_index = 0;
    s_.Con_type = static_cast<std::int16_t>(Index + 1);
    s_.alp = Index <= 2 ? 27.0F : 90.0F;
    boxes_.Show_angle();
    if (Index <= 2) {
        alp_box_.setVisible(true);
        alp_label_.setVisible(true);
    }
    s_.enk_1 = true;
    s_.enk_2 = true;
    double_1_.setEnabled(true);
    double_2_.setEnabled(true);
    Select(single_1_);
    Select(single_2_);
    session_.Recalculate();
}

void Selections::Cmd_boltetype(int Index) {
    s_.Bolt_ab = Index == 0 ? "a" : "b"; // also while loading
    session_.Recalculate();
}

void Selections::Check_man_click(bool checked) {
    if (s_.Loading) {
        return;
    }
    s_.Man_he_on = checked;
    Enable_manual_he(checked);
    if (!checked) {
        session_.Recalculate();
    }
}

// ---------------------------------------------------------------------------------------------------------------------
// What the controls show

void Selections::Show_connector_labels(bool shown) {
    for (QWidget* label : connector_labels_) {
        label->setVisible(shown);
    }
}

void Selections::Show_connector_frames(bool shown) {
    Show_connector_labels(shown);
    connector_frame_.setVisible(shown);
    connector_distances_.setVisible(shown);
}

void Selections::Enable_sections(bool standard) {
    standard_frame_.setEnabled(standard);
    free_frame_.setEnabled(!standard);
}

void Selections::Enable_manual_he(bool enabled) {
    man_he_box_.setEnabled(enabled);
    man_he_label_.setEnabled(enabled);
}

void Selections::StartValue_controls() {
    Select(only_bolts_);
    Select(standard_);
    free_frame_.setEnabled(false);
    Select(compression_);
    tension_.setEnabled(true);
    boxes_.Show_force(s_.P);
    boxes_.Show_angle();
    Select(single_1_);
    Select(single_2_);
    manual_.setChecked(false);
    Enable_manual_he(false);
    Show_connector_frames(false);
}

void Selections::Show_project() {
    Show_fasteners();
    Show_sections();
    Show_force();
    boxes_.Show_angle();
    if (s_.Con_type < 1 || s_.Con_type > 5) {
        Raise(fault_subscript, "Apply_project"); // there is no such button to press
    }
    Show_members();
    Show_manual_he();
}

void Selections::Show_fasteners() {
    if (s_.Med_bulldog) {
        Select(with_connectors_);
        Show_connector_labels(true);
        lists_.Fill_bulldog();
        connector_frame_.setVisible(true);
    } else {
        Select(only_bolts_);
        connector_frame_.setVisible(false);
        Show_connector_labels(false);
    }
    lists_.Select_fasteners();
}

void Selections::Show_sections() {
    Select(s_.Standard ? standard_ : free_entry_);
    Enable_sections(s_.Standard);
    if (s_.Standard) {
        lists_.Select_sections();
    } else {
        boxes_.Show_sections();
    }
}

void Selections::Show_force() {
    boxes_.Show_force(std::fabs(s_.P));
    Select(s_.P < 0.0F ? tension_ : compression_);
}

void Selections::Show_members() {
    for (QAbstractButton* option : {&single_1_, &double_1_, &single_2_, &double_2_}) {
        option->setEnabled(true);
        Clear(*option);
    }
    if (s_.dob_1) {
        Select(double_1_);
        double_2_.setEnabled(false);
    }
    if (s_.dob_2) {
        Select(double_2_);
        double_1_.setEnabled(false);
    }
    if (s_.enk_1) {
        Select(single_1_);
        double_1_.setEnabled(true);
    }
    if (s_.enk_2) {
        Select(single_2_);
        double_1_.setEnabled(true); // of member 1 here too
    }
}

void Selections::Show_manual_he() {
    manual_.setChecked(s_.Man_he_on);
    if (s_.Man_he_on) {
        Enable_manual_he(true);
        boxes_.Show_manual_he();
    }
}

} // namespace tarnvik
