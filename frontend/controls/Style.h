// The looks of the program: Fusion with a light palette, narrow combo arrows and indicators, an 8-point sans-serif.
#pragma once

#include <QColor>
#include <QIcon>
#include <QProxyStyle>

class QApplication;

namespace tarnvik {

// Style, palette and font of the whole application; to be called once, before the first window.
void Set_looks(QApplication& application);

// The rim of frames and picture areas.
inline const QColor border_colour{0xc4, 0xc4, 0xc4};

class TarnvikStyle : public QProxyStyle {
    Q_OBJECT

public:
    TarnvikStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
};

} // namespace tarnvik
