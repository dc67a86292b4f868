#include "spacing/sketch/Sketch.h"

#include "spacing/sketch/Choice.h"
#include "spacing/sketch/Painter.h"

namespace tarnvik {

namespace {

// The members, then what is measured from, the fasteners, and over all of it the dimensions and the force.
void Paint(Painter& painter, const Composition& all) {
    Paint_members(painter, all.joint, 1);
    for (const std::optional<Grain>& grain : all.grains) {
        if (grain) {
            painter.Paint_grain(*grain);
        }
    }
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
    if (all.angle) {
        painter.Paint_angle(*all.angle);
    }
    painter.Paint_force(all.force);
}

} // namespace

Sketch Draw_sketch(int case_row, bool compression, double width, double height) {
    const Choice choice = Choose(case_row, compression, width, height);
    Sketch sketch;
    sketch.unit = choice.fits ? choice.unit : 0.0;
    sketch.fits = choice.fits;
    const Composition& all = choice.all;
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
