#include "frontend/controls/Style.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>
#include <QStyleOption>
#include <QWidget>

#include "frontend/controls/Accessible.h"
#include "frontend/painting/Icon.h"
#include "frontend/painting/Texts.h"

namespace tarnvik {

namespace {

double Dpi(const QWidget* widget) {
    return widget != nullptr ? widget->logicalDpiX() : 96.0;
}

} // namespace

TarnvikStyle::TarnvikStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

int TarnvikStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return Scaled(13, Dpi(widget));
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return Scaled(4, Dpi(widget));
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QRect TarnvikStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                   const QWidget* widget) const {
    if (control == CC_ComboBox) {
        const int arrow = Scaled(15, Dpi(widget));
        const QRect all = option->rect;
        if (part == SC_ComboBoxArrow) {
            return {all.right() - arrow, all.top(), arrow, all.height()};
        }
        if (part == SC_ComboBoxEditField) {
            return all.adjusted(Scaled(3, Dpi(widget)), 1, -arrow - 1, -1);
        }
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

int TarnvikStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* data) const {
    if (hint == SH_ComboBox_Popup) {
        return 0; // a list that drops down below the box
    }
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) {
        return 0; // no button of the program has one
    }
    return QProxyStyle::styleHint(hint, option, widget, data);
}

QIcon TarnvikStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
    if (icon == SP_ToolBarHorizontalExtensionButton) { // every menu bar asks for it, few ever have to show it
        return Late_icon(
            [this] { return QProxyStyle::standardIcon(SP_ToolBarHorizontalExtensionButton, nullptr, nullptr); });
    }
    return QProxyStyle::standardIcon(icon, option, widget);
}

void Set_looks(QApplication& application) {
    Install_accessibility();
    QApplication::setStyle(new TarnvikStyle);
    QPalette palette;
    const QColor ground{0xf0, 0xf0, 0xf0};
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::Button, ground);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor{0xf7, 0xf7, 0xf7});
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::ButtonText, Qt::black);
    palette.setColor(QPalette::Highlight, QColor{0x2f, 0x6d, 0xb5});
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, Qt::white);
    palette.setColor(QPalette::ToolTipText, Qt::black);
    palette.setColor(QPalette::Light, Qt::white);
    palette.setColor(QPalette::Midlight, QColor{0xe3, 0xe3, 0xe3});
    palette.setColor(QPalette::Mid, QColor{0xb8, 0xb8, 0xb8});
    palette.setColor(QPalette::Dark, QColor{0x9f, 0x9f, 0x9f});
    palette.setColor(QPalette::Shadow, QColor{0x69, 0x69, 0x69});
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor{0x8a, 0x8a, 0x8a});
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, ground);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor{0xb8, 0xb8, 0xb8});
    QApplication::setPalette(palette);
    application.setFont(Text_font());
}

} // namespace tarnvik
