#include "session/Start_finding.h"

#include <string_view>

#include "calc/RuntimeFault.h"
#include "calc/Splitting.h"
#include "calc/Text.h"
#include "calc/Words.h"
#include "data/Tables.h"
#include "session/Standing.h"

namespace tarnvik {

namespace {

// A row that a new project starts with, as its reader finds it in the file: by its number among the rows that count.
struct StartRow {
    const char* file;
    int index; // from 0
    int last;  // of the table
    std::string_view name;
};

std::string Row_text(const StartRow& row, bool english) {
    std::string text = english ? "row " : "rad ";
    text += std::to_string(row.index + 1);
    text += english ? " marked S" : " merket S";
    if (!row.name.empty()) {
        text += " (\"";
        text += row.name;
        text += "\")";
    }
    return text;
}

std::string Missing(const StartRow& row, bool english) {
    const std::string needed = std::to_string(row.index + 1);
    const std::string found = std::to_string(row.last + 1);
    if (english) {
        return "row " + needed + " marked S is missing: a new project starts with it; the table has " + found + ".";
    }
    return "rad " + needed + " merket S mangler: et nytt prosjekt starter med den; tabellen har " + found + ".";
}

// "b = 0 mm, expected above 0"
std::string Too_small(std::string_view name, float value, double limit, const char* unit, bool english) {
    std::string text{name};
    text += " = ";
    text += Shortest(value).View();
    text += unit;
    text += english ? ", expected above " : ", ventet over ";
    text += Shortest(static_cast<float>(limit)).View();
    return text;
}

// What a row lacks; empty where it lacks nothing.
std::string Material_lacks(const MatRecord& row, bool english) {
    if (row.dens <= 0.0F) {
        return Too_small(english ? "characteristic density, column 11," : "karakteristisk densitet, kolonne 11,",
                         row.dens, 0.0, " kg/m3", english);
    }
    if (row.Type != "T" && row.Type != "L" && row.Type != "Ke" && row.Type != "K") {
        return "type \"" + row.Type + (english ? "\", expected T, L, Ke or K" : "\", ventet T, L, Ke eller K");
    }
    return {};
}

std::string Section_lacks(const ProfRecord& row, bool english) {
    if (row.b <= 0.0F) {
        return Too_small("b", row.b, 0.0, " mm", english);
    }
    if (row.h <= 0.0F) {
        return Too_small("h", row.h, 0.0, " mm", english);
    }
    return {};
}

// The member that splits has to be higher than the distance of its bolts from the loaded edge.
std::string Too_low(const ConnectionState& s, bool english) {
    float h = 0.0F;
    float b = 0.0F;
    float he = 0.0F;
    Get_he_1(s, h, b, he);
    return he <= 0.0F && h > 0.0F ? Too_small("h", h, static_cast<double>(h) - he, " mm", english) : std::string{};
}

std::string Row_finding(const StartRow& row, const std::string& lacks, bool english) {
    return row.index > row.last ? Missing(row, english)
           : lacks.empty()      ? std::string{}
                                : Row_text(row, english) + ": " + lacks + ".";
}

// A new project is of type 1, whose second member splits.
std::string Finding(const ConnectionState& s, const std::filesystem::path& folder, bool english) {
    const auto mat = static_cast<std::size_t>(s.Mat_index);
    const auto prof1 = static_cast<std::size_t>(s.Prof1_index);
    const auto prof2 = static_cast<std::size_t>(s.Prof2_index);
    const StartRow material{material_file, s.Mat_index, s.Mat_count, s.Mat[mat].Id};
    const StartRow one{profile_file, s.Prof1_index, s.Prof1_count, s.Prof[prof1].Id};
    const StartRow two{profile_file, s.Prof2_index, s.Prof2_count, s.Prof[prof2].Id};
    struct Row {
        StartRow row;
        std::string lacks;
    };
    std::string text;
    for (const auto& [row, lacks] :
         {Row{material, Material_lacks(s.Mat[mat], english)}, Row{one, Section_lacks(s.Prof[prof1], english)},
          Row{two, Section_lacks(s.Prof[prof2], english)}, Row{two, Too_low(s, english)}}) {
        const std::string finding = Row_finding(row, lacks, english);
        if (!finding.empty() && text.find(finding) == std::string::npos) {
            text += std::string{row.file} + (english ? " in " : " i ") + folder.string() + ": " + finding + "\n";
        }
    }
    return text;
}

} // namespace

std::string Start_finding(const ConnectionState& s, const PassResult& first_pass, const std::filesystem::path& folder) {
    if (first_pass.end == PassEnd::normal) {
        return {};
    }
    const bool english = Is_english(s);
    std::string text = Finding(s, folder, english);
    if (text.empty()) {
        text = (english ? "The data files in " : "Datafilene i ") + folder.string() + ": ";
        text += Reason_of(first_pass, s, english);
        text += ".\n";
    }
    text += english
                ? "The new project cannot be calculated: its results are not current until another row is chosen or a "
                  "project is opened."
                : "Det nye prosjektet kan ikke beregnes: resultatene er ikke aktuelle før en annen rad er valgt eller "
                  "et prosjekt er åpnet.";
    return text;
}

} // namespace tarnvik
