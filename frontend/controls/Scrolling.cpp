#include "frontend/controls/Scrolling.h"

#include <QApplication>
#include <QScreen>
#include <QStyle>

#include <algorithm>
#include <cmath>

#include "frontend/painting/Texts.h"

namespace tarnvik {

QSize Laid_out_size(const QWidget& window) {
    return {Scaled(1024.0, window.logicalDpiX()),
            static_cast<int>(std::lround(0.965 * 768.0 * window.logicalDpiY() / 96.0))};
}

QRect Room_on_screen(const QWidget& window) {
    const QRect frame = window.frameGeometry();
    const QRect inside = window.geometry();
    return window.screen()->availableGeometry().adjusted(inside.left() - frame.left(), inside.top() - frame.top(),
                                                         inside.right() - frame.right(),
                                                         inside.bottom() - frame.bottom());
}

QRect Shown_in(const QRect& room, const QRect& wanted) {
    const int bar = QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    QSize size = wanted.size();
    size.rwidth() += wanted.height() > room.height() ? bar : 0;
    size.rheight() += wanted.width() > room.width() ? bar : 0;
    size = size.boundedTo(room.size());
    return {{std::clamp(wanted.left(), room.left(), room.left() + room.width() - size.width()),
             std::clamp(wanted.top(), room.top(), room.top() + room.height() - size.height())},
            size};
}

ScrolledGround::ScrolledGround(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(new QWidget);
}

void ScrolledGround::Follow_focus() {
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* /*old*/, QWidget* now) {
        if (now != nullptr && widget()->isAncestorOf(now) && QApplication::mouseButtons() == Qt::NoButton) {
            const QPoint middle = now->mapTo(widget(), now->rect().center());
            const int gap = Scaled(8, logicalDpiX());
            ensureVisible(middle.x(), middle.y(), now->width() / 2 + gap, now->height() / 2 + gap);
        }
    });
}

} // namespace tarnvik
