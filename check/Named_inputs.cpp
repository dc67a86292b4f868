#include "check/Named_inputs.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>

#include "check/Nearest.h"
#include "check/Options.h"

namespace tarnvik {

namespace {

// A member as it is named: pieces where they are said, and a section of the table or a typed one.
struct Member {
    std::string text;
    std::optional<int> pieces;
    int profile{-1};
    std::string b, h;
};

// What the names of one command line or one object say.
struct Said {
    ConnectionState& s;
    std::optional<std::int16_t> Bolt_index{}, Ant_index{}, Avstand_index{}, Mat_index{}, Lastvar{}, Klima{};
    std::optional<int> connector{}; // a row, or -1 for none
    std::optional<FixedText<1>> Bolt_ab{};
    std::optional<float> alp{}, tension{}, compression{};
    std::optional<Member> one{}, two{};
    std::string joint{};
};

[[noreturn]] void Refuse(std::string_view name, std::string_view allowed, std::string_view got,
                         const std::string& nearest = {}) {
    throw UsageError{std::string{name} + ": expected " + std::string{allowed} + ", got " + Quoted(got) + nearest};
}

// The number that the text begins with, which is taken off.
std::optional<double> Take_number(std::string& text) {
    std::replace(text.begin(), text.end(), ',', '.');
    text = std::string{Trim(text)};
    double value = 0.0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc{} || !std::isfinite(value)) {
        return std::nullopt;
    }
    text = std::string{Trim({stop, static_cast<std::size_t>(end - stop)})};
    return value;
}

// A whole number from `least` to `most`, with the unit behind it or without.
std::optional<std::int16_t> Whole(std::string text, int least, int most, std::string_view unit = {}) {
    const std::optional<double> value = Take_number(text);
    if (!value || std::trunc(*value) != *value || *value < least || *value > most || (!text.empty() && text != unit)) {
        return std::nullopt;
    }
    return static_cast<std::int16_t>(*value);
}

// The row whose name is the text.
std::optional<std::int16_t> Row_named(const std::vector<std::string_view>& names, std::string_view text) {
    const std::string plain = Plain_name(text);
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (!plain.empty() && Has_plain_name(names[i], plain)) {
            return static_cast<std::int16_t>(i);
        }
    }
    return std::nullopt;
}

std::vector<std::string_view> Bolt_names() {
    std::vector<std::string_view> names;
    for (const BoltRow& row : bolt_table) {
        names.push_back(row.caption);
    }
    return names;
}

std::vector<std::string_view> Connector_names() {
    std::vector<std::string_view> names;
    for (const ConnectorRow& row : connector_table) {
        names.push_back(row.size);
    }
    return names;
}

// Names of the rows of a table of the state up to the last used one.
template <class Table> std::vector<std::string_view> Ids(const Table& table, int last) {
    std::vector<std::string_view> names;
    for (int i = 0; i <= std::min(last, static_cast<int>(table.size()) - 1); ++i) {
        names.push_back(table[static_cast<std::size_t>(i)].Id);
    }
    return names;
}

// ---------------------------------------------------------------------------------------------------------------------
// A value each

void Take_bolt(Said& said, const NamedInput& input, const std::string& text) {
    said.Bolt_index = Row_named(Bolt_names(), text);
    if (!said.Bolt_index) {
        Refuse(input.name, input.allowed, text, Nearest_names(text, Bolt_names()));
    }
}

void Take_bolts(Said& said, const NamedInput& input, const std::string& text) {
    const std::optional<std::int16_t> number = Whole(text, 1, bolt_numbers.back());
    const auto* const row = std::find(bolt_numbers.begin(), bolt_numbers.end(), number.value_or(0));
    if (row == bolt_numbers.end()) {
        Refuse(input.name, input.allowed, text);
    }
    said.Ant_index = static_cast<std::int16_t>(row - bolt_numbers.begin());
}

void Take_layout(Said& said, const NamedInput& input, const std::string& text) {
    const std::string letter = Plain_name(text);
    if (letter != "a" && letter != "b") {
        Refuse(input.name, input.allowed, text);
    }
    said.Bolt_ab = FixedText<1>{letter};
}

void Take_spacing(Said& said, const NamedInput& input, const std::string& text) {
    constexpr int least = 5;
    constexpr int most = 20;
    const std::optional<std::int16_t> diameters = Whole(text, least, most, "d");
    if (!diameters) {
        Refuse(input.name, input.allowed, text);
    }
    said.Avstand_index = static_cast<std::int16_t>(*diameters - least);
}

void Take_connector(Said& said, const NamedInput& input, const std::string& text) {
    if (Plain_name(text) == "none") {
        said.connector = -1;
        return;
    }
    said.connector = Row_named(Connector_names(), text);
    if (!said.connector) {
        Refuse(input.name, input.allowed, text, Nearest_names(text, Connector_names()));
    }
}

void Take_material(Said& said, const NamedInput& input, const std::string& text) {
    const std::vector<std::string_view> names = Ids(said.s.Mat, said.s.Mat_count);
    said.Mat_index = Row_named(names, text);
    if (!said.Mat_index) {
        Refuse(input.name, input.allowed, text, Nearest_names(text, names));
    }
}

// "BxH", or "NxBxH" with the number of pieces before it.
bool Take_size(Member& member, const std::string& text) {
    std::array<std::string, 3> parts;
    std::size_t count = 0;
    for (std::size_t begin = 0; begin <= text.size(); ++count) {
        const std::size_t end = std::min(text.find_first_of("xX", begin), text.size());
        if (count == parts.size()) {
            return false;
        }
        parts[count] = text.substr(begin, end - begin);
        begin = end + 1;
    }
    if (count < 2) {
        return false;
    }
    if (count == 2) {
        std::rotate(parts.begin(), parts.end() - 1, parts.end());
        parts[0] = "1";
    }
    const std::optional<std::int16_t> pieces = Whole(parts[0], 1, 2);
    for (const std::size_t i : {std::size_t{1}, std::size_t{2}}) {
        std::string rest = parts[i];
        const std::optional<double> side = Take_number(rest);
        if (!side || *side <= 0.0 || !rest.empty()) {
            return false;
        }
    }
    member.pieces = pieces;
    member.b = Trim(parts[1]);
    member.h = Trim(parts[2]);
    return pieces.has_value();
}

// A profile by its name, or pieces of it: "2x T 48x198". Its name alone says nothing of the pieces.
bool Take_profile(Member& member, const std::vector<std::string_view>& names, const std::string& text) {
    std::optional<std::int16_t> row = Row_named(names, text);
    if (!row && text.size() > 2 && (text[0] == '1' || text[0] == '2') && (text[1] == 'x' || text[1] == 'X')) {
        row = Row_named(names, text.substr(2));
        member.pieces = text[0] - '0';
    }
    member.profile = row.value_or(std::int16_t{-1});
    return row.has_value();
}

void Take_member(std::optional<Member>& said, const std::vector<std::string_view>& names, const NamedInput& input,
                 const std::string& text) {
    Member member;
    member.text = text;
    if (!Take_profile(member, names, text) && !Take_size(member, text)) {
        Refuse(input.name, input.allowed, text, Nearest_names(text, names));
    }
    said = std::move(member);
}

void Take_member1(Said& said, const NamedInput& input, const std::string& text) {
    Take_member(said.one, Ids(said.s.Prof, said.s.Prof1_count), input, text);
}

void Take_member2(Said& said, const NamedInput& input, const std::string& text) {
    Take_member(said.two, Ids(said.s.Prof, said.s.Prof2_count), input, text);
}

void Take_joint(Said& said, const NamedInput& input, const std::string& text) {
    std::string code{Trim(text)};
    std::replace(code.begin(), code.end(), ',', '.'); // of a spreadsheet with decimal commas
    if (code.size() != 3 || code[0] < '1' || code[0] > '5' || code[1] != '.' || code[2] < '1' || code[2] > '3') {
        Refuse(input.name, input.allowed, text);
    }
    said.joint = code;
}

std::optional<float> Force(const NamedInput& input, const std::string& text) {
    std::string rest = text;
    const std::optional<double> value = Take_number(rest);
    const bool newton = rest == "N";
    const double kilonewton = value ? *value / (newton ? 1000.0 : 1.0) : -1.0;
    constexpr double most = 3.4e38;
    if (kilonewton < 0.0 || kilonewton > most || !(rest.empty() || newton || rest == "kN")) {
        Refuse(input.name, input.allowed, text);
    }
    return static_cast<float>(kilonewton);
}

void Take_tension(Said& said, const NamedInput& input, const std::string& text) {
    said.tension = Force(input, text);
}

void Take_compression(Said& said, const NamedInput& input, const std::string& text) {
    said.compression = Force(input, text);
}

void Take_angle(Said& said, const NamedInput& input, const std::string& text) {
    constexpr double most = 90.0;
    std::string rest = text;
    const std::optional<double> value = Take_number(rest);
    if (!value || *value < 0.0 || *value > most || !(rest.empty() || rest == "deg" || rest == "°")) {
        Refuse(input.name, input.allowed, text);
    }
    said.alp = static_cast<float>(*value);
}

void Take_load(Said& said, const NamedInput& input, const std::string& text) {
    const std::vector<std::string_view> names{load_names.begin(), load_names.end()};
    const std::optional<std::int16_t> row = Row_named(names, text);
    said.Lastvar = row ? static_cast<std::int16_t>(*row + 1) : Whole(text, 1, static_cast<int>(names.size()));
    if (!said.Lastvar) {
        Refuse(input.name, input.allowed, text, Nearest_names(text, names));
    }
}

void Take_service(Said& said, const NamedInput& input, const std::string& text) {
    said.Klima = Whole(text, 1, 3);
    if (!said.Klima) {
        Refuse(input.name, input.allowed, text);
    }
}

// clang-format off
struct TakeRow {
    NamedInput input;
    void (*take)(Said& said, const NamedInput& input, const std::string& text);
};
constexpr std::array take_rows{
    TakeRow{{"bolt",        "a bolt, such as M16x8.8",                              "bolt: diameter and grade"}, Take_bolt},
    TakeRow{{"bolts",       "1, 2, 3, 4 or 6",                                      "number of bolts"}, Take_bolts},
    TakeRow{{"layout",      "a or b",                                               "arrangement of the bolts"}, Take_layout},
    TakeRow{{"spacing",     "5d to 20d",                                            "spacing of the bolts along the grain"}, Take_spacing},
    TakeRow{{"connector",   "a connector, such as D75, or none",                    "tooth-plate connector"}, Take_connector},
    TakeRow{{"material",    "a material, such as C24",                              "material of both members"}, Take_material},
    TakeRow{{"member1",     "2x48x198 (pieces, mm), 48x198 or a profile",           "section of member 1"}, Take_member1},
    TakeRow{{"member2",     "2x48x198 (pieces, mm), 48x198 or a profile",           "section of member 2"}, Take_member2},
    TakeRow{{"joint",       "a type from 1 to 5 and a variant from 1 to 3, such as 1.2", "kind of joint"}, Take_joint},
    TakeRow{{"tension",     "a force of 0 kN or more, such as 25kN",                "design force in tension"}, Take_tension},
    TakeRow{{"compression", "a force of 0 kN or more, such as 25kN",                "design force in compression"}, Take_compression},
    TakeRow{{"angle",       "0 to 90 degrees",                                      "angle between the members"}, Take_angle},
    TakeRow{{"load",        "permanent, long, medium, short or instantaneous",      "load-duration class"}, Take_load},
    TakeRow{{"service",     "1, 2 or 3",                                            "service class"}, Take_service},
};
// clang-format on

constexpr std::array<NamedInput, take_rows.size()> Inputs_of_rows() {
    std::array<NamedInput, take_rows.size()> inputs;
    for (std::size_t i = 0; i < inputs.size(); ++i) {
        inputs[i] = take_rows[i].input;
    }
    return inputs;
}
constexpr std::array<NamedInput, take_rows.size()> named_inputs = Inputs_of_rows();

// ---------------------------------------------------------------------------------------------------------------------
// What the values say together

// The pieces of a member that is named, as far as its name says.
std::optional<int> Pieces(const std::optional<Member>& member) {
    return member ? member->pieces : std::nullopt;
}

void Check_pieces(const std::string& joint, int number, const std::optional<Member>& member, int wanted) {
    if (const std::optional<int> pieces = Pieces(member); pieces && *pieces != wanted) {
        const std::string name = "member" + std::to_string(number);
        throw UsageError{"joint, " + name + ": expected " + (wanted == 2 ? "two pieces" : "one piece") + " in " + name +
                         " of joint " + joint + ", got " + Quoted(member->text)};
    }
}

struct PieceNumbers {
    int one, two;
};

// A member that is made double makes the other one single, unless that is named.
PieceNumbers Piece_numbers(const Said& said) {
    if (!said.joint.empty()) {
        const PieceNumbers wanted{said.joint[2] == '2' ? 2 : 1, said.joint[2] == '3' ? 2 : 1};
        Check_pieces(said.joint, 1, said.one, wanted.one);
        Check_pieces(said.joint, 2, said.two, wanted.two);
        return wanted;
    }
    const std::optional<int> one = Pieces(said.one);
    const std::optional<int> two = Pieces(said.two);
    if (one == 2 && two == 2) {
        throw UsageError{"member1, member2: expected one of them in one piece, got " + Quoted(said.one->text) +
                         " and " + Quoted(said.two->text)};
    }
    return {one.value_or(said.s.dob_1 && two != 2 ? 2 : 1), two.value_or(said.s.dob_2 && one != 2 ? 2 : 1)};
}

void Write_pieces(Said& said, const PieceNumbers& pieces) {
    ConnectionState& s = said.s;
    if (!said.joint.empty()) {
        s.Con_type = static_cast<std::int16_t>(said.joint[0] - '0');
    } else if (!Pieces(said.one) && !Pieces(said.two)) {
        return;
    }
    s.dob_1 = pieces.one == 2;
    s.enk_1 = !s.dob_1;
    s.dob_2 = pieces.two == 2;
    s.enk_2 = !s.dob_2;
}

// Typed texts of the section that a member is to have, where sections are typed.
void Write_typed(const ConnectionState& s, const std::optional<Member>& member, int row, std::string& b,
                 std::string& h) {
    if (member && member->profile < 0) {
        b = member->b;
        h = member->h;
    } else if ((member || s.Standard) && (member ? member->profile : row) >= 0) {
        const int profile = member ? member->profile : row;
        if (const ProfRecord* found = Row_of(s.Prof, profile)) {
            b = Shortest(found->b).View();
            h = Shortest(found->h).View();
        }
    }
}

// Sections come from the table or are typed, both of them: one that is typed takes the other along.
void Write_sections(Said& said) {
    ConnectionState& s = said.s;
    if (!said.one && !said.two) {
        return;
    }
    const bool typed = (said.one && said.one->profile < 0) || (said.two && said.two->profile < 0);
    if (typed || (!s.Standard && !(said.one && said.two))) {
        Write_typed(s, said.one, s.Prof1_index, s.Txt_b1, s.Txt_h1);
        Write_typed(s, said.two, s.Prof2_index, s.Txt_b2, s.Txt_h2);
        s.Standard = false;
        return;
    }
    s.Standard = true;
    s.Prof1_index = said.one ? static_cast<std::int16_t>(said.one->profile) : s.Prof1_index;
    s.Prof2_index = said.two ? static_cast<std::int16_t>(said.two->profile) : s.Prof2_index;
}

void Write_connector(ConnectionState& s, const std::optional<int>& connector) {
    if (!connector) {
        return;
    }
    s.Med_bulldog = *connector >= 0;
    s.Kun_bolt = !s.Med_bulldog;
    if (s.Med_bulldog) {
        s.Bulldog_index = static_cast<std::int16_t>(*connector);
        Get_dc(s);
    }
}

template <class Value> void Write(Value& to, const std::optional<Value>& value) {
    to = value.value_or(to);
}

void Write_all(Said& said) {
    ConnectionState& s = said.s;
    if (said.tension && said.compression) {
        throw UsageError{"tension, compression: expected one of them, got both"};
    }
    const PieceNumbers pieces = Piece_numbers(said);
    Write_pieces(said, pieces);
    Write_sections(said);
    Write_connector(s, said.connector);
    Write(s.Bolt_index, said.Bolt_index);
    Write(s.Ant_index, said.Ant_index);
    Write(s.Bolt_ab, said.Bolt_ab);
    Write(s.Avstand_index, said.Avstand_index);
    Write(s.Mat_index, said.Mat_index);
    Write(s.Lastvar, said.Lastvar);
    Write(s.Klima, said.Klima);
    Write(s.alp, said.alp);
    Write(s.P, said.compression);
    if (said.tension) {
        s.P = -*said.tension;
    }
}

} // namespace

std::span<const NamedInput> Named_inputs() {
    return named_inputs;
}

bool Is_named_input(std::string_view name) {
    return std::any_of(named_inputs.begin(), named_inputs.end(),
                       [name](const NamedInput& input) { return input.name == name; });
}

void Set_named_inputs(ConnectionState& s, const NamedValues& values) {
    Said said{.s = s};
    for (std::size_t i = 0; i < values.size(); ++i) {
        const auto& [name, value] = values[i];
        for (std::size_t k = 0; k < i; ++k) {
            if (values[k].first == name) {
                throw UsageError{name + ": expected once, got " + Quoted(values[k].second) + " and " + Quoted(value)};
            }
        }
        const auto* const row = std::find_if(take_rows.begin(), take_rows.end(),
                                             [&](const TakeRow& one) { return one.input.name == values[i].first; });
        row->take(said, row->input, value);
    }
    if (!values.empty()) {
        Write_all(said);
    }
}

} // namespace tarnvik
