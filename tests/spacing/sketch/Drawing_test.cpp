#include "spacing/sketch/Drawing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace tarnvik {
namespace {

constexpr Pen pens[] = {Pen::outline, Pen::loaded,    Pen::hidden,    Pen::hidden_loaded, Pen::torn,
                        Pen::grain,   Pen::extension, Pen::dimension, Pen::bolt,          Pen::force};

// Light and dark as the eye has them, 0 to 1.
double Luminance(unsigned colour) {
    const auto linear = [](unsigned value) {
        const double share = value / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour >> 16U & 0xFFU) + 0.7152 * linear(colour >> 8U & 0xFFU) +
           0.0722 * linear(colour & 0xFFU);
}

double Contrast(unsigned one, unsigned other) {
    const double a = Luminance(one) + 0.05;
    const double b = Luminance(other) + 0.05;
    return a > b ? a / b : b / a;
}

TEST(Drawing, pens_have_three_widths_each_twice_the_one_before) {
    std::set<double> widths;
    for (const Pen pen : pens) {
        widths.insert(Width_of(pen));
    }
    EXPECT_EQ(widths, (std::set<double>{0.6, 1.2, 2.4}));
    EXPECT_EQ(Width_of(Pen::none), 0.0);
}

TEST(Drawing, what_is_loaded_and_what_loads_is_thick_and_what_measures_is_thin) {
    EXPECT_EQ(Width_of(Pen::loaded), thick);
    EXPECT_EQ(Width_of(Pen::force), thick);
    EXPECT_EQ(Width_of(Pen::outline), medium);
    EXPECT_EQ(Width_of(Pen::dimension), thin);
    EXPECT_EQ(Width_of(Pen::extension), thin);
    // A loaded edge is the heavier one also where it is hidden.
    EXPECT_GT(Width_of(Pen::hidden_loaded), Width_of(Pen::hidden));
    for (const Pen pen : pens) {
        EXPECT_EQ(Is_dashed(pen), pen == Pen::hidden || pen == Pen::hidden_loaded);
    }
}

TEST(Drawing, letters_have_11_pixels_on_the_screen_and_no_less_than_7_points_on_paper) {
    EXPECT_GE(letter_pixels, 11.0);
    EXPECT_GE(letter_pixels * 72.0 / 96.0, 7.0);
    EXPECT_EQ(Size_of("a1", false).width, 2.0 * digit_width);
    EXPECT_EQ(Size_of("\u03b1", false).width, digit_width); // characters, not bytes
}

TEST(Drawing, everything_reads_in_grey) {
    EXPECT_GE(Contrast(Colour_of(Tone::wood_1), Colour_of(Tone::wood_2)), 1.4);
    for (const Tone wood : {Tone::wood_1, Tone::wood_2}) {
        for (const Pen pen : pens) {
            EXPECT_GE(Contrast(Colour_of(pen), Colour_of(wood)), 4.0) << "a pen on wood";
        }
    }
}

} // namespace
} // namespace tarnvik
