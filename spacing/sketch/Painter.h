// Draws the parts of a joint, in joint coordinates, as shapes on a sheet.
#pragma once

#include <string_view>
#include <vector>

#include "spacing/sketch/Chains.h"
#include "spacing/sketch/Sheet.h"
#include "spacing/sketch/Signs.h"

namespace tarnvik {

class Painter {
public:
    Painter(const Sheet& sheet, Drawing& drawing) : sheet_(sheet), drawing_(drawing) {}

    // The wood of a member; its edges and its ends. An edge that the force loads is told apart.
    void Paint_wood(const Member& member, Tone tone);
    void Paint_edges(const Member& member);
    // The parts of a member's edges that the other member covers, and a loaded one where the other member ends on it.
    void Paint_hidden_edges(const Member& behind, const Member& front);
    void Paint_bolt(Point at, double radius = bolt_radius);

    void Paint_line(const Segment& line, Pen pen);
    void Paint_lines(const std::vector<Point>& points, Pen pen); // from each to the next
    // Filled black, the tip where the direction, a unit vector, leads.
    void Paint_arrow_head(Point tip, Point direction, double length);
    void Paint_text(Point at, std::string_view text, bool bold);

    void Paint_dimension(const Dimension& dimension);
    void Paint_arrow(const Segment& arrow); // a force, from its tail to its tip
    void Paint_force(const Force& force);
    void Paint_angle(const Angle& angle);
    void Paint_grain(const Grain& grain);

private:
    Sheet sheet_;
    Drawing& drawing_;
};

// Both members, one over the other, their wood in their own tones.
void Paint_members(Painter& painter, const Joint& joint, std::size_t front);

} // namespace tarnvik
