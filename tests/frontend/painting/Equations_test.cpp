// The stored equations: there for every key, inside their room, never distorted, painted as vectors, and in the form
// that Qt's SVG paints in full; on paper the same in looks, and text.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QXmlStreamReader>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "frontend/painting/EquationPictures.h"

namespace tarnvik::test {
namespace {

constexpr double letter = 40.0;

// Smallest rectangle around what is not white.
QRect Painted(const QImage& image) {
    int left = image.width(), top = image.height(), right = -1, bottom = -1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != qRgb(255, 255, 255)) {
                left = std::min(left, x);
                right = std::max(right, x);
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
        }
    }
    return {QPoint{left, top}, QPoint{right, bottom}};
}

// A white sheet that is larger than `room` on all sides, with a picture in it: as the window paints it, or as a
// document has it with its baseline there.
QImage Sheet(std::string_view key, const QRectF& room, double letter_size,
             std::optional<double> baseline = std::nullopt) {
    QImage image{static_cast<int>(room.right()) + 100, static_cast<int>(room.bottom()) + 100, QImage::Format_RGB32};
    image.fill(Qt::white);
    QPainter painter{&image};
    painter.setRenderHint(QPainter::Antialiasing);
    EXPECT_TRUE(baseline ? Print_equation(key, painter, room, letter_size, *baseline)
                         : Paint_equation(key, painter, room, letter_size))
        << key;
    return image;
}

QRect Painted_in(std::string_view key, const QRectF& room, double letter_size,
                 std::optional<double> baseline = std::nullopt) {
    return Painted(Sheet(key, room, letter_size, baseline));
}

int Ink(const QImage& image) {
    int ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ink += 255 - qGray(image.pixel(x, y));
        }
    }
    return ink;
}

TEST(Equations, every_key_has_its_size) {
    for (const std::string_view key : equation_keys) {
        const auto size = Equation_size(key, letter);
        ASSERT_TRUE(size) << key;
        EXPECT_GT(size->width(), 3.0 * letter) << key;
        EXPECT_GT(size->height(), letter) << key;
        EXPECT_EQ(*Equation_size(key, 2.0 * letter), *size * 2.0) << key;
    }
}

TEST(Equations, nothing_for_another_key) {
    QImage image{50, 50, QImage::Format_RGB32};
    image.fill(Qt::white);
    QPainter painter{&image};
    for (const char* key : {"", "Pic_r_a", "frmDetailed/Pic_r_i", "frmDetailed/Pic_r_", "frmDetailed/pic_eff_bolts"}) {
        EXPECT_FALSE(Equation_size(key, letter)) << key;
        EXPECT_FALSE(Paint_equation(key, painter, QRectF{0, 0, 50, 50}, letter)) << key;
        EXPECT_FALSE(Print_equation(key, painter, QRectF{0, 0, 50, 50}, letter, 25.0)) << key;
    }
    EXPECT_FALSE(Painted(image).isValid());
}

TEST(Equations, left_and_in_the_middle_of_the_room) {
    for (const std::string_view key : equation_keys) {
        const QSizeF size = *Equation_size(key, letter);
        const QRectF room{60.0, 50.0, size.width() + 80.0, size.height() + 60.0};
        const QRect painted = Painted_in(key, room, letter);
        ASSERT_TRUE(painted.isValid()) << key;
        const QRectF expected{QPointF{room.left(), room.top() + 30.0}, size};
        EXPECT_TRUE(expected.toAlignedRect().contains(painted)) << key;
        // The files have little margin.
        EXPECT_GT(painted.width(), 0.9 * size.width()) << key;
        EXPECT_GT(painted.height(), 0.8 * size.height()) << key;
    }
}

TEST(Equations, on_the_baseline_as_far_as_the_room_allows) {
    const std::string_view key = "frmDetailed/Pic_r_h"; // "0.5" stands on the baseline, "f" goes below it
    const QRectF room{0.0, 20.0, 400.0, 200.0};
    const int at_120 = Painted_in(key, room, letter, 120.0).top();
    EXPECT_EQ(Painted_in(key, room, letter, 150.0).top(), at_120 + 30);
    EXPECT_NEAR(at_120, 120.0 - 0.705 * letter, 1.5); // height of "f" over the baseline
    EXPECT_NEAR(Painted_in(key, room, letter).top(), 120.0 - 0.705 * letter + 10.0, 1.5); // in the middle
    EXPECT_GE(Painted_in(key, room, letter, 0.0).top(), 20);
    EXPECT_LE(Painted_in(key, room, letter, 500.0).bottom(), 220);
}

TEST(Equations, smaller_but_never_distorted_in_a_small_room) {
    for (const std::string_view key : equation_keys) {
        const QSizeF size = *Equation_size(key, letter);
        const double aspect = size.width() / size.height();
        const struct {
            const char* name;
            QRectF room;
        } rooms[] = {
            {"narrow", {10.0, 10.0, size.width() / 2.0, size.height() * 3.0}},
            {"low", {10.0, 10.0, size.width() * 3.0, size.height() / 2.0}},
        };
        for (const auto& row : rooms) {
            const QRect painted = Painted_in(key, row.room, letter);
            const QRect full = Painted_in(key, QRectF{10.0, 10.0, size.width(), size.height()}, letter);
            EXPECT_TRUE(row.room.toAlignedRect().contains(painted)) << key << " " << row.name;
            // Half a size, to the pixel that an edge may fall into.
            EXPECT_NEAR(painted.width(), full.width() / 2.0, 1.5) << key << " " << row.name << ", aspect " << aspect;
            EXPECT_NEAR(painted.height(), full.height() / 2.0, 1.5) << key << " " << row.name << ", aspect " << aspect;
        }
    }
}

TEST(Equations, nothing_without_room) {
    QImage image{50, 50, QImage::Format_RGB32};
    image.fill(Qt::white);
    QPainter painter{&image};
    EXPECT_TRUE(Paint_equation(equation_keys.front(), painter, QRectF{10, 10, 0, 20}, letter));
    EXPECT_TRUE(Paint_equation(equation_keys.front(), painter, QRectF{10, 10, 20, -5}, letter));
    EXPECT_TRUE(Print_equation(equation_keys.front(), painter, QRectF{10, 10, 0, 20}, letter, 20.0));
    EXPECT_TRUE(Print_equation(equation_keys.front(), painter, QRectF{10, 10, 20, -5}, letter, 20.0));
    EXPECT_FALSE(Painted(image).isValid());
}

// Letter by letter where the window has it: what the two have not in common is the grey of edges.
TEST(Equations, the_same_on_paper_as_in_the_window) {
    for (const std::string_view key : equation_keys) {
        const QSizeF size = *Equation_size(key, letter);
        const QRectF room{QPointF{20.0, 30.0}, size};
        const QImage window = Sheet(key, room, letter);
        const QImage paper = Sheet(key, room, letter, room.bottom()); // no baseline is as low: at the foot of the room
        EXPECT_NEAR(Ink(paper), Ink(window), 0.02 * Ink(window)) << key;
        const QRect there = Painted(window);
        const QRect here = Painted(paper);
        EXPECT_NEAR(here.left(), there.left(), 1.0) << key;
        EXPECT_NEAR(here.top(), there.top(), 1.0) << key;
        EXPECT_NEAR(here.right(), there.right(), 1.0) << key;
        EXPECT_NEAR(here.bottom(), there.bottom(), 1.0) << key;
        int apart = 0;
        for (int y = 0; y < window.height(); ++y) {
            for (int x = 0; x < window.width(); ++x) {
                apart += std::abs(qGray(window.pixel(x, y)) - qGray(paper.pixel(x, y)));
            }
        }
        EXPECT_LT(apart, 0.2 * Ink(window)) << key;
    }
}

// Neither outlines nor bitmaps: 22 equations as outlines are 200 kB.
TEST(Equations, letters_of_fonts_in_a_pdf) {
    QByteArray pdf;
    QBuffer file{&pdf};
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    {
        QPdfWriter writer{&file};
        writer.setResolution(1200);
        QPainter painter{&writer};
        double y = 0.0;
        for (const std::string_view key : equation_keys) {
            const QSizeF size = *Equation_size(key, 100.0);
            Print_equation(key, painter, {{0.0, y}, size}, 100.0, y + size.height());
            y += size.height();
        }
    }
    EXPECT_EQ(pdf.count("/BaseFont /TarnvikEquations"), 6); // three fonts, each with its descendant
    EXPECT_FALSE(pdf.contains("/Subtype /Image"));
    EXPECT_LT(pdf.size(), 50'000);
}

TEST(Equations, only_paths_in_the_files) {
    const QDir folder{QStringLiteral(":/tarnvik/equations")};
    const QStringList files = folder.entryList({QStringLiteral("*.svg")});
    EXPECT_EQ(files.size(), 12);
    for (const QString& name : files) {
        QFile file{folder.filePath(name)};
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        QXmlStreamReader xml{&file};
        std::multiset<std::string> elements;
        while (!xml.atEnd()) {
            if (xml.readNext() == QXmlStreamReader::StartElement) {
                elements.insert(xml.name().toString().toStdString());
            }
        }
        EXPECT_FALSE(xml.hasError()) << name.toStdString();
        EXPECT_EQ(elements.count("svg"), 1U) << name.toStdString();
        EXPECT_GE(elements.count("path"), 7U) << name.toStdString();
        EXPECT_EQ(elements.count("path") + 1, elements.size()) << name.toStdString();
    }
}

} // namespace
} // namespace tarnvik::test
