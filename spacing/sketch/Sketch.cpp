#include "spacing/sketch/Sketch.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

#include "calc/Text.h"
#include "spacing/Catalogue.h"
#include "spacing/Rules.h"

namespace tarnvik {

namespace {

// clang-format off
constexpr std::array<Lattice, case_count> lattices{{
    // n1 along member 1, n2 along member 2
    {1, 1}, {1, 2}, {2, 1}, {1, 3}, {3, 1}, {2, 2}, {2, 3},         // 1.1  1.2.a 1.2.b 1.3.a 1.3.b 1.4 1.6
    {1, 1}, {1, 2}, {1, 3}, {2, 2}, {2, 3},                         // 2.1  2.2   2.3   2.4   2.6
    {1, 1}, {2, 1}, {1, 2}, {3, 1}, {1, 3}, {2, 2}, {2, 3},         // 3.1  3.2.a 3.2.b 3.3.a 3.3.b 3.4 3.6
    {1, 1}, {2, 1}, {1, 2}, {3, 1}, {1, 3}, {2, 2}, {3, 2}, {2, 3}, // 4.1  4.2.a 4.2.b 4.3.a 4.3.b 4.4 4.6.a 4.6.b
    {1, 1}, {2, 1}, {1, 2}, {3, 1}, {1, 3}, {2, 2}, {3, 2}, {2, 3}, // 5.1  5.2.a 5.2.b 5.3.a 5.3.b 5.4 5.6.a 5.6.b
}};
// clang-format on

// A member of a connection type. Angles in degrees, counter-clockwise, of the direction in which the member leaves the
// joint; a member that runs through leaves it both ways.
struct MemberGeometry {
    double angle;
    bool through;
    double first_edge; // direction of the first edge, seen from the axis: 90 degrees to the left or to the right
    bool along_first;  // the dimensions along the member stand outside the first edge, where there is a choice
};

struct TypeGeometry {
    MemberGeometry member_1, member_2;
    bool force_on_1; // the force acts along member 1, otherwise along member 2
};

// The first edge is the upper one; of an upright member the left one; of the rafter the outer one.
// clang-format off
constexpr std::array<TypeGeometry, 5> type_geometry{{
    //  leaves at  through  first edge  along first
    // heel of a truss: top chord on bottom chord, the end of the bottom chord just outside the joint
    {{  27.0,      false,   +90.0,      true},
     {   0.0,      false,   +90.0,      false},  true},
    // inclined strut under a beam that runs through
    {{   0.0,      true,    +90.0,      true},
     { -130.0,     false,   -90.0,      true},   false},
    // collar beam on a rafter that runs through; inward is to the right
    {{  35.0,      true,    +90.0,      true},
     {   0.0,      false,   +90.0,      false},  false},
    // beam on a column
    {{   0.0,      false,   +90.0,      true},
     { -90.0,      false,   -90.0,      true},   false},
    // beam under a column
    {{   0.0,      false,   +90.0,      false},
     {  90.0,      false,   +90.0,      true},   false},
}};
// clang-format on

constexpr double unloaded_edge = 1.0; // in units; what the rules make larger is drawn larger
constexpr double loaded_edge = 1.4;
constexpr double line_distance = 1.0; // between two lines of fasteners, across the grain
constexpr double unloaded_end = 1.3;
constexpr double loaded_end = 1.9;

constexpr double letter_height = 10.5; // pixels
constexpr double digit_width = 6.2;
constexpr double label_gap = 2.5;  // between a dimension line and its label
constexpr double chain_gap = 11.0; // from the last fastener or the edge to a dimension line
constexpr double bolt_radius = 3.4;
constexpr double arrow_length = 4.2;
constexpr double margin = 3.0;

Point Direction(double degrees) {
    const double radians = degrees * std::numbers::pi / 180.0;
    return {std::cos(radians), std::sin(radians)};
}

struct Rect {
    double left, top, right, bottom;

    [[nodiscard]] bool Touches(const Rect& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
    [[nodiscard]] Rect Grown(double by) const { return {left - by, top - by, right + by, bottom + by}; }
};

Rect Around(const TextShape& text) {
    const TextSize size = Size_of(text);
    return {text.centre.x - size.width / 2.0, text.centre.y - size.height / 2.0, text.centre.x + size.width / 2.0,
            text.centre.y + size.height / 2.0};
}

bool Segment_touches(Point a, Point b, const Rect& r) {
    // Clip the segment against the rectangle (Liang-Barsky).
    double from = 0.0;
    double to = 1.0;
    const Point d = b - a;
    const auto clip = [&from, &to](double p, double q) {
        if (p == 0.0) {
            return q >= 0.0;
        }
        const double t = q / p;
        if (p < 0.0) {
            from = std::max(from, t);
        } else {
            to = std::min(to, t);
        }
        return from <= to;
    };
    return clip(-d.x, a.x - r.left) && clip(d.x, r.right - a.x) && clip(-d.y, a.y - r.top) && clip(d.y, r.bottom - a.y);
}

// A member with its lattice lines, in pixels, y upward, the first fastener at the origin.
struct Member {
    Point u; // away from the joint, along the grain
    Point m; // towards the first edge
    bool through{};
    std::vector<double> lines; // across: first edge, lines of fasteners, other edge, along m, falling
    double far_u{};            // where it leaves the picture
    double end_u{};            // its end at the joint, or where it leaves the picture on that side
    std::vector<double> row;   // fasteners of the row that is measured along the grain, falling along u
    double row_m{};            // where that row lies
};

// Everything of a picture that does not depend on dimensions.
struct Joint {
    std::array<Member, 2> members;
    std::vector<Point> fasteners;
};

bool First_edge_loaded(char type, int member, bool compression) {
    // The edge of the member that carries the force across its grain, towards which the force drives the fasteners.
    switch (type) {
    case '1': // down the top chord: the lower edge of the bottom chord
        return member == 1 && !compression;
    case '5': // down the column: the lower edge of the beam
        return member == 0 && !compression;
    default: // up the strut or the column, out along the collar beam
        return member == 0 && compression;
    }
}

bool Other_edge_loaded(char type, int member, bool compression) {
    const int carrier = type == '1' ? 1 : 0;
    return member == carrier && !First_edge_loaded(type, member, compression);
}

bool End_loaded(char type, int member, bool compression) {
    switch (type) {
    case '1':
        return member == 0 ? !compression : compression;
    case '4':
    case '5':
        return member == 0 || !compression; // the beam's end distance is the same for both signs
    default:
        return !compression;
    }
}

Joint Make_joint(const TypeGeometry& geometry, char type, Lattice lattice, bool compression, double unit) {
    Joint joint;
    const std::array<const MemberGeometry*, 2> rows{&geometry.member_1, &geometry.member_2};
    for (std::size_t k = 0; k < 2; ++k) {
        joint.members[k].u = Direction(rows[k]->angle);
        joint.members[k].m = Direction(rows[k]->angle + rows[k]->first_edge);
        joint.members[k].through = rows[k]->through;
    }
    const Point u1 = joint.members[0].u;
    const Point u2 = joint.members[1].u;
    // A step along one member moves the line in the other by one line distance.
    const double sine = std::fabs(u1.x * u2.y - u1.y * u2.x);
    const double step = line_distance * unit / sine;
    for (int i = 0; i < lattice.n1; ++i) {
        for (int j = 0; j < lattice.n2; ++j) {
            joint.fasteners.push_back((i * step) * u1 + (j * step) * u2);
        }
    }

    for (std::size_t k = 0; k < 2; ++k) {
        Member& member = joint.members[k];
        const int number = static_cast<int>(k);
        // Lines of fasteners across the member: one for each step along the other one.
        const int lines = k == 0 ? lattice.n2 : lattice.n1;
        const int in_row = k == 0 ? lattice.n1 : lattice.n2;
        const Point other = k == 0 ? u2 : u1;
        std::vector<double> at;
        for (int j = 0; j < lines; ++j) {
            at.push_back(j * step * Dot(other, member.m));
        }
        std::sort(at.begin(), at.end(), std::greater<>{});
        const double first = First_edge_loaded(type, number, compression) ? loaded_edge : unloaded_edge;
        const double last = Other_edge_loaded(type, number, compression) ? loaded_edge : unloaded_edge;
        member.lines.push_back(at.front() + first * unit);
        member.lines.insert(member.lines.end(), at.begin(), at.end());
        member.lines.push_back(at.back() - last * unit);

        // The row whose last fastener is nearest to the member's end.
        const int j_end = Dot(other, member.u) > 1e-9 ? 0 : lines - 1;
        const Point start = (j_end * step) * other;
        member.row_m = Dot(start, member.m);
        for (int i = in_row - 1; i >= 0; --i) {
            member.row.push_back(Dot(start, member.u) + i * step);
        }
        if (!member.through) {
            const double end = End_loaded(type, number, compression) ? loaded_end : unloaded_end;
            member.end_u = member.row.back() - end * unit;
        }
    }
    return joint;
}

// The room in joint coordinates, y upward.
struct Frame_of {
    double width, height;
    Point origin; // of the joint, in pixels from the lower left
    [[nodiscard]] Point Place(Point p) const { return {origin.x + p.x, height - (origin.y + p.y)}; }
};

// Part of a polygon inside a rectangle (Sutherland-Hodgman), edges as they are.
std::vector<Point> Clip(std::vector<Point> polygon, double width, double height) {
    const auto cut = [&polygon](auto inside, auto cross) {
        std::vector<Point> kept;
        for (std::size_t i = 0; i < polygon.size(); ++i) {
            const Point a = polygon[i];
            const Point b = polygon[(i + 1) % polygon.size()];
            if (inside(a)) {
                kept.push_back(a);
            }
            if (inside(a) != inside(b)) {
                kept.push_back(cross(a, b));
            }
        }
        polygon = std::move(kept);
    };
    const auto at_x = [](double x) {
        return [x](Point a, Point b) { return a + ((x - a.x) / (b.x - a.x)) * (b - a); };
    };
    const auto at_y = [](double y) {
        return [y](Point a, Point b) { return a + ((y - a.y) / (b.y - a.y)) * (b - a); };
    };
    cut([](Point p) { return p.x >= 0.0; }, at_x(0.0));
    cut([width](Point p) { return p.x <= width; }, at_x(width));
    cut([](Point p) { return p.y >= 0.0; }, at_y(0.0));
    cut([height](Point p) { return p.y <= height; }, at_y(height));
    return polygon;
}

class Composer {
public:
    Composer(Frame_of frame, Drawing& drawing) : frame_(frame), drawing_(drawing) {}

    void Line(Point a, Point b, Pen pen) {
        drawing_.shapes.emplace_back(PolygonShape{{frame_.Place(a), frame_.Place(b)}, Tone::none, pen, false});
    }
    void Arrow_head(Point tip, Point direction, double length, Pen pen, Tone fill) {
        const Point side{-direction.y, direction.x};
        const Point back = tip - length * direction;
        drawing_.shapes.emplace_back(PolygonShape{{frame_.Place(tip), frame_.Place(back + (0.32 * length) * side),
                                                   frame_.Place(back - (0.32 * length) * side)},
                                                  fill,
                                                  pen,
                                                  true});
    }
    void Bolt(Point at) {
        const Point centre = frame_.Place(at);
        drawing_.shapes.emplace_back(CircleShape{centre, bolt_radius, Tone::white, Pen::bolt});
        drawing_.shapes.emplace_back(CircleShape{centre, 1.1, Tone::black, Pen::none});
    }
    void Text(Point at, std::string text, bool bold) {
        drawing_.shapes.emplace_back(TextShape{frame_.Place(at), std::move(text), bold});
    }
    [[nodiscard]] const Frame_of& Frame() const { return frame_; }

    // The wood of a member, clipped to the room; its edges and its end, not where it leaves the picture.
    void Wood(const Member& member, Tone tone) {
        constexpr double far = 4000.0;
        const double near_u = member.through ? -far : member.end_u;
        const double top = member.lines.front();
        const double low = member.lines.back();
        const std::array<Point, 4> corners{near_u * member.u + top * member.m, far * member.u + top * member.m,
                                           far * member.u + low * member.m, near_u * member.u + low * member.m};
        std::vector<Point> polygon;
        for (const Point& corner : corners) {
            polygon.push_back(frame_.Place(corner));
        }
        drawing_.shapes.emplace_back(PolygonShape{Clip(polygon, frame_.width, frame_.height), tone, Pen::none, true});
    }
    void Edges(const Member& member, Pen pen) {
        constexpr double far = 4000.0;
        const double near_u = member.through ? -far : member.end_u;
        for (const double edge : {member.lines.front(), member.lines.back()}) {
            Clipped_line(near_u * member.u + edge * member.m, far * member.u + edge * member.m, pen);
        }
        if (!member.through) {
            Clipped_line(member.end_u * member.u + member.lines.front() * member.m,
                         member.end_u * member.u + member.lines.back() * member.m, pen);
        }
    }
    // The parts of a member's edges that the other member covers.
    void Hidden_edges(const Member& behind, const Member& front) {
        constexpr double far = 4000.0;
        const double near_u = behind.through ? -far : behind.end_u;
        const auto hidden = [&](Point a, Point b) {
            const Point d = b - a;
            double from = 0.0;
            double to = 1.0;
            const auto within = [&](Point axis, double low, double high) {
                const double p = Dot(a, axis);
                const double q = Dot(d, axis);
                if (std::fabs(q) < 1e-9) {
                    if (p < low || p > high) {
                        to = -1.0;
                    }
                    return;
                }
                const double t1 = (low - p) / q;
                const double t2 = (high - p) / q;
                from = std::max(from, std::min(t1, t2));
                to = std::min(to, std::max(t1, t2));
            };
            within(front.m, front.lines.back(), front.lines.front());
            within(front.u, front.through ? -far : front.end_u, far);
            if (from < to) {
                Clipped_line(a + from * d, a + to * d, Pen::hidden);
            }
        };
        for (const double edge : {behind.lines.front(), behind.lines.back()}) {
            hidden(near_u * behind.u + edge * behind.m, far * behind.u + edge * behind.m);
        }
        if (!behind.through) {
            hidden(behind.end_u * behind.u + behind.lines.front() * behind.m,
                   behind.end_u * behind.u + behind.lines.back() * behind.m);
        }
    }

private:
    void Clipped_line(Point a, Point b, Pen pen) {
        Point from = frame_.Place(a);
        Point to = frame_.Place(b);
        double t0 = 0.0;
        double t1 = 1.0;
        const Point d = to - from;
        const auto clip = [&t0, &t1](double p, double q) {
            if (p == 0.0) {
                return q >= 0.0;
            }
            const double t = q / p;
            if (p < 0.0) {
                t0 = std::max(t0, t);
            } else {
                t1 = std::min(t1, t);
            }
            return t0 < t1;
        };
        if (clip(-d.x, from.x) && clip(d.x, frame_.width - from.x) && clip(-d.y, from.y) &&
            clip(d.y, frame_.height - from.y)) {
            drawing_.shapes.emplace_back(PolygonShape{{from + t0 * d, from + t1 * d}, Tone::none, pen, false});
        }
    }

    Frame_of frame_;
    Drawing& drawing_;
};

// A chain of dimensions in joint coordinates.
struct Chain {
    std::vector<Point> ticks;
    std::vector<std::string_view> labels; // one fewer than ticks
    std::vector<bool> loaded;
    Point outward; // side of the labels
    bool across{};
    std::vector<std::pair<Point, Point>> extensions;
};

double Span(const TextSize& size, Point direction) {
    return std::fabs(size.width * direction.x) + std::fabs(size.height * direction.y);
}

// Where the label of a segment stands: beside its middle; the first and the last of a chain give way outward where the
// segments are hardly wider than their labels.
Point Label_at(const Chain& chain, std::size_t segment) {
    const Point from = chain.ticks[segment];
    const Point to = chain.ticks[segment + 1];
    const TextSize size = Size_of(TextShape{{}, std::string{chain.labels[segment]}, false});
    const double off = Span(size, chain.outward) / 2.0 + label_gap;
    const Point d = to - from;
    const double length = std::hypot(d.x, d.y);
    const Point direction = (1.0 / length) * d;
    const double lacking = std::max(0.0, Span(size, direction) + 3.5 - length);
    const bool first = segment == 0;
    const bool last = segment + 1 == chain.labels.size();
    const double shift = first == last ? 0.0 : (first ? -0.6 : 0.6) * lacking;
    return 0.5 * (from + to) + off * chain.outward + shift * direction;
}

std::vector<std::string_view> Labels(char family, int from, int count) {
    constexpr std::array<std::string_view, 12> names{"a1", "a2", "a3", "a4", "a5", "a6",
                                                     "b1", "b2", "b3", "b4", "b5", "b6"};
    std::vector<std::string_view> labels;
    for (int i = 0; i < count; ++i) {
        labels.push_back(names[static_cast<std::size_t>((family == 'a' ? 0 : 6) + from + i)]);
    }
    return labels;
}

constexpr double force_length = 30.0;

// Half of what a label takes of the room beyond a chain.
constexpr double label_room = 2.0 * digit_width + label_gap + 2.0;

} // namespace

TextSize Size_of(const TextShape& text) {
    return {digit_width * static_cast<double>(Character_count(text.text)) + (text.bold ? 1.0 : 0.0), letter_height};
}

Lattice Lattice_of(int case_row) {
    return lattices[static_cast<std::size_t>(case_row)];
}

namespace {

struct Composition {
    Joint joint;
    std::vector<Chain> chains;
    std::array<Point, 2> force; // from, to
    Point force_label;
    Rect bounds; // of all that is to be read, joint coordinates, y upward: top is the higher value
};

void Include(Rect& bounds, Point p, double by = 0.0) {
    bounds.left = std::min(bounds.left, p.x - by);
    bounds.right = std::max(bounds.right, p.x + by);
    bounds.bottom = std::min(bounds.bottom, p.y - by);
    bounds.top = std::max(bounds.top, p.y + by);
}

double Distance(Point p, Point a, Point b) {
    const Point d = b - a;
    const double length = Dot(d, d);
    const double t = length == 0.0 ? 0.0 : std::clamp(Dot(p - a, d) / length, 0.0, 1.0);
    const Point nearest = a + t * d;
    return std::hypot(p.x - nearest.x, p.y - nearest.y);
}

double Distance(Point a, Point b, Point c, Point d) {
    const auto turn = [](Point p, Point q, Point r) { return (q.x - p.x) * (r.y - p.y) - (q.y - p.y) * (r.x - p.x); };
    if (turn(a, b, c) * turn(a, b, d) < 0.0 && turn(c, d, a) * turn(c, d, b) < 0.0) {
        return 0.0;
    }
    return std::min({Distance(a, c, d), Distance(b, c, d), Distance(c, a, b), Distance(d, a, b)});
}

// The force along the axis of its member, at the first place from `start_u` on where the arrow and its letter stand
// clear of the dimensions; at `start_u` where there is none.
void Place_force(Composition& all, const Member& pushed, double start_u, bool compression) {
    const double axis = (pushed.lines.front() + pushed.lines.back()) / 2.0;
    const auto place = [&](double u, double side) {
        const Point near = u * pushed.u + axis * pushed.m;
        const Point far = (u + force_length) * pushed.u + axis * pushed.m;
        all.force = compression ? std::array{far, near} : std::array{near, far};
        all.force_label = 0.5 * (near + far) + (side * (letter_height / 2.0 + 5.0)) * pushed.m;
    };
    const auto clear = [&all] {
        const Rect letter = Around(TextShape{all.force_label, "P", true}).Grown(3.0);
        const auto line_clear = [&](Point a, Point b) {
            return !Segment_touches(a, b, letter) && Distance(a, b, all.force[0], all.force[1]) >= 4.5;
        };
        for (const Chain& chain : all.chains) {
            if (!line_clear(chain.ticks.front(), chain.ticks.back())) {
                return false;
            }
            for (const auto& [from, to] : chain.extensions) {
                if (!line_clear(from, to)) {
                    return false;
                }
            }
            for (std::size_t i = 0; i < chain.labels.size(); ++i) {
                const Rect label = Around(TextShape{Label_at(chain, i), std::string{chain.labels[i]}, false});
                if (label.Touches(letter) || Segment_touches(all.force[0], all.force[1], label.Grown(4.0))) {
                    return false;
                }
            }
        }
        return true;
    };
    for (int step = 0; step < 8; ++step) {
        for (const double side : {1.0, -1.0}) {
            place(start_u + 5.0 * step, side);
            if (clear()) {
                return;
            }
        }
    }
    place(start_u, 1.0);
}

// Where the dimensions of a member stand. All combinations are tried; the one that lets the sketch be largest is taken.
struct Place {
    bool behind; // those across: on the side of the member's end, or of the lower end of one that runs through
    bool clear;  // those across: outside what the other member covers
    bool first;  // those along: outside the first edge
};
using Places = std::array<Place, 2>;

// The side of the fasteners along u, and the farthest that the other member reaches over this one there.
double Across_at(const Joint& joint, std::size_t k, const Place& place) {
    const Member& member = joint.members[k];
    const Member& other = joint.members[1 - k];
    const double away = place.behind ? -1.0 : 1.0;
    double at = std::numeric_limits<double>::lowest(); // along away * u
    for (const Point& fastener : joint.fasteners) {
        at = std::max(at, away * Dot(fastener, member.u));
    }
    at += chain_gap + bolt_radius;
    if (place.behind && !member.through) {
        at = std::max(at, -member.end_u + chain_gap); // outside the end
    }
    if (place.clear) {
        constexpr double off = 6.0;
        const double top = member.lines.front();
        const double low = member.lines.back();
        for (const double own : {top, low}) {
            for (const double edge : {other.lines.front(), other.lines.back()}) {
                const double t = (edge - own * Dot(member.m, other.m)) / Dot(member.u, other.m);
                const Point crossing = t * member.u + own * member.m;
                if (other.through || Dot(crossing, other.u) >= other.end_u) {
                    at = std::max(at, away * t + off);
                }
            }
        }
        if (!other.through) {
            for (const double edge : {other.lines.front(), other.lines.back()}) {
                const Point corner = other.end_u * other.u + edge * other.m;
                const double m = Dot(corner, member.m);
                if (m > low - 12.0 && m < top + 12.0) {
                    at = std::max(at, away * Dot(corner, member.u) + off);
                }
            }
        }
    }
    return away * at;
}

// The chains of a case with the dimensions at the given places.
Composition Compose(int case_row, bool compression, double unit, const Places& places) {
    const CaseRow& row = case_table[static_cast<std::size_t>(case_row)];
    const Lattice lattice = Lattice_of(case_row);
    const TypeGeometry& geometry = type_geometry[static_cast<std::size_t>(row.type - '1')];
    Composition all;
    all.joint = Make_joint(geometry, row.type, lattice, compression, unit);
    const bool oblique = row.type <= '3';

    for (std::size_t k = 0; k < 2; ++k) {
        const Member& member = all.joint.members[k];
        const Member& other = all.joint.members[1 - k];
        const Place& place = places[k];
        const char family = k == 0 ? 'a' : 'b';
        const int number = static_cast<int>(k);
        const int lines = static_cast<int>(member.lines.size());

        const double away = place.behind ? -1.0 : 1.0;
        const double chain_u = Across_at(all.joint, k, place);
        Chain across;
        across.across = true;
        across.labels = Labels(family, 0, lines - 1);
        across.outward = away * member.u;
        for (int i = 0; i < lines; ++i) {
            const double at = member.lines[static_cast<std::size_t>(i)];
            across.ticks.push_back(chain_u * member.u + at * member.m);
            const bool outside = place.behind && !member.through; // beyond the end the edges need a line as well
            if (i > 0 && i + 1 < lines) {
                // From the fastener of this line that is nearest to the chain.
                double nearest = std::numeric_limits<double>::max();
                Point start;
                for (const Point& fastener : all.joint.fasteners) {
                    if (std::fabs(Dot(fastener, member.m) - at) < 1e-6) {
                        const double gap = std::fabs(Dot(fastener, member.u) - chain_u);
                        if (gap < nearest) {
                            nearest = gap;
                            start = fastener;
                        }
                    }
                }
                across.extensions.emplace_back(start + (away * (bolt_radius + 1.0)) * member.u,
                                               across.ticks.back() + (3.0 * away) * member.u);
            } else if (outside) {
                across.extensions.emplace_back((member.end_u - 2.0) * member.u + at * member.m,
                                               across.ticks.back() + (3.0 * away) * member.u);
            }
            if (i + 1 < lines) {
                across.loaded.push_back((i == 0 && First_edge_loaded(row.type, number, compression)) ||
                                        (i + 2 == lines && Other_edge_loaded(row.type, number, compression)));
            }
        }
        all.chains.push_back(across);

        // Along: outside an edge, spacings first, the end distance last. At a right angle the spacings are those across
        // the other member already.
        Chain along;
        std::vector<double> at = oblique ? member.row : std::vector<double>{member.row.back()};
        if (!member.through) {
            at.push_back(member.end_u);
        }
        if (at.size() >= 2) {
            const double side = place.first ? 1.0 : -1.0;
            const double edge = place.first ? member.lines.front() : member.lines.back();
            double chain = side * edge + chain_gap;
            // Outside the other member's end as well, where that sticks out beside the distances.
            if (!other.through) {
                for (const double corner : {other.lines.front(), other.lines.back()}) {
                    const Point p = other.end_u * other.u + corner * other.m;
                    const double u = Dot(p, member.u);
                    if (u > at.back() - 12.0 && u < at.front() + 12.0) {
                        chain = std::max(chain, side * Dot(p, member.m) + 6.0);
                    }
                }
                if (!oblique && Dot(other.u, member.m) * side < -0.5) { // the other one ends on this side
                    chain = std::max(chain, -other.end_u + chain_gap);
                }
            }
            along.labels = Labels(family, lines - 1, static_cast<int>(at.size()) - 1);
            along.outward = side * member.m;
            for (std::size_t i = 0; i < at.size(); ++i) {
                const Point tick = at[i] * member.u + (side * chain) * member.m;
                along.ticks.push_back(tick);
                const bool end = !member.through && i + 1 == at.size();
                const double from_m = end ? edge + side * 2.0 : member.row_m + side * (bolt_radius + 1.0);
                along.extensions.emplace_back(at[i] * member.u + from_m * member.m, tick + 3.0 * along.outward);
                if (i > 0) {
                    along.loaded.push_back(end && End_loaded(row.type, number, compression));
                }
            }
            all.chains.push_back(along);
        }
    }

    // The force, on the axis of its member, beyond the dimensions across it.
    const std::size_t carrier = geometry.force_on_1 ? 0 : 1;
    const Member& pushed = all.joint.members[carrier];
    double start_u = std::numeric_limits<double>::lowest();
    for (const Point& fastener : all.joint.fasteners) {
        start_u = std::max(start_u, Dot(fastener, pushed.u) + bolt_radius + 6.0);
    }
    for (const Chain& chain : all.chains) {
        if (chain.across && std::fabs(Dot(chain.outward, pushed.u) - 1.0) < 1e-6) {
            start_u = std::max(start_u, Dot(chain.ticks.front(), pushed.u) + label_room + 5.0);
        }
    }
    Place_force(all, pushed, start_u, compression);

    all.bounds = {1e9, -1e9, -1e9, 1e9};
    for (const Chain& chain : all.chains) {
        for (std::size_t i = 0; i < chain.ticks.size(); ++i) {
            Include(all.bounds, chain.ticks[i], 2.0);
            if (i > 0) {
                const std::string text{chain.labels[i - 1]};
                const Point centre = Label_at(chain, i - 1);
                const TextSize size = Size_of(TextShape{{}, text, false});
                Include(all.bounds, centre + Point{size.width / 2.0, size.height / 2.0});
                Include(all.bounds, centre - Point{size.width / 2.0, size.height / 2.0});
            }
        }
    }
    for (const Point& p : all.force) {
        Include(all.bounds, p, 3.0);
    }
    Include(all.bounds, all.force_label, letter_height / 2.0);
    for (const Member& member : all.joint.members) {
        if (!member.through) {
            for (const double corner : {member.lines.front(), member.lines.back()}) {
                Include(all.bounds, member.end_u * member.u + corner * member.m, 1.0);
            }
        }
    }
    return all;
}

// Whether what is to be read stands clear: labels of each other, of fasteners and of lines; dimension lines and the
// force of each other and of the fasteners.
bool Stands_clear(const Composition& all) {
    struct Segment {
        Point a, b;
    };
    std::vector<Segment> lines;
    for (const Chain& chain : all.chains) {
        lines.push_back({chain.ticks.front(), chain.ticks.back()});
    }
    lines.push_back({all.force[0], all.force[1]});
    for (std::size_t i = 0; i < lines.size(); ++i) {
        for (std::size_t j = i + 1; j < lines.size(); ++j) {
            if (Distance(lines[i].a, lines[i].b, lines[j].a, lines[j].b) < 5.0) {
                return false;
            }
        }
        for (const Point& fastener : all.joint.fasteners) {
            if (Distance(fastener, lines[i].a, lines[i].b) < bolt_radius + 4.0) {
                return false;
            }
        }
    }
    std::vector<Rect> labels;
    for (const Chain& chain : all.chains) {
        for (std::size_t i = 0; i + 1 < chain.ticks.size(); ++i) {
            labels.push_back(Around(TextShape{Label_at(chain, i), std::string{chain.labels[i]}, false}));
        }
    }
    labels.push_back(Around(TextShape{all.force_label, "P", true}));
    for (std::size_t i = 0; i < labels.size(); ++i) {
        for (std::size_t j = i + 1; j < labels.size(); ++j) {
            if (labels[i].Grown(0.8).Touches(labels[j].Grown(0.8))) {
                return false;
            }
        }
        for (const Point& fastener : all.joint.fasteners) {
            if (labels[i].Touches(Rect{fastener.x, fastener.y, fastener.x, fastener.y}.Grown(bolt_radius + 1.0))) {
                return false;
            }
        }
        for (const Segment& line : lines) {
            if (Segment_touches(line.a, line.b, labels[i].Grown(0.5))) {
                return false;
            }
        }
        for (const Chain& chain : all.chains) {
            for (const auto& [from, to] : chain.extensions) {
                if (Segment_touches(from, to, labels[i])) {
                    return false;
                }
            }
        }
    }
    return true;
}

// What makes a sketch harder to read without making it wrong, as a share of its size that it may cost to avoid it.
double Flaws(const Composition& all) {
    constexpr double crossing = 0.08;  // an extension line across a foreign dimension line
    constexpr double near_line = 0.05; // one close to a foreign label
    constexpr double on_edge = 0.015;  // a label on an edge of a member
    constexpr double force_line = 0.10;
    constexpr double tight = 0.04; // labels of different members close together
    double flaws = 0.0;
    for (const Chain& chain : all.chains) {
        for (const Chain& other : all.chains) {
            for (const auto& [from, to] : chain.extensions) {
                if (&chain == &other) {
                    continue;
                }
                flaws += Distance(from, to, other.ticks.front(), other.ticks.back()) < 2.0 ? crossing : 0.0;
                for (std::size_t i = 0; i < other.labels.size(); ++i) {
                    const TextShape label{Label_at(other, i), std::string{other.labels[i]}, false};
                    flaws += Segment_touches(from, to, Around(label).Grown(3.0)) ? near_line : 0.0;
                }
            }
            for (std::size_t i = 0; i < chain.labels.size() && &chain < &other; ++i) {
                const Rect one = Around(TextShape{Label_at(chain, i), std::string{chain.labels[i]}, false}).Grown(3.5);
                for (std::size_t j = 0; j < other.labels.size(); ++j) {
                    const TextShape label{Label_at(other, j), std::string{other.labels[j]}, false};
                    flaws += one.Touches(Around(label)) ? tight : 0.0;
                }
            }
        }
        for (const auto& [from, to] : chain.extensions) {
            flaws += Distance(from, to, all.force[0], all.force[1]) < 3.0 ? force_line : 0.0;
        }
        for (std::size_t i = 0; i < chain.labels.size(); ++i) {
            const Rect label = Around(TextShape{Label_at(chain, i), std::string{chain.labels[i]}, false});
            for (const Member& member : all.joint.members) {
                constexpr double far = 4000.0;
                const double near_u = member.through ? -far : member.end_u;
                const double top = member.lines.front();
                const double low = member.lines.back();
                for (const double edge : {top, low}) {
                    const bool on =
                        Segment_touches(near_u * member.u + edge * member.m, far * member.u + edge * member.m, label);
                    flaws += on ? on_edge : 0.0;
                }
                if (!member.through) {
                    const bool on = Segment_touches(member.end_u * member.u + top * member.m,
                                                    member.end_u * member.u + low * member.m, label);
                    flaws += on ? on_edge : 0.0;
                }
            }
        }
    }
    return flaws;
}

// What a unit is worth: beyond a good size, clearness counts for more than size.
double Worth(double unit) {
    constexpr double good = 16.0;
    return std::min(unit, good) + 0.35 * std::max(0.0, unit - good);
}

// The largest unit, in whole steps, at which the case with these places fits the room; 0 where there is none.
double Largest_unit(int case_row, bool compression, const Places& places, double width, double height, double score) {
    for (double unit = 30.0; unit >= 8.0 && Worth(unit) > 1.04 * score; unit -= 1.0) {
        const Composition all = Compose(case_row, compression, unit, places);
        if (all.bounds.right - all.bounds.left + 2.0 * margin <= width &&
            all.bounds.top - all.bounds.bottom + 2.0 * margin <= height && Stands_clear(all)) {
            return unit;
        }
    }
    return 0.0;
}

void Paint_joint(Composer& composer, const Joint& joint) {
    composer.Wood(joint.members[0], Tone::wood_1);
    composer.Edges(joint.members[0], Pen::outline);
    composer.Wood(joint.members[1], Tone::wood_2);
    composer.Edges(joint.members[1], Pen::outline);
    composer.Hidden_edges(joint.members[0], joint.members[1]);
}

} // namespace

Sketch Draw_sketch(int case_row, bool compression, double width, double height) {
    // The places that make the sketch large and clear; the usual ones are kept where another choice gains little.
    const TypeGeometry& geometry =
        type_geometry[static_cast<std::size_t>(case_table[static_cast<std::size_t>(case_row)].type - '1')];
    Places places{};
    double unit = 0.0;
    double score = 0.0;
    for (unsigned choice = 0; choice < 64; ++choice) {
        const auto taken = [choice](unsigned bit) { return (choice >> bit & 1U) != 0; };
        const Places tried{Place{taken(2), !taken(0), taken(4) != geometry.member_1.along_first},
                           Place{taken(3), !taken(1), taken(5) != geometry.member_2.along_first}};
        const double found = Largest_unit(case_row, compression, tried, width, height, score);
        if (found <= 0.0) {
            continue;
        }
        const double reached =
            Worth(found) * (1.0 - Flaws(Compose(case_row, compression, found, tried))) - 0.004 * choice;
        if (reached > 1.04 * score) {
            score = reached;
            unit = found;
            places = tried;
        }
    }
    const bool fits = unit > 0.0;
    const Composition best = Compose(case_row, compression, fits ? unit : 8.0, places);
    Sketch sketch;
    sketch.unit = unit;
    sketch.fits = fits;
    const Frame_of frame{width,
                         height,
                         {width / 2.0 - (best.bounds.left + best.bounds.right) / 2.0,
                          height / 2.0 - (best.bounds.bottom + best.bounds.top) / 2.0}};
    Composer composer{frame, sketch.drawing};
    Paint_joint(composer, best.joint);

    for (const Chain& chain : best.chains) {
        for (const auto& [from, to] : chain.extensions) {
            composer.Line(from, to, Pen::extension);
        }
    }
    for (const Point& fastener : best.joint.fasteners) {
        composer.Bolt(fastener);
        sketch.fasteners.push_back(frame.Place(fastener));
    }
    for (const Chain& chain : best.chains) {
        for (std::size_t i = 0; i + 1 < chain.ticks.size(); ++i) {
            const Point from = chain.ticks[i];
            const Point to = chain.ticks[i + 1];
            const Point d = to - from;
            const double length = std::hypot(d.x, d.y);
            const Point direction = (1.0 / length) * d;
            composer.Line(from, to, Pen::dimension);
            composer.Arrow_head(from, -1.0 * direction, arrow_length, Pen::none, Tone::black);
            composer.Arrow_head(to, direction, arrow_length, Pen::none, Tone::black);
            const std::string text{chain.labels[i]};
            const Point at = Label_at(chain, i);
            composer.Text(at, text, false);
            sketch.distances.push_back(
                {chain.labels[i], frame.Place(from), frame.Place(to), frame.Place(at), chain.across, chain.loaded[i]});
        }
    }
    const Point d = best.force[1] - best.force[0];
    const Point direction = (1.0 / force_length) * d;
    composer.Line(best.force[0], best.force[1] - 6.0 * direction, Pen::force);
    composer.Arrow_head(best.force[1], direction, 9.0, Pen::none, Tone::black);
    composer.Text(best.force_label, "P", true);
    return sketch;
}

namespace {

// The elevation of a connection type in a room at the left of the picture: the joint with so much of its members as
// shows what they are. Member `front` lies before the other one.
void Draw_elevation(Drawing& drawing, int Con_type, Lattice lattice, std::size_t front, double width, double height,
                    double full_width, bool numbers) {
    const TypeGeometry& geometry = type_geometry[static_cast<std::size_t>(Con_type - 1)];
    const char type = static_cast<char>('0' + Con_type);
    constexpr double reach = 4.2; // how far the members are to be seen, in units beyond the fasteners
    const auto seen = [](const Joint& joint, double unit) {
        Rect bounds{1e9, -1e9, -1e9, 1e9};
        for (const Member& member : joint.members) {
            for (const Point& fastener : joint.fasteners) {
                const double u = Dot(fastener, member.u);
                const double axis = (member.lines.front() + member.lines.back()) / 2.0;
                Include(bounds, (u + reach * unit) * member.u + axis * member.m);
                if (member.through) {
                    Include(bounds, (u - reach * unit) * member.u + axis * member.m);
                }
            }
            if (!member.through) {
                for (const double edge : {member.lines.front(), member.lines.back()}) {
                    Include(bounds, member.end_u * member.u + edge * member.m);
                }
            }
        }
        return bounds;
    };
    double unit = 40.0;
    Joint joint;
    Rect bounds{};
    for (; unit > 3.0; unit -= 0.5) {
        joint = Make_joint(geometry, type, lattice, true, unit);
        bounds = seen(joint, unit);
        if (bounds.right - bounds.left + 2.0 * margin <= width && bounds.top - bounds.bottom + 2.0 * margin <= height) {
            break;
        }
    }
    const Frame_of frame{
        full_width,
        height,
        {width / 2.0 - (bounds.left + bounds.right) / 2.0, height / 2.0 - (bounds.bottom + bounds.top) / 2.0}};
    Drawing whole;
    Composer composer{Frame_of{width, height, frame.origin}, whole};
    const std::size_t back = 1 - front;
    const auto tone = [](std::size_t member) { return member == 0 ? Tone::wood_1 : Tone::wood_2; };
    composer.Wood(joint.members[back], tone(back));
    composer.Edges(joint.members[back], Pen::outline);
    composer.Wood(joint.members[front], tone(front));
    composer.Edges(joint.members[front], Pen::outline);
    if (numbers) {
        composer.Hidden_edges(joint.members[back], joint.members[front]);
    }
    for (const Point& fastener : joint.fasteners) {
        composer.Bolt(fastener);
    }
    if (numbers) {
        for (std::size_t k = 0; k < 2; ++k) {
            const Member& member = joint.members[k];
            double far = std::numeric_limits<double>::lowest();
            for (const Point& fastener : joint.fasteners) {
                far = std::max(far, Dot(fastener, member.u));
            }
            const double axis = (member.lines.front() + member.lines.back()) / 2.0;
            composer.Text((far + (reach - 0.9) * unit) * member.u + axis * member.m, k == 0 ? "1" : "2", true);
        }
    }
    drawing.shapes.insert(drawing.shapes.end(), whole.shapes.begin(), whole.shapes.end());
}

void Box(Drawing& drawing, double left, double top, double width, double height, Tone tone, Pen pen) {
    drawing.shapes.emplace_back(PolygonShape{
        {{left, top}, {left + width, top}, {left + width, top + height}, {left, top + height}}, tone, pen, true});
}

// A section through a bolt: the members side by side in the order in which they lie, the bolt through all of them.
void Draw_section(Drawing& drawing, const std::vector<int>& layers, double left, double width, double height) {
    const double layer_width = std::min(20.0, (width - 26.0) / static_cast<double>(layers.size()));
    const double layer_height = std::min(height * 0.56, 110.0);
    const double total = layer_width * static_cast<double>(layers.size());
    const double start = left + (width - total) / 2.0;
    const double top = (height - layer_height - letter_height - 4.0) / 2.0;
    const double axis = top + layer_height / 2.0;
    for (std::size_t i = 0; i < layers.size(); ++i) {
        const double x = start + layer_width * static_cast<double>(i);
        Box(drawing, x, top, layer_width, layer_height, layers[i] == 1 ? Tone::wood_1 : Tone::wood_2, Pen::outline);
        if (layers[i] == 1) { // hatched, so that the members differ without colour
            for (double y = top + 6.0; y < top + layer_height + layer_width; y += 9.0) {
                const double from = std::min(y, top + layer_height);
                const double to = std::max(y - layer_width, top);
                drawing.shapes.emplace_back(
                    PolygonShape{{{x + (y - from), from}, {x + (y - to), to}}, Tone::none, Pen::extension, false});
            }
        }
        drawing.shapes.emplace_back(TextShape{
            {x + layer_width / 2.0, top + layer_height + 4.0 + letter_height / 2.0}, std::to_string(layers[i]), true});
    }
    constexpr double shank = 4.5;
    constexpr double washer = 2.5;
    constexpr double head = 6.0;
    Box(drawing, start - washer, axis - shank / 2.0, total + 2.0 * washer, shank, Tone::white, Pen::bolt);
    for (const bool right : {false, true}) {
        const double face = right ? start + total : start - washer;
        Box(drawing, face, axis - 9.0, washer, 18.0, Tone::black, Pen::none);
        Box(drawing, right ? face + washer : face - head, axis - 5.5, head, 11.0, Tone::white, Pen::bolt);
    }
}

} // namespace

std::optional<Drawing> Draw_connection(std::string_view Con_code, double width, double height) {
    if (Con_code.size() != 3 || Con_code[0] < '1' || Con_code[0] > '5' || Con_code[1] != '.' || Con_code[2] < '1' ||
        Con_code[2] > '3') {
        return std::nullopt;
    }
    Drawing drawing;
    const double elevation = width * 0.64;
    // The doubled member is the outer one.
    const std::size_t front = Con_code[2] == '2' ? 0 : 1;
    Draw_elevation(drawing, Con_code[0] - '0', {2, 2}, front, elevation, height, width, true);
    drawing.shapes.emplace_back(
        PolygonShape{{{elevation, height * 0.08}, {elevation, height * 0.92}}, Tone::none, Pen::extension, false});
    const std::vector<int> layers = Con_code[2] == '1'   ? std::vector{1, 2}
                                    : Con_code[2] == '2' ? std::vector{1, 2, 1}
                                                         : std::vector{2, 1, 2};
    Draw_section(drawing, layers, elevation, width - elevation, height);
    return drawing;
}

Drawing Draw_type(int Con_type, double width, double height) {
    Drawing drawing;
    if (Con_type >= 1 && Con_type <= 5) {
        Draw_elevation(drawing, Con_type, {1, 1}, 1, width, height, width, false);
    }
    return drawing;
}

} // namespace tarnvik
