#include "spacing/sketch/Choice.h"

#include <gtest/gtest.h>

#include <string>

#include "spacing/Catalogue.h"
#include "spacing/sketch/Clearness.h"
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
            const Composition all = Compose(row, compression, choice.unit, choice.places);
            EXPECT_TRUE(Fits(all.bounds, width, height));
            EXPECT_TRUE(Stands_clear(all));
            // The next larger one does not fit or is not clear.
            const Composition larger = Compose(row, compression, choice.unit + 1.0, choice.places);
            EXPECT_FALSE(choice.unit < 30.0 && Fits(larger.bounds, width, height) && Stands_clear(larger));
        }
    }
}

TEST(Choice, is_the_least_size_at_the_usual_places_where_nothing_fits) {
    const Choice choice = Choose(Find_case("1.6. "), true, 40.0, 40.0);
    EXPECT_FALSE(choice.fits);
    EXPECT_EQ(choice.unit, 8.0);
}

TEST(Choice, grows_no_farther_than_its_largest_unit) {
    const Choice choice = Choose(Find_case("4.1. "), true, 2000.0, 2000.0);
    EXPECT_TRUE(choice.fits);
    EXPECT_EQ(choice.unit, 30.0);
}

TEST(Choice, of_places_brings_a_larger_sketch_than_one_fixed_place) {
    // At the usual places alone some case would have to be drawn smaller in the window.
    int gained = 0;
    for (int row = 0; row < case_count; ++row) {
        const Choice choice = Choose(row, true, width, height);
        const JointType& type = Type_of(case_table[static_cast<std::size_t>(row)].type);
        const Places usual{Place{false, true, type.member_1.along_first},
                           Place{false, true, type.member_2.along_first}};
        const Composition fixed = Compose(row, true, choice.unit, usual);
        gained += Fits(fixed.bounds, width, height) && Stands_clear(fixed) ? 0 : 1;
    }
    EXPECT_GT(gained, 0);
}

} // namespace
} // namespace tarnvik
