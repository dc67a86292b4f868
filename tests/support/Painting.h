// What the tests of the paintings share.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "detail/Painting.h"

namespace tarnvik::test {

// A text at its place, and how it looks where that is not plain.
struct Line {
    double x, y;
    std::string text;
    std::string look{}; // "bold", "symbol", "small", "right", "red"
};

using Lines = std::vector<Line>;

inline Lines operator+(Lines one, const Lines& other) {
    one.insert(one.end(), other.begin(), other.end());
    return one;
}

inline std::string Look_of(const PaintedText& text) {
    std::string look;
    const auto add = [&look](bool has, const char* name) {
        if (has) {
            look += (look.empty() ? "" : " ") + std::string{name};
        }
    };
    add(text.look.bold, "bold");
    add(text.look.font == TextFont::symbol, "symbol");
    add(text.look.small, "small");
    add(text.look.right, "right");
    add(text.fore == colour_fails, "red");
    add(text.fore != colour_fails && text.fore != colour_black, "another colour");
    return look;
}

// The rows add up in 32 bits: a place is right to a thousandth of a unit, far below a pixel.
inline void Expect_texts(const Painting& painting, const Lines& expected) {
    constexpr double thousandth = 0.001;
    for (std::size_t i = 0; i < std::max(painting.texts.size(), expected.size()); ++i) {
        SCOPED_TRACE("text " + std::to_string(i));
        ASSERT_LT(i, painting.texts.size()) << "missing: " << expected[i].text;
        ASSERT_LT(i, expected.size()) << "too many: " << painting.texts[i].text;
        const PaintedText& got = painting.texts[i];
        const Line& want = expected[i];
        EXPECT_EQ(got.text, want.text);
        EXPECT_NEAR(got.x, want.x, thousandth) << want.text;
        EXPECT_NEAR(got.y, want.y, thousandth) << want.text;
        EXPECT_EQ(Look_of(got), want.look) << want.text;
    }
}

struct Picture {
    std::string control, key;
    double x, y;
};

inline void Expect_pictures(const Painting& painting, const std::vector<Picture>& expected) {
    constexpr double thousandth = 0.001;
    ASSERT_EQ(painting.pictures.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(painting.pictures[i].control, expected[i].control);
        EXPECT_EQ(painting.pictures[i].key, expected[i].key);
        EXPECT_NEAR(painting.pictures[i].x, expected[i].x, thousandth) << expected[i].control;
        EXPECT_NEAR(painting.pictures[i].y, expected[i].y, thousandth) << expected[i].control;
        EXPECT_GT(painting.pictures[i].w, 0.0F) << expected[i].control;
        EXPECT_GT(painting.pictures[i].h, 0.0F) << expected[i].control;
    }
}

} // namespace tarnvik::test
