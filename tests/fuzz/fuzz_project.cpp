// Damaged project files: opening one ends in success or in error 59 or 9, never otherwise, and a pass, its JSON and its
// summary work on whatever state is left.
//
// A project file is some 13 kB of which most bytes are rows of the tables, so that plain mutation hardly ever reaches
// the record behind them. The input is therefore a list of edits of a sound file: byte 0 is the kind, then one edit
// after the other. Kind 0 takes the rest of the input as the whole file instead.
#include <algorithm>
#include <array>
#include <bit>
#include <limits>
#include <string>

#include "Fuzz.h"
#include "calc/pass/Main_beregn.h"
#include "check/Json.h"
#include "check/Summary.h"
#include "data/ProjectFile.h"

#include <nlohmann/json.hpp>

namespace {

using namespace tarnvik;
using fuzz::Input;

// Where the parts of the sound file begin: edits aim at them as well as at the whole.
struct SoundFile {
    std::string bytes;
    std::array<std::size_t, 6> parts{}; // setup, materials, their indices, profiles, their indices, record
};

const SoundFile& Sound_file() {
    static const SoundFile file = [] {
        SoundFile made;
        const ConnectionState& s = fuzz::New_project();
        Project_record record;
        Fill_project(s, record);
        made.bytes = Project_bytes(s, record);
        std::size_t at = 3;
        for (const std::string& line : s.Setup.Setup_line) {
            at += 2 + line.size();
        }
        at += 16;
        made.parts[1] = at;
        for (const MatRecord& row : s.Mat) {
            at += 42 + row.Id.size() + row.Type.size();
        }
        made.parts[2] = at;
        made.parts[3] = at += 4;
        for (const ProfRecord& row : s.Prof) {
            at += 14 + row.Id.size() + row.Type.size();
        }
        made.parts[4] = at;
        made.parts[5] = at + 12;
        return made;
    }();
    return file;
}

void Put(std::string& file, std::size_t at, std::uint32_t value, std::size_t count) {
    for (std::size_t i = 0; i < count && at + i < file.size(); ++i) {
        file[at + i] = static_cast<char>(value & 0xFFU);
        value >>= 8U;
    }
}

std::string Edited(Input& input) {
    constexpr std::array<float, 12> floats{0.0F,
                                           -0.0F,
                                           1.0F,
                                           -1.0F,
                                           90.0F,
                                           1e-45F,
                                           1e30F,
                                           std::numeric_limits<float>::max(),
                                           std::numeric_limits<float>::lowest(),
                                           std::numeric_limits<float>::infinity(),
                                           -std::numeric_limits<float>::infinity(),
                                           std::numeric_limits<float>::quiet_NaN()};
    constexpr std::array<std::int16_t, 12> words{0, -1, 1, 2, 5, 8, 100, 101, 400, 401, 32767, -32768};
    const SoundFile& sound = Sound_file();
    std::string file = sound.bytes;
    for (int edits = 0; edits < 64 && !input.Empty(); ++edits) {
        const unsigned what = input.Byte();
        const std::size_t origin = what & 0x80U ? sound.parts[(what >> 4U) % sound.parts.size()] : 0;
        const std::size_t at = file.empty() ? 0 : (origin + input.Word()) % file.size();
        switch (what % 8U) {
        case 0:
            Put(file, at, input.Byte(), 1);
            break;
        case 1:
            Put(file, at, input.Word(), 2);
            break;
        case 2:
            Put(file, at, static_cast<std::uint16_t>(words[input.Byte() % words.size()]), 2);
            break;
        case 3:
            Put(file, at, std::bit_cast<std::uint32_t>(floats[input.Byte() % floats.size()]), 4);
            break;
        case 4: {
            const std::size_t count = input.Byte() % 16U;
            file.insert(at, input.Bytes(count));
            break;
        }
        case 5:
            file.erase(at, input.Byte());
            break;
        case 6:
            file.resize(at);
            break;
        default:
            // Filling up: the file is read to its end even where an edit has made its texts longer.
            file.append(input.Word() % 4096U, static_cast<char>(input.Byte()));
            break;
        }
    }
    return file;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto s = std::make_unique<ConnectionState>();
    static const auto again = std::make_unique<ConnectionState>();
    Input input{data, size};
    const std::string file = input.Byte() == 0 ? std::string{input.Rest()} : Edited(input);
    *s = fuzz::New_project();

    Project_record record;
    bool opened = false;
    bool applied = false;
    try {
        fuzz::ByteStream stream{file};
        Read_project(*s, record, stream);
        opened = true;
        Apply_project(*s, record);
        applied = true;
    } catch (const RuntimeFault& fault) {
        FUZZ_CHECK(fault.number == (opened ? fault_subscript : fault_bad_record_length));
    }

    if (opened && size % 4 == 0) {
        // What was read and written once stays the same from then on. One input in four: it takes most of the time.
        const std::string written = Project_bytes(*s, record);
        FUZZ_CHECK(written.size() <= file.size());
        *again = fuzz::New_project();
        Project_record record_again;
        fuzz::ByteStream stream{written};
        Read_project(*again, record_again, stream);
        FUZZ_CHECK(Project_bytes(*again, record_again) == written);
    }

    // The pass runs after a failed opening as well.
    Screen screen;
    MessageLog box;
    const PassResult result = Run_pass(*s, &screen, box);
    FUZZ_CHECK((result.end == PassEnd::fault) == result.fault.has_value());
    Options options;
    options.with = {"screen"};
    std::string json;
    Append_result(json, options, applied ? "project" : "", *s, screen, result, box);
    FUZZ_CHECK(size % 4 != 0 || nlohmann::json::accept(json));
    options.fields = {"Mat", "Prof", "Setup"};
    if (size % 16 == 0) { // the tables are long, and the same code writes every row
        json.clear();
        options.with = {"tables", "pictures", "detail", "explanations", "report"};
        Append_result(json, options, {}, *s, screen, result, box, [&] { return fuzz::Print_on_recorder(*s, screen); });
        FUZZ_CHECK(nlohmann::json::accept(json));
    }
    FUZZ_CHECK(!Summary("project", *s, result, box).empty());
    return 0;
}
