#include "spacing/sketch/Choice.h"

#include <gtest/gtest.h>

#include <string>

#include "spacing/Catalogue.h"
#include "spacing/sketch/Sheet.h"

namespace tarnvik {
namespace {

constexpr double width = 264.0; // the sketch area of the window
constexpr double height = 165.0;

TEST(Choice, is_clear_and_fits_the_room_in_every_case) {
    for (int row = 0; row < case_count; ++row) {
        for (const bool compression : {false, true}) {
            SCOPED_TRACE(std::string{case_table[static_cast<std::size_t>(row)].Case_code} +
                         (compression ? " compression" : " tension"));
            const Choice choice = Choose(row, compression, width, height);
            EXPECT_TRUE(choice.fits);
            EXPECT_TRUE(choice.all.clear);
            EXPECT_TRUE(Fits(choice.all.bounds, width, height));
            // A larger one does not fit, or has more labels past the ends of their dimensions.
            const Composition larger = Compose(row, compression, choice.unit + 0.5, Places_of(row));
            EXPECT_FALSE(choice.unit < 28.0 && larger.clear && larger.past_ends <= choice.all.past_ends &&
                         Fits(larger.bounds, width, height));
        }
    }
}

TEST(Choice, is_the_least_size_where_nothing_fits) {
    const Choice choice = Choose(Find_case("1.6. "), true, 40.0, 40.0);
    EXPECT_FALSE(choice.fits);
    EXPECT_EQ(choice.unit, 8.0);
    EXPECT_FALSE(choice.all.chains.empty());
}

TEST(Choice, grows_no_farther_than_its_largest_unit) {
    const Choice choice = Choose(Find_case("4.1. "), true, 2000.0, 2000.0);
    EXPECT_TRUE(choice.fits);
    EXPECT_EQ(choice.unit, 28.0);
}

TEST(Choice, places_are_those_of_the_type) {
    for (int row = 0; row < case_count; ++row) {
        const char type = case_table[static_cast<std::size_t>(row)].type;
        const Places places = Places_of(row);
        // Across: behind the end of the heel's top chord, on the far side of its bottom chord.
        EXPECT_EQ(places[0].behind, type == '1' || type == '2');
        EXPECT_EQ(places[1].behind, type != '1' && type != '2');
        // Along a beam above its column: above it, whichever edge is the first one.
        if (type == '5') {
            EXPECT_EQ(places[0].first, !Lattice_of(row).from_below);
        }
    }
}

} // namespace
} // namespace tarnvik
