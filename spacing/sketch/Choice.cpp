#include "spacing/sketch/Choice.h"

#include <algorithm>

#include "spacing/Catalogue.h"
#include "spacing/sketch/Clearness.h"
#include "spacing/sketch/Sheet.h"

namespace tarnvik {

namespace {

// A choice is a number with a bit for each departure from the usual places. All are tried, from none of them to all.
enum Departure : unsigned {
    over_other_1 = 1U << 0U, // those across member 1 not outside what member 2 covers
    over_other_2 = 1U << 1U,
    behind_1 = 1U << 2U, // those across member 1 on the side of its end
    behind_2 = 1U << 3U,
    other_edge_1 = 1U << 4U, // those along member 1 outside the edge that is not the usual one
    other_edge_2 = 1U << 5U,
    all_choices = 1U << 6U,
};

constexpr double least_gain = 1.04;       // another choice must be so much better
constexpr double departure_price = 0.004; // for each step of the number

constexpr double largest_unit = 30.0; // pixels of an unloaded edge distance
constexpr double least_unit = 8.0;
constexpr double unit_step = 1.0;
constexpr double good_unit = 16.0;
constexpr double beyond_good = 0.35; // what a pixel more is worth then

Places Places_of(unsigned choice, const JointType& type) {
    const auto taken = [choice](Departure departure) { return (choice & departure) != 0; };
    return {Place{taken(behind_1), !taken(over_other_1), taken(other_edge_1) != type.member_1.along_first},
            Place{taken(behind_2), !taken(over_other_2), taken(other_edge_2) != type.member_2.along_first}};
}

// What a unit is worth: beyond a good size, clearness counts for more than size.
double Worth(double unit) {
    return std::min(unit, good_unit) + beyond_good * std::max(0.0, unit - good_unit);
}

} // namespace

Choice Choose(int case_row, bool compression, double width, double height) {
    const JointType& type = Type_of(case_table[static_cast<std::size_t>(case_row)].type);
    Choice best{{}, least_unit, false};
    double score = 0.0;
    for (unsigned choice = 0; choice < all_choices; ++choice) {
        const Places places = Places_of(choice, type);
        // The largest unit that fits with them, as far down as it can still be better.
        for (double unit = largest_unit; unit >= least_unit && Worth(unit) > least_gain * score; unit -= unit_step) {
            const Composition all = Compose(case_row, compression, unit, places);
            if (!Fits(all.bounds, width, height) || !Stands_clear(all)) {
                continue;
            }
            const double reached = Worth(unit) * (1.0 - Flaws(all)) - departure_price * choice;
            if (reached > least_gain * score) {
                score = reached;
                best = {places, unit, true};
            }
            break;
        }
    }
    return best;
}

} // namespace tarnvik
