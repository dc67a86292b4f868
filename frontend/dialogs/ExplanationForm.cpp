#include "frontend/dialogs/ExplanationForm.h"

#include <QPushButton>
#include <QShowEvent>

#include <cmath>
#include <stdexcept>
#include <string>

#include "frontend/controls/Controls.h"
#include "frontend/controls/Descriptions.h"
#include "frontend/controls/PaintedArea.h"
#include "frontend/controls/Scrolling.h"
#include "frontend/painting/Texts.h"
#include "session/Session.h"

namespace tarnvik {

namespace {

const ExplanationWindow& Named(std::string_view name) {
    const ExplanationWindow* found = Find_explanation(name);
    if (found == nullptr) {
        throw std::logic_error{"no explanation window named " + std::string{name}};
    }
    return *found;
}

constexpr double below_text = 11.0; // pixels at 96 dots per inch

} // namespace

ExplanationForm::ExplanationForm(QWidget& window, QWidget& parent, const Session& session, std::string_view name)
    : ScrolledDialog(parent), window_(window), session_(session), explanation_(Named(name)) {
    setObjectName(Q(explanation_.name));
    QWidget* holder = &Ground();
    if (!explanation_.frame.empty()) {
        holder = new Frame{holder};
        holder->setObjectName(Q(explanation_.frame));
    }
    auto* area = new PaintedArea{holder};
    area->setObjectName(Q(explanation_.text_control));
    auto* ok = new QPushButton{QStringLiteral("OK"), &Ground()};
    ok->setObjectName(QStringLiteral("Cmd_ok"));
    ok->setDefault(true);
    connect(ok, &QAbstractButton::clicked, this, &QDialog::accept);
}

void ExplanationForm::Lay_out() {
    const double dpi = logicalDpiX();
    const QSize whole = Laid_out_size(window_);
    const int w = static_cast<int>(std::lround(explanation_.width * whole.width()));
    const int h = static_cast<int>(std::lround(explanation_.height * whole.height()));
    // Inside to inside: the frame that the window manager will draw is not known yet, and it is the same for both.
    const QPoint corner{window_.geometry().left() + (window_.width() - w) / 2,
                        window_.geometry().top() + (window_.height() - h) / 2};
    Place({corner, QSize{w, h}}, window_);

    const QRect outer = QRectF{0.015 * w, 0.01 * h, 0.96 * w, explanation_.frame_height * h}.toRect();
    auto* area = findChild<PaintedArea*>(Q(explanation_.text_control));
    if (auto* frame = qobject_cast<Frame*>(area->parentWidget())) {
        frame->setGeometry(outer);
        area->setGeometry(
            QRectF{0.015 * outer.width(), 0.02 * outer.height(), 0.97 * outer.width(), 0.96 * outer.height()}.toRect());
    } else {
        area->setGeometry(outer);
    }
    findChild<QPushButton*>(QStringLiteral("Cmd_ok"))
        ->setGeometry((w - Scaled(72, dpi)) / 2, outer.y() + outer.height() + Scaled(below_text, dpi), Scaled(72, dpi),
                      Scaled(26, dpi));
}

void ExplanationForm::showEvent(QShowEvent* event) {
    Lay_out();
    Painting painting = Paint_explanation(explanation_, session_.State());
    setWindowTitle(Q(painting.caption));
    findChild<PaintedArea*>(Q(explanation_.text_control))->Set_painting(std::move(painting));
    Describe(*this, explanation_.name, Is_english(session_.State()));
    QDialog::showEvent(event);
}

} // namespace tarnvik
