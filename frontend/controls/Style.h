// The looks of the program: Fusion with a light palette, narrow combo arrows and indicators, an 8-point sans-serif.
#pragma once

#include <QFont>
#include <QProxyStyle>

class QApplication;

namespace tarnvik {

// Style, palette and font of the whole application; to be called once, before the first window.
void Set_looks(QApplication& application);

// "Tahoma" where it is installed, otherwise "Liberation Sans" or what the system offers.
QFont Text_font(double points = 8.0);

// Pixels for a length given at 96 dots per inch.
int Scaled(double pixels_at_96, double dots_per_inch);

class TarnvikStyle : public QProxyStyle {
    Q_OBJECT

public:
    TarnvikStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
};

} // namespace tarnvik
