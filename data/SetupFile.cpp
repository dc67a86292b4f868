#include "data/SetupFile.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <fstream>
#include <utility>

#include "calc/RuntimeFault.h"
#include "data/CodePage.h"
#include "data/Lines.h"
#include "data/SafeWrite.h"

namespace tarnvik {

void Read_setup(SetupRecord& setup, std::istream& file) {
    const auto keep = [&setup, &file](std::size_t line) {
        auto text = Read_line(file);
        if (text) {
            setup.Setup_line[line] = std::move(*text);
        }
        return text.has_value();
    };
    keep(0);
    if (keep(1)) {
        const std::string line = setup.Setup_line[1];
        const auto fields = Split(line);
        setup.Setup_line[1] = fields[0];
        if (fields.size() > 1) {
            setup.Language = fields[1];
        }
    }
    keep(2);
    keep(3);
    if (const auto line = Read_line(file)) {
        const auto fields = Split(*line);
        const std::array<float*, 4> factors{&setup.gam_timb, &setup.gam_lam, &setup.gam_kerto, &setup.gam_k_bjelke};
        for (std::size_t i = 0; i < factors.size() && i < fields.size(); ++i) {
            try {
                *factors[i] = Str_to_num(fields[i]);
            } catch (const RuntimeFault&) { // NOLINT(bugprone-empty-catch): a failed statement of the reader is skipped
            }
        }
    }
}

void Read_setup(SetupRecord& setup, const std::filesystem::path& folder) {
    std::ifstream file = Open_text(folder / setup_file_read, "Read_setup");
    Read_setup(setup, file);
}

namespace {

constexpr int setup_lines = 5;

// The factors of a setup and what stands in for them: EN 1995-1-1 table 2.3.
struct Factor {
    float SetupRecord::*value;
    float standard;
};
constexpr std::array<Factor, 4> standard_factors{{
    {&SetupRecord::gam_timb, 1.3F},
    {&SetupRecord::gam_lam, 1.25F},
    {&SetupRecord::gam_kerto, 1.2F},
    {&SetupRecord::gam_k_bjelke, 1.25F},
}};

// True where all were above 0.
bool Stand_in(SetupRecord& setup) {
    bool all = true;
    for (const Factor& factor : standard_factors) {
        if (!(setup.*factor.value > 0.0F)) {
            setup.*factor.value = factor.standard;
            all = false;
        }
    }
    return all;
}

// The lines of the file up to the fifth, and the fifth.
struct Extent {
    int lines{};
    std::string last;
};
Extent Extent_of(std::istream& file) {
    Extent extent;
    while (extent.lines < setup_lines) {
        auto line = Read_line(file);
        if (!line) {
            break;
        }
        ++extent.lines;
        extent.last = std::move(*line);
    }
    return extent;
}

Words Access_words(const RuntimeFault& fault) {
    if (fault.number == fault_file_not_found) {
        return {"file not found", "filen finnes ikke"};
    }
    constexpr std::array<Words, 4> reasons{{
        {"no right to read it", "ingen lesetilgang"},
        {"not a regular file", "ikke en vanlig fil"},
        {"larger than 64 MB", "større enn 64 MB"},
        {"its folder cannot be entered", "ingen tilgang til mappen"},
    }};
    for (const Words& reason : reasons) {
        if (reason.eng == fault.description) {
            return reason;
        }
    }
    return {"the file cannot be read", "filen kan ikke leses"};
}

std::optional<SetupProblem> Problem_of(const Extent& extent, bool factors) {
    if (extent.lines == 0) {
        return SetupProblem{{"the file is empty", "filen er tom"}, 0, {}, true};
    }
    if (extent.lines < setup_lines) {
        return SetupProblem{{"expected five lines, the file ends here", "ventet fem linjer, filen slutter her"},
                            extent.lines,
                            {},
                            extent.lines < 2};
    }
    if (!factors) {
        return SetupProblem{
            {"expected four partial factors above 0, found ", "ventet fire partialfaktorer over 0, fant "},
            setup_lines,
            extent.last,
            false};
    }
    return std::nullopt;
}

} // namespace

std::optional<SetupProblem> Load_setup(SetupRecord& setup, const std::filesystem::path& folder) {
    setup = {};
    try {
        Read_setup(setup, folder);
        const bool factors = Stand_in(setup);
        std::ifstream file = Open_text(folder / setup_file_read, "Read_setup");
        return Problem_of(Extent_of(file), factors);
    } catch (const RuntimeFault& fault) {
        setup = {};
        Stand_in(setup);
        return SetupProblem{Access_words(fault), 0, {}, true};
    }
}

std::string Setup_problem_text(const SetupProblem& problem, const std::filesystem::path& folder, bool english) {
    constexpr std::size_t longest = 60; // of a line that is quoted
    std::string text = std::string{setup_file_read} + (english ? " in " : " i ") + folder.string();
    if (problem.line > 0) {
        text += (english ? ", line " : ", linje ") + std::to_string(problem.line);
    }
    text += ": ";
    text += problem.text.In(english);
    if (problem.line == setup_lines) {
        text += '"' + problem.found.substr(0, longest) + (problem.found.size() > longest ? "...\"" : "\"");
    }
    if (problem.no_language) {
        text += english ? ".\nNorwegian texts and the partial factors 1.3, 1.25, 1.2, 1.25 are used."
                        : ".\nNorske tekster og partialfaktorene 1.3, 1.25, 1.2, 1.25 brukes.";
    } else {
        text += english ? ".\nThe partial factors 1.3, 1.25, 1.2, 1.25 stand in for those that are not above 0."
                        : ".\nPartialfaktorene 1.3, 1.25, 1.2, 1.25 brukes for dem som ikke er over 0.";
    }
    return text;
}

std::string Setup_text(const SetupRecord& setup) {
    std::string text = setup.Setup_line[0] + "\r\n" + setup.Setup_line[1] + ";";
    text += setup.Language.View();
    text += "\r\n" + setup.Setup_line[2] + "\r\n" + setup.Setup_line[3] + "\r\n";
    for (const float factor : {setup.gam_timb, setup.gam_lam, setup.gam_kerto, setup.gam_k_bjelke}) {
        std::string number{Shortest(factor).View()};
        std::replace(number.begin(), number.end(), '.', Decimal_sign());
        text += number + ";";
    }
    text += "\r\n";
    return To_windows_1252(text);
}

void Write_setup(const SetupRecord& setup, const std::filesystem::path& folder) {
    Safe_write(folder / setup_file_written, Setup_text(setup), {OldTail::drop}, "Write_setup");
}

void Setup_to_state(ConnectionState& s) {
    s.Lang = s.Setup.Language;
    s.gm_T = s.Setup.gam_timb;
    s.gm_L = s.Setup.gam_lam;
    s.gm_Ke = s.Setup.gam_kerto;
    s.gm_K = s.Setup.gam_k_bjelke;
}

void State_to_setup(ConnectionState& s) {
    s.Setup.Language = s.Lang;
    s.Setup.gam_timb = s.gm_T;
    s.Setup.gam_lam = s.gm_L;
    s.Setup.gam_kerto = s.gm_Ke;
    s.Setup.gam_k_bjelke = s.gm_K;
}

} // namespace tarnvik
