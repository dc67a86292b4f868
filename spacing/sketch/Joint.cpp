#include "spacing/sketch/Joint.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

#include "spacing/Catalogue.h"
#include "spacing/Rules.h"

namespace tarnvik {

namespace {

// The first edge is the upper one; of an upright member the left one; of the rafter the outer one.
// clang-format off
constexpr std::array<JointType, 5> joint_types{{
    //    leaves at  through  first edge  along first
    // heel of a truss: top chord on bottom chord, the end of the bottom chord just outside the joint
    {'1', {  27.0,   false,   +90.0,      true},
          {   0.0,   false,   +90.0,      false},   true,  true},
    // inclined strut under a beam that runs through
    {'2', {   0.0,   true,    +90.0,      true},
          { -130.0,  false,   -90.0,      true},    true,  false},
    // collar beam on a rafter that runs through; inward is to the right
    {'3', {  35.0,   true,    +90.0,      true},
          {   0.0,   false,   +90.0,      false},   true,  false},
    // beam on a column
    {'4', {   0.0,   false,   +90.0,      true},
          { -90.0,   false,   -90.0,      true},    false, false},
    // beam under a column
    {'5', {   0.0,   false,   +90.0,      false},
          {  90.0,   false,   +90.0,      true},    false, false},
    //                                              oblique, force on 1
}};

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
    {"5.2.b", {1, 2}},
    {"5.3.a", {3, 1}},
    {"5.3.b", {1, 3}},
    {"5.4. ", {2, 2}},
    {"5.6.a", {3, 2}},
    {"5.6.b", {2, 3}},
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
        const auto [n1, n2] = case_lattices[i].lattice;
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

constexpr double unloaded_edge = 1.0; // in units; what the rules make larger is drawn larger
constexpr double loaded_edge = 1.4;
constexpr double line_distance = 1.0; // between two lines of fasteners, across the grain
constexpr double unloaded_end = 1.3;
constexpr double loaded_end = 1.9;

// The member that carries the force across its grain: the bottom chord of the heel, otherwise member 1.
std::size_t Carrier(char type) {
    return type == '1' ? 1 : 0;
}

// Whether the force drives the fasteners towards the carrier's first edge. Compression goes down the top chord or the
// column on the beam, to the lower edge; up the strut or the column and out along the collar beam, to the first one.
bool Towards_first_edge(char type, bool compression) {
    return type == '1' || type == '5' ? !compression : compression;
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
Member Direct_member(const MemberType& of, char type, std::size_t k, bool compression) {
    Member member;
    member.u = Direction(of.angle);
    member.m = Direction(of.angle + of.first_edge);
    member.through = of.through;
    member.first_edge_loaded = k == Carrier(type) && Towards_first_edge(type, compression);
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

// The row whose last fastener is nearest to the member's end, and the end.
void Set_row(Member& member, Point other, int lines, int in_row, double step, double unit) {
    const int j_end = Dot(other, member.u) > 1e-9 ? 0 : lines - 1;
    const Point start = (j_end * step) * other;
    member.row_m = Dot(start, member.m);
    for (int i = in_row - 1; i >= 0; --i) {
        member.row.push_back(Dot(start, member.u) + i * step);
    }
    if (!member.through) {
        const double end = member.end_loaded ? loaded_end : unloaded_end;
        member.end_u = member.row.back() - end * unit;
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
    std::vector<Segment> outline;
    for (const double edge : {First_edge(), Other_edge()}) {
        outline.push_back({At(Near_u(), edge), At(Far_u(), edge)});
    }
    if (!through) {
        outline.push_back({At(end_u, First_edge()), At(end_u, Other_edge())});
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
    Joint joint{{Direct_member(of.member_1, type, 0, compression), Direct_member(of.member_2, type, 1, compression)},
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
    Set_row(member_1, u2, lattice.n2, lattice.n1, step, unit);
    Set_lines(member_2, u1, lattice.n1, step, unit);
    Set_row(member_2, u1, lattice.n1, lattice.n2, step, unit);
    return joint;
}

} // namespace tarnvik
