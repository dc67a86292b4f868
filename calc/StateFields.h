// The named values of the connection state, by their names: for the headless tool and for tests that walk the state.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "calc/GlobalParameter.h"

namespace tarnvik {

struct StateField {
    using Member = std::variant<float ConnectionState::*, std::int16_t ConnectionState::*, bool ConnectionState::*,
                                std::string ConnectionState::*, std::string_view ConnectionState::*,
                                FixedText<1> ConnectionState::*, FixedText<3> ConnectionState::*,
                                FixedText<5> ConnectionState::*, FixedText<20> ConnectionState::*>;

    std::string_view name;
    Member member;
    bool is_input; // a user can choose it; everything else follows in a pass
};

// Every named value but the tables Mat and Prof and the Setup record: first the state, then the spacing record.
std::span<const StateField> State_fields();

// The field of that name, or null.
const StateField* Find_state_field(std::string_view name);

} // namespace tarnvik
