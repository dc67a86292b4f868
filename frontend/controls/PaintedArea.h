// An area of positioned texts in a scale of 100 by 100 with the origin at the lower left, and the stored pictures that
// stand among them, each a control of its own.
#pragma once

#include <QFont>
#include <QRectF>
#include <QStringList>
#include <QWidget>

#include <string_view>
#include <vector>

#include "detail/Painting.h"

namespace tarnvik {

class PaintedArea : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    // Shows texts and pictures. A picture gets its control where there is none of that name yet.
    void Set_painting(Painting painting);
    [[nodiscard]] const Painting& Shown() const { return painting_; }
    // The texts as they are read, in their order: a line for each row.
    [[nodiscard]] QStringList Lines() const;

    // Where the texts are drawn, in pixels.
    struct Placed {
        double left{};           // where the text begins, its leading blanks included
        double base{};           // its base line
        double narrowing{1.0};   // horizontal scale of what is drawn: a text ends before the next one on its line
        std::vector<QRectF> ink; // what its words cover
    };
    [[nodiscard]] std::vector<Placed> Place_texts() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] QFont Font_of(const TextLook& look) const;
    void Place_pictures();

    Painting painting_;
};

} // namespace tarnvik
