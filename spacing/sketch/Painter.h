// Draws the parts of a joint, in joint coordinates, as shapes on a sheet.
#pragma once

#include <string_view>

#include "spacing/sketch/Chains.h"
#include "spacing/sketch/Sheet.h"

namespace tarnvik {

class Painter {
public:
    Painter(const Sheet& sheet, Drawing& drawing) : sheet_(sheet), drawing_(drawing) {}

    // The wood of a member; its edges and its end, not where it leaves the sheet.
    void Paint_wood(const Member& member, Tone tone);
    void Paint_edges(const Member& member);
    // The parts of a member's edges that the other member covers.
    void Paint_hidden_edges(const Member& behind, const Member& front);
    void Paint_bolt(Point at);

    void Paint_line(const Segment& line, Pen pen);
    // Filled black, the tip where the direction, a unit vector, leads.
    void Paint_arrow_head(Point tip, Point direction, double length);
    void Paint_text(Point at, std::string_view text, bool bold);

    void Paint_dimension(const Dimension& dimension);

private:
    void Paint_clipped(const Segment& line, Pen pen);

    Sheet sheet_;
    Drawing& drawing_;
};

// Both members, one over the other, their wood in their own tones.
void Paint_members(Painter& painter, const Joint& joint, std::size_t front);

} // namespace tarnvik
