// The stored pictures: every key that the calculation names has one, none is blank, and none leaves its room.
#include "frontend/painting/PictureStore.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <algorithm>
#include <set>
#include <string>

#include "frontend/services/QtRendering.h"
#include "spacing/Pictures.h"

namespace tarnvik {
namespace {

QImage Painted(const std::string& key, QSizeF size) {
    QImage image{size.toSize() + QSize{20, 20}, QImage::Format_RGB32};
    image.fill(Qt::white);
    QPainter painter{&image};
    EXPECT_TRUE(Paint_picture(key, painter, QRectF{QPointF{10.0, 10.0}, size})) << key;
    return image;
}

int Marked(const QImage& image, const QRect& where) {
    int marked = 0;
    for (int y = where.top(); y <= where.bottom(); ++y) {
        for (int x = where.left(); x <= where.right(); ++x) {
            marked += image.pixel(x, y) != qRgb(255, 255, 255) ? 1 : 0;
        }
    }
    return marked;
}

TEST(PictureStore, every_key_of_the_calculation_has_a_picture) {
    const std::vector<std::string> keys = Picture_keys();
    const std::set<std::string, std::less<>> known{keys.begin(), keys.end()};
    EXPECT_EQ(known.size(), keys.size());
    for (const SketchKeys& row : sketch_keys) {
        EXPECT_TRUE(known.contains(row.strekk)) << row.strekk;
        EXPECT_TRUE(known.contains(row.trykk)) << row.trykk;
    }
    for (const ConnectionKey& row : connection_keys) {
        EXPECT_TRUE(known.contains(row.key)) << row.key;
    }
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(known.contains("frmMain/Cmd_type(" + std::to_string(i) + ")")) << i;
    }
    for (const char letter : std::string{"abcdefghjk"}) {
        EXPECT_TRUE(known.contains(std::string{"frmDetailed/Pic_r_"} + letter)) << letter;
    }
    EXPECT_TRUE(known.contains("Frm_tarn_vik_effbolt/pic_eff_bolts"));
    EXPECT_TRUE(known.contains("Frm_tarn_vik_txt_tverr_brudd/Pic_tverr_brudd"));
    EXPECT_TRUE(known.contains("Frm_tarn_vik_txt_tverr_brudd/Pic_tverr_brudd_fig"));
}

TEST(PictureStore, no_picture_is_blank_and_none_leaves_its_room) {
    for (const std::string& key : Picture_keys()) {
        const QImage image = Painted(key, Picture_size(key));
        const QRect all = image.rect();
        const QRect room = all.adjusted(9, 9, -9, -9); // a line on the border may reach a pixel beyond
        EXPECT_GT(Marked(image, room), 40) << key;
        EXPECT_EQ(Marked(image, all), Marked(image, room)) << key;
    }
}

TEST(PictureStore, the_sketches_of_tension_and_compression_differ) {
    for (const SketchKeys& row : sketch_keys) {
        const std::string strekk{row.strekk};
        const std::string trykk{row.trykk};
        EXPECT_NE(Painted(strekk, Picture_size(strekk)), Painted(trykk, Picture_size(trykk))) << row.Case_code;
    }
}

TEST(PictureStore, an_unknown_key_paints_nothing) {
    QImage image{60, 40, QImage::Format_RGB32};
    image.fill(Qt::white);
    QPainter painter{&image};
    EXPECT_FALSE(Paint_picture("Frm_tarn_vik_bolter_1_strekk/Pic9_9", painter, QRectF{image.rect()}));
    EXPECT_FALSE(Paint_picture("", painter, QRectF{image.rect()}));
    EXPECT_EQ(Marked(image, image.rect()), 0);
}

TEST(PictureStore, the_tool_writes_every_picture_as_png_and_svg_under_its_key) {
    const QTemporaryDir folder;
    int argc = 0;
    QtRendering rendering{argc, nullptr};
    EXPECT_EQ(rendering.Write_pictures(folder.path().toStdString()), static_cast<int>(Picture_keys().size()));
    for (const std::string& key : Picture_keys()) {
        const QString base = folder.filePath(QString::fromStdString(key));
        EXPECT_FALSE(QImage{base + QStringLiteral(".png")}.isNull()) << key;
        QFile svg{base + QStringLiteral(".svg")};
        ASSERT_TRUE(svg.open(QIODevice::ReadOnly)) << key;
        const QByteArray text = svg.readAll();
        EXPECT_TRUE(text.contains("<svg")) << key;
        EXPECT_FALSE(text.contains("<image")) << key; // vectors only
    }
}

} // namespace
} // namespace tarnvik
