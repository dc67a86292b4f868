#include "frontend/controls/Controls.h"

#include <QAccessible>
#include <QFocusEvent>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

#include "frontend/controls/Style.h"
#include "frontend/painting/PictureStore.h"

namespace tarnvik {

namespace {

const QColor border_colour{0xc4, 0xc4, 0xc4};

// Greedy lines of at most `width` pixels.
QStringList Break(const QString& text, const QFontMetricsF& metrics, double width) {
    QStringList lines;
    QString line;
    for (const QString& word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
        if (!line.isEmpty() && metrics.horizontalAdvance(longer) > width) {
            lines << line;
            line = word;
        } else {
            line = longer;
        }
    }
    if (!line.isEmpty()) {
        lines << line;
    }
    return lines;
}

double Widest(const QStringList& lines, const QFontMetricsF& metrics) {
    double widest = 0.0;
    for (const QString& line : lines) {
        widest = std::max(widest, metrics.horizontalAdvance(line));
    }
    return widest;
}

bool Leaves(Qt::FocusReason reason) {
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason;
}

} // namespace

QString Q(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string U(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    return {bytes.data(), static_cast<std::size_t>(bytes.size())};
}

QColor To_colour(std::uint32_t colour) {
    return {static_cast<int>(colour & 0xFFU), static_cast<int>((colour >> 8U) & 0xFFU),
            static_cast<int>((colour >> 16U) & 0xFFU)};
}

SetText Set_text(const QString& text, const QFont& font, const QSizeF& room) {
    const QFontMetricsF metrics{font};
    SetText set;
    // Two lines may stand closer than the font would like, but not touch.
    const double least_height = metrics.ascent() + metrics.descent() * 0.8;
    set.line_height = metrics.height();
    set.lines = QStringList{text};
    while (set.lines.back().endsWith(QLatin1Char(' '))) { // a trailing blank asks for no room
        set.lines.back().chop(1);
    }
    set.width = Widest(set.lines, metrics);
    if (set.width > room.width()) {
        const QStringList broken = Break(text, metrics, room.width());
        if (broken.size() > 1 && least_height * static_cast<double>(broken.size()) <= room.height() + 1.0) {
            set.lines = broken;
            set.width = Widest(broken, metrics);
            set.line_height = std::min(metrics.height(), room.height() / static_cast<double>(broken.size()));
        }
    }
    if (set.width > room.width() && set.width > 0.0) {
        set.narrowing = room.width() / set.width;
    }
    set.fits =
        set.narrowing >= least_narrowing && least_height * static_cast<double>(set.lines.size()) <= room.height() + 1.0;
    return set;
}

void Draw_text(QPainter& painter, const QString& text, const QFont& font, const QRectF& room, Qt::Alignment alignment) {
    if (text.isEmpty()) {
        return;
    }
    const SetText set = Set_text(text, font, room.size());
    const QFontMetricsF metrics{font};
    const double height = set.line_height * static_cast<double>(set.lines.size());
    double y = room.top();
    if (alignment.testFlag(Qt::AlignVCenter)) {
        y += (room.height() - height) / 2.0;
    }
    painter.setFont(font);
    for (const QString& line : set.lines) {
        const double width = metrics.horizontalAdvance(line) * set.narrowing;
        double x = room.left();
        if (alignment.testFlag(Qt::AlignHCenter)) {
            x += (room.width() - width) / 2.0;
        } else if (alignment.testFlag(Qt::AlignRight)) {
            x += room.width() - width;
        }
        painter.save();
        painter.translate(x, std::round(y + metrics.ascent()));
        painter.scale(set.narrowing, 1.0);
        painter.drawText(QPointF{0.0, 0.0}, line);
        painter.restore();
        y += set.line_height;
    }
}

QRectF Frame::Title_room() const {
    const QFontMetricsF metrics{font()};
    const double left = Scaled(5, logicalDpiX());
    const double right = Scaled(3, logicalDpiX());
    return {left, 0.0, width() - left - right, metrics.height()};
}

void Frame::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    const QFontMetricsF metrics{font()};
    const double top = title().isEmpty() ? 0.5 : std::round(metrics.height() / 2.0) + 0.5;
    const double radius = Scaled(3, logicalDpiX());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(border_colour);
    const QRectF title_room = Title_room();
    if (!title().isEmpty()) {
        const SetText set = Set_text(title(), font(), title_room.size());
        const double gap = Scaled(2, logicalDpiX());
        QPainterPath outside;
        outside.addRect(QRectF{rect()});
        QPainterPath hole;
        hole.addRect(QRectF{title_room.left() - gap, 0.0, set.width * set.narrowing + 2.0 * gap, title_room.height()});
        painter.setClipPath(outside - hole);
    }
    painter.drawRoundedRect(QRectF{0.5, top, width() - 1.0, height() - top - 0.5}, radius, radius);
    painter.setClipping(false);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    Draw_text(painter, title(), font(), title_room, Qt::AlignLeft | Qt::AlignTop);
}

void Label::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
    Draw_text(painter, text(), font(), QRectF{rect()}, alignment());
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

void ListBox::Set_back(std::uint32_t colour) {
    back_ = colour;
    QPalette changed = palette();
    for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Button}) {
        if (colour == colour_white_box) {
            changed.setColor(role, role == QPalette::Base ? Qt::white : QColor{0xf0, 0xf0, 0xf0});
        } else {
            changed.setColor(role, To_colour(colour));
        }
    }
    setPalette(changed);
}

void ListBox::wheelEvent(QWheelEvent* event) {
    // A wheel that turns over a list in passing would change the connection unseen.
    if (hasFocus()) {
        QComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

void PictureButton::Set_picture(const std::string& key) {
    key_ = key;
    update();
}

void PictureButton::Set_pressed_look(bool chosen) {
    chosen_ = chosen;
    update();
}

void PictureButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    QStyleOptionButton option;
    option.initFrom(this);
    option.state |= isDown() ? QStyle::State_Sunken : QStyle::State_Raised;
    if (!isDown()) {
        option.state &= ~QStyle::State_Sunken;
    }
    style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
    const double margin = Scaled(3, logicalDpiX());
    const QRectF room = QRectF{rect()}.adjusted(margin, margin, -margin, -margin);
    if (!Paint_picture(key_, painter, room, logicalDpiX() / 96.0)) {
        painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
        Draw_text(painter, text(), font(), room, Qt::AlignCenter);
    }
    if (chosen_) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen{palette().color(QPalette::Highlight), Scaled(2, logicalDpiX()) * 1.0});
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF{rect()}.adjusted(1.5, 1.5, -1.5, -1.5), 3.0, 3.0);
    }
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = rect().adjusted(3, 3, -3, -3);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void PictureArea::Set_picture(std::string_view key) {
    if (key_ != key) {
        key_ = key;
        update();
    }
}

void PictureArea::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    const QRectF room = QRectF{rect()}.adjusted(0.0, 0.0, -covered_, 0.0);
    painter.fillRect(rect(), Qt::white);
    Paint_picture(key_, painter, room, logicalDpiX() / 96.0);
    if (!framed_) {
        return;
    }
    painter.setPen(border_colour);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF{rect()}.adjusted(0.5, 0.5, -0.5, -0.5));
}

void TableArea::Set_rows(std::span<const PositionedText> rows) {
    rows_.assign(rows.begin(), rows.end());
    update();
}

QFont TableArea::Row_font(bool bold) const {
    QFont row_font = font();
    row_font.setBold(bold);
    return row_font;
}

std::vector<TableArea::Placed> TableArea::Place() const {
    const QFontMetricsF plain{Row_font(false)};
    const QFontMetricsF bold{Row_font(true)};
    const double x_unit = width() / 100.0;
    const double y_unit = height() / 100.0;
    std::vector<Placed> placed;
    placed.reserve(rows_.size());
    for (const PositionedText& row : rows_) {
        const QFontMetricsF& metrics = row.bold ? bold : plain;
        // The next text on the same line ends the room; the word of a sum row stands a little off its line.
        double end = width() - 1.0;
        for (const PositionedText& other : rows_) {
            if (other.x > row.x && std::fabs(other.y - row.y) < 3.0F) {
                end = std::min(end, static_cast<double>(other.x) * x_unit);
            }
        }
        Placed place{};
        const double left = static_cast<double>(row.x) * x_unit;
        QString text = Q(row.text);
        while (text.endsWith(QLatin1Char(' '))) {
            text.chop(1);
        }
        place.width = metrics.horizontalAdvance(text);
        const double room = std::max(1.0, end - left - 1.0);
        place.narrowing = place.width > room ? room / place.width : 1.0;
        place.room = QRectF{left, (100.0 - static_cast<double>(row.y)) * y_unit, place.width * place.narrowing,
                            metrics.height()};
        placed.push_back(place);
    }
    return placed;
}

void TableArea::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    painter.fillRect(rect(), Qt::white);
    const std::vector<Placed> placed = Place();
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const QFont row_font = Row_font(rows_[i].bold);
        painter.setFont(row_font);
        painter.setPen(To_colour(rows_[i].fore));
        painter.save();
        painter.translate(placed[i].room.left(), std::round(placed[i].room.top() + QFontMetricsF{row_font}.ascent()));
        painter.scale(placed[i].narrowing, 1.0);
        painter.drawText(QPointF{0.0, 0.0}, Q(rows_[i].text));
        painter.restore();
    }
}

} // namespace tarnvik
