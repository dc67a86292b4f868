#include "data/SetupFile.h"

#include <algorithm>
#include <array>

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

void Default_setup(SetupRecord& setup) {
    setup = SetupRecord{};
    setup.gam_timb = 1.3F;
    setup.gam_lam = 1.25F;
    setup.gam_kerto = 1.2F;
    setup.gam_k_bjelke = 1.25F;
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
