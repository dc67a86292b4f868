// The controls of the windows: those of the toolkit, with what the program's own look and input protocol add.
#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QRadioButton>

#include <cstdint>
#include <map>

#include "calc/Screen.h"

namespace tarnvik {

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

// A label that shows a value behind its caption. Its accessible name has "%1" where the value is read.
class ValueLabel : public Label {
    Q_OBJECT

public:
    using Label::Label;
};

// A label in the corner of a menu bar, which gives it its place once: it asks for room for the widest of its texts,
// also while it shows none.
class CornerLabel : public Label {
    Q_OBJECT

public:
    using Label::Label;
    void Set_texts(QStringList texts);
    [[nodiscard]] QSize sizeHint() const override;

private:
    QStringList texts_;
};

// A label over the border of a frame: what its text covers is cleared of the border.
class Mark : public Label {
    Q_OBJECT

public:
    using Label::Label;

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

// A button of a dialog: the Enter key presses it where it has the focus, and no other one.
class DialogButton : public QPushButton {
    Q_OBJECT

public:
    explicit DialogButton(const QString& caption, QWidget* parent = nullptr) : QPushButton(caption, parent) {
        setAutoDefault(false);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

// A text box. It reports when the user enters and leaves it, but not a change of the active window, a menu or a list
// that drops down: those do not leave the box.
class TextBox : public QLineEdit {
    Q_OBJECT

public:
    // A text that is dropped on the box would change it without editing it: it is refused.
    explicit TextBox(QWidget* parent = nullptr) : QLineEdit(parent) { setAcceptDrops(false); }
    using QWidget::focusNextChild; // for the Enter key
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
    void initStyleOption(QStyleOptionComboBox* option) const override;
    void wheelEvent(QWheelEvent* event) override;

private:
    bool told_{};
    std::uint32_t back_{colour_white_box};
    std::map<std::uint32_t, QPalette> palettes_; // by the colour
};

} // namespace tarnvik
