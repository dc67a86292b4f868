// The joint of a case as its sketch shows it: two members, and the fasteners where their lines cross.
//
// Pixels, y upward, the first fastener at the origin.
#pragma once

#include <array>
#include <vector>

#include "spacing/sketch/Geometry.h"

namespace tarnvik {

// A member of a connection type. Angles in degrees, counter-clockwise, of the direction in which the member leaves the
// joint; a member that runs through leaves it both ways.
struct MemberType {
    double angle;
    bool through;
    double first_edge; // direction of the first edge, seen from the axis: 90 degrees to the left or to the right
};

struct JointType {
    char type; // as in the catalogue
    MemberType member_1, member_2;
    bool oblique;    // the angle between the members is free; otherwise it is a right one
    bool force_on_1; // the force acts along member 1, otherwise along member 2
    // In units: so that the end is flush with an edge of the other member or well apart from it, and extension lines
    // pass its corners.
    double unloaded_end, loaded_end;
};

// Of the types '1' to '5'.
const JointType& Type_of(char type);

// Number of fasteners along the grain of member 1 and of member 2.
struct Lattice {
    int n1, n2;
    bool from_below{}; // the distances across member 1 are counted from its lower edge
};

// Of a case, a row of the catalogue.
Lattice Lattice_of(int case_row);

struct Member {
    Point u; // away from the joint, along the grain
    Point m; // towards the first edge
    bool through{};
    std::vector<double> lines; // across: first edge, lines of fasteners, other edge, along m, falling
    bool first_edge_loaded{};  // the force drives the fasteners towards it
    bool other_edge_loaded{};
    double end_u{};    // its end at the joint; no meaning where it runs through
    bool end_loaded{}; // likewise

    // The point so far along the member and so far across it.
    [[nodiscard]] Point At(double along, double across) const { return along * u + across * m; }
    [[nodiscard]] double First_edge() const { return lines.front(); }
    [[nodiscard]] double Other_edge() const { return lines.back(); }
    [[nodiscard]] double Axis() const { return (First_edge() + Other_edge()) / 2.0; }

    // From where it begins, at the joint or torn, to where it is torn.
    double near_u{}, far_u{};

    // The edges that are seen of it and, where it does not run through, its end.
    [[nodiscard]] Segment First() const { return {At(near_u, First_edge()), At(far_u, First_edge())}; }
    [[nodiscard]] Segment Other() const { return {At(near_u, Other_edge()), At(far_u, Other_edge())}; }
    [[nodiscard]] Segment End() const { return {At(end_u, First_edge()), At(end_u, Other_edge())}; }
    [[nodiscard]] std::vector<Segment> Outline() const;
};

struct Joint {
    std::array<Member, 2> members;
    std::vector<Point> fasteners;
    bool oblique{}; // as its type

    // The farthest fastener along a direction.
    [[nodiscard]] double Farthest(Point direction) const;
};

inline constexpr double bolt_radius = 3.4; // pixels, at every size of the joint

// The joint with an unloaded edge distance of `unit` pixels; what the rules make larger is drawn larger. Members are
// torn beyond every picture.
Joint Make_joint(char type, Lattice lattice, bool compression, double unit);

} // namespace tarnvik
