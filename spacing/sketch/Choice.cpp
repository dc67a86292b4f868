#include "spacing/sketch/Choice.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "spacing/Catalogue.h"
#include "spacing/sketch/Sheet.h"

namespace tarnvik {

namespace {

constexpr double largest_unit = 28.0; // pixels of an unloaded edge distance
constexpr double least_unit = 8.0;
constexpr double unit_step = 0.5;
constexpr double past_ends_price = 0.07; // of its size, for all labels of a chain beside their dimensions

struct TypePlaces {
    Place member_1, member_2;
};

// clang-format off
constexpr std::array<TypePlaces, 5> type_places{{
    //        member 1          member 2
    //  behind  first      behind  first
    {{  true,   false },  { false, true  }},
    {{  true,   false },  { false, false }},
    {{  false,  true  },  { true,  false }},
    {{  false,  false },  { true,  true  }},
    {{  false,  true  },  { true,  true  }},
}};
// clang-format on

// By how much a unit is too large, in whole steps: what is drawn grows by less than in proportion to it.
double Surplus(const Rect& bounds, double unit, double width, double height) {
    const double wide = bounds.right - bounds.left;
    const double high = bounds.high - bounds.low;
    const double surplus = unit * std::max(1.0 - width / wide, 1.0 - height / high);
    return std::max(unit_step, unit_step * std::floor(surplus / unit_step));
}

} // namespace

Places Places_of(int case_row) {
    const auto [member_1, member_2] =
        type_places[static_cast<std::size_t>(case_table[static_cast<std::size_t>(case_row)].type - '1')];
    Places places{member_1, member_2};
    places[0].first = places[0].first != Lattice_of(case_row).from_below;
    return places;
}

Choice Choose(int case_row, bool compression, double width, double height) {
    const Places places = Places_of(case_row);
    Choice best{least_unit, false, {}};
    double score = 0.0;
    double unit = largest_unit;
    while (unit >= least_unit && unit > score) {
        Composition all = Compose(case_row, compression, unit, places);
        if (!Fits(all.bounds, width, height)) {
            unit -= Surplus(all.bounds, unit, width, height);
            continue;
        }
        const double reached = unit * (1.0 - past_ends_price * all.past_ends);
        if (all.clear && reached > score) {
            score = reached;
            best = {unit, true, std::move(all)};
        }
        unit -= unit_step;
    }
    if (!best.fits) {
        best.all = Compose(case_row, compression, least_unit, places);
    }
    return best;
}

} // namespace tarnvik
