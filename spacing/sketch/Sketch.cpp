#include "spacing/sketch/Sketch.h"

#include "spacing/sketch/Choice.h"
#include "spacing/sketch/Painter.h"

namespace tarnvik {

namespace {

void Paint_force(Painter& painter, const Force& force) {
    constexpr double head = 9.0;
    constexpr double covered = 6.0; // of the line, by the head
    const Point direction = (1.0 / force_length) * (force.arrow.b - force.arrow.a);
    painter.Paint_line({force.arrow.a, force.arrow.b - covered * direction}, Pen::force);
    painter.Paint_arrow_head(force.arrow.b, direction, head);
    painter.Paint_text(force.letter_at, force_letter, true);
}

// The members, then what is measured from, the fasteners, and over all of it the dimensions and the force.
void Paint(Painter& painter, const Composition& all) {
    Paint_members(painter, all.joint, 1);
    painter.Paint_hidden_edges(all.joint.members[0], all.joint.members[1]);
    for (const Chain& chain : all.chains) {
        for (const Segment& extension : chain.extensions) {
            painter.Paint_line(extension, Pen::extension);
        }
    }
    for (const Point& fastener : all.joint.fasteners) {
        painter.Paint_bolt(fastener);
    }
    for (const Chain& chain : all.chains) {
        for (const Dimension& dimension : chain.dimensions) {
            painter.Paint_dimension(dimension);
        }
    }
    Paint_force(painter, all.force);
}

} // namespace

Sketch Draw_sketch(int case_row, bool compression, double width, double height) {
    const Choice choice = Choose(case_row, compression, width, height);
    Sketch sketch;
    sketch.unit = choice.fits ? choice.unit : 0.0;
    sketch.fits = choice.fits;
    const Composition all = Compose(case_row, compression, choice.unit, choice.places);
    const Sheet sheet = Centred(all.bounds, width, height);
    Painter painter{sheet, sketch.drawing};
    Paint(painter, all);
    for (const Point& fastener : all.joint.fasteners) {
        sketch.fasteners.push_back(sheet.Place(fastener));
    }
    for (const Chain& chain : all.chains) {
        for (const Dimension& dimension : chain.dimensions) {
            sketch.distances.push_back({dimension.label, sheet.Place(dimension.line.a), sheet.Place(dimension.line.b),
                                        sheet.Place(dimension.label_at), chain.across, dimension.loaded});
        }
    }
    return sketch;
}

} // namespace tarnvik
