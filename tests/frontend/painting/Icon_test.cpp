// Icons: those of the resources, made when they are seen and not before.
#include <gtest/gtest.h>

#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QStyle>
#include <QStyleFactory>

#include <memory>

#include "frontend/controls/Style.h"
#include "frontend/painting/Icon.h"

namespace tarnvik::test {
namespace {

TEST(Icon, of_the_program_in_every_size) {
    const QIcon icon = Program_icon();
    EXPECT_EQ(icon.availableSizes().size(), 6);
    for (const int size : {16, 32, 48, 64, 128, 256}) {
        const QImage drawn{QStringLiteral(":/tarnvik/tarnvik-%1.png").arg(size)};
        ASSERT_EQ(drawn.size(), QSize(size, size));
        const auto premultiplied = QImage::Format_ARGB32_Premultiplied;
        EXPECT_EQ(icon.pixmap(QSize{size, size}, 1.0).toImage().convertToFormat(premultiplied),
                  drawn.convertToFormat(premultiplied))
            << size;
    }
    EXPECT_EQ(icon.pixmap(QSize{40, 40}, 2.0).size(), QSize(80, 80)); // made smaller from 128
}

TEST(Icon, made_when_it_is_seen) {
    int made = 0;
    const QIcon icon = Late_icon([&made] {
        ++made;
        QPixmap red{8, 8};
        red.fill(Qt::red);
        return QIcon{red};
    });
    EXPECT_FALSE(icon.isNull());
    EXPECT_EQ(made, 0);
    EXPECT_EQ(icon.pixmap(8).toImage().pixelColor(4, 4), QColor{Qt::red});
    EXPECT_EQ(icon.pixmap(8).size(), QSize(8, 8));
    EXPECT_EQ(made, 1);
}

TEST(Icon, of_a_menu_bar_too_narrow_is_the_one_of_the_style) {
    const auto sign = QStyle::SP_ToolBarHorizontalExtensionButton;
    const std::unique_ptr<QStyle> fusion{QStyleFactory::create(QStringLiteral("Fusion"))};
    TarnvikStyle style;
    const QPixmap seen = style.standardIcon(sign, nullptr, nullptr).pixmap(16);
    ASSERT_FALSE(seen.isNull());
    EXPECT_EQ(seen.toImage(), fusion->standardIcon(sign).pixmap(16).toImage());
}

} // namespace
} // namespace tarnvik::test
