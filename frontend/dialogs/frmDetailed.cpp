#include "frontend/dialogs/frmDetailed.h"

#include <QLabel>
#include <QPushButton>
#include <QShowEvent>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "detail/Detailed_calc.h"
#include "frontend/controls/Areas.h"
#include "frontend/controls/Controls.h"
#include "frontend/controls/Descriptions.h"
#include "frontend/controls/PaintedArea.h"
#include "frontend/controls/Scrolling.h"
#include "frontend/painting/Texts.h"
#include "session/Session.h"

namespace tarnvik {

namespace {

constexpr double below_frame = 165.0 / 15.0; // twips to pixels at 96 dots per inch

} // namespace

frmDetailed::frmDetailed(QWidget& window, const Session& session)
    : ScrolledDialog(window), window_(window), session_(session) {
    setObjectName(QStringLiteral("frmDetailed"));
    auto* frame = new Frame{&Ground()};
    frame->setObjectName(QStringLiteral("Fra_detailed"));
    auto* area = new PaintedArea{frame};
    area->setObjectName(QStringLiteral("Pic_detailed"));
    for (const EquationPlace& place : equation_places) {
        auto* equation = new PictureArea{area};
        equation->setObjectName(Q(place.control));
        equation->Set_framed(false);
        equation->Set_picture(place.key);
        equation->setVisible(!place.double_shear);
    }
    auto* governs = new QLabel{area};
    governs->setObjectName(QStringLiteral("Lbl_governs"));
    auto* current = new Label{&Ground()};
    current->setObjectName(QStringLiteral("Lbl_current"));
    QPalette red = current->palette();
    red.setColor(QPalette::WindowText, To_colour(colour_fails));
    current->setPalette(red);
    auto* ok = new QPushButton{QStringLiteral("OK"), &Ground()};
    ok->setObjectName(QStringLiteral("Cmd_ok"));
    ok->setDefault(true);
    connect(ok, &QAbstractButton::clicked, this, &QDialog::accept);
    auto* sheet = new QPushButton{&Ground()};
    sheet->setObjectName(QStringLiteral("Cmd_sheet"));
    sheet->setAutoDefault(false); // Enter is OK's
    connect(sheet, &QAbstractButton::clicked, this, &frmDetailed::Sheet_wanted);
}

void frmDetailed::Lay_out() {
    const double dpi = logicalDpiX();
    const QSize whole = Laid_out_size(window_);
    const QSize size{static_cast<int>(std::lround(0.65 * whole.width())), whole.height()};
    // Inside to inside: the frame that the window manager will draw is not known yet, and it is the same for both.
    const QPoint corner{window_.geometry().left() + (window_.width() - size.width()) / 2, window_.geometry().top()};
    Place({corner, size}, window_);

    auto* frame = findChild<Frame*>(QStringLiteral("Fra_detailed"));
    const double w = size.width();
    const double h = size.height();
    frame->setGeometry(QRectF{0.015 * w, 0.005 * h, 0.96 * w, 0.89 * h}.toRect());
    const double frame_w = frame->width();
    const double frame_h = frame->height();
    auto* area = findChild<PaintedArea*>(QStringLiteral("Pic_detailed"));
    area->setGeometry(QRectF{0.015 * frame_w, 0.02 * frame_h, 0.96 * frame_w, 0.97 * frame_h}.toRect());
    for (const EquationPlace& place : equation_places) {
        findChild<PictureArea*>(Q(place.control))
            ->setGeometry(QRectF{place.left * area->width(), place.top * area->height(), place.width * area->width(),
                                 place.height * area->height()}
                              .toRect());
    }
    const QRect ok{(size.width() - Scaled(72, dpi)) / 2, frame->y() + frame->height() + Scaled(below_frame, dpi),
                   Scaled(72, dpi), Scaled(26, dpi)};
    findChild<QPushButton*>(QStringLiteral("Cmd_ok"))->setGeometry(ok);
    findChild<QPushButton*>(QStringLiteral("Cmd_sheet"))
        ->setGeometry(ok.right() + 1 + Scaled(8, dpi), ok.y(), Scaled(120, dpi), ok.height());
    findChild<Label*>(QStringLiteral("Lbl_current"))
        ->setGeometry(frame->x(), ok.y(), ok.x() - frame->x() - Scaled(8, dpi), ok.height());
}

// The program's own: what is shown may belong to former inputs.
void frmDetailed::Show_standing() {
    const ConnectionState& s = session_.State();
    const bool english = Is_english(s);
    std::string text = session_.Results().Not_current(s, english);
    if (text.empty() && !session_.Results().Splitting_current(s)) {
        text = english ? "Splitting not checked" : "Tverrstrekk ikke kontrollert";
    }
    findChild<Label*>(QStringLiteral("Lbl_current"))->setText(Q(text));
}

// The program's own: a word beside the value of the failure mode that governs.
void frmDetailed::Show_governing() {
    auto* area = findChild<PaintedArea*>(QStringLiteral("Pic_detailed"));
    auto* governs = findChild<QLabel*>(QStringLiteral("Lbl_governs"));
    const std::string label = std::string{"Rk("} + Governing_mode(session_.State()).mode + ")";
    const std::vector<PaintedText>& texts = area->Shown().texts;
    const auto mode =
        std::find_if(texts.begin(), texts.end(), [&](const PaintedText& text) { return text.text.starts_with(label); });
    const auto value = std::find_if(mode, texts.end(), [](const PaintedText& text) { return text.x > 70.0F; });
    governs->setVisible(value != texts.end());
    if (value == texts.end()) {
        return;
    }
    governs->setText(Is_english(session_.State()) ? QStringLiteral("governs") : QStringLiteral("avgjørende"));
    governs->setAccessibleName(Q(label) + QLatin1Char(' ') + governs->text());
    const double top = (100.0 - static_cast<double>(value->y)) / 100.0 * area->height();
    governs->adjustSize();
    governs->move(static_cast<int>(std::lround(0.9 * area->width())), static_cast<int>(std::lround(top)));
}

// The program's own: the check sheet of results that are current.
void frmDetailed::Show_sheet_command() {
    const ConnectionState& s = session_.State();
    auto* sheet = findChild<QPushButton*>(QStringLiteral("Cmd_sheet"));
    sheet->setText(Is_english(s) ? QStringLiteral("Check sheet...") : QStringLiteral("Kontrollark..."));
    sheet->setEnabled(session_.Results().Current(s));
}

void frmDetailed::showEvent(QShowEvent* event) {
    Lay_out();
    Painting painting = Paint_detailed(session_.State());
    setWindowTitle(Q(painting.caption));
    findChild<PaintedArea*>(QStringLiteral("Pic_detailed"))->Set_painting(std::move(painting));
    Describe(*this, "frmDetailed", Is_english(session_.State()));
    Show_standing();
    Show_governing();
    Show_sheet_command();
    QDialog::showEvent(event);
}

} // namespace tarnvik
