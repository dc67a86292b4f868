// The controls that show stored pictures, and the area of the spacing tables.
#pragma once

#include <QAbstractButton>
#include <QFont>
#include <QPushButton>
#include <QRectF>
#include <QStringList>
#include <QWidget>

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "calc/Screen.h"
#include "frontend/painting/PictureStore.h"

namespace tarnvik {

// A button that shows a stored picture, or its caption.
class PictureButton : public QAbstractButton {
    Q_OBJECT

public:
    using QAbstractButton::QAbstractButton;
    void Set_picture(const std::string& key);
    void Set_pressed_look(bool chosen);
    [[nodiscard]] bool Pressed_look() const { return chosen_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::string key_;
    bool chosen_{};
};

// A button that is the one of several in force, or not.
class ChoiceButton : public QPushButton {
    Q_OBJECT

public:
    using QPushButton::QPushButton;
    void Set_pressed_look(bool chosen);
    [[nodiscard]] bool Pressed_look() const { return chosen_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool chosen_{};
};

// An area that shows a stored picture; an empty frame while the key has none.
class PictureArea : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;
    void Set_picture(std::string_view key);
    // What the picture of a connection calls its members.
    void Set_names(MemberNames names);
    [[nodiscard]] const std::string& Picture() const { return key_; }
    // What covers the right end of the area, in pixels: pictures stay left of it.
    void Set_covered(int pixels) { covered_ = pixels; }
    // Without a frame the picture alone is seen, on white.
    void Set_framed(bool framed) { framed_ = framed; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::string key_;
    MemberNames names_{MemberNames::numbers};
    int covered_{};
    bool framed_{true};
};

// An area that holds others and takes the focus itself, which a frame shows.
class FocusArea : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* event) override;
};

// An area of positioned texts in a scale of 100 by 100 with the origin at the lower left.
class TableArea : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;
    void Set_rows(std::span<const PositionedText> rows);
    [[nodiscard]] const std::vector<PositionedText>& Rows() const { return rows_; }
    // As they are read: a line for each row.
    [[nodiscard]] QStringList Lines() const;

    // Where the texts are drawn, in pixels: each in its own room, which ends before the next text of the same line.
    struct Placed {
        QRectF room;
        double width;     // as wide as the text would like to be
        double narrowing; // horizontal scale of what is drawn
    };
    [[nodiscard]] std::vector<Placed> Place_rows() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QFont Row_font(bool bold) const;

    std::vector<PositionedText> rows_;
};

} // namespace tarnvik
