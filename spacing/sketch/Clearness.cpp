#include "spacing/sketch/Clearness.h"

#include <algorithm>

namespace tarnvik {

namespace {

bool Lines_clear(const std::vector<Segment>& lines, const std::vector<Point>& fasteners) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        for (std::size_t j = i + 1; j < lines.size(); ++j) {
            if (Gap(lines[i], lines[j]) < 5.0) {
                return false;
            }
        }
        for (const Point& fastener : fasteners) {
            if (Gap(fastener, lines[i]) < bolt_radius + 4.0) {
                return false;
            }
        }
    }
    return true;
}

bool Labels_apart(const std::vector<Rect>& labels) {
    for (std::size_t i = 0; i < labels.size(); ++i) {
        for (std::size_t j = i + 1; j < labels.size(); ++j) {
            if (labels[i].Grown(0.8).Touches(labels[j].Grown(0.8))) {
                return false;
            }
        }
    }
    return true;
}

bool Label_clear(const Rect& label, const std::vector<Segment>& lines, const Composition& all) {
    const auto on_fastener = [&label](Point fastener) { return label.Touches(Around(fastener, bolt_radius + 1.0)); };
    const auto on_line = [near = label.Grown(0.5)](const Segment& line) { return Touches(line, near); };
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
    constexpr double crossing = 0.08;
    constexpr double near_line = 0.05;
    for (const Segment& extension : chain.extensions) {
        flaws.Add(Gap(extension, other.Line()) < 2.0, crossing);
        for (const Dimension& dimension : other.dimensions) {
            flaws.Add(Touches(extension, dimension.label_room.Grown(3.0)), near_line);
        }
    }
}

// Labels of two chains close together.
void Add_tight(FlawSum& flaws, const Chain& chain, const Chain& other) {
    constexpr double tight = 0.04;
    for (const Dimension& one : chain.dimensions) {
        for (const Dimension& another : other.dimensions) {
            flaws.Add(one.label_room.Grown(3.5).Touches(another.label_room), tight);
        }
    }
}

// Extension lines across the force.
void Add_on_force(FlawSum& flaws, const Chain& chain, const Segment& arrow) {
    constexpr double force_line = 0.10;
    for (const Segment& extension : chain.extensions) {
        flaws.Add(Gap(extension, arrow) < 3.0, force_line);
    }
}

// Labels on an edge or an end of a member.
void Add_on_edge(FlawSum& flaws, const Chain& chain, const std::vector<Segment>& edges) {
    constexpr double on_edge = 0.015;
    for (const Dimension& dimension : chain.dimensions) {
        for (const Segment& edge : edges) {
            flaws.Add(Touches(edge, dimension.label_room), on_edge);
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
