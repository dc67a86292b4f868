#include "check/Sheets.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <memory>
#include <optional>
#include <utility>

#include <nlohmann/json.hpp>

#include "calc/Text.h"
#include "calc/Version.h"
#include "check/Inputs.h"
#include "check/Options.h"
#include "sheet/Check_sheet.h"
#include "sheet/Record.h"

namespace tarnvik {

namespace {

using Json = nlohmann::ordered_json;

[[noreturn]] void Refuse() {
    throw UsageError{"expected a check sheet"};
}

std::string_view Between(std::string_view html, std::string_view before, std::string_view behind) {
    const std::size_t begin = html.find(before);
    if (begin == std::string_view::npos) {
        Refuse();
    }
    const std::size_t from = begin + before.size();
    const std::size_t end = html.find(behind, from);
    if (end == std::string_view::npos) {
        Refuse();
    }
    return html.substr(from, end - from);
}

// Undoes what the page does to a text.
std::string Unescaped(std::string_view text) {
    constexpr std::array<std::pair<std::string_view, char>, 4> references{
        {{"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}}};
    std::string plain;
    plain.reserve(text.size());
    while (!text.empty()) {
        const auto* const found = std::find_if(references.begin(), references.end(),
                                               [text](const auto& one) { return text.starts_with(one.first); });
        plain += found == references.end() ? text.front() : found->second;
        text.remove_prefix(found == references.end() ? 1 : found->first.size());
    }
    return plain;
}

// A member of an object, of the kind that is asked for.
template <class Value> Value Member(const Json& object, const char* name) {
    const auto found = object.find(name);
    if (found == object.end()) {
        Refuse();
    }
    try {
        return found->get<Value>();
    } catch (const Json::exception&) {
        Refuse();
    }
}

void Set_tables(ConnectionState& s, const Json& record) {
    if (const Json& row = record["material"]; row.is_object() && Row_of(s.Mat, s.Mat_index) != nullptr) {
        MatRecord& material = s.Mat[static_cast<std::size_t>(s.Mat_index)];
        material.Id = Member<std::string>(row, "Id");
        material.Type = Member<std::string>(row, "Type");
        material.fc90k = Member<float>(row, "fc90k");
        material.dens = Member<float>(row, "dens");
    }
    for (const auto& [name, index] : {std::pair{"profile1", s.Prof1_index}, std::pair{"profile2", s.Prof2_index}}) {
        if (const Json& row = record[name]; row.is_object() && Row_of(s.Prof, index) != nullptr) {
            ProfRecord& profile = s.Prof[static_cast<std::size_t>(index)];
            profile.Id = Member<std::string>(row, "Id");
            profile.b = Member<float>(row, "b");
            profile.h = Member<float>(row, "h");
        }
    }
}

// The first value that is another one now; empty where none is.
std::string Difference(const Json& sheet, const Json& now) {
    for (const auto& [name, value] : now.items()) {
        const auto found = sheet.find(name);
        if (found == sheet.end()) {
            return name + " is missing in the sheet";
        }
        if (*found != value) {
            return name + " is " + found->dump(-1, ' ', false, Json::error_handler_t::replace) +
                   " in the sheet, calculated " + value.dump();
        }
    }
    return sheet.size() == now.size() ? std::string{} : "the sheet has values that are not calculated";
}

long Line_of(std::string_view one, std::string_view other) {
    const auto [at, unused] = std::mismatch(one.begin(), one.end(), other.begin(), other.end());
    return 1 + static_cast<long>(std::count(one.begin(), at, '\n'));
}

Verification Compare(std::string_view html, const Json& record, const ConnectionState& s, const Judge& judge) {
    Judgement judgement = judge.Judge_results(s);
    if (!record["results"].contains("Tverr_kontroll")) { // it says that splitting has not been checked
        judgement.verdict.checks[static_cast<std::size_t>(Check::splitting)].checked = false;
    }
    if (!judgement.not_current.empty()) {
        return {false, "the connection of the sheet cannot be calculated: " + judgement.not_current};
    }
    const auto seen = std::make_unique<ConnectionState>(s);
    static_cast<ConnectionValues&>(*seen) = judge.With_typed_he(s);
    const Moment moment{Member<std::string>(record, "date"), Member<std::string>(record, "time")};
    const std::string version = Member<std::string>(record, "version");
    const SheetRecord again = Record_of(*seen, judgement.verdict, moment, version);
    if (const std::string difference = Difference(record["results"], Json::parse(again.json)["results"]);
        !difference.empty()) {
        return {false, difference};
    }
    if (version != TARNVIK_VERSION) {
        return {true, "results verified; the page is of version " + version + " and was not compared"};
    }
    const std::string page = Check_sheet(*seen, judgement.verdict, moment, version);
    if (page != html) {
        return {false, "results verified, but the page differs in line " + std::to_string(Line_of(page, html))};
    }
    return {true, "verified: results and page are as calculated, checksum " + again.checksum};
}

} // namespace

std::string Sheet_of(const ConnectionState& s, const Judge& judge, const Moment& now) {
    const auto seen = std::make_unique<ConnectionState>(s);
    static_cast<ConnectionValues&>(*seen) = judge.With_typed_he(s);
    return Check_sheet(*seen, judge.Judge_results(s).verdict, now, TARNVIK_VERSION);
}

std::string Sheet_name(long line, std::string_view Id) {
    constexpr std::size_t digits = 6;
    constexpr std::size_t most = 40;
    std::string name = std::to_string(line);
    name.insert(0, digits - std::min(digits, name.size()), '0');
    std::string id;
    for (const char c : Trim(First_characters(Id, most))) {
        const bool plain = (static_cast<unsigned char>(c) & 0x80U) != 0 ||
                           std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '-' || c == '_' || c == '.';
        id += plain ? c : '_';
    }
    return name + (id.empty() ? "" : "-") + id + ".html";
}

Verification Verify_sheet(std::string_view html, Session& session, Judge& judge) {
    const std::string text = Unescaped(Between(html, "<meta name=\"tarnvik-record\" content=\"", "\">"));
    const Json record = Json::parse(text, nullptr, false);
    if (!record.is_object() || !record.contains("inputs") || !record.contains("results") ||
        !record.contains("material") || !record.contains("profile1") || !record.contains("profile2")) {
        Refuse();
    }
    if (Between(html, "<footer", "</footer>").find(Record_checksum(text)) == std::string_view::npos) {
        return {false, "the inputs or results were changed: they do not belong to the checksum"};
    }
    Set_decimal_sign(Member<std::string>(record, "decimal") == "," ? ',' : '.');
    ConnectionState& s = session.State();
    Set_inputs(s, record["inputs"]);
    Set_tables(s, record);
    judge.Begin();
    const PassResult result = session.First_pass(Session::Showing::nothing);
    judge.After_pass(s, result, true);
    return Compare(html, record, s, judge);
}

} // namespace tarnvik
