#include "frontend/controls/Controls.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionFocusRect>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

#include "frontend/controls/Style.h"
#include "frontend/painting/SetText.h"
#include "frontend/painting/Texts.h"

namespace tarnvik {

namespace {

bool Leaves(Qt::FocusReason reason) {
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason;
}

// A rounded rectangle on the middle of pixels, with a line of one pixel. As a single path it would be scanned over the
// whole of its area, milliseconds for the frames of a window: the corners are paths of their own, the rest is filled.
void Draw_border(QPainter& painter, const QRectF& line, double radius, const QColor& colour) {
    const double reach = radius + 0.5; // from a corner to the border of a pixel
    const QSizeF round{2.0 * radius, 2.0 * radius};
    const QPointF right{line.right() - round.width(), line.top()};
    const QPointF low{line.left(), line.bottom() - round.height()};
    const struct {
        QPointF from, square, to;
    } corners[] = {
        {line.topLeft() + QPointF{0.0, reach}, line.topLeft(), line.topLeft() + QPointF{reach, 0.0}},
        {line.topRight() - QPointF{reach, 0.0}, right, line.topRight() + QPointF{0.0, reach}},
        {line.bottomRight() - QPointF{0.0, reach}, {right.x(), low.y()}, line.bottomRight() - QPointF{reach, 0.0}},
        {line.bottomLeft() + QPointF{reach, 0.0}, low, line.bottomLeft() - QPointF{0.0, reach}},
    };
    painter.setPen(QPen{colour, 1.0, Qt::SolidLine, Qt::FlatCap});
    double angle = 180.0;
    for (const auto& corner : corners) {
        QPainterPath path{corner.from};
        path.arcTo({corner.square, round}, angle, -90.0);
        path.lineTo(corner.to);
        painter.drawPath(path);
        angle -= 90.0;
    }
    const QRectF across{line.left() + reach, -0.5, line.width() - 2.0 * reach, 1.0};
    const QRectF down{-0.5, line.top() + reach, 1.0, line.height() - 2.0 * reach};
    painter.fillRect(across.translated(0.0, line.top()), colour);
    painter.fillRect(across.translated(0.0, line.bottom()), colour);
    painter.fillRect(down.translated(line.left(), 0.0), colour);
    painter.fillRect(down.translated(line.right(), 0.0), colour);
}

} // namespace

QRectF Frame::Title_room() const {
    const QFontMetricsF metrics{font()};
    const double left = Scaled(5, logicalDpiX());
    const double right = Scaled(3, logicalDpiX());
    return {left, 0.0, width() - left - right, metrics.height()};
}

void Frame::paintEvent(QPaintEvent* event) {
    const QFontMetricsF metrics{font()};
    const double top = title().isEmpty() ? 0.5 : std::round(metrics.height() / 2.0) + 0.5;
    const double radius = Scaled(3, logicalDpiX());
    // What changes inside does not touch border and title.
    const double below_title = std::max(top + radius, metrics.height() + 1.0);
    if (QRectF{rect()}.adjusted(radius, below_title, -radius, -radius).contains(event->rect())) {
        return;
    }
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF title_room = Title_room();
    if (!title().isEmpty()) {
        const SetText set = Set_text(title(), font(), title_room.size());
        const double gap = Scaled(2, logicalDpiX());
        const QRectF around{title_room.left() - gap, 0.0, set.width * set.narrowing + 2.0 * gap, title_room.height()};
        painter.setClipRegion(QRegion{rect()} - QRegion{around.toAlignedRect()});
    }
    Draw_border(painter, {0.5, top, width() - 1.0, height() - top - 0.5}, radius, border_colour);
    painter.setClipping(false);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    Draw_text(painter, title(), font(), title_room, Qt::AlignLeft | Qt::AlignTop);
}

void Label::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
    Draw_text(painter, text(), font(), QRectF{contentsRect()}, alignment());
}

void CornerLabel::Set_texts(QStringList texts) {
    texts_ = std::move(texts);
    setAlignment(Qt::AlignCenter);
    updateGeometry();
}

QSize CornerLabel::sizeHint() const {
    const QFontMetrics letters = fontMetrics();
    const int gap = letters.height() / 2; // on either side
    int width = 0;
    for (const QString& text : texts_) {
        width = std::max(width, letters.horizontalAdvance(text));
    }
    return {width + 2 * gap, letters.height() + gap / 2}; // as high as an entry of the bar
}

void Mark::paintEvent(QPaintEvent* event) {
    const SetText set = Set_text(text(), font(), QSizeF{size()});
    const double covered = set.width * set.narrowing + Scaled(3, logicalDpiX());
    QPainter{this}.fillRect(QRectF{0.0, 0.0, covered, static_cast<double>(height())}, palette().window());
    Label::paintEvent(event);
}

QRectF Option::Text_room() const {
    const int indicator = style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, this) +
                          style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, this);
    return QRectF{rect()}.adjusted(indicator, 0.0, 0.0, 0.0);
}

void Option::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    QStyleOptionButton option;
    initStyleOption(&option);
    const int side = style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, this);
    option.rect = QRect{0, (height() - side) / 2, side, side};
    style()->drawPrimitive(QStyle::PE_IndicatorRadioButton, &option, &painter, this);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    const QRectF room = Text_room();
    Draw_text(painter, text(), font(), room, Qt::AlignLeft | Qt::AlignVCenter);
    if (hasFocus() && option.state.testFlag(QStyle::State_KeyboardFocusChange)) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = room.toRect().adjusted(-2, 0, 0, 0);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void DialogButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        click();
        return;
    }
    QPushButton::keyPressEvent(event);
}

void TextBox::Set_back(std::uint32_t colour) {
    back_ = colour;
    QPalette changed = palette();
    changed.setColor(QPalette::Active, QPalette::Base, To_colour(colour));
    changed.setColor(QPalette::Inactive, QPalette::Base, To_colour(colour));
    setPalette(changed);
}

void TextBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::MouseFocusReason) {
        entering_ = Entering::focused;
        QTimer::singleShot(0, this, [this] {
            if (entering_ == Entering::focused) { // the press that should have followed did not come
                entering_ = Entering::no;
            }
        });
    }
    if (Leaves(event->reason())) {
        emit Got_focus();
    }
}

void TextBox::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    entering_ = Entering::no;
    if (Leaves(event->reason())) {
        deselect();
        if (!isEnabled()) { // not left by the user: there is nothing in editing any more
            Set_back(colour_white_box);
        }
        emit Lost_focus();
    }
}

void TextBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        emit Enter_pressed();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void TextBox::mousePressEvent(QMouseEvent* event) {
    if (entering_ == Entering::focused) {
        entering_ = Entering::pressed;
    } else {
        QLineEdit::mousePressEvent(event);
    }
}

void TextBox::mouseMoveEvent(QMouseEvent* event) {
    if (entering_ != Entering::pressed) {
        QLineEdit::mouseMoveEvent(event);
    }
}

void TextBox::mouseReleaseEvent(QMouseEvent* event) {
    if (entering_ == Entering::pressed) {
        entering_ = Entering::no;
    } else {
        QLineEdit::mouseReleaseEvent(event);
    }
}

ListBox::ListBox(QWidget* parent) : QComboBox(parent) {
    // A choice by the user comes as a change, if it is one, and then as an activation.
    connect(this, &QComboBox::currentIndexChanged, this, [this](int row) {
        told_ = true;
        QTimer::singleShot(0, this, [this] { told_ = false; });
        if (row >= 0) {
            emit Picked(row);
        }
    });
    connect(this, &QComboBox::activated, this, [this](int row) {
        if (!told_) {
            emit Picked(row);
        }
        told_ = false;
    });
}

// The list that drops down takes the colour from its own palette.
void ListBox::Set_back(std::uint32_t colour) {
    if (colour == back_) {
        return;
    }
    back_ = colour;
    QPalette& wanted = palettes_.try_emplace(colour, palette()).first->second;
    if (colour != colour_white_box) {
        wanted.setColor(QPalette::Base, To_colour(colour));
        wanted.setColor(QPalette::Button, To_colour(colour));
    }
    view()->setPalette(wanted);
    update();
}

// The style keeps a picture of every list that it draws, by the identity of its palette, and never forgets the name of
// one whose palette is gone. A widget has a new identity with every change, so each colour has one palette for good.
void ListBox::initStyleOption(QStyleOptionComboBox* option) const {
    QComboBox::initStyleOption(option);
    if (const auto own = palettes_.find(back_); own != palettes_.end()) {
        const QPalette::ColorGroup group = option->palette.currentColorGroup();
        option->palette = own->second;
        option->palette.setCurrentColorGroup(group);
    }
}

void ListBox::wheelEvent(QWheelEvent* event) {
    // A wheel that turns over a list in passing would change the connection unseen.
    if (hasFocus()) {
        QComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

} // namespace tarnvik
