#include <gtest/gtest.h>

#include <QFile>
#include <QFont>
#include <QFontInfo>
#include <QRawFont>
#include <QString>

#include <string>

#include "frontend/painting/Faces.h"
#include "frontend/painting/Texts.h"

namespace tarnvik::test {

namespace {

struct Face {
    const char* name; // as a text or the report asks for it
    bool bold, italic;
    const char* file;
};

constexpr Face faces[] = {
    {"Tahoma", false, false, "TarnvikSans-Regular"},
    {"Tahoma", true, false, "TarnvikSans-Bold"},
    {"symbol", false, false, "TarnvikSans-Regular"},
    {"arial", false, false, "TarnvikSans-Regular"},
    {"arial", true, false, "TarnvikSans-Bold"},
    {"Times New Roman", false, false, "TarnvikSerif-Regular"},
    {"Times New Roman", true, false, "TarnvikSerif-Bold"},
    {"Times New Roman", true, true, "TarnvikSerif-BoldItalic"},
};

QRawFont Delivered(const char* file) {
    QFile font{QStringLiteral(TARNVIK_SOURCE_DIR "/frontend/fonts/%1.ttf").arg(QLatin1String(file))};
    EXPECT_TRUE(font.open(QIODevice::ReadOnly)) << file;
    return QRawFont{font.readAll(), 100.0};
}

} // namespace

TEST(Faces, each_is_the_delivered_file_itself) {
    for (const Face& face : faces) {
        QFont font{Family_for(face.name)};
        font.setBold(face.bold);
        font.setItalic(face.italic);
        const QRawFont painted = QRawFont::fromFont(font);
        const QRawFont delivered = Delivered(face.file);
        for (const char* table : {"head", "name", "hmtx", "glyf"}) {
            EXPECT_TRUE(painted.fontTable(table) == delivered.fontTable(table)) << face.file << ' ' << table;
        }
    }
}

TEST(Faces, the_windows_texts_are_set_in_the_sans_serif_one) {
    EXPECT_EQ(Text_font().family(), QStringLiteral("Tarnvik Sans"));
    EXPECT_EQ(QFontInfo{Text_font(7.0)}.family(), QStringLiteral("Tarnvik Sans"));
}

TEST(Faces, a_name_without_a_delivered_face_stays) {
    EXPECT_EQ(Family_for("Courier New"), QStringLiteral("Courier New"));
}

TEST(Faces, have_the_letters_of_texts_and_names) {
    for (const Face& face : faces) {
        const QRawFont font = Delivered(face.file);
        for (const char32_t letter :
             U"AZaz09 .,:;()<>=+-*/%\u00E6\u00F8\u00E5\u00C6\u00D8\u00C5\u00B0\u00B2\u00D7\u00F7"
             U"\u0161\u017E\u0142\u0151\u03B1\u03B3\u03BB\u03C1\u0434\u042F\u2013\u2014\u2264\u2265"
             U"\u221A\u2192\u20AC") {
            if (letter != U'\0') {
                EXPECT_TRUE(font.supportsCharacter(letter)) << face.file << ' ' << static_cast<unsigned>(letter);
            }
        }
    }
}

// Advances in 1/2048 em as the fonts they stand for publish them: Arial and Times New Roman.
TEST(Faces, are_as_wide_as_what_they_stand_in_for) {
    struct Width {
        const char* file;
        char32_t letter;
        double units;
    };
    for (const Width& width :
         {Width{"TarnvikSans-Regular", U'0', 1139.0}, Width{"TarnvikSans-Regular", U'W', 1933.0},
          Width{"TarnvikSans-Bold", U'0', 1139.0}, Width{"TarnvikSans-Bold", U'a', 1139.0},
          Width{"TarnvikSerif-Regular", U'0', 1024.0}, Width{"TarnvikSerif-Regular", U'W', 1933.0},
          Width{"TarnvikSerif-Bold", U'0', 1024.0}, Width{"TarnvikSerif-BoldItalic", U'0', 1024.0}}) {
        QFile font{QStringLiteral(TARNVIK_SOURCE_DIR "/frontend/fonts/%1.ttf").arg(QLatin1String(width.file))};
        ASSERT_TRUE(font.open(QIODevice::ReadOnly));
        const QRawFont unhinted{font.readAll(), 2048.0, QFont::PreferNoHinting};
        const QString text = QString::fromUcs4(&width.letter, 1);
        EXPECT_EQ(unhinted.advancesForGlyphIndexes(unhinted.glyphIndexesForString(text)).value(0).x(), width.units)
            << width.file << ' ' << static_cast<unsigned>(width.letter);
    }
}

} // namespace tarnvik::test
