// The controls of the windows: those of the toolkit, with what the program's own look and input protocol add.
#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QWidget>

#include <span>

#include "calc/Screen.h"

namespace tarnvik {

// How a text is set into a rectangle: broken into lines at blanks where one line is too long, drawn narrower where a
// line still is.
struct SetText {
    QStringList lines;
    double line_height{};  // pixels
    double width{};        // pixels, of the widest line, before narrowing
    double narrowing{1.0}; // horizontal scale of what is drawn, 1 where it fits
    bool fits{};           // inside the rectangle, at no less than the least scale
};
inline constexpr double least_narrowing = 0.8;
SetText Set_text(const QString& text, const QFont& font, const QSizeF& room);
void Draw_text(QPainter& painter, const QString& text, const QFont& font, const QRectF& room, Qt::Alignment alignment);

// A frame: a thin rounded border with the title set into it. Children are placed from its outer corner.
class Frame : public QGroupBox {
    Q_OBJECT

public:
    using QGroupBox::QGroupBox;
    [[nodiscard]] QRectF Title_room() const;

protected:
    void paintEvent(QPaintEvent* event) override;
};

// A label that breaks or narrows a text too long for it.
class Label : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override;
};

// An option button whose text may take two lines.
class Option : public QRadioButton {
    Q_OBJECT

public:
    using QRadioButton::QRadioButton;
    [[nodiscard]] QRectF Text_room() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] bool hitButton(const QPoint& at) const override { return rect().contains(at); }
};

// A text box. It reports when the user enters and leaves it, but not a change of the active window, a menu or a list
// that drops down: those do not leave the box.
class TextBox : public QLineEdit {
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;
    void Set_back(std::uint32_t colour);
    [[nodiscard]] std::uint32_t Back() const { return back_; }

signals:
    void Got_focus();
    void Lost_focus();
    void Enter_pressed();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    // The click that enters the box leaves its text selected.
    enum class Entering : std::uint8_t { no, focused, pressed };

    std::uint32_t back_{colour_white_box};
    Entering entering_{Entering::no};
};

// A list box that drops down. `Picked` comes once for each choice, by the user (also of the row that is selected
// already) or by the program (where the row changes).
class ListBox : public QComboBox {
    Q_OBJECT

public:
    explicit ListBox(QWidget* parent = nullptr);
    void Set_back(std::uint32_t colour);
    [[nodiscard]] std::uint32_t Back() const { return back_; }

signals:
    void Picked(int row);

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    bool told_{};
    std::uint32_t back_{colour_white_box};
};

// A button that shows a stored picture, or its caption.
class PictureButton : public QAbstractButton {
    Q_OBJECT

public:
    using QAbstractButton::QAbstractButton;
    void Set_picture(const std::string& key);
    void Set_pressed_look(bool chosen);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::string key_;
    bool chosen_{};
};

// An area that shows a stored picture; an empty frame while the key has none.
class PictureArea : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;
    void Set_picture(std::string_view key);
    [[nodiscard]] const std::string& Picture() const { return key_; }
    // What covers the right end of the area, in pixels: pictures stay left of it.
    void Set_covered(int pixels) { covered_ = pixels; }
    // Without a frame the picture alone is seen, on white.
    void Set_framed(bool framed) { framed_ = framed; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::string key_;
    int covered_{};
    bool framed_{true};
};

// An area of positioned texts in a scale of 100 by 100 with the origin at the lower left.
class TableArea : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;
    void Set_rows(std::span<const PositionedText> rows);
    [[nodiscard]] const std::vector<PositionedText>& Rows() const { return rows_; }

    // Where the texts are drawn, in pixels: each in its own room, which ends before the next text of the same line.
    struct Placed {
        QRectF room;
        double width;     // as wide as the text would like to be
        double narrowing; // horizontal scale of what is drawn
    };
    [[nodiscard]] std::vector<Placed> Place() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QFont Row_font(bool bold) const;

    std::vector<PositionedText> rows_;
};

// Red, green and blue of a colour as the screen record holds it.
QColor To_colour(std::uint32_t colour);

// A text between UTF-8 and the toolkit.
QString Q(std::string_view text);
std::string U(const QString& text);

} // namespace tarnvik
