#include "spacing/sketch/Labels.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>
#include <vector>

namespace tarnvik {

namespace {

constexpr double shift_step = 0.5;
constexpr double beside = 3.5;  // so far from the middle a label still stands beside its dimension
constexpr double stagger = 3.2; // from label to label of a narrow chain, away from it
constexpr double most_stagger = 6.4;
constexpr double past_end = 3.5;          // from the end of an outermost dimension to a label beyond it
constexpr double over = 3.0;              // so far a label may reach over the end of its dimension
constexpr double label_to_own_line = 0.7; // its own extensions end just before it

// How far a label may be shifted along its dimension.
struct Shifts {
    double back, forth;
};

Shifts Shifts_of(const Chain& chain, std::size_t i, bool past_ends) {
    const Dimension& dimension = chain.dimensions[i];
    const Point d = dimension.line.b - dimension.line.a;
    const double length = Length(d);
    const double label = Span(Size_of(dimension.label, false), (1.0 / length) * d);
    const double inside = std::max(beside, (length - label) / 2.0 + over);
    const double outside = past_ends ? (length + label) / 2.0 + past_end : inside;
    return {i == 0 ? outside : inside, i + 1 == chain.dimensions.size() ? outside : inside};
}

class Labelling {
public:
    Labelling(const Chain& chain, const Occupied& occupied) : chain_(chain), occupied_(occupied) {}

    // The dimensions with all labels at one side of them; empty where one finds no room. Those that come first in the
    // order stay nearest to their middles, each one after it stands so much farther away.
    std::vector<Dimension> At_side(Point outward, bool past_ends, std::span<const std::size_t> order, double step) {
        placed_.clear();
        double gap = label_gap;
        std::vector<Dimension> dimensions = chain_.dimensions;
        for (const std::size_t i : order) {
            if (!Place(dimensions[i], Shifts_of(chain_, i, past_ends), outward, gap)) {
                return {};
            }
            gap = std::min(gap + step, label_gap + most_stagger);
        }
        return dimensions;
    }

private:
    // From the middle on, farther and farther to either side.
    bool Place(Dimension& dimension, const Shifts& most, Point outward, double gap) {
        const TextSize size = Size_of(dimension.label, false);
        const Point d = dimension.line.b - dimension.line.a;
        const Point direction = (1.0 / Length(d)) * d;
        const Point middle = 0.5 * (dimension.line.a + dimension.line.b) + (Span(size, outward) / 2.0 + gap) * outward;
        for (double shift = 0.0; shift <= std::max(most.back, most.forth); shift += shift_step) {
            for (const double way : {1.0, -1.0}) {
                if (shift > (way > 0.0 ? most.forth : most.back)) {
                    continue;
                }
                dimension.label_at = middle + (way * shift) * direction;
                dimension.label_room = Around(dimension.label_at, size);
                if (Clear(dimension.label_room)) {
                    placed_.push_back(dimension.label_room);
                    return true;
                }
            }
        }
        return false;
    }

    [[nodiscard]] bool Clear(const Rect& room) const {
        const auto near = [&](const Segment& line) { return Touches(line, room.Grown(label_to_own_line)); };
        return occupied_.Takes_label(room) && std::none_of(chain_.extensions.begin(), chain_.extensions.end(), near) &&
               std::none_of(chain_.dimensions.begin(), chain_.dimensions.end(),
                            [&](const Dimension& dimension) { return near(dimension.line); }) &&
               std::none_of(placed_.begin(), placed_.end(),
                            [near = Apart(room)](const Rect& label) { return label.Touches(near); });
    }

    const Chain& chain_;
    const Occupied& occupied_;
    std::vector<Rect> placed_;
};

// From the middle outward, from the last one and from the first one.
std::array<std::vector<std::size_t>, 3> Orders(std::size_t count) {
    std::array<std::vector<std::size_t>, 3> orders;
    for (std::size_t step = 0; step < count; ++step) {
        const std::size_t middle = (count - 1) / 2;
        orders[0].push_back(step % 2 == 0 ? middle - step / 2 : middle + (step + 1) / 2);
        orders[1].push_back(count - 1 - step);
        orders[2].push_back(step);
    }
    return orders;
}

} // namespace

bool Fit(Chain& chain, const Occupied& occupied, bool past_ends) {
    for (const Dimension& dimension : chain.dimensions) {
        if (!occupied.Takes_dimension(dimension.line)) {
            return false;
        }
    }
    for (const Segment& extension : chain.extensions) {
        if (!occupied.Takes_extension(extension)) {
            return false;
        }
    }
    Labelling labelling{chain, occupied};
    const bool past = past_ends && !chain.on_wood; // there it would stand outside the member
    for (const double step : {0.0, stagger}) {
        if (step > 0.0 && !chain.on_wood) {
            break;
        }
        for (const double side : {1.0, -1.0}) {
            for (const std::vector<std::size_t>& order : Orders(chain.dimensions.size())) {
                std::vector<Dimension> dimensions = labelling.At_side(side * chain.outward, past, order, step);
                if (!dimensions.empty()) {
                    chain.dimensions = std::move(dimensions);
                    return true;
                }
            }
        }
    }
    return false;
}

void Add(Occupied& occupied, const Chain& chain) {
    for (const Dimension& dimension : chain.dimensions) {
        occupied.Add_line(dimension.line);
        occupied.Add_label(dimension.label_room);
    }
    for (const Segment& extension : chain.extensions) {
        occupied.Add_extension(extension);
    }
}

} // namespace tarnvik
