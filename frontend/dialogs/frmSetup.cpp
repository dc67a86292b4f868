#include "frontend/dialogs/frmSetup.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

#include "calc/RuntimeFault.h"
#include "data/SetupFile.h"
#include "frontend/controls/Controls.h"
#include "frontend/controls/Style.h"
#include "frontend/main/frmMain.h"

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

struct Factor {
    const char* label;
    const char* box;
    float ConnectionValues::*value;
};

// The Enter key goes round this ring.
constexpr std::array factors{
    Factor{"Lbl_gamma_timb", "Txt_gamma_timb", &ConnectionValues::gm_T},
    Factor{"Lbl_gamma_lam", "Txt_gamma_lam", &ConnectionValues::gm_L},
    Factor{"Lbl_gamma_kerto", "Txt_gamma_kerto", &ConnectionValues::gm_Ke},
    Factor{"Lbl_gamma_k_bjelke", "Txt_gamma_k_bjelke", &ConnectionValues::gm_K},
};

} // namespace

frmSetup::frmSetup(frmMain& window) : QDialog(&window), window_(window) {
    setObjectName(QStringLiteral("frmSetup"));
    const double dpi = logicalDpiX();
    const int gap = Scaled(10, dpi);
    const int title = Scaled(22, dpi);

    auto* annex = new Frame{this};
    annex->setObjectName(QStringLiteral("Fra_set_annex"));
    auto* language = new Frame{annex};
    language->setObjectName(QStringLiteral("Fra_language"));
    auto* part = new Frame{annex};
    part->setObjectName(QStringLiteral("Fra_part_fac"));

    const auto button = [dpi](QWidget* parent, const char* name, const QString& caption) {
        auto* made = new QPushButton{caption, parent};
        made->setObjectName(QLatin1String(name));
        made->setAutoDefault(false);
        made->setMinimumSize(Scaled(84, dpi), Scaled(24, dpi));
        return made;
    };

    auto* languages = new QVBoxLayout{language};
    languages->setContentsMargins(gap, title, gap, gap);
    languages->setSpacing(gap);
    QPushButton* english = button(language, "Cmd_eng", QStringLiteral("English"));
    QPushButton* norwegian = button(language, "Cmd_nor", QStringLiteral("Norsk"));
    languages->addWidget(english);
    languages->addWidget(norwegian);
    languages->addStretch();

    auto* grid = new QGridLayout{part};
    grid->setContentsMargins(gap, title, gap, gap);
    grid->setSpacing(gap);
    for (std::size_t i = 0; i < factors.size(); ++i) {
        auto* label = new QLabel{part};
        label->setObjectName(QLatin1String(factors[i].label));
        auto* box = new TextBox{part};
        box->setObjectName(QLatin1String(factors[i].box));
        box->setFixedSize(Scaled(60, dpi), Scaled(19, dpi));
        label->setBuddy(box);
        const int row = static_cast<int>(i);
        grid->addWidget(label, row, 0);
        grid->addWidget(box, row, 1);
        connect(box, &TextBox::Got_focus, this, [this, box] {
            if (!window_.State().Loading && !window_.Refusing()) {
                window_.Enter_box(*box);
            }
        });
        connect(box, &TextBox::Lost_focus, this, [this, box, row] { Leave_factor(*box, row); });
        const char* next = factors[(i + 1) % factors.size()].box;
        connect(box, &TextBox::Enter_pressed, this,
                [this, next] { findChild<TextBox*>(QLatin1String(next))->setFocus(Qt::TabFocusReason); });
    }

    auto* both = new QHBoxLayout{annex};
    both->setContentsMargins(gap, title, gap, gap);
    both->setSpacing(gap);
    both->addWidget(language);
    both->addWidget(part);

    QPushButton* save = button(this, "Cmd_save", {});
    QPushButton* ok = button(this, "Cmd_ok", QStringLiteral("OK"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(save);
    buttons->addWidget(ok);

    auto* all = new QVBoxLayout{this};
    all->setContentsMargins(gap, gap, gap, gap);
    all->setSpacing(gap);
    all->addWidget(annex);
    all->addLayout(buttons);
    all->setSizeConstraint(QLayout::SetFixedSize);

    ConnectionState& s = window_.State();
    const bool loading = s.Loading;
    s.Loading = true;
    Write_captions();
    for (const Factor& factor : factors) {
        findChild<TextBox*>(QLatin1String(factor.box))->setText(Q(Format(s.*factor.value, "0.00")));
    }
    s.Loading = loading;

    connect(english, &QAbstractButton::clicked, this, [this] { Set_language("Eng"); });
    connect(norwegian, &QAbstractButton::clicked, this, [this] { Set_language("Nor"); });
    connect(ok, &QAbstractButton::clicked, this, [this] {
        State_to_setup(window_.State());
        window_.Recalculate();
        accept();
    });
    connect(save, &QAbstractButton::clicked, this, [this] {
        State_to_setup(window_.State());
        try {
            Write_setup(window_.State().Setup, window_.App_path());
        } catch (const RuntimeFault&) { // NOLINT(bugprone-empty-catch): a failed statement of the writer is skipped
        }
    });
}

void frmSetup::Write_captions() {
    const bool english = Is_english(window_.State());
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
}

void frmSetup::Set_language(const char* Lang) {
    window_.State().Lang = Lang;
    Write_captions();
    window_.Write_language();
    window_.Refill_bulldog();
}

void frmSetup::Leave_factor(TextBox& box, int factor) {
    ConnectionState& s = window_.State();
    if (s.Loading || window_.Refusing() || !isVisible()) {
        return;
    }
    try {
        const float value = Str_to_num(U(box.text()));
        s.*factors[static_cast<std::size_t>(factor)].value = value;
        box.setText(Q(Format(value, "0.00"))); // before the test
        if (!(value > 0.1F)) {
            window_.Refuse(box, "Number is <= 0.1 ", box_plain);
            return;
        }
        box.Set_back(colour_white_box);
        window_.Main_beregn();
    } catch (const RuntimeFault& fault) {
        window_.Input_error(box, fault.number);
    }
}

} // namespace tarnvik
