// formulas: the formulas of the core one by one, for verify.py, with inputs that no table of the program offers:
// dowels, other diameters, another density in each member.
//
// A line of the input is an array of steps on one state, and the answer the values of the state afterwards, with Rk,
// the result of the last step that has one:
//   {"set": {NAME: VALUE, ...}}     writes values of the state
//   {"do": NAME, ...}               calls a procedure, its arguments beside it; angles in degrees
#include <array>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <variant>

#include <nlohmann/json.hpp>

#include "calc/Arithmetic.h"
#include "calc/Connector.h"
#include "calc/DesignCapacity.h"
#include "calc/Shear.h"
#include "calc/Splitting.h"
#include "calc/StateFields.h"
#include "spacing/Catalogue.h"
#include "spacing/Rules.h"

namespace {

using namespace tarnvik;
using nlohmann::json;

void Write(ConnectionState& s, const std::string& name, const json& value) {
    const StateField* field = Find_state_field(name);
    if (field == nullptr) {
        throw std::invalid_argument{"no value named " + name};
    }
    if (const auto* number = std::get_if<float ConnectionState::*>(&field->member)) {
        s.** number = value.get<float>();
    } else if (const auto* whole = std::get_if<std::int16_t ConnectionState::*>(&field->member)) {
        s.** whole = value.get<std::int16_t>();
    } else if (const auto* flag = std::get_if<bool ConnectionState::*>(&field->member)) {
        s.** flag = value.get<bool>();
    } else if (const auto* code = std::get_if<FixedText<3> ConnectionState::*>(&field->member)) {
        s.** code = value.get<std::string>();
    } else {
        throw std::invalid_argument{name + " is no value that a formula reads"};
    }
}

double Radians(const json& step, const char* name) {
    return step.at(name).get<double>() / degrees_per_radian;
}

using Procedure = std::function<void(ConnectionState& s, const json& step, float& Rk)>;

const std::map<std::string, Procedure>& Procedures() {
    static const std::map<std::string, Procedure> procedures{
        {"Get_Rk", [](ConnectionState& s, const json& /*step*/, float& Rk) { Get_Rk(s, Rk); }},
        {"Get_fh",
         [](ConnectionState& s, const json& step, float& /*Rk*/) {
             Get_fh(s, Radians(step, "angle1"), Radians(step, "angle2"), s.fh1k, s.fh2k, s.beta);
         }},
        {"Enkeltsnitt_Rk",
         [](ConnectionState& s, const json& /*step*/, float& Rk) { Enkeltsnitt_Rk(s, s.fh1k, s.fh2k, s.beta, Rk); }},
        {"Dobbeltsnitt_Rk",
         [](ConnectionState& s, const json& /*step*/, float& Rk) { Dobbeltsnitt_Rk(s, s.fh1k, s.fh2k, s.beta, Rk); }},
        {"Get_nef", [](ConnectionState& s, const json& /*step*/, float& /*Rk*/) { Get_nef(s); }},
        {"Get_Rd_bolt", [](ConnectionState& s, const json& /*step*/, float& Rk) { Get_Rd_bolt(s, Rk); }},
        {"Bulldog_Rk", [](ConnectionState& s, const json& /*step*/, float& Rk) { Bulldog_Rk(s, Rk); }},
        {"Tverr_brudd",
         [](ConnectionState& s, const json& step, float& /*Rk*/) {
             Tverr_brudd(s, step.at("h"), step.at("he"), step.at("b"), ScreenWriter{nullptr});
         }},
        {"Calc_spacing",
         [](ConnectionState& s, const json& step, float& /*Rk*/) {
             Clear_spacing(s);
             Calc_spacing(s, Find_case(step.at("case").get<std::string>()));
         }},
    };
    return procedures;
}

json Values(const ConnectionState& s) {
    json values;
    for (const StateField& field : State_fields()) {
        if (const auto* number = std::get_if<float ConnectionState::*>(&field.member)) {
            values[std::string{field.name}] = s.**number;
        }
    }
    return values;
}

json Answer(const json& steps) {
    const auto s = std::make_unique<ConnectionState>();
    float Rk = 0.0F;
    for (const json& step : steps) {
        if (step.contains("set")) {
            for (const auto& [name, value] : step["set"].items()) {
                Write(*s, name, value);
            }
        } else {
            Procedures().at(step.at("do").get<std::string>())(*s, step, Rk);
        }
    }
    json values = Values(*s);
    values["Rk"] = Rk;
    return values;
}

} // namespace

int main() {
    std::string line;
    try {
        while (std::getline(std::cin, line)) {
            std::cout << Answer(json::parse(line)) << '\n';
        }
    } catch (const std::exception& error) {
        std::cerr << "formulas: " << error.what() << '\n';
        return 2;
    }
    return 0;
}
