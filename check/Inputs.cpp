#include "check/Inputs.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <set>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "calc/StateFields.h"
#include "check/Named_inputs.h"
#include "check/Nearest.h"
#include "check/Options.h"

namespace tarnvik {

namespace {

using Json = nlohmann::ordered_json;

template <class... F> struct Overloaded : F... { using F::operator()...; };
template <class... F> Overloaded(F...) -> Overloaded<F...>;

[[noreturn]] void Refuse(const std::string& name, const std::string& expected, const std::string& got) {
    throw UsageError{name + ": expected " + expected + ", got " + got};
}

// A JSON value as a message shows it. What is nested is named only: its text has no bound, nor has its depth.
std::string Shown(const Json& value) {
    if (value.is_array()) {
        return value.empty() ? "[]" : "an array";
    }
    if (value.is_object()) {
        return value.empty() ? "{}" : "an object";
    }
    if (value.is_string()) {
        return Json(Cut(value.get_ref<const std::string&>())).dump(-1, ' ', false, Json::error_handler_t::replace);
    }
    return value.dump();
}

// A 32-bit float holds the value, rounded.
bool Fits_float(double value) {
    constexpr double limit = 0x1.ffffffp127;
    return value > -limit && value < limit;
}

bool Fits_int16(double value) {
    return std::trunc(value) == value && value >= std::numeric_limits<std::int16_t>::min() &&
           value <= std::numeric_limits<std::int16_t>::max();
}

float To_float(const std::string& name, double value, const std::string& shown) {
    if (!Fits_float(value)) {
        Refuse(name, "a number that a 32-bit float holds", shown);
    }
    return static_cast<float>(value);
}

std::int16_t To_int16(const std::string& name, double value, const std::string& shown) {
    if (!Fits_int16(value)) {
        Refuse(name, "a whole number from -32768 to 32767", shown);
    }
    return static_cast<std::int16_t>(value);
}

// The whole text has to be one number; a comma serves as the decimal mark as it does in the program.
double To_number(const std::string& name, const std::string& text) {
    std::string number = text;
    std::replace(number.begin(), number.end(), ',', '.');
    const bool plus = !number.empty() && number.front() == '+' && number.size() > 1 && number[1] != '-';
    double value = 0.0;
    const char* begin = number.data() + (plus ? 1 : 0);
    const char* end = number.data() + number.size();
    const auto [stop, error] = std::from_chars(begin, end, value);
    if (error == std::errc::invalid_argument || stop != end || !std::isfinite(value)) {
        Refuse(name, "a number", Quoted(text));
    }
    if (error == std::errc::result_out_of_range) {
        Refuse(name, "a number that a 32-bit float holds", Quoted(text));
    }
    return value;
}

bool To_flag(const std::string& name, const std::string& text, const std::string& shown) {
    if (text == "true" || text == "-1") {
        return true;
    }
    if (text == "false" || text == "0") {
        return false;
    }
    Refuse(name, "true or false", shown);
}

std::vector<std::string_view> Names() {
    std::vector<std::string_view> names;
    for (const StateField& field : State_fields()) {
        if (field.is_input) {
            names.push_back(field.name);
        }
    }
    for (const NamedInput& input : Named_inputs()) {
        names.push_back(input.name);
    }
    return names;
}

void After_write(ConnectionState& s, std::string_view name) {
    if (name == "Bulldog_index") {
        Get_dc(s);
    }
}

// The members of an object, or of the objects of an array. What is nested in them is refused later.
std::size_t Members(const Json& inputs) {
    if (inputs.is_object()) {
        return inputs.size();
    }
    std::size_t members = 0;
    if (inputs.is_array()) {
        for (const Json& object : inputs) {
            members += object.is_object() ? object.size() : 0;
        }
    }
    return members;
}

void Refuse_key_twice(std::string_view line) {
    std::set<std::string> keys; // of the object that is open
    const auto once = [&keys](int, Json::parse_event_t event, Json& key) {
        if (event == Json::parse_event_t::object_start) {
            keys.clear();
        } else if (event == Json::parse_event_t::key && !keys.insert(key.get<std::string>()).second) {
            throw UsageError{Quoted(key.get<std::string>()) + ": expected once in an object, got it twice"};
        }
        return true;
    };
    [[maybe_unused]] const Json read = Json::parse(line, once);
}

} // namespace

const StateField& Find_input(const std::string& name) {
    const StateField* field = Find_state_field(name);
    if (field == nullptr || !field->is_input) {
        throw UsageError{Quoted(name) + " is no input; see tarnvik-check --help" + Nearest_names(name, Names())};
    }
    return *field;
}

void Set_input(ConnectionState& s, const std::string& name, const std::string& value) {
    std::visit(
        Overloaded{
            [&](float ConnectionState::*member) { s.*member = To_float(name, To_number(name, value), Quoted(value)); },
            [&](std::int16_t ConnectionState::*member) {
                s.*member = To_int16(name, To_number(name, value), Quoted(value));
            },
            [&](bool ConnectionState::*member) { s.*member = To_flag(name, value, Quoted(value)); },
            [&](std::string_view ConnectionState::*) {}, // labels are results
            [&](auto member) { s.*member = std::string_view{value}; },
        },
        Find_input(name).member);
    After_write(s, name);
}

nlohmann::ordered_json Parse_line(std::string_view line) {
    std::size_t keys = 0;
    const auto count = [&keys](int, Json::parse_event_t event, const Json&) {
        keys += event == Json::parse_event_t::key ? 1 : 0;
        return true;
    };
    try {
        Json inputs = Json::parse(line, count);
        if (keys > Members(inputs)) {
            Refuse_key_twice(line);
        }
        return inputs;
    } catch (const Json::parse_error& error) {
        throw UsageError{"expected JSON, got something else at character " + std::to_string(error.byte)};
    } catch (const Json::exception&) {
        throw UsageError{"expected JSON with numbers that a 64-bit float holds"};
    }
}

void Set_inputs(ConnectionState& s, const Json& inputs) {
    if (!inputs.is_object()) {
        throw UsageError{"expected an object of inputs, got " + Shown(inputs)};
    }
    NamedValues named;
    for (const auto& item : inputs.items()) {
        const std::string& name = item.key();
        const Json& value = item.value();
        if (Is_named_input(name)) {
            if (!value.is_string() && !value.is_number()) {
                Refuse(name, "a text or a number", Shown(value));
            }
            named.emplace_back(name, value.is_string() ? value.get<std::string>() : Shown(value));
            continue;
        }
        const auto number = [&] {
            if (!value.is_number()) {
                Refuse(name, "a number", Shown(value));
            }
            return value.get<double>();
        };
        std::visit(
            Overloaded{
                [&](float ConnectionState::*member) { s.*member = To_float(name, number(), Shown(value)); },
                [&](std::int16_t ConnectionState::*member) { s.*member = To_int16(name, number(), Shown(value)); },
                [&](bool ConnectionState::*member) { s.*member = To_flag(name, Shown(value), Shown(value)); },
                [&](std::string_view ConnectionState::*) {}, // labels are results
                [&](auto member) {
                    if (!value.is_string()) {
                        Refuse(name, "a text", Shown(value));
                    }
                    s.*member = std::string_view{value.get_ref<const std::string&>()};
                },
            },
            Find_input(name).member);
        After_write(s, name);
    }
    Set_named_inputs(s, named);
}

bool Take_number(ConnectionState& s, const StateField& field, double value) {
    if (!field.is_input) {
        return false;
    }
    if (const auto* number = std::get_if<float ConnectionState::*>(&field.member); number && Fits_float(value)) {
        s.*(*number) = static_cast<float>(value);
        return true;
    }
    if (const auto* whole = std::get_if<std::int16_t ConnectionState::*>(&field.member); whole && Fits_int16(value)) {
        s.*(*whole) = static_cast<std::int16_t>(value);
        After_write(s, field.name);
        return true;
    }
    return false;
}

bool Take_flag(ConnectionState& s, const StateField& field, bool value) {
    const auto* flag = std::get_if<bool ConnectionState::*>(&field.member);
    if (!field.is_input || flag == nullptr) {
        return false;
    }
    s.*(*flag) = value;
    return true;
}

bool Take_text(ConnectionState& s, const StateField& field, std::string_view value) {
    if (!field.is_input) {
        return false;
    }
    return std::visit(Overloaded{
                          [](float ConnectionState::*) { return false; },
                          [](std::int16_t ConnectionState::*) { return false; },
                          [](bool ConnectionState::*) { return false; },
                          [](std::string_view ConnectionState::*) { return false; },
                          [&](auto member) {
                              s.*member = value;
                              return true;
                          },
                      },
                      field.member);
}

} // namespace tarnvik
