// Inputs by name: from the command line as text, from a batch line as JSON.
#pragma once

#include <string>
#include <string_view>

#include <nlohmann/json_fwd.hpp>

#include "calc/GlobalParameter.h"
#include "calc/StateFields.h"

namespace tarnvik {

// A plain write to an input of the state, with one exception: Bulldog_index also sets dc, as picking the connector
// does.
// Errors: throws UsageError that names the input and what was expected.
void Set_input(ConnectionState& s, const std::string& name, const std::string& value);

// The input of that name. Errors: throws UsageError where there is none, with the nearest names.
const StateField& Find_input(const std::string& name);

// A batch line. A key that stands in an object twice is refused: nobody knows which was meant.
// Errors: throws UsageError, in words of the tool's own.
nlohmann::ordered_json Parse_line(std::string_view line);

// Every member of the object, in its order, and then its inputs by name (check/Named_inputs.h), together. Errors:
// throws UsageError.
void Set_inputs(ConnectionState& s, const nlohmann::ordered_json& inputs);

// The same writes of one value by its kind. False, with nothing written, where the field is no input or does not take
// the value.
bool Take_number(ConnectionState& s, const StateField& field, double value);
bool Take_flag(ConnectionState& s, const StateField& field, bool value);
bool Take_text(ConnectionState& s, const StateField& field, std::string_view value);

} // namespace tarnvik
