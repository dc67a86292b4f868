#include "sheet/Record.h"

#define XXH_INLINE_ALL
#include <xxhash.h>

#include <array>
#include <charconv>
#include <type_traits>
#include <variant>

#include <nlohmann/json.hpp>

#include "calc/StateFields.h"
#include "calc/Text.h"
#include "spacing/Rules.h"

namespace tarnvik {

namespace {

using Json = nlohmann::ordered_json;
using S = ConnectionState;

// The double that is written with the digits of the shortest text.
Json Json_of(float value) {
    const ShortText text = Shortest(value);
    double number = 0.0;
    std::from_chars(text.View().data(), text.View().data() + text.View().size(), number);
    return number;
}
Json Json_of(std::int16_t value) {
    return value;
}
Json Json_of(bool value) {
    return value;
}
Json Json_of(std::string_view value) {
    return std::string{value};
}

Json Value_of(const ConnectionState& s, const StateField& field) {
    return std::visit(
        [&s](auto member) {
            if constexpr (std::is_arithmetic_v<std::remove_cvref_t<decltype(s.*member)>>) {
                return Json_of(s.*member);
            } else {
                return Json_of(std::string_view{s.*member});
            }
        },
        field.member);
}

Json Inputs_of(const ConnectionState& s) {
    Json inputs = Json::object();
    for (const StateField& field : State_fields()) {
        if (field.is_input) {
            inputs[std::string{field.name}] = Value_of(s, field);
        }
    }
    return inputs;
}

Json Profile_of(const ConnectionState& s, std::int16_t index) {
    const ProfRecord* row = Row_of(s.Prof, index);
    return row == nullptr ? Json{} : Json{{"Id", row->Id}, {"b", Json_of(row->b)}, {"h", Json_of(row->h)}};
}

Json Material_of(const ConnectionState& s) {
    const MatRecord* row = Row_of(s.Mat, s.Mat_index);
    return row == nullptr ? Json{}
                          : Json{{"Id", row->Id},
                                 {"Type", row->Type},
                                 {"fc90k", Json_of(row->fc90k)},
                                 {"dens", Json_of(row->dens)}};
}

// clang-format off
// The results that the sheet shows. Those of the other shear, of connectors that are not there and of a check that has
// not been made are left over from former inputs and do not count.
struct ResultRow {
    std::string_view name;
    float S::*value;
};
constexpr std::array common{
    ResultRow{"kmod", &S::kmod},   ResultRow{"gm", &S::gm},           ResultRow{"rho_k", &S::rho_k},
    ResultRow{"fc90k", &S::fc90k}, ResultRow{"b1", &S::b1},           ResultRow{"h1", &S::h1},
    ResultRow{"b2", &S::b2},       ResultRow{"h2", &S::h2},           ResultRow{"t1", &S::t1},
    ResultRow{"t2", &S::t2},       ResultRow{"alp1", &S::alp1},       ResultRow{"alp2", &S::alp2},
    ResultRow{"k90", &S::k90},     ResultRow{"fh0k", &S::fh0k},       ResultRow{"fh1k", &S::fh1k},
    ResultRow{"fh2k", &S::fh2k},   ResultRow{"beta", &S::beta},       ResultRow{"My_Rk", &S::My_Rk},
    ResultRow{"Fax_bolt", &S::Fax_bolt}, ResultRow{"Fax_skive", &S::Fax_skive},
    ResultRow{"Rd_bolt", &S::Rd_bolt},   ResultRow{"uf", &S::uf},
    ResultRow{"Sum_a", &S::Sum_a}, ResultRow{"Sum_b", &S::Sum_b},
};
constexpr std::array single{
    ResultRow{"Fv_a", &S::Fv_a}, ResultRow{"Fv_b", &S::Fv_b}, ResultRow{"Fv_c", &S::Fv_c},
    ResultRow{"Fv_d", &S::Fv_d}, ResultRow{"Fv_e", &S::Fv_e}, ResultRow{"Fv_f", &S::Fv_f},
};
constexpr std::array twice{
    ResultRow{"Fv_g", &S::Fv_g}, ResultRow{"Fv_h", &S::Fv_h}, ResultRow{"Fv_j", &S::Fv_j}, ResultRow{"Fv_k", &S::Fv_k},
};
constexpr std::array in_rows{ResultRow{"nef_b", &S::nef_b}, ResultRow{"nef_f", &S::nef_f}, ResultRow{"a1", &S::a1}};
constexpr std::array of_connectors{
    ResultRow{"Fv_Rk", &S::Fv_Rk}, ResultRow{"Rd_for", &S::Rd_for},
    ResultRow{"Sum_ca", &S::Sum_ca}, ResultRow{"Sum_cb", &S::Sum_cb},
};
constexpr std::array of_splitting{
    ResultRow{"he", &S::he}, ResultRow{"F90_Rd", &S::F90_Rd}, ResultRow{"P_sin", &S::P_sin},
    ResultRow{"Tverr_kontroll", &S::Tverr_kontroll},
};
// clang-format on

Json Results_of(const ConnectionState& s, const Verdict& verdict) {
    Json results = Json::object();
    const auto add = [&](const auto& rows) {
        for (const ResultRow& row : rows) {
            results[std::string{row.name}] = Json_of(s.*row.value);
        }
    };
    add(common);
    if (s.dob_1 || s.dob_2) {
        add(twice);
    } else {
        add(single);
    }
    if (s.Has_row) {
        add(in_rows);
    }
    if (s.Med_bulldog) {
        add(of_connectors);
    }
    if (verdict[Check::splitting].checked) {
        add(of_splitting);
    }
    for (int i = 0; i < distance_count; ++i) {
        const auto distance = static_cast<Distance>(i);
        const DistanceFields& fields = Fields_of(distance);
        const std::string name{Label_of(distance)};
        results["S" + name] = Json_of(s.*fields.S);
        if (s.Med_bulldog) {
            results["C" + name] = Json_of(s.*fields.C);
        }
    }
    return results;
}

} // namespace

SheetRecord Record_of(const ConnectionState& s, const Verdict& verdict, const Moment& now, const std::string& version) {
    Json record = Json::object();
    record["version"] = version;
    record["date"] = now.date;
    record["time"] = now.time;
    record["decimal"] = std::string(1, Decimal_sign());
    record["inputs"] = Inputs_of(s);
    record["material"] = Material_of(s);
    record["profile1"] = Profile_of(s, s.Prof1_index);
    record["profile2"] = Profile_of(s, s.Prof2_index);
    record["results"] = Results_of(s, verdict);
    std::string json = record.dump(-1, ' ', false, Json::error_handler_t::replace);
    std::string checksum = Record_checksum(json);
    return {version, std::move(json), std::move(checksum)};
}

std::string Record_checksum(const std::string& json) {
    const XXH128_hash_t hash = XXH3_128bits(json.data(), json.size());
    XXH128_canonical_t bytes;
    XXH128_canonicalFromHash(&bytes, hash);
    constexpr std::string_view digits = "0123456789abcdef";
    std::string shown;
    for (const unsigned char byte : bytes.digest) {
        shown += digits[byte >> 4U];
        shown += digits[byte & 0xfU];
    }
    return shown;
}

} // namespace tarnvik
