#include "check/Line_reader.h"

#include <bitset>

#include <simdjson.h>

#include "calc/StateFields.h"
#include "check/Inputs.h"
#include "check/Named_inputs.h"

namespace tarnvik {

namespace {

using simdjson::dom::element;
using simdjson::dom::element_type;

bool Take(ConnectionState& s, const StateField& field, const element& value) {
    switch (value.type()) {
    case element_type::INT64:
    case element_type::UINT64:
    case element_type::DOUBLE:
        return Take_number(s, field, value.get_double().value_unsafe());
    case element_type::BOOL:
        return Take_flag(s, field, value.get_bool().value_unsafe());
    case element_type::STRING:
        return Take_text(s, field, value.get_string().value_unsafe());
    default:
        return false;
    }
}

bool Take_named(NamedValues& named, std::string_view name, const element& value) {
    if (!Is_named_input(name)) {
        return false;
    }
    switch (value.type()) {
    case element_type::INT64:
    case element_type::UINT64:
    case element_type::DOUBLE:
        named.emplace_back(name, simdjson::to_string(value));
        return true;
    case element_type::STRING:
        named.emplace_back(name, value.get_string().value_unsafe());
        return true;
    default:
        return false;
    }
}

// Errors: throws UsageError for inputs by name that cannot be.
bool Take_object(ConnectionState& s, const element& value) {
    simdjson::dom::object object;
    if (value.get_object().get(object) != simdjson::SUCCESS) {
        return false;
    }
    std::bitset<256> taken; // by row of State_fields
    NamedValues named;
    for (const auto [name, input] : object) {
        const StateField* field = Find_state_field(name);
        if (field == nullptr) {
            if (!Take_named(named, name, input)) {
                return false;
            }
            continue;
        }
        const auto row = static_cast<std::size_t>(field - State_fields().data());
        if (taken[row] || !Take(s, *field, input)) {
            return false; // of a name that stands there twice the last value counts, in the place of the first
        }
        taken.set(row);
    }
    Set_named_inputs(s, named);
    return true;
}

} // namespace

LineReader::LineReader() : parser_(std::make_unique<simdjson::dom::parser>()) {}

LineReader::~LineReader() = default;

bool LineReader::Read(std::string_view line, ConnectionState& s, const std::function<void()>& calculate) {
    if (line.find('\\') != std::string_view::npos) {
        return false; // the general reader checks escapes more strictly
    }
    padded_.reserve(line.size() + simdjson::SIMDJSON_PADDING);
    padded_ = line;
    element inputs;
    if (parser_->parse(padded_.data(), padded_.size(), false).get(inputs) != simdjson::SUCCESS) {
        return false;
    }
    simdjson::dom::array objects;
    if (inputs.get_array().get(objects) != simdjson::SUCCESS) {
        if (!Take_object(s, inputs)) {
            return false;
        }
        calculate();
        return true;
    }
    for (const element& object : objects) {
        if (!Take_object(s, object)) {
            return false;
        }
        calculate();
    }
    return objects.size() > 0;
}

} // namespace tarnvik
