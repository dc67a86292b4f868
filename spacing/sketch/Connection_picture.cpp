#include "spacing/sketch/Connection_picture.h"

#include <algorithm>
#include <string>
#include <vector>

#include "spacing/sketch/Painter.h"

namespace tarnvik {

namespace {

constexpr double reach = 4.2; // how far the members are to be seen, in units beyond the fasteners

// The joint with so much of its members as shows what they are.
Rect Bounds_of(const Joint& joint, double unit) {
    Rect bounds = empty_rect;
    for (const Member& member : joint.members) {
        for (const Point& fastener : joint.fasteners) {
            const double u = Dot(fastener, member.u);
            bounds.Include(member.At(u + reach * unit, member.Axis()));
            if (member.through) {
                bounds.Include(member.At(u - reach * unit, member.Axis()));
            }
        }
        if (!member.through) {
            for (const double edge : {member.First_edge(), member.Other_edge()}) {
                bounds.Include(member.At(member.end_u, edge));
            }
        }
    }
    return bounds;
}

struct Elevation {
    Joint joint;
    double unit;
    Sheet sheet;
};

// As large as the room allows, and in its middle.
Elevation Compose_elevation(char type, Lattice lattice, double width, double height) {
    Elevation elevation{};
    Rect bounds{};
    for (elevation.unit = 40.0; elevation.unit > 3.0; elevation.unit -= 0.5) {
        elevation.joint = Make_joint(type, lattice, true, elevation.unit);
        bounds = Bounds_of(elevation.joint, elevation.unit);
        if (Fits(bounds, width, height)) {
            break;
        }
    }
    elevation.sheet = Centred(bounds, width, height);
    return elevation;
}

// The numbers of the members, where they leave the joint.
void Paint_numbers(Painter& painter, const Elevation& elevation) {
    for (std::size_t k = 0; k < 2; ++k) {
        const Member& member = elevation.joint.members[k];
        const double u = elevation.joint.Farthest(member.u) + (reach - 0.9) * elevation.unit;
        painter.Paint_text(member.At(u, member.Axis()), k == 0 ? "1" : "2", true);
    }
}

void Paint_bolts(Painter& painter, const Joint& joint) {
    for (const Point& fastener : joint.fasteners) {
        painter.Paint_bolt(fastener);
    }
}

// The elevation at the left of the picture. Member `front`, index 0 or 1, lies before the other one.
void Draw_elevation(Drawing& drawing, char type, std::size_t front, double width, double height) {
    const Elevation elevation = Compose_elevation(type, {2, 2}, width, height);
    const auto& members = elevation.joint.members;
    Painter painter{elevation.sheet, drawing};
    Paint_members(painter, elevation.joint, front);
    painter.Paint_hidden_edges(members[1 - front], members[front]);
    Paint_bolts(painter, elevation.joint);
    Paint_numbers(painter, elevation);
}

void Draw_box(Drawing& drawing, double left, double top, double width, double height, Tone tone, Pen pen) {
    drawing.shapes.emplace_back(PolygonShape{
        {{left, top}, {left + width, top}, {left + width, top + height}, {left, top + height}}, tone, pen, true});
}

// Slanting lines over the wood of member 1, so that the members differ without colour.
void Draw_hatching(Drawing& drawing, double left, double top, double width, double height) {
    for (double y = top + 6.0; y < top + height + width; y += 9.0) {
        const double from = std::min(y, top + height);
        const double to = std::max(y - width, top);
        drawing.shapes.emplace_back(
            PolygonShape{{{left + (y - from), from}, {left + (y - to), to}}, Tone::none, Pen::extension, false});
    }
}

// A bolt lying along an axis: its shank through the members, a washer and a head at either side.
void Draw_lying_bolt(Drawing& drawing, double start, double total, double axis) {
    constexpr double shank = 4.5;
    constexpr double washer = 2.5;
    constexpr double head = 6.0;
    Draw_box(drawing, start - washer, axis - shank / 2.0, total + 2.0 * washer, shank, Tone::white, Pen::bolt);
    for (const bool right : {false, true}) {
        const double face = right ? start + total : start - washer;
        Draw_box(drawing, face, axis - 9.0, washer, 18.0, Tone::black, Pen::none);
        Draw_box(drawing, right ? face + washer : face - head, axis - 5.5, head, 11.0, Tone::white, Pen::bolt);
    }
}

// A section through a bolt: the members side by side in the order in which they lie, the bolt through all of them.
void Draw_section(Drawing& drawing, const std::vector<int>& layers, double left, double width, double height) {
    const double layer_width = std::min(20.0, (width - 26.0) / static_cast<double>(layers.size()));
    const double layer_height = std::min(height * 0.56, 110.0);
    const double total = layer_width * static_cast<double>(layers.size());
    const double start = left + (width - total) / 2.0;
    const double top = (height - layer_height - letter_height - 4.0) / 2.0;
    for (std::size_t i = 0; i < layers.size(); ++i) {
        const double x = start + layer_width * static_cast<double>(i);
        const bool first = layers[i] == 1;
        Draw_box(drawing, x, top, layer_width, layer_height, first ? Tone::wood_1 : Tone::wood_2, Pen::outline);
        if (first) {
            Draw_hatching(drawing, x, top, layer_width, layer_height);
        }
        drawing.shapes.emplace_back(TextShape{
            {x + layer_width / 2.0, top + layer_height + 4.0 + letter_height / 2.0}, std::to_string(layers[i]), true});
    }
    Draw_lying_bolt(drawing, start, total, top + layer_height / 2.0);
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

std::optional<Drawing> Draw_connection(std::string_view Con_code, double width, double height) {
    if (Con_code.size() != 3 || !Is_type(Con_code[0]) || Con_code[1] != '.' || Con_code[2] < '1' || Con_code[2] > '3') {
        return std::nullopt;
    }
    Drawing drawing;
    const double elevation = width * 0.64;
    // The doubled member is the outer one.
    const std::size_t front = Con_code[2] == '2' ? 0 : 1;
    Draw_elevation(drawing, Con_code[0], front, elevation, height);
    drawing.shapes.emplace_back(
        PolygonShape{{{elevation, height * 0.08}, {elevation, height * 0.92}}, Tone::none, Pen::extension, false});
    Draw_section(drawing, Layers_of(Con_code[2]), elevation, width - elevation, height);
    return drawing;
}

Drawing Draw_type(int Con_type, double width, double height) {
    Drawing drawing;
    if (Con_type >= 1 && Con_type <= 5) {
        const Elevation elevation = Compose_elevation(static_cast<char>('0' + Con_type), {1, 1}, width, height);
        Painter painter{elevation.sheet, drawing};
        Paint_members(painter, elevation.joint, 1);
        Paint_bolts(painter, elevation.joint);
    }
    return drawing;
}

} // namespace tarnvik
