#include "frontend/dialogs/frmSetup.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>
#include <utility>

#include "calc/RuntimeFault.h"
#include "data/SetupFile.h"
#include "frontend/controls/Controls.h"
#include "frontend/controls/Descriptions.h"
#include "frontend/dialogs/Editing.h"
#include "frontend/painting/Texts.h"
#include "ports/MessageBox.h"
#include "session/Session.h"

namespace tarnvik {

namespace {

struct CaptionOf {
    const char* control;
    const char* english;
    const char* norwegian;
};

// clang-format off
constexpr std::array captions{
    CaptionOf{"frmSetup",           "Setup",                        "Setup"},
    CaptionOf{"Fra_language",       "Language",                     "Språk"},
    CaptionOf{"Cmd_save",           "Save to file",                 "Lagre på fil"},
    CaptionOf{"Fra_set_annex",      "Partial factors and language", "Partialfaktorer og språk"},
    CaptionOf{"Fra_part_fac",       "Partial factors",              "Partialfaktorer"},
    CaptionOf{"Lbl_gamma_timb",     "Timber",                       "Trelast"},
    CaptionOf{"Lbl_gamma_lam",      "Laminated",                    "Laminert"},
    CaptionOf{"Lbl_gamma_kerto",    "Kerto",                        "Kerto"},
    CaptionOf{"Lbl_gamma_k_bjelke", "K-bjelke",                     "K-bjelke"},
};
// clang-format on

} // namespace

struct FactorRow {
    const char* label;
    const char* box;
    float ConnectionValues::*value;
};

namespace {

constexpr double title_height = 22.0; // room of a frame's title, pixels at 96 dots per inch

// The Enter key goes round this ring.
constexpr std::array factors{
    FactorRow{"Lbl_gamma_timb", "Txt_gamma_timb", &ConnectionValues::gm_T},
    FactorRow{"Lbl_gamma_lam", "Txt_gamma_lam", &ConnectionValues::gm_L},
    FactorRow{"Lbl_gamma_kerto", "Txt_gamma_kerto", &ConnectionValues::gm_Ke},
    FactorRow{"Lbl_gamma_k_bjelke", "Txt_gamma_k_bjelke", &ConnectionValues::gm_K},
};

} // namespace

frmSetup::frmSetup(QWidget& window, Session& session, Editing& editing)
    : QDialog(&window), session_(session), editing_(editing) {
    setObjectName(QStringLiteral("frmSetup"));
    const double dpi = logicalDpiX();
    const int gap = Scaled(10, dpi);

    auto* annex = new Frame{this};
    annex->setObjectName(QStringLiteral("Fra_set_annex"));
    auto* language = new Frame{annex};
    language->setObjectName(QStringLiteral("Fra_language"));
    auto* part = new Frame{annex};
    part->setObjectName(QStringLiteral("Fra_part_fac"));
    Add_languages(*language);
    Add_factors(*part);

    auto* both = new QHBoxLayout{annex};
    both->setContentsMargins(gap, Scaled(title_height, dpi), gap, gap);
    both->setSpacing(gap);
    both->addWidget(language);
    both->addWidget(part);

    auto* all = new QVBoxLayout{this};
    all->setContentsMargins(gap, gap, gap, gap);
    all->setSpacing(gap);
    all->addWidget(annex);
    Add_file_lines();
    Add_commands();
    all->setSizeConstraint(QLayout::SetFixedSize);

    ConnectionState& s = session_.State();
    const bool loading = std::exchange(s.Loading, true);
    Write_captions();
    Fill_factors();
    s.Loading = loading;
}

QPushButton* frmSetup::Add_button(QWidget& parent, const char* name, const QString& caption) const {
    const double dpi = logicalDpiX();
    auto* made = new DialogButton{caption, &parent};
    made->setObjectName(QLatin1String(name));
    made->setMinimumSize(Scaled(84, dpi), Scaled(24, dpi));
    return made;
}

void frmSetup::Add_languages(Frame& frame) {
    const double dpi = logicalDpiX();
    const int gap = Scaled(10, dpi);
    auto* languages = new QVBoxLayout{&frame};
    languages->setContentsMargins(gap, Scaled(title_height, dpi), gap, gap);
    languages->setSpacing(gap);
    QPushButton* english = Add_button(frame, "Cmd_eng", QStringLiteral("English"));
    QPushButton* norwegian = Add_button(frame, "Cmd_nor", QStringLiteral("Norsk"));
    languages->addWidget(english);
    languages->addWidget(norwegian);
    languages->addStretch();
    connect(english, &QAbstractButton::clicked, this, [this] { Set_language("Eng"); });
    connect(norwegian, &QAbstractButton::clicked, this, [this] { Set_language("Nor"); });
}

void frmSetup::Add_factors(Frame& frame) {
    const double dpi = logicalDpiX();
    const int gap = Scaled(10, dpi);
    auto* grid = new QGridLayout{&frame};
    grid->setContentsMargins(gap, Scaled(title_height, dpi), gap, gap);
    grid->setSpacing(gap);
    for (std::size_t i = 0; i < factors.size(); ++i) {
        auto* label = new QLabel{&frame};
        label->setObjectName(QLatin1String(factors[i].label));
        auto* box = new TextBox{&frame};
        box->setObjectName(QLatin1String(factors[i].box));
        box->setFixedSize(Scaled(60, dpi), Scaled(19, dpi));
        label->setBuddy(box);
        const int row = static_cast<int>(i);
        grid->addWidget(label, row, 0);
        grid->addWidget(box, row, 1);
        Connect_factor(*box, factors[i], factors[(i + 1) % factors.size()].box);
    }
}

void frmSetup::Connect_factor(TextBox& box, const FactorRow& factor, const char* next) {
    connect(&box, &TextBox::Got_focus, this, [this, &box] {
        if (!session_.State().Loading && !editing_.Refusing()) {
            editing_.Enter_box(box);
        }
    });
    connect(&box, &TextBox::Lost_focus, this, [this, &box, &factor] { Leave_factor(box, factor); });
    connect(&box, &TextBox::Enter_pressed, this,
            [this, next] { findChild<TextBox*>(QLatin1String(next))->setFocus(Qt::TabFocusReason); });
}

void frmSetup::Add_commands() {
    QPushButton* save = Add_button(*this, "Cmd_save", {});
    QPushButton* ok = Add_button(*this, "Cmd_ok", QStringLiteral("OK"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(save);
    buttons->addWidget(ok);
    static_cast<QBoxLayout*>(layout())->addLayout(buttons);
    connect(save, &QAbstractButton::clicked, this, &frmSetup::Save);
    connect(ok, &QAbstractButton::clicked, this, [this] {
        State_to_setup(session_.State());
        session_.Recalculate();
        accept();
    });
}

// No box tells of a failure: a line of the window does.
void frmSetup::Save() {
    State_to_setup(session_.State());
    try {
        Write_setup(session_.State().Setup, session_.Folder());
        state_ = Saved::done;
    } catch (const RuntimeFault& fault) {
        state_ = Saved::failed;
        failure_ = Save_words(fault);
    }
    Write_file_lines();
}

void frmSetup::Add_file_lines() {
    files_ = new QLabel{this};
    files_->setObjectName(QStringLiteral("Lbl_setup_files"));
    saved_ = new QLabel{this};
    saved_->setObjectName(QStringLiteral("Lbl_setup_saved"));
    for (QLabel* line : {files_, saved_}) {
        line->setTextFormat(Qt::PlainText);
        layout()->addWidget(line);
    }
}

void frmSetup::Write_file_lines() {
    const bool english = Is_english(session_.State());
    const std::string read = setup_file_read;
    const std::string written = setup_file_written;
    const bool was_read = !session_.Started().setup || session_.Started().setup->line > 0;
    std::string text;
    if (english) {
        text = (was_read ? "Read at the start: " : "Not read at the start: ") + read +
               "\nSave to file writes: " + written + "\nIt counts from the next start if it is renamed to " + read +
               ".";
    } else {
        text = (was_read ? "Lest ved start: " : "Ikke lest ved start: ") + read + "\nLagre på fil skriver: " + written +
               "\nDen gjelder fra neste start hvis den får navnet " + read + ".";
    }
    files_->setText(Q(text));
    files_->setToolTip(Q(session_.Folder().string()));
    std::string saved;
    if (state_ == Saved::done) {
        saved = (english ? "Written: " : "Skrevet: ") + written;
    } else if (state_ == Saved::failed) {
        saved = (english ? "Not written: " : "Ikke skrevet: ") + std::string{failure_.In(english)};
    }
    saved_->setText(Q(saved));
}

void frmSetup::Fill_factors() {
    for (const FactorRow& factor : factors) {
        findChild<TextBox*>(QLatin1String(factor.box))->setText(Q(Format(session_.State().*factor.value, "0.00")));
    }
}

void frmSetup::Write_captions() {
    Write_file_lines();
    const bool english = Is_english(session_.State());
    for (const CaptionOf& row : captions) {
        const QString text = Q(english ? row.english : row.norwegian);
        const QString name = QLatin1String(row.control);
        if (name == objectName()) {
            setWindowTitle(text);
        } else if (auto* frame = findChild<QGroupBox*>(name)) {
            frame->setTitle(text);
        } else if (auto* label = findChild<QLabel*>(name)) {
            label->setText(text);
        } else if (auto* button = findChild<QAbstractButton*>(name)) {
            button->setText(text);
        }
    }
    Describe(*this, "frmSetup", english);
}

void frmSetup::Set_language(const char* Lang) {
    session_.State().Lang = Lang;
    Write_captions();
    emit Language_chosen();
}

void frmSetup::Leave_factor(TextBox& box, const FactorRow& factor) {
    ConnectionState& s = session_.State();
    if (s.Loading || editing_.Refusing() || !isVisible()) {
        return;
    }
    try {
        const float value = Str_to_num(U(box.text()));
        s.*factor.value = value;
        box.setText(Q(Format(value, "0.00"))); // before the test
        if (!(value > 0.1F)) {
            editing_.Refuse(box, "Number is <= 0.1 ", box_plain, true);
            return;
        }
        box.Set_back(colour_white_box);
        session_.Main_beregn();
    } catch (const RuntimeFault& fault) {
        editing_.Input_error(box, fault.number);
    }
}

} // namespace tarnvik
