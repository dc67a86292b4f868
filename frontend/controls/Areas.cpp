#include "frontend/controls/Areas.h"

#include <QAccessible>
#include <QFontMetricsF>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>

#include <algorithm>
#include <array>
#include <cmath>

#include "frontend/controls/ReadLines.h"
#include "frontend/controls/Style.h"
#include "frontend/painting/SetText.h"
#include "frontend/painting/Texts.h"

namespace tarnvik {

namespace {

constexpr float off_row = 3.0F; // the word of a sum row stands a little off its line

// The ring of the one in force.
void Draw_chosen(QPainter& painter, const QWidget& button) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen{button.palette().color(QPalette::Highlight), Scaled(2, button.logicalDpiX()) * 1.0});
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF{button.rect()}.adjusted(1.5, 1.5, -1.5, -1.5), 3.0, 3.0);
}

void Tell_chosen(QWidget& button) {
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event{&button, changed};
    QAccessible::updateAccessibility(&event);
}

void Draw_focus(QPainter& painter, const QWidget& widget, const QRect& rect) {
    QStyleOptionFocusRect focus;
    focus.initFrom(&widget);
    focus.rect = rect;
    widget.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, &widget);
}

bool Same(const PositionedText& one, const PositionedText& other) {
    return one.x == other.x && one.y == other.y && one.text == other.text && one.bold == other.bold &&
           one.fore == other.fore;
}

// Of what a text begins with.
double Blank_width(const PositionedText& row, const QFontMetricsF& metrics) {
    const std::size_t blanks = std::min(row.text.find_first_not_of(' '), row.text.size());
    return blanks == 0 ? 0.0 : metrics.horizontalAdvance(QString{static_cast<qsizetype>(blanks), QLatin1Char(' ')});
}

} // namespace

void PictureButton::Set_picture(const std::string& key) {
    key_ = key;
    update();
}

void PictureButton::Set_pressed_look(bool chosen) {
    if (chosen_ != chosen) {
        chosen_ = chosen;
        update();
        Tell_chosen(*this);
    }
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
        Draw_chosen(painter, *this);
    }
    if (hasFocus()) {
        Draw_focus(painter, *this, rect().adjusted(3, 3, -3, -3));
    }
}

void ChoiceButton::Set_pressed_look(bool chosen) {
    if (chosen_ != chosen) {
        chosen_ = chosen;
        update();
        Tell_chosen(*this);
    }
}

void ChoiceButton::paintEvent(QPaintEvent* event) {
    QPushButton::paintEvent(event);
    if (chosen_) {
        QPainter painter{this};
        Draw_chosen(painter, *this);
    }
}

void PictureArea::Set_picture(std::string_view key) {
    if (key_ != key) {
        key_ = key;
        update();
    }
}

void PictureArea::Set_names(MemberNames names) {
    if (names_ != names) {
        names_ = names;
        update();
    }
}

void PictureArea::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    const QRectF room = QRectF{rect()}.adjusted(0.0, 0.0, -covered_, 0.0);
    painter.fillRect(rect(), Qt::white);
    Paint_picture(key_, painter, room, logicalDpiX() / 96.0, names_);
    if (!framed_) {
        return;
    }
    painter.setPen(border_colour);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF{rect()}.adjusted(0.5, 0.5, -0.5, -0.5));
}

void FocusArea::paintEvent(QPaintEvent* /*event*/) {
    if (hasFocus()) {
        QPainter painter{this};
        Draw_focus(painter, *this, rect());
    }
}

void TableArea::Set_rows(std::span<const PositionedText> rows) {
    if (std::ranges::equal(rows, rows_, Same)) {
        return;
    }
    const bool told = QAccessible::isActive();
    const QStringList former = told ? Lines() : QStringList{};
    rows_.assign(rows.begin(), rows.end());
    update();
    if (told && Lines() != former) {
        QAccessibleTextUpdateEvent event{this, 0, former.join(QLatin1Char('\n')), Lines().join(QLatin1Char('\n'))};
        QAccessible::updateAccessibility(&event);
    }
}

QStringList TableArea::Lines() const {
    std::vector<PositionedText> rows = rows_;
    std::stable_sort(rows.begin(), rows.end(),
                     [](const PositionedText& one, const PositionedText& other) { return one.y > other.y; });
    return Read_lines(rows, off_row);
}

QFont TableArea::Row_font(bool bold) const {
    QFont row_font = font();
    row_font.setBold(bold);
    return row_font;
}

std::vector<TableArea::Placed> TableArea::Place_rows() const {
    const QFontMetricsF plain{Row_font(false)};
    const QFontMetricsF bold{Row_font(true)};
    const double x_unit = width() / 100.0;
    const double y_unit = height() / 100.0;
    std::vector<Placed> placed;
    placed.reserve(rows_.size());
    for (const PositionedText& row : rows_) {
        const QFontMetricsF& metrics = row.bold ? bold : plain;
        // The words of the next text on the same line end the room; that of a sum row stands a little off its line.
        double end = width() - 1.0;
        for (const PositionedText& other : rows_) {
            if (other.x > row.x && std::fabs(other.y - row.y) < off_row) {
                const double blanks = Blank_width(other, other.bold ? bold : plain);
                end = std::min(end, static_cast<double>(other.x) * x_unit + blanks);
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
    const std::array fonts{Row_font(false), Row_font(true)};
    const std::array ascents{QFontMetricsF{fonts[0]}.ascent(), QFontMetricsF{fonts[1]}.ascent()};
    const std::vector<Placed> placed = Place_rows();
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const std::size_t weight = rows_[i].bold ? 1 : 0;
        painter.setFont(fonts[weight]);
        painter.setPen(To_colour(rows_[i].fore));
        painter.save();
        painter.translate(placed[i].room.left(), std::round(placed[i].room.top() + ascents[weight]));
        painter.scale(placed[i].narrowing, 1.0);
        painter.drawText(QPointF{0.0, 0.0}, Q(rows_[i].text));
        painter.restore();
    }
}

} // namespace tarnvik
