#include "spacing/sketch/Joint.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

#include "spacing/Catalogue.h"
#include "spacing/Rules.h"

namespace tarnvik {

namespace {

constexpr double unloaded_edge = 1.0; // in units; what the rules make larger is drawn larger
constexpr double loaded_edge = 1.7;
constexpr double line_distance = 1.0; // between two lines of fasteners, across the grain
constexpr double short_end = 1.0;     // unloaded: the corners of an inclined end stay well inside the other member
constexpr double flush_end = loaded_edge;
constexpr double usual_end = 2.2; // loaded
constexpr double collar_end = 2.5;

// The first edge is the upper one; of an upright member the left one; of the rafter the outer one.
// clang-format off
constexpr std::array<JointType, 5> joint_types{{
    //    leaves at  through  first edge
    // heel of a truss: top chord on bottom chord, the end of the bottom chord just outside the joint
    {'1', {  27.0,   false,   +90.0},
          {   0.0,   false,   +90.0},   true,  true,  short_end, usual_end},
    // inclined strut under a beam that runs through
    {'2', {   0.0,   true,    +90.0},
          { -140.0,  false,   -90.0},   true,  false, short_end, usual_end},
    // collar beam on a rafter that runs through; inward is to the right
    {'3', {  35.0,   true,    +90.0},
          {   0.0,   false,   +90.0},   true,  false, short_end, collar_end},
    // beam on a column
    {'4', {   0.0,   false,   +90.0},
          { -90.0,   false,   -90.0},   false, false, flush_end, usual_end},
    // beam under a column
    {'5', {   0.0,   false,   +90.0},
          {  90.0,   false,   +90.0},   false, false, flush_end, usual_end},
    //                                oblique, force on 1, unloaded end, loaded end
}};

// Three cases of type 5 have the rule table of type 4, where a column pushes its beam up. In type 5 it pushes down, so
// there the distances are counted from the other edge and each number stands at the edge that it is meant for.
constexpr bool counted_from_below = true;

struct CaseLattice {
    std::string_view Case_code;
    Lattice lattice;
};

constexpr std::array<CaseLattice, case_count> case_lattices{{
    // case    n1 along member 1, n2 along member 2
    {"1.1. ", {1, 1}},
    {"1.2.a", {1, 2}},
    {"1.2.b", {2, 1}},
    {"1.3.a", {1, 3}},
    {"1.3.b", {3, 1}},
    {"1.4. ", {2, 2}},
    {"1.6. ", {2, 3}},
    {"2.1. ", {1, 1}},
    {"2.2. ", {1, 2}},
    {"2.3. ", {1, 3}},
    {"2.4. ", {2, 2}},
    {"2.6. ", {2, 3}},
    {"3.1. ", {1, 1}},
    {"3.2.a", {2, 1}},
    {"3.2.b", {1, 2}},
    {"3.3.a", {3, 1}},
    {"3.3.b", {1, 3}},
    {"3.4. ", {2, 2}},
    {"3.6. ", {2, 3}},
    {"4.1. ", {1, 1}},
    {"4.2.a", {2, 1}},
    {"4.2.b", {1, 2}},
    {"4.3.a", {3, 1}},
    {"4.3.b", {1, 3}},
    {"4.4. ", {2, 2}},
    {"4.6.a", {3, 2}},
    {"4.6.b", {2, 3}},
    {"5.1. ", {1, 1}},
    {"5.2.a", {2, 1}},
    {"5.2.b", {1, 2, counted_from_below}},
    {"5.3.a", {3, 1}},
    {"5.3.b", {1, 3, counted_from_below}},
    {"5.4. ", {2, 2}},
    {"5.6.a", {3, 2}},
    {"5.6.b", {2, 3, counted_from_below}},
}};
// clang-format on

constexpr bool Types_in_order() {
    for (std::size_t i = 0; i < joint_types.size(); ++i) {
        if (joint_types[i].type != static_cast<char>('1' + i)) {
            return false;
        }
    }
    return true;
}
static_assert(Types_in_order());

// What is measured in a member: from edge to edge over the lines of fasteners, and along the row with its end.
constexpr bool Measured(MemberDistances listed, const MemberType& member, int lines, int in_row, bool oblique) {
    return listed.across == lines + 1 && listed.along == (oblique ? in_row - 1 : 0) + (member.through ? 0 : 1);
}

constexpr bool Lattices_agree() {
    for (std::size_t i = 0; i < case_lattices.size(); ++i) {
        const int n1 = case_lattices[i].lattice.n1;
        const int n2 = case_lattices[i].lattice.n2;
        const CaseDistances& listed = case_distances[i];
        const JointType& joint = joint_types[static_cast<std::size_t>(case_table[i].type - '1')];
        if (case_lattices[i].Case_code != case_table[i].Case_code || n1 * n2 != case_table[i].n_bolt ||
            !Measured(listed.a, joint.member_1, n2, n1, joint.oblique) ||
            !Measured(listed.b, joint.member_2, n1, n2, joint.oblique)) {
            return false;
        }
    }
    return true;
}
static_assert(Lattices_agree());

// The member that carries the force across its grain: the bottom chord of the heel, otherwise member 1.
std::size_t Carrier(char type) {
    return type == '1' ? 1 : 0;
}

// Whether the force drives the fasteners towards the carrier's first edge. Compression goes down the top chord or the
// column on the beam, to the lower edge; up the strut or the column and out along the collar beam, to the upper one.
bool Towards_first_edge(char type, bool compression, bool from_below) {
    const bool upward = type == '1' || type == '5' ? !compression : compression;
    return upward != from_below;
}

bool End_loaded(char type, std::size_t member, bool compression) {
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

// The directions of a member, and what the force loads of it.
Member Direct_member(const MemberType& of, char type, std::size_t k, bool compression, bool from_below) {
    Member member;
    member.u = Direction(of.angle);
    member.m = Direction(of.angle + (from_below && k == 0 ? -of.first_edge : of.first_edge));
    member.through = of.through;
    member.first_edge_loaded = k == Carrier(type) && Towards_first_edge(type, compression, from_below);
    member.other_edge_loaded = k == Carrier(type) && !member.first_edge_loaded;
    member.end_loaded = End_loaded(type, k, compression);
    return member;
}

// Edges and lines of fasteners across a member, one line for each step along the other one.
void Set_lines(Member& member, Point other, int lines, double step, double unit) {
    std::vector<double> at;
    for (int j = 0; j < lines; ++j) {
        at.push_back(j * step * Dot(other, member.m));
    }
    std::sort(at.begin(), at.end(), std::greater<>{});
    const double first = member.first_edge_loaded ? loaded_edge : unloaded_edge;
    const double last = member.other_edge_loaded ? loaded_edge : unloaded_edge;
    member.lines.push_back(at.front() + first * unit);
    member.lines.insert(member.lines.end(), at.begin(), at.end());
    member.lines.push_back(at.back() - last * unit);
}

// The end, so far from the fastener that is nearest to it, and where the member is torn.
void Set_ends(Member& member, const Joint& joint, const JointType& of, double unit) {
    constexpr double beyond = 4000.0;
    member.near_u = -beyond;
    member.far_u = beyond;
    if (!member.through) {
        const double end = member.end_loaded ? of.loaded_end : of.unloaded_end;
        member.end_u = -joint.Farthest(-1.0 * member.u) - end * unit;
        member.near_u = member.end_u;
    }
}

} // namespace

const JointType& Type_of(char type) {
    return joint_types[static_cast<std::size_t>(type - '1')];
}

Lattice Lattice_of(int case_row) {
    return case_lattices[static_cast<std::size_t>(case_row)].lattice;
}

std::vector<Segment> Member::Outline() const {
    std::vector<Segment> outline{First(), Other()};
    if (!through) {
        outline.push_back(End());
    }
    return outline;
}

double Joint::Farthest(Point direction) const {
    double farthest = std::numeric_limits<double>::lowest();
    for (const Point& fastener : fasteners) {
        farthest = std::max(farthest, Dot(fastener, direction));
    }
    return farthest;
}

Joint Make_joint(char type, Lattice lattice, bool compression, double unit) {
    const JointType& of = Type_of(type);
    Joint joint{{Direct_member(of.member_1, type, 0, compression, lattice.from_below),
                 Direct_member(of.member_2, type, 1, compression, lattice.from_below)},
                {},
                of.oblique};
    auto& [member_1, member_2] = joint.members;
    const Point u1 = member_1.u;
    const Point u2 = member_2.u;
    // A step along one member moves the line in the other by one line distance.
    const double sine = std::fabs(u1.x * u2.y - u1.y * u2.x);
    const double step = line_distance * unit / sine;
    for (int i = 0; i < lattice.n1; ++i) {
        for (int j = 0; j < lattice.n2; ++j) {
            joint.fasteners.push_back((i * step) * u1 + (j * step) * u2);
        }
    }
    Set_lines(member_1, u2, lattice.n2, step, unit);
    Set_lines(member_2, u1, lattice.n1, step, unit);
    for (Member& member : joint.members) {
        Set_ends(member, joint, of, unit);
    }
    return joint;
}

} // namespace tarnvik
