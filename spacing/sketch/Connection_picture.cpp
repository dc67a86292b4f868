#include "spacing/sketch/Connection_picture.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "spacing/Member_names.h"
#include "spacing/sketch/Clearness.h"
#include "spacing/sketch/Painter.h"

namespace tarnvik {

namespace {

// In units: how far the members are seen outside the joint, and bolts where the room is small.
constexpr double reach = 2.0;
constexpr double bolt_in_units = 0.32;

constexpr double largest_unit = 18.0;
constexpr double least_unit = 3.0;
constexpr double unit_step = 0.25;
constexpr double names_worth = 0.5; // of the size that the joint could have without them

// By type: as many fasteners as leave the end of an inclined member within the other one.
constexpr std::array<Lattice, 5> shown_lattices{{{2, 1}, {1, 2}, {2, 2}, {2, 2}, {2, 2}}};

// The number tells which member of the section it is, the name which one of the window.
std::array<std::string, 2> Texts_of(char type, MemberNames names) {
    if (names == MemberNames::numbers) {
        return {"1", "2"};
    }
    const std::array<Words, 2>& members = Member_names_of(type);
    const bool english = names == MemberNames::english;
    return {"1 " + std::string{members[0].In(english)}, "2 " + std::string{members[1].In(english)}};
}

// The joint, its members torn as soon as it is clear how they go on.
Joint Torn_joint(char type, Lattice lattice, double unit) {
    Joint joint = Make_joint(type, lattice, true, unit);
    std::array<Member, 2>& members = joint.members;
    for (std::size_t k = 0; k < members.size(); ++k) {
        members[k].first_edge_loaded = false; // no force is shown
        members[k].other_edge_loaded = false;
        members[k].far_u = Reach_over(members[k], members[1 - k], 1.0) + reach * unit;
        if (members[k].through) {
            members[k].near_u = -(Reach_over(members[k], members[1 - k], -1.0) + reach * unit);
        }
    }
    return joint;
}

Rect Bounds_of(const Joint& joint) {
    Rect bounds = empty_rect;
    for (const Member& member : joint.members) {
        for (const double u : {member.near_u, member.far_u}) {
            for (const double edge : {member.First_edge(), member.Other_edge()}) {
                bounds.Include(member.At(u, edge), torn_wave);
            }
        }
    }
    return bounds;
}

using Texts = std::array<TextShape, 2>;

// Finds the place of a member's text where it is seen alone: on its wood, or beside one of its edges, as far out as
// there is room.
class TextPlaces {
public:
    TextPlaces(const Joint& joint, const Rect& room) : joint_(joint), room_(room), occupied_(joint) {}

    std::optional<Point> Place(std::size_t k, std::string_view words) {
        constexpr double step = 2.0;
        constexpr double around = 2.0;
        constexpr double descender = 2.5; // of a name; numbers have none
        constexpr double from_edge = 4.0;
        const Member& member = joint_.members[k];
        TextSize covered = Size_of(words, true);
        covered.width += 2.0 * around;
        covered.height += words.size() > 1 ? 2.0 * descender : 0.0;
        const double beside = Span(covered, member.m) / 2.0 + from_edge;
        const double from = Reach_over(member, joint_.members[1 - k], 1.0);
        const double start = std::max(member.far_u - Span(covered, member.u) / 2.0, (from + member.far_u) / 2.0);
        for (const double across : {member.Axis(), member.First_edge() + beside, member.Other_edge() - beside}) {
            for (double u = start; u > from; u -= step) {
                if (Take(k, member.At(u, across), covered)) {
                    return member.At(u, across);
                }
            }
        }
        // Past the torn end.
        for (const double across : {member.First_edge() + beside, member.Other_edge() - beside}) {
            for (double u = start; u < member.far_u + Span(covered, member.u) / 2.0; u += step) {
                if (Take(k, member.At(u, across), covered)) {
                    return member.At(u, across);
                }
            }
        }
        return std::nullopt;
    }

private:
    bool Take(std::size_t k, Point at, TextSize covered) {
        const Rect text = Around(at, covered);
        if (!Within_room(text) || On_other(k, text) || !occupied_.Takes_label(text)) {
            return false;
        }
        occupied_.Add_label(text);
        return true;
    }
    [[nodiscard]] bool Within_room(const Rect& text) const {
        return text.left >= room_.left && text.right <= room_.right && text.low >= room_.low && text.high <= room_.high;
    }
    // Whether the text would stand on the other member.
    [[nodiscard]] bool On_other(std::size_t k, const Rect& text) const {
        const Member& other = joint_.members[1 - k];
        const Point middle{(text.left + text.right) / 2.0, (text.low + text.high) / 2.0};
        const double across = Dot(middle, other.m);
        const double along = Dot(middle, other.u);
        return across < other.First_edge() && across > other.Other_edge() && along > other.near_u &&
               along < other.far_u;
    }

    const Joint& joint_;
    Rect room_;
    Occupied occupied_;
};

struct Elevation {
    Joint joint;
    double unit{};
    Sheet sheet{};
    Texts texts;
};

// The largest joint in a room beside whose members there is room for their texts; nothing where there is none.
std::optional<Elevation> Compose_elevation(char type, Lattice lattice, double width, double height,
                                           const std::array<std::string, 2>& texts) {
    for (double unit = largest_unit; unit >= least_unit; unit -= unit_step) {
        Elevation elevation{Torn_joint(type, lattice, unit), unit, {}, {}};
        const Rect bounds = Bounds_of(elevation.joint);
        if (!Fits(bounds, width, height)) {
            continue;
        }
        elevation.sheet = Centred(bounds, width, height);
        const Point origin = elevation.sheet.origin;
        TextPlaces places{elevation.joint, {-origin.x, -origin.y, width - origin.x, height - origin.y}};
        bool placed = true;
        for (std::size_t k = 0; k < texts.size() && placed; ++k) {
            const std::optional<Point> at = texts[k].empty() ? Point{} : places.Place(k, texts[k]);
            placed = at.has_value();
            elevation.texts[k] = {at.value_or(Point{}), texts[k], true};
        }
        if (placed) {
            return elevation;
        }
    }
    return std::nullopt;
}

// With names where they fit and leave the joint large enough, otherwise with numbers.
std::optional<Elevation> Compose_named(char type, double width, double height, MemberNames names) {
    const Lattice lattice = shown_lattices[static_cast<std::size_t>(type - '1')];
    std::optional<Elevation> numbered =
        Compose_elevation(type, lattice, width, height, Texts_of(type, MemberNames::numbers));
    if (names != MemberNames::numbers) {
        std::optional<Elevation> named = Compose_elevation(type, lattice, width, height, Texts_of(type, names));
        if (named && (!numbered || named->unit >= names_worth * numbered->unit)) {
            return named;
        }
    }
    return numbered;
}

// Member `front`, index 0 or 1, lies before the other one.
void Paint_elevation(Drawing& drawing, const Elevation& elevation, std::size_t front) {
    Painter painter{elevation.sheet, drawing};
    Paint_members(painter, elevation.joint, front);
    for (const Point& fastener : elevation.joint.fasteners) {
        painter.Paint_bolt(fastener, std::min(bolt_radius, bolt_in_units * elevation.unit));
    }
    for (const TextShape& text : elevation.texts) {
        if (!text.text.empty()) {
            painter.Paint_text(text.centre, text.text, true);
        }
    }
}

// The room of a section, pixels from the upper left of the picture.
struct Area {
    double left, top, width, height;
};

void Draw_box(Drawing& drawing, const Area& area, Tone tone, Pen pen) {
    const double right = area.left + area.width;
    const double bottom = area.top + area.height;
    drawing.shapes.emplace_back(PolygonShape{
        {{area.left, area.top}, {right, area.top}, {right, bottom}, {area.left, bottom}}, tone, pen, true});
}

// Slanting lines over the wood of member 1, so that the members differ without colour.
void Draw_hatching(Drawing& drawing, const Area& area) {
    constexpr double step = 7.0;
    for (double y = area.top + step; y < area.top + area.height + area.width; y += step) {
        const double from = std::min(y, area.top + area.height);
        const double to = std::max(y - area.width, area.top);
        if (from > to) {
            drawing.shapes.emplace_back(PolygonShape{
                {{area.left + (y - from), from}, {area.left + (y - to), to}}, Tone::none, Pen::grain, false});
        }
    }
}

// A bolt lying through the members, with a washer and a head at either side, in proportion to them.
struct LyingBolt {
    double shank, washer, washer_height, head, head_height;
};

LyingBolt Bolt_for(double layer_height) {
    const double size = std::clamp(layer_height / 90.0, 0.45, 1.0);
    return {4.5 * size, 2.4 * size, 18.0 * size, 6.0 * size, 11.0 * size};
}

void Draw_lying_bolt(Drawing& drawing, const LyingBolt& bolt, const Area& members) {
    const double axis = members.top + members.height / 2.0;
    const double right = members.left + members.width;
    Draw_box(drawing, {members.left, axis - bolt.shank / 2.0, members.width, bolt.shank}, Tone::white, Pen::bolt);
    for (const double face : {members.left - bolt.washer, right}) {
        Draw_box(drawing, {face, axis - bolt.washer_height / 2.0, bolt.washer, bolt.washer_height}, Tone::black,
                 Pen::none);
    }
    for (const double face : {members.left - bolt.washer - bolt.head, right + bolt.washer}) {
        Draw_box(drawing, {face, axis - bolt.head_height / 2.0, bolt.head, bolt.head_height}, Tone::white, Pen::bolt);
    }
}

// A section through a bolt: the members side by side in the order in which they lie, the bolt through all of them.
void Draw_section(Drawing& drawing, const std::vector<int>& layers, const Area& area) {
    constexpr double below = 4.0; // from the members to their numbers
    constexpr double margin = 3.0;
    constexpr double widest = 20.0;
    constexpr double highest = 96.0;
    const double height = std::min(area.height - letter_height - below - 2.0 * margin, highest);
    const LyingBolt bolt = Bolt_for(height);
    const auto count = static_cast<double>(layers.size());
    const double width = std::min(widest, (area.width - 2.0 * (bolt.washer + bolt.head + margin)) / count);
    const Area members{area.left + (area.width - width * count) / 2.0,
                       area.top + (area.height - height - letter_height - below) / 2.0, width * count, height};
    for (std::size_t i = 0; i < layers.size(); ++i) {
        const Area layer{members.left + width * static_cast<double>(i), members.top, width, height};
        const bool first = layers[i] == 1;
        Draw_box(drawing, layer, first ? Tone::wood_1 : Tone::wood_2, Pen::outline);
        if (first) {
            Draw_hatching(drawing, layer);
        }
        drawing.shapes.emplace_back(
            TextShape{{layer.left + width / 2.0, layer.top + height + below + letter_height / 2.0},
                      std::to_string(layers[i]),
                      true});
    }
    Draw_lying_bolt(drawing, bolt, members);
}

// The members side by side for the variant of a connection: single, member 1 double, member 2 double.
std::vector<int> Layers_of(char variant) {
    switch (variant) {
    case '1':
        return {1, 2};
    case '2':
        return {1, 2, 1};
    default:
        return {2, 1, 2};
    }
}

bool Is_type(char c) {
    return c >= '1' && c <= '5';
}

} // namespace

std::optional<Drawing> Draw_connection(std::string_view Con_code, double width, double height, MemberNames names) {
    constexpr double beside_share = 0.66; // of the width, for the elevation with the section beside it
    constexpr double above_share = 0.6;   // of the height, with the section below it
    constexpr double upright = 0.85;      // from this height on, in widths
    if (Con_code.size() != 3 || !Is_type(Con_code[0]) || Con_code[1] != '.' || Con_code[2] < '1' || Con_code[2] > '3') {
        return std::nullopt;
    }
    const bool above = height > upright * width;
    const double elevation_width = above ? width : beside_share * width;
    const double elevation_height = above ? above_share * height : height;
    Drawing drawing;
    if (const auto elevation = Compose_named(Con_code[0], elevation_width, elevation_height, names)) {
        Paint_elevation(drawing, *elevation, Con_code[2] == '2' ? 0 : 1); // the doubled member is the outer one
    }
    Draw_section(drawing, Layers_of(Con_code[2]),
                 above ? Area{0.0, elevation_height, width, height - elevation_height}
                       : Area{elevation_width, 0.0, width - elevation_width, height});
    return drawing;
}

Drawing Draw_type(int Con_type, double width, double height) {
    Drawing drawing;
    if (Con_type >= 1 && Con_type <= 5) {
        if (const auto elevation = Compose_elevation(static_cast<char>('0' + Con_type), {1, 1}, width, height, {})) {
            Paint_elevation(drawing, *elevation, 1);
        }
    }
    return drawing;
}

} // namespace tarnvik
