#include "data/ProjectFile.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "calc/pass/Main_beregn.h"
#include "data/Startup.h"
#include "tests/support/Files.h"
#include "tests/support/RecordingMessageBox.h"

namespace tarnvik {
namespace {

namespace fs = std::filesystem;
using test::Fault_of;
using test::Open_project;
using test::Read_file;
using test::RecordingMessageBox;
using test::TemporaryFolder;
using test::Write_file;

// Bytes from hex digits; blanks and line ends between them are dropped.
std::string Hex(std::string_view digits) {
    std::string bytes;
    int half = -1;
    for (const char c : digits) {
        const std::size_t value = std::string_view{"0123456789ABCDEF"}.find(c);
        if (value == std::string_view::npos) {
            continue;
        }
        if (half < 0) {
            half = static_cast<int>(value);
        } else {
            bytes += static_cast<char>(16 * half + static_cast<int>(value));
            half = -1;
        }
    }
    return bytes;
}

std::string Zeros(std::size_t count) {
    return std::string(count, '\0');
}

// A project written by hand: two materials, two sections, a bolted joint with connectors in Norwegian.
std::string Hand_written() {
    return Hex("4E6F72"                                           // Nor
               "1500 46696C654E616D653A3B454335736574757 03B203B" // FileName:;EC5setup; ;
               "0800 4C616E6775616765"                            // Language
               "0700 303B313B323B33"                              // 0;1;2;3
               "2700 67616D5F74696D623B67616D5F6C616D3B67616D5F"  // gam_timb;gam_lam;gam_
               "     6B6572746F3B67616D5F6B2D626A656C6B65"        // kerto;gam_k-bjelke
               "0000 0000"                                        //
               "6666A63F 0000A03F 9A99993F 0000A03F"              // 1.3 1.25 1.2 1.25
               "0300 433230  0100 54  0000"                       // C20, T
               "0000A041 00009841 33331340 66666640 00701446"     // 20 19 2.3 3.6 9500
               "0000C845 00000000 0000A543 00000000"              // 6400 0 330 0
               "0500 474C333043  0100 4C  0000"                   // GL30C, L
               "0000F041 0000C441 00002040 00006040 00204B46"     // 30 24.5 2.5 3.5 13000
               "00C02846 00000000 0000C343 00000000") +           // 10800 0 390 0
           Zeros(99 * 42) +                                       // 99 rows without a material
           Hex("0100 0100"                                        // the second of two
               "0800 542020333478 3935  0100 54  0000"            // T  34x95, T
               "00000842 0000BE42"                                // 34 95
               "0800 4C203930783232 35  0100 4C  0000"            // L 90x225, L
               "0000B442 00006143") +                             // 90 225
           Zeros(399 * 14) +                                      // 399 rows without a section
           Hex("0000 0100 0100"                                   // member 1: the second of two
               "0000 0000 0100"                                   // member 2: the first of two
               "0700 5072F876652031"                              // Prøve 1
               "0700 53F8796C652032"                              // Søyle 2
               "0500 D87965626C696B6B736C617374 2020"             // 5, Øyeblikkslast
               "0300 0000 FFFF"                                   // service class 3, with connectors
               "0500 0300 0400 FFFF"                              // M16x8.8, D95, six bolts, from the table
               "0000B442 00006143 00000842 0000BE42"              // 90 225 34 95
               "000048C1 0000D841"                                // -12.5 27
               "0300 0000 FFFF FFFF 0000"                         // type 3, member 2 double, member 1 single
               "61 0400 FFFF 0000CB42") +                         // arrangement a, 7d, he typed: 101.5
           Zeros(624) +
           Zeros(101 * 2) + Zeros(100) + Zeros(100);
}

void Set_as_hand_written(ConnectionState& s) {
    s.Setup.Language = "Nor";
    s.Setup.Setup_line = {
        "FileName:;EC5setup; ;", "Language", "0;1;2;3", "gam_timb;gam_lam;gam_kerto;gam_k-bjelke", "", ""};
    s.Setup.gam_timb = 1.3F;
    s.Setup.gam_lam = 1.25F;
    s.Setup.gam_kerto = 1.2F;
    s.Setup.gam_k_bjelke = 1.25F;
    s.Mat[0] = {"C20", "T", "", 20.0F, 19.0F, 2.3F, 3.6F, 9500.0F, 6400.0F, 0.0F, 330.0F, 0.0F};
    s.Mat[1] = {"GL30C", "L", "", 30.0F, 24.5F, 2.5F, 3.5F, 13000.0F, 10800.0F, 0.0F, 390.0F, 0.0F};
    s.Mat_index = 1;
    s.Mat_count = 1;
    s.Prof[0] = {"T  34x95", "T", "", 34.0F, 95.0F};
    s.Prof[1] = {"L 90x225", "L", "", 90.0F, 225.0F};
    s.Prof1_index = 1;
    s.Prof1_count = 1;
    s.Prof2_index = 0;
    s.Prof2_count = 1;
    s.Prosjekt = "Prøve 1";
    s.Id = "Søyle 2";
    s.Lastvar = 5;
    s.Lastvar_txt = "Øyeblikkslast ";
    s.Klima = 3;
    s.Kun_bolt = false;
    s.Med_bulldog = true;
    s.Bolt_index = 5;
    s.Bulldog_index = 3;
    s.Ant_index = 4;
    s.Standard = true;
    s.b1 = 90.0F;
    s.h1 = 225.0F;
    s.b2 = 34.0F;
    s.h2 = 95.0F;
    s.P = -12.5F;
    s.alp = 27.0F;
    s.Con_type = 3;
    s.dob_1 = false;
    s.dob_2 = true;
    s.enk_1 = true;
    s.enk_2 = false;
    s.Bolt_ab = "a";
    s.Avstand_index = 4;
    s.Man_he_on = true;
    s.man_he = 101.5F;
}

// A field of the file in the state or in the record.
struct Slot {
    using Value =
        std::variant<std::int16_t*, float*, bool*, std::string*, FixedText<1>*, FixedText<3>*, FixedText<15>*>;

    std::string name;
    Value value;
};

// The fields in the order of the file, the reserved ones left out.
std::vector<Slot> Slots(ConnectionState& s, Project_record& r) {
    std::vector<Slot> slots{{"Language", &s.Setup.Language}};
    for (std::string& line : s.Setup.Setup_line) {
        slots.push_back({"Setup_line", &line});
    }
    slots.push_back({"gam_timb", &s.Setup.gam_timb});
    slots.push_back({"gam_lam", &s.Setup.gam_lam});
    slots.push_back({"gam_kerto", &s.Setup.gam_kerto});
    slots.push_back({"gam_k-bjelke", &s.Setup.gam_k_bjelke});
    for (std::size_t i = 0; i < 101; ++i) {
        const std::string name = "Mat " + std::to_string(i) + " ";
        slots.push_back({name + "Id", &s.Mat[i].Id});
        slots.push_back({name + "Type", &s.Mat[i].Type});
        slots.push_back({name + "Standard", &s.Mat[i].Standard});
        slots.push_back({name + "fmk", &s.Mat[i].fmk});
        slots.push_back({name + "fc0k", &s.Mat[i].fc0k});
        slots.push_back({name + "fc90k", &s.Mat[i].fc90k});
        slots.push_back({name + "fvk", &s.Mat[i].fvk});
        slots.push_back({name + "E0_mean", &s.Mat[i].E0_mean});
        slots.push_back({name + "E0_05", &s.Mat[i].E0_05});
        slots.push_back({name + "G", &s.Mat[i].G});
        slots.push_back({name + "dens", &s.Mat[i].dens});
        slots.push_back({name + "s_fac", &s.Mat[i].s_fac});
    }
    slots.push_back({"Mat_index", &s.Mat_index});
    slots.push_back({"Mat_count", &s.Mat_count});
    for (std::size_t i = 0; i < 401; ++i) {
        const std::string name = "Prof " + std::to_string(i) + " ";
        slots.push_back({name + "Id", &s.Prof[i].Id});
        slots.push_back({name + "Type", &s.Prof[i].Type});
        slots.push_back({name + "Standard", &s.Prof[i].Standard});
        slots.push_back({name + "b", &s.Prof[i].b});
        slots.push_back({name + "h", &s.Prof[i].h});
    }
    const Slot rest[] = {
        {"Prof1_index", &s.Prof1_index},
        {"Prof1_count", &s.Prof1_count},
        {"Prof2_index", &s.Prof2_index},
        {"Prof2_count", &s.Prof2_count},
        {"Prosjekt", &r.Prosjekt},
        {"Id", &r.Id},
        {"Lastvar", &r.Lastvar},
        {"Lastvar_txt", &r.Lastvar_txt},
        {"Klima", &r.Klima},
        {"Kun_bolt", &r.Kun_bolt},
        {"Med_bulldog", &r.Med_bulldog},
        {"Bolt_index", &r.Bolt_index},
        {"Bulldog_index", &r.Bulldog_index},
        {"Ant_index", &r.Ant_index},
        {"Standard", &r.Standard},
        {"b1", &r.b1},
        {"h1", &r.h1},
        {"b2", &r.b2},
        {"h2", &r.h2},
        {"P", &r.P},
        {"alp", &r.alp},
        {"Con_type", &r.Con_type},
        {"dob_1", &r.dob_1},
        {"dob_2", &r.dob_2},
        {"enk_1", &r.enk_1},
        {"enk_2", &r.enk_2},
        {"Bolt_ab", &r.Bolt_ab},
        {"Avstand_index", &r.Avstand_index},
        {"Man_he_on", &r.Man_he_on},
        {"man_he", &r.man_he},
    };
    slots.insert(slots.end(), std::begin(rest), std::end(rest));
    return slots;
}

bool Same(const Slot& one, const Slot& other) {
    return std::visit([&other](auto* value) { return *value == *std::get<decltype(value)>(other.value); }, one.value);
}

// A layout of the file of its own, beside the program's: every field with a value that no other field has, flags true.
class Layout {
public:
    Layout() {
        for (const Slot& slot : slots) {
            if (slot.name == "Prof1_index" || slot.name == "Prof2_index") {
                Word(0);
            } else if (slot.name == "Prosjekt") {
                record_begin = bytes.size();
            } else if (slot.name == "Prof 0 Id") {
                profiles_begin = bytes.size();
            }
            std::visit([this](auto* value) { Put(*value); }, slot.value);
            ends.push_back(bytes.size());
        }
        bytes += Zeros(624 + 2 * 101 + 100 + 100);
    }

    // The values in the state and in the record that give the bytes.
    std::unique_ptr<ConnectionState> state = std::make_unique<ConnectionState>();
    Project_record record;
    std::vector<Slot> slots = Slots(*state, record);
    std::vector<std::size_t> ends; // where each field ends
    std::string bytes;
    std::size_t profiles_begin{}, record_begin{};

private:
    void Word(unsigned value) {
        bytes += static_cast<char>(value & 0xFFU);
        bytes += static_cast<char>((value >> 8U) & 0xFFU);
    }
    void Put(std::int16_t& value) {
        value = static_cast<std::int16_t>(next_++);
        Word(static_cast<unsigned>(value));
    }
    void Put(float& value) {
        value = static_cast<float>(next_++) + 0.25F;
        const auto bits = std::bit_cast<std::uint32_t>(value);
        Word(bits & 0xFFFFU);
        Word(bits >> 16U);
    }
    void Put(bool& value) {
        value = true;
        Word(0xFFFFU);
    }
    void Put(std::string& value) {
        const std::string digits = std::to_string(next_++);
        value = "å" + digits; // one byte in the file, two in the state
        Word(static_cast<unsigned>(digits.size()) + 1);
        bytes += "\xE5" + digits;
    }
    template <std::size_t N> void Put(FixedText<N>& value) {
        const std::string text = std::string(N - 1, 'x') + static_cast<char>('a' + next_++ % 26);
        value = std::string_view{text};
        bytes += text;
    }

    int next_ = 1000;
};

// A stream over bytes that are not copied.
class Bytes : private std::streambuf, public std::istream {
public:
    explicit Bytes(std::string_view bytes) : std::istream(static_cast<std::streambuf*>(this)) {
        char* begin = const_cast<char*>(bytes.data()); // never written: there is no put area
        setg(begin, begin, begin + bytes.size());
    }
};

class ProjectFile : public testing::Test {
protected:
    // From a stream, and from the bytes of a file that has been read, which makes no difference.
    int Read(std::string_view bytes) {
        Project_record same_record = record;
        const auto same = std::make_unique<ConnectionState>(s);
        const int same_fault = Fault_of([&] { Load_project_bytes(*same, same_record, bytes); });
        const int fault = Fault_of([&] {
            Bytes file{bytes};
            Read_project(s, record, file);
        });
        EXPECT_EQ(same_fault, fault);
        EXPECT_EQ(Project_bytes(*same, same_record), Project_bytes(s, record));
        return fault;
    }
    int Open(const fs::path& path) { return Open_project(s, path, box); }

    TemporaryFolder folder;
    std::unique_ptr<ConnectionState> state_ = std::make_unique<ConnectionState>();
    ConnectionState& s = *state_;
    Project_record record;
    RecordingMessageBox box;
};

TEST_F(ProjectFile, the_program_writes_what_was_written_by_hand) {
    Set_as_hand_written(s);
    Save_project(s, folder / "a.tnvik");
    EXPECT_EQ(Read_file(folder / "a.tnvik"), Hand_written());
}

TEST_F(ProjectFile, what_was_written_by_hand_opens) {
    Write_file(folder / "a.tnvik", Hand_written());
    s.Lang = "Eng";
    EXPECT_EQ(Open(folder / "a.tnvik"), 0);
    EXPECT_TRUE(box.messages.empty());
    EXPECT_TRUE(s.Loading);
    EXPECT_EQ(s.Lang.View(), "Nor"); // the language of the file takes over
    EXPECT_EQ(s.gm_T, 1.3F);
    EXPECT_EQ(s.gm_L, 1.25F);
    EXPECT_EQ(s.gm_Ke, 1.2F);
    EXPECT_EQ(s.gm_K, 1.25F);
    EXPECT_EQ(s.Setup.Setup_line[3], "gam_timb;gam_lam;gam_kerto;gam_k-bjelke");
    EXPECT_EQ(s.Mat[1].Id, "GL30C");
    EXPECT_EQ(s.Mat[1].Type, "L");
    EXPECT_EQ(s.Mat[1].fc0k, 24.5F);
    EXPECT_EQ(s.Mat[1].dens, 390.0F);
    EXPECT_EQ(s.Mat[2].Id, "");
    EXPECT_EQ(s.Mat_index, 1);
    EXPECT_EQ(s.Mat_count, 1);
    EXPECT_EQ(s.Prof[0].Id, "T  34x95");
    EXPECT_EQ(s.Prof[1].h, 225.0F);
    EXPECT_EQ(s.Prof1_index, 1);
    EXPECT_EQ(s.Prof1_count, 1);
    EXPECT_EQ(s.Prof2_index, 0);
    EXPECT_EQ(s.Prof2_count, 1);
    EXPECT_EQ(s.Prosjekt, "Prøve 1");
    EXPECT_EQ(s.Id, "Søyle 2");
    EXPECT_EQ(s.Lastvar, 5);
    EXPECT_EQ(s.Lastvar_txt.View(), "Øyeblikkslast       "); // 15 characters, padded to 20
    EXPECT_EQ(s.Klima, 3);
    EXPECT_FALSE(s.Kun_bolt);
    EXPECT_TRUE(s.Med_bulldog);
    EXPECT_EQ(s.Bolt_index, 5);
    EXPECT_EQ(s.Bulldog_index, 3);
    EXPECT_EQ(s.dc, 95.0F);
    EXPECT_EQ(s.Ant_index, 4);
    EXPECT_TRUE(s.Standard);
    EXPECT_EQ(s.b1, 90.0F);
    EXPECT_EQ(s.h1, 225.0F);
    EXPECT_EQ(s.b2, 34.0F);
    EXPECT_EQ(s.h2, 95.0F);
    EXPECT_EQ(s.P, -12.5F);
    EXPECT_EQ(s.alp, 27.0F);
    EXPECT_EQ(s.Con_type, 3);
    EXPECT_FALSE(s.dob_1);
    EXPECT_TRUE(s.dob_2);
    EXPECT_TRUE(s.enk_1);
    EXPECT_FALSE(s.enk_2);
    EXPECT_EQ(s.Bolt_ab.View(), "a");
    EXPECT_EQ(s.Avstand_index, 4);
    EXPECT_TRUE(s.Man_he_on);
    EXPECT_EQ(s.man_he, 101.5F);
}

TEST_F(ProjectFile, an_empty_project_has_the_length_of_its_fixed_parts) {
    // 3 + 6 x 2 + 16, 101 x 42, 4, 401 x 14, 6, 6, and the record: 2 + 2 + 2 + 15 + 2 + 2 + 2 + 2 + 2 + 2 + 2 + 24 + 2
    // + 8 + 1
    // + 2 + 2 + 4 bytes of fields and 624 + 202 + 200 of reserve.
    EXPECT_EQ(Project_bytes(s, record).size(), 31U + 4242U + 4U + 5614U + 12U + 78U + 1026U);
}

TEST_F(ProjectFile, every_field_has_its_place) {
    const Layout layout;
    const std::vector<Slot> slots = Slots(s, record);
    ASSERT_EQ(slots.size(), 11U + 101U * 12U + 2U + 401U * 5U + 4U + 26U);
    EXPECT_TRUE(Project_bytes(*layout.state, layout.record) == layout.bytes);
    for (std::size_t i = 0; i < slots.size(); ++i) {
        ASSERT_FALSE(Same(slots[i], layout.slots[i])) << slots[i].name << " of a fresh state";
    }
    EXPECT_EQ(Read(layout.bytes), 0);
    for (std::size_t i = 0; i < slots.size(); ++i) {
        ASSERT_TRUE(Same(slots[i], layout.slots[i])) << slots[i].name;
    }
}

TEST_F(ProjectFile, every_flag_has_its_place) {
    struct Row {
        const char* name;
        bool Project_record::*flag;
        std::size_t at; // in the record, behind two empty texts
    };
    // clang-format off
    const Row rows[] = {
        {"Kun_bolt",    &Project_record::Kun_bolt,    23},
        {"Med_bulldog", &Project_record::Med_bulldog, 25},
        {"Standard",    &Project_record::Standard,    33},
        {"dob_1",       &Project_record::dob_1,       61},
        {"dob_2",       &Project_record::dob_2,       63},
        {"enk_1",       &Project_record::enk_1,       65},
        {"enk_2",       &Project_record::enk_2,       67},
        {"Man_he_on",   &Project_record::Man_he_on,   72},
    };
    // clang-format on
    const std::size_t begin = 31 + 4242 + 4 + 5614 + 12;
    const std::string none = Project_bytes(s, Project_record{});
    for (const Row& row : rows) {
        Project_record one;
        one.*row.flag = true;
        std::string expected = none;
        expected[begin + row.at] = '\xFF';
        expected[begin + row.at + 1] = '\xFF';
        EXPECT_TRUE(Project_bytes(s, one) == expected) << row.name;
        expected[begin + row.at] = '\x01'; // any other value than 0 is true
        expected[begin + row.at + 1] = '\0';
        EXPECT_EQ(Read(expected), 0);
        for (const Row& other : rows) {
            EXPECT_EQ(record.*other.flag, &other == &row) << row.name << ", " << other.name;
        }
    }
}

TEST_F(ProjectFile, from_the_state_to_the_record_and_back) {
    Set_as_hand_written(s);
    Fill_project(s, record);
    const auto other = std::make_unique<ConnectionState>();
    Apply_project(*other, record);
    Project_record again;
    Fill_project(*other, again);
    EXPECT_EQ(Project_bytes(s, again), Hand_written());
}

TEST_F(ProjectFile, a_name_in_the_box_goes_into_the_file_and_not_that_of_the_state) {
    Set_as_hand_written(s);
    Fill_project(s, record);
    record.Prosjekt = "typed";
    record.Id = "not yet accepted";
    Save_project(s, record, folder / "a.tnvik");
    EXPECT_EQ(Open(folder / "a.tnvik"), 0);
    EXPECT_EQ(s.Prosjekt, "typed");
    EXPECT_EQ(s.Id, "not yet accepted");
}

TEST_F(ProjectFile, the_class_name_is_cut_to_15_characters) {
    struct Row {
        const char* name;
        const char* kept;
        const char* bytes;
    };
    // clang-format off
    const Row rows[] = {
        {"Permanent action",     "Permanent actio     ", "Permanent actio"},
        {"Instantaneous action", "Instantaneous a     ", "Instantaneous a"},
        {"Halvårslast   ",       "Halvårslast         ", "Halv\xE5rslast    "},
        {"Øyeblikkslast ",       "Øyeblikkslast       ", "\xD8yeblikkslast  "},
        {"ååååååååååååååååååå",  "ååååååååååååååå     ",
         "\xE5\xE5\xE5\xE5\xE5\xE5\xE5\xE5\xE5\xE5\xE5\xE5\xE5\xE5\xE5"},
    };
    // clang-format on
    for (const Row& row : rows) {
        s.Lastvar_txt = row.name;
        Fill_project(s, record);
        const std::string bytes = Project_bytes(s, record);
        EXPECT_EQ(bytes.substr(31 + 4242 + 4 + 5614 + 12 + 6, 15), row.bytes);
        EXPECT_EQ(Read(bytes), 0);
        Apply_project(s, record);
        EXPECT_EQ(s.Lastvar_txt.View(), row.kept);
    }
}

TEST_F(ProjectFile, texts_are_in_the_code_page) {
    record.Prosjekt = "Søyle – 5 €, α";
    record.Id = "";
    const std::string bytes = Project_bytes(s, record);
    EXPECT_EQ(bytes.substr(31 + 4242 + 4 + 5614 + 12, 2 + 14 + 2), Hex("0E00 53F8796C6520 9620352080 2C203F  0000"));
    EXPECT_EQ(Read(bytes), 0);
    EXPECT_EQ(record.Prosjekt, "Søyle – 5 €, ?");
    EXPECT_EQ(record.Id, "");
}

TEST_F(ProjectFile, a_name_of_no_length_is_an_empty_name) {
    std::string bytes = Hand_written();
    const std::size_t at = bytes.find("Pr\xF8ve 1");
    bytes.replace(at - 2, 9, 2, '\0');
    Write_file(folder / "a.tnvik", bytes);
    s.Prosjekt = "former";
    EXPECT_EQ(Open(folder / "a.tnvik"), 0);
    EXPECT_EQ(s.Prosjekt, "");
    EXPECT_EQ(s.Id, "Søyle 2");
}

TEST_F(ProjectFile, a_fixed_text_may_be_filled_up_with_zeros) {
    std::string bytes = Hand_written();
    const std::size_t at = bytes.find("\xD8yeblikkslast  ");
    bytes.replace(at, 15, "\xD8ye" + Zeros(12));
    bytes.replace(0, 3, "No" + Zeros(1));
    EXPECT_EQ(Read(bytes), 0);
    EXPECT_EQ(record.Lastvar_txt.View(), "Øye            ");
    EXPECT_EQ(s.Setup.Language.View(), "No ");
}

TEST_F(ProjectFile, a_text_longer_than_its_length_can_tell_is_cut) {
    record.Prosjekt = std::string(70000, 'x');
    const std::string bytes = Project_bytes(s, record);
    EXPECT_EQ(Read(bytes), 0);
    EXPECT_EQ(record.Prosjekt, std::string(65535, 'x'));
}

TEST_F(ProjectFile, a_damaged_text_keeps_the_width_of_its_field) {
    s.Setup.Language = std::string_view{"\x80\x80\x80"};
    record.Lastvar_txt = std::string_view{"\xC3\x80\x80 x"};
    record.Bolt_ab = std::string_view{"\xFF\x80\x80\x80"};
    record.man_he = 7.0F;
    const std::string bytes = Project_bytes(s, record);
    EXPECT_EQ(bytes.size(), Project_bytes(s, Project_record{}).size());
    EXPECT_EQ(Read(bytes), 0);
    EXPECT_EQ(record.man_he, 7.0F);
}

TEST_F(ProjectFile, what_stands_in_the_reserve_is_skipped) {
    std::string bytes = Hand_written();
    bytes.resize(bytes.size() - 1026);
    const std::size_t record_begin = bytes.find("Pr\xF8ve 1") - 2;
    bytes.replace(record_begin - 12, 2, "\x01\x02"); // the words in front of the profile indices
    bytes.replace(record_begin - 6, 2, "\xFF\xFF");
    bytes += std::string(624, '\xAB');
    for (int i = 0; i < 101; ++i) {
        bytes += static_cast<char>(i);
        bytes += static_cast<char>(i % 10 == 0 ? 8 : 0); // now and then a text of some thousand bytes
        bytes += std::string(static_cast<std::size_t>(i + (i % 10 == 0 ? 2048 : 0)), 'r');
    }
    bytes += std::string(199, '\xCD');
    Write_file(folder / "a.tnvik", bytes);
    EXPECT_EQ(Open(folder / "a.tnvik"), fault_bad_record_length); // a byte is missing at the very end
    Write_file(folder / "a.tnvik", bytes + "\xCD");
    EXPECT_EQ(Open(folder / "a.tnvik"), 0);
    EXPECT_EQ(s.man_he, 101.5F);
    EXPECT_EQ(s.Prof1_index, 1);
    EXPECT_EQ(s.Prof2_count, 1);
    Save_project(s, folder / "b.tnvik"); // and written as zeros
    EXPECT_EQ(Read_file(folder / "b.tnvik"), Hand_written());
}

// Longer and longer pieces of one file: a piece changes the fields that it holds whole and no other. Every length at
// the ends of the tables and in the record; among the rows between, every 13th, which reaches every field of them.
TEST_F(ProjectFile, cut_short_it_ends_in_error_59_and_what_was_read_stays) {
    const Layout layout;
    const std::vector<Slot> slots = Slots(s, record);
    const auto is_row_between = [&layout](std::size_t length) {
        const auto between = [length](std::size_t begin, std::size_t end) {
            return length > begin + 200 && length + 200 < end;
        };
        return between(0, layout.profiles_begin) || between(layout.profiles_begin, layout.record_begin);
    };
    std::size_t read = 0; // number of fields that the piece holds whole
    for (std::size_t length = 0; length < layout.bytes.size(); length += is_row_between(length) ? 13 : 1) {
        ASSERT_EQ(Read(std::string_view{layout.bytes}.substr(0, length)), fault_bad_record_length) << length;
        while (read < slots.size() && layout.ends[read] <= length) {
            ASSERT_TRUE(Same(slots[read], layout.slots[read])) << slots[read].name << " at " << length;
            ++read;
        }
        if (read < slots.size()) {
            ASSERT_FALSE(Same(slots[read], layout.slots[read])) << slots[read].name << " at " << length;
        }
    }
    EXPECT_EQ(read, slots.size());
    EXPECT_EQ(Read(layout.bytes), 0);
}

TEST_F(ProjectFile, a_file_cut_short_leaves_a_mixed_state_on_which_a_pass_runs) {
    const std::string bytes = Hand_written();
    const std::size_t record_begin = bytes.find("Pr\xF8ve 1") - 2;
    for (const std::size_t length : {std::size_t{0}, std::size_t{2}, std::size_t{200}, std::size_t{4300},
                                     record_begin - 1, record_begin, record_begin + 60, bytes.size() - 1}) {
        Write_file(folder / "a.tnvik", std::string_view{bytes}.substr(0, length));
        Start_state(s, TARNVIK_DATA_DIR);
        box.messages.clear();
        EXPECT_EQ(Open(folder / "a.tnvik"), fault_bad_record_length);
        ASSERT_EQ(box.messages.size(), 1U) << length;
        EXPECT_FALSE(s.Loading) << length;
        // Tables and setup as far as they were read; language, factors and inputs are still the former ones.
        EXPECT_EQ(s.Setup.Language.View(), length < 3 ? "Eng" : "Nor");
        EXPECT_EQ(s.Mat[0].Id, length < 111 ? "C14" : "C20") << length;
        EXPECT_EQ(s.Mat_count, length < 4362 ? 36 : 1) << length;
        EXPECT_EQ(s.Prof[0].Id, length < 4372 ? "T  28x70" : "T  34x95") << length;
        EXPECT_EQ(s.Prof2_count, length < record_begin ? 219 : 1) << length;
        EXPECT_EQ(s.Lang.View(), "Eng");
        EXPECT_EQ(s.Prosjekt, "Project 1");
        EXPECT_EQ(s.P, 10.0F);
        EXPECT_EQ(s.Bolt_index, 6);
        // The pass of the mixed state meets rows without a material or a section, which it tells in its own ways.
        const PassResult result = Run_pass(s, nullptr, box);
        if (result.fault) {
            EXPECT_EQ(result.fault->number, fault_division_by_zero) << length;
            EXPECT_EQ(s.rho_k, 0.0F) << length;
        }
    }
}

TEST_F(ProjectFile, failures_that_have_a_message) {
    Write_file(folder / "short.tnvik", "Nor");
    struct Row {
        const char* name;
        fs::path path;
        int number;
        const char* text;
        int style;
        bool loading; // was true before
    };
    // clang-format off
    const Row rows[] = {
        {"missing file",   folder / "missing.tnvik",    53, " Can't find file ",                                      48, true},
        {"missing folder", folder / "missing/a.tnvik",  76, " Path not found ",                                       48, true},
        {"file as folder", folder / "short.tnvik/a",    76, " Path not found ",                                       48, true},
        {"cut short",      folder / "short.tnvik",      59, "Input file not compatible with Tarn-Vik Version  1.2.0",  0, false},
    };
    // clang-format on
    for (const char* lang : {"Eng", "Nor"}) { // English whatever the language
        for (const Row& row : rows) {
            s.Lang = lang;
            s.Loading = true;
            box.messages.clear();
            EXPECT_EQ(Open(row.path), row.number) << row.name;
            ASSERT_EQ(box.messages.size(), 1U) << row.name;
            EXPECT_EQ(box.messages[0].text, row.text) << row.name;
            EXPECT_EQ(box.messages[0].style, row.style) << row.name;
            EXPECT_EQ(s.Loading, row.loading) << row.name;
            EXPECT_EQ(s.Lang.View(), lang);
        }
    }
}

TEST_F(ProjectFile, any_other_failure_has_no_message) {
    EXPECT_EQ(Open(folder.Path()), fault_path_access);
    EXPECT_TRUE(box.messages.empty());
}

TEST_F(ProjectFile, a_missing_file_leaves_the_state) {
    Set_as_hand_written(s);
    EXPECT_EQ(Open(folder / "missing.tnvik"), fault_file_not_found);
    Fill_project(s, record);
    EXPECT_EQ(Project_bytes(s, record), Hand_written());
    EXPECT_FALSE(s.Loading);
}

TEST_F(ProjectFile, a_damaged_length_ends_in_error_59) {
    std::string bytes = Hand_written();
    bytes[3] = '\xFF'; // the first line of the setup is now longer than all that follows
    bytes[4] = '\xFF';
    EXPECT_EQ(Read(bytes), fault_bad_record_length);
    EXPECT_EQ(s.Setup.Language.View(), "Nor");
    EXPECT_EQ(s.Setup.Setup_line[0], "");
}

TEST_F(ProjectFile, a_foreign_file_ends_in_error_59) {
    Write_file(folder / "a.tnvik", "This is a letter and no project.\r\n");
    EXPECT_EQ(Open(folder / "a.tnvik"), fault_bad_record_length);
}

TEST_F(ProjectFile, a_count_beyond_its_table_is_a_failure_without_a_message) {
    const std::size_t material = Hand_written().find("T  34x95") - 4; // the count in front of the first section
    const std::size_t record_begin = Hand_written().find("Pr\xF8ve 1") - 2;
    struct Row {
        const char* name;
        std::size_t at;
        const char* good;
        const char* bad;
    };
    // clang-format off
    const Row rows[] = {
        {"Mat_count",   material,         "6400", "6500"}, // 100, 101
        {"Prof1_count", record_begin - 8, "9001", "9101"}, // 400, 401
        {"Prof2_count", record_begin - 2, "9001", "9101"},
    };
    // clang-format on
    for (const Row& row : rows) {
        std::string bytes = Hand_written();
        bytes.replace(row.at, 2, Hex(row.good));
        Write_file(folder / "a.tnvik", bytes);
        EXPECT_EQ(Open(folder / "a.tnvik"), 0) << row.name;
        bytes.replace(row.at, 2, Hex(row.bad));
        Write_file(folder / "a.tnvik", bytes);
        s.man_he = 0.0F;
        s.Loading = false;
        EXPECT_EQ(Open(folder / "a.tnvik"), fault_subscript) << row.name;
        EXPECT_TRUE(box.messages.empty()) << row.name;
        EXPECT_EQ(s.man_he, 101.5F) << row.name; // the fields were copied before
        EXPECT_TRUE(s.Loading) << row.name;
    }
}

TEST_F(ProjectFile, the_connector_diameter_follows_from_its_row) {
    const float diameters[] = {48.0F, 62.0F, 75.0F, 95.0F, 117.0F};
    for (std::int16_t row = 0; row < 5; ++row) {
        record.Bulldog_index = row;
        Apply_project(s, record);
        EXPECT_EQ(s.dc, diameters[row]);
    }
    for (const std::int16_t row : {std::int16_t{-1}, std::int16_t{5}}) {
        record.Bulldog_index = row;
        Apply_project(s, record);
        EXPECT_EQ(s.dc, 117.0F); // no such row: the diameter stays
    }
}

TEST_F(ProjectFile, bolts_only_is_the_contrary_of_with_connectors) {
    for (const bool with_connectors : {false, true}) {
        for (const bool bolts_only : {false, true}) {
            record.Kun_bolt = bolts_only;
            record.Med_bulldog = with_connectors;
            Apply_project(s, record);
            EXPECT_EQ(s.Med_bulldog, with_connectors);
            EXPECT_EQ(s.Kun_bolt, !with_connectors);
        }
    }
}

TEST_F(ProjectFile, free_entry_gets_its_texts_with_one_decimal) {
    record.Standard = false;
    record.b1 = 48.25F; // a half, away from zero
    record.h1 = 98.0F;
    record.b2 = 36.04F;
    record.h2 = 1234.96F;
    {
        const test::DecimalSign regional{','};
        Apply_project(s, record);
    }
    EXPECT_EQ(s.Txt_b1, "48,3");
    EXPECT_EQ(s.Txt_h1, "98,0");
    EXPECT_EQ(s.Txt_b2, "36,0");
    EXPECT_EQ(s.Txt_h2, "1235,0");
    EXPECT_EQ(s.b1, 48.25F);
    record.Standard = true;
    record.b1 = 1.0F;
    Apply_project(s, record);
    EXPECT_EQ(s.Txt_b1, "48,3"); // left as it stood
}

TEST_F(ProjectFile, a_project_opens_with_its_own_tables) {
    Start_state(s, TARNVIK_DATA_DIR);
    Save_project(s, folder / "a.tnvik");
    s.Mat[37].Id = "C99";
    s.Mat_count = 37;
    s.Prof[3].h = 96.0F;
    EXPECT_EQ(Open(folder / "a.tnvik"), 0);
    EXPECT_EQ(s.Mat_count, 36);
    EXPECT_EQ(s.Mat[37].Id, "");
    EXPECT_EQ(s.Prof[3].h, 95.0F);
}

TEST_F(ProjectFile, saving_over_a_longer_file_keeps_its_old_tail_and_the_project_opens) {
    Write_file(folder / "a.tnvik", std::string(20000, 't'));
    Set_as_hand_written(s);
    Save_project(s, folder / "a.tnvik");
    const std::string bytes = Hand_written();
    EXPECT_EQ(Read_file(folder / "a.tnvik"), bytes + std::string(20000 - bytes.size(), 't'));
    EXPECT_EQ(Open(folder / "a.tnvik"), 0);
    EXPECT_EQ(folder.Files(), 1U);
}

TEST_F(ProjectFile, saving_where_there_is_no_folder_fails_by_its_name) {
    try {
        Save_project(s, folder / "missing/a.tnvik");
        FAIL() << "no fault";
    } catch (const RuntimeFault& fault) {
        EXPECT_EQ(Fault_text(fault), "Run-time error 76: path not found (Save_project)");
    }
}

TEST_F(ProjectFile, every_flip_of_a_byte_opens_or_ends_in_a_numbered_failure) {
    const std::string sound = Hand_written();
    const std::size_t record_begin = sound.find("Pr\xF8ve 1") - 2;
    // The heads of setup and tables and the whole record; the rows between are alike.
    for (std::size_t at = 0; at < sound.size(); at += at < 300 || at >= record_begin - 12 ? 1 : 97) {
        if (at > record_begin + 100) {
            break;
        }
        for (const char value : {'\x00', '\x01', '\x7F', '\xFF'}) {
            std::string bytes = sound;
            bytes[at] = value;
            const int number = Read(bytes);
            if (number == 0) {
                const int applied = Fault_of([&] { Apply_project(s, record); });
                ASSERT_TRUE(applied == 0 || applied == fault_subscript) << at;
                box.messages.clear();
                Run_pass(s, nullptr, box);
            } else {
                ASSERT_EQ(number, fault_bad_record_length) << at;
            }
        }
    }
}

} // namespace
} // namespace tarnvik
