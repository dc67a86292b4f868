#include "spacing/sketch/Clearness.h"

#include <algorithm>

namespace tarnvik {

namespace {

// What must stand so far apart, in pixels.
constexpr double between_lines = 5.0;
constexpr double line_to_fastener = 4.0; // from its rim
constexpr double around_label = 0.8;     // of each of two labels
constexpr double label_to_fastener = 1.0;
constexpr double label_to_line = 0.5;

// What is a flaw when it stands no farther apart, and what it costs.
constexpr double extension_to_line = 2.0;
constexpr double extension_to_label = 3.0;
constexpr double extension_to_force = 3.0;
constexpr double between_labels = 3.5;
constexpr double price_of_crossing = 0.08;     // an extension across the dimension line of another chain
constexpr double price_of_near_line = 0.05;    // an extension close to a label of another chain
constexpr double price_of_tight_labels = 0.04; // of different chains
constexpr double price_on_force = 0.10;        // an extension across the force
constexpr double price_on_edge = 0.015;        // a label on an edge or an end of a member

bool Lines_clear(const std::vector<Segment>& lines, const std::vector<Point>& fasteners) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        for (std::size_t j = i + 1; j < lines.size(); ++j) {
            if (Gap(lines[i], lines[j]) < between_lines) {
                return false;
            }
        }
        for (const Point& fastener : fasteners) {
            if (Gap(fastener, lines[i]) < bolt_radius + line_to_fastener) {
                return false;
            }
        }
    }
    return true;
}

bool Labels_apart(const std::vector<Rect>& labels) {
    for (std::size_t i = 0; i < labels.size(); ++i) {
        for (std::size_t j = i + 1; j < labels.size(); ++j) {
            if (labels[i].Grown(around_label).Touches(labels[j].Grown(around_label))) {
                return false;
            }
        }
    }
    return true;
}

bool Label_clear(const Rect& label, const std::vector<Segment>& lines, const Composition& all) {
    const auto on_fastener = [&label](Point fastener) {
        return label.Touches(Around(fastener, bolt_radius + label_to_fastener));
    };
    const auto on_line = [near = label.Grown(label_to_line)](const Segment& line) { return Touches(line, near); };
    const auto on_extension = [&label](const Segment& extension) { return Touches(extension, label); };
    const auto& fasteners = all.joint.fasteners;
    return std::none_of(fasteners.begin(), fasteners.end(), on_fastener) &&
           std::none_of(lines.begin(), lines.end(), on_line) &&
           std::none_of(all.chains.begin(), all.chains.end(), [&](const Chain& chain) {
               return std::any_of(chain.extensions.begin(), chain.extensions.end(), on_extension);
           });
}

// The weights are added up one by one, in the order in which the flaws are found.
class FlawSum {
public:
    void Add(bool found, double weight) { sum_ += found ? weight : 0.0; }
    [[nodiscard]] double Value() const { return sum_; }

private:
    double sum_{};
};

// Extension lines across the dimension line of another chain, or close to a label of it.
void Add_strayed(FlawSum& flaws, const Chain& chain, const Chain& other) {
    for (const Segment& extension : chain.extensions) {
        flaws.Add(Gap(extension, other.Line()) < extension_to_line, price_of_crossing);
        for (const Dimension& dimension : other.dimensions) {
            flaws.Add(Touches(extension, dimension.label_room.Grown(extension_to_label)), price_of_near_line);
        }
    }
}

// Labels of two chains close together.
void Add_tight(FlawSum& flaws, const Chain& chain, const Chain& other) {
    for (const Dimension& one : chain.dimensions) {
        for (const Dimension& another : other.dimensions) {
            flaws.Add(one.label_room.Grown(between_labels).Touches(another.label_room), price_of_tight_labels);
        }
    }
}

// Extension lines across the force.
void Add_on_force(FlawSum& flaws, const Chain& chain, const Segment& arrow) {
    for (const Segment& extension : chain.extensions) {
        flaws.Add(Gap(extension, arrow) < extension_to_force, price_on_force);
    }
}

// Labels on an edge or an end of a member.
void Add_on_edge(FlawSum& flaws, const Chain& chain, const std::vector<Segment>& edges) {
    for (const Dimension& dimension : chain.dimensions) {
        for (const Segment& edge : edges) {
            flaws.Add(Touches(edge, dimension.label_room), price_on_edge);
        }
    }
}

} // namespace

bool Stands_clear(const Composition& all) {
    std::vector<Segment> lines;
    std::vector<Rect> labels;
    for (const Chain& chain : all.chains) {
        lines.push_back(chain.Line());
        for (const Dimension& dimension : chain.dimensions) {
            labels.push_back(dimension.label_room);
        }
    }
    lines.push_back(all.force.arrow);
    labels.push_back(all.force.letter_room);
    return Lines_clear(lines, all.joint.fasteners) && Labels_apart(labels) &&
           std::all_of(labels.begin(), labels.end(), [&](const Rect& label) { return Label_clear(label, lines, all); });
}

double Flaws(const Composition& all) {
    std::vector<Segment> edges;
    for (const Member& member : all.joint.members) {
        const std::vector<Segment> outline = member.Outline();
        edges.insert(edges.end(), outline.begin(), outline.end());
    }
    FlawSum flaws;
    for (std::size_t i = 0; i < all.chains.size(); ++i) {
        const Chain& chain = all.chains[i];
        for (std::size_t j = 0; j < all.chains.size(); ++j) {
            if (j != i) {
                Add_strayed(flaws, chain, all.chains[j]);
            }
            if (j > i) {
                Add_tight(flaws, chain, all.chains[j]);
            }
        }
        Add_on_force(flaws, chain, all.force.arrow);
        Add_on_edge(flaws, chain, edges);
    }
    return flaws.Value();
}

} // namespace tarnvik
