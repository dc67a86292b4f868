// Damaged data files: whatever they hold, the readers report nothing, and the start goes on or stops at the counts.
//
// Byte 0: bits 0 and 1 choose the file, bit 2 the decimal sign, bit 3 puts the seven heading lines in front.
#include <string>

#include "Fuzz.h"
#include "calc/pass/Main_beregn.h"
#include "data/SetupFile.h"
#include "data/StartValue.h"
#include "data/Tables.h"
#include "tests/support/RecordingMessageBox.h"

namespace {

using namespace tarnvik;

void Use(ConnectionState& s) {
    FUZZ_CHECK(s.Mat_count >= -1 && s.Prof1_count >= -1 && s.Prof2_count == s.Prof1_count);
    const bool fits = s.Mat_count < mat_rows && s.Prof1_count < prof_rows;
    try {
        Check_counts(s);
        FUZZ_CHECK(fits);
    } catch (const RuntimeFault& fault) {
        FUZZ_CHECK(!fits && fault.number == fault_subscript);
        return;
    }
    StartValue(s);
    test::RecordingMessageBox box;
    Run_pass(s, nullptr, box);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto s = std::make_unique<ConnectionState>();
    fuzz::Input input{data, size};
    const unsigned kind = input.Byte();
    Set_decimal_sign((kind & 4U) != 0 ? ',' : '.');
    *s = fuzz::New_project();
    std::string text = (kind & 8U) != 0 ? "1\n2\r3\r\n4\n5\n6\n7\n" : "";
    text += input.Rest();
    fuzz::ByteStream file{text};

    switch (kind % 4U) {
    case 0:
        Read_material(*s, file);
        break;
    case 1:
        Read_profile(*s, file);
        break;
    default: {
        Read_setup(s->Setup, file);
        Setup_to_state(*s);
        // What the program writes, it reads back.
        const std::string written = Setup_text(s->Setup);
        SetupRecord again;
        fuzz::ByteStream stream{written};
        Read_setup(again, stream);
        FUZZ_CHECK(again.Language == s->Setup.Language || s->Setup.Language.View().find(';') != std::string_view::npos);
        FUZZ_CHECK(again.gam_timb == s->Setup.gam_timb && again.gam_lam == s->Setup.gam_lam);
        FUZZ_CHECK(again.gam_kerto == s->Setup.gam_kerto && again.gam_k_bjelke == s->Setup.gam_k_bjelke);
        FUZZ_CHECK(again.Setup_line[0] == s->Setup.Setup_line[0]);
        break;
    }
    }
    Use(*s);
    return 0;
}
