#include "data/Tables.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "data/Lines.h"
#include "tests/support/Files.h"

namespace tarnvik {
namespace {

using test::Fault_of;

const std::string headings = "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n";

class Tables : public testing::Test {
protected:
    void Material(const std::string& rows) {
        std::istringstream file{headings + rows};
        Read_material(s, file);
    }
    void Profile(const std::string& rows) {
        std::istringstream file{headings + rows};
        Read_profile(s, file);
    }

    std::unique_ptr<ConnectionState> state_ = std::make_unique<ConnectionState>();
    ConnectionState& s = *state_;
};

struct MaterialRow {
    const char* Id;
    const char* Type;
    float fmk, fc0k, fc90k, fvk, E0_mean, E0_05, dens;
};

// clang-format off
constexpr std::array<MaterialRow, 37> delivered_materials{{
//   Id        Type   fmk     fc0k    fc90k   fvk    E0_mean    E0_05      dens
    {"C14",     "T",   14.0F,  16.0F,  2.0F,   3.0F,  7000.0F,   4700.0F,   290.0F},
    {"C16",     "T",   16.0F,  17.0F,  2.2F,   3.2F,  8000.0F,   5400.0F,   310.0F},
    {"C18",     "T",   18.0F,  18.0F,  2.2F,   3.4F,  9000.0F,   6000.0F,   320.0F},
    {"C20",     "T",   20.0F,  19.0F,  2.3F,   3.6F,  9500.0F,   6400.0F,   330.0F},
    {"C22",     "T",   22.0F,  20.0F,  2.4F,   3.8F,  10000.0F,  6700.0F,   340.0F},
    {"C24",     "T",   24.0F,  21.0F,  2.5F,   4.0F,  11000.0F,  7400.0F,   350.0F},
    {"C27",     "T",   27.0F,  22.0F,  2.6F,   4.0F,  11500.0F,  7700.0F,   370.0F},
    {"C30",     "T",   30.0F,  23.0F,  2.7F,   4.0F,  12000.0F,  8000.0F,   380.0F},
    {"C35",     "T",   35.0F,  25.0F,  2.8F,   4.0F,  13000.0F,  8700.0F,   400.0F},
    {"C40",     "T",   40.0F,  26.0F,  2.9F,   4.0F,  14000.0F,  9400.0F,   420.0F},
    {"C45",     "T",   45.0F,  27.0F,  3.1F,   4.0F,  15000.0F,  10000.0F,  440.0F},
    {"C50",     "T",   50.0F,  29.0F,  3.2F,   4.0F,  16000.0F,  10700.0F,  460.0F},
    {"D18",     "T",   18.0F,  18.0F,  7.5F,   3.4F,  9500.0F,   8000.0F,   475.0F},
    {"D24",     "T",   24.0F,  21.0F,  7.8F,   4.0F,  10000.0F,  8500.0F,   485.0F},
    {"D30",     "T",   30.0F,  23.0F,  8.0F,   4.0F,  11000.0F,  9200.0F,   530.0F},
    {"D35",     "T",   35.0F,  25.0F,  8.1F,   4.0F,  12000.0F,  10100.0F,  640.0F},
    {"D40",     "T",   40.0F,  26.0F,  8.3F,   4.0F,  13000.0F,  10900.0F,  550.0F},
    {"D50",     "T",   50.0F,  29.0F,  9.3F,   4.0F,  14000.0F,  11800.0F,  620.0F},
    {"D60",     "T",   60.0F,  32.0F,  10.5F,  4.5F,  17000.0F,  14300.0F,  700.0F},
    {"D70",     "T",   70.0F,  34.0F,  13.5F,  5.0F,  20000.0F,  16800.0F,  900.0F},
    {"GL20C",   "L",   20.0F,  18.5F,  2.5F,   3.5F,  10400.0F,  8600.0F,   355.0F},
    {"GL20H",   "L",   20.0F,  20.0F,  2.5F,   3.5F,  8400.0F,   7000.0F,   340.0F},
    {"GL22C",   "L",   22.0F,  20.0F,  2.5F,   3.5F,  10400.0F,  8600.0F,   355.0F},
    {"GL22H",   "L",   22.0F,  22.0F,  2.5F,   3.5F,  10500.0F,  8800.0F,   370.0F},
    {"GL24C",   "L",   24.0F,  21.5F,  2.5F,   3.5F,  11000.0F,  9100.0F,   365.0F},
    {"GL24H",   "L",   24.0F,  24.0F,  2.5F,   3.5F,  11500.0F,  9600.0F,   385.0F},
    {"GL26C",   "L",   26.0F,  23.5F,  2.5F,   3.5F,  12000.0F,  10000.0F,  385.0F},
    {"GL26H",   "L",   26.0F,  26.0F,  2.5F,   3.5F,  12100.0F,  10100.0F,  405.0F},
    {"GL28C",   "L",   28.0F,  24.0F,  2.5F,   3.5F,  12500.0F,  10400.0F,  390.0F},
    {"GL28H",   "L",   28.0F,  28.0F,  2.5F,   3.5F,  12600.0F,  10500.0F,  425.0F},
    {"GL30C",   "L",   30.0F,  24.5F,  2.5F,   3.5F,  13000.0F,  10800.0F,  390.0F},
    {"GL30H",   "L",   30.0F,  30.0F,  2.5F,   3.5F,  13600.0F,  11300.0F,  430.0F},
    {"GL32C",   "L",   32.0F,  24.5F,  2.5F,   3.5F,  13500.0F,  11200.0F,  400.0F},
    {"GL32H",   "L",   32.0F,  32.0F,  2.5F,   3.5F,  14200.0F,  11800.0F,  440.0F},
    {"CE L40c", "L",   30.8F,  25.4F,  2.7F,   3.5F,  13000.0F,  10500.0F,  400.0F},
    {"Kerto-S", "Ke",  44.0F,  35.0F,  6.0F,   4.1F,  13800.0F,  11600.0F,  510.0F},
    {"K-bjelke", "K",   24.0F,  21.0F,  2.5F,   3.5F,  11000.0F,  7400.0F,   460.0F},
}};

struct Sections {
    const char* prefix;
    const char* Type;
    int b;
    std::vector<int> h;
};

// From first to last in steps of 45.
std::vector<int> Steps(int first, int last) {
    std::vector<int> values;
    for (int value = first; value <= last; value += 45) {
        values.push_back(value);
    }
    return values;
}

std::vector<int> Join(const std::vector<std::vector<int>>& parts) {
    std::vector<int> values;
    for (const auto& part : parts) {
        values.insert(values.end(), part.begin(), part.end());
    }
    return values;
}

// The sections of the delivered file that are marked S, in file order.
const std::vector<Sections>& Delivered_sections() {
    static const std::vector<Sections> sections{
        {"T  ", "T",   28, {70, 95}},
        {"T  ", "T",   34, {70, 95, 120, 145}},
        {"T  ", "T",   36, {73, 98, 123, 148, 173, 198}},
        {"T  ", "T",   45, {45, 70, 95, 120, 145, 170, 195, 220}},
        {"T  ", "T",   48, {73, 98, 123, 148, 173, 198, 223}},
        {"T  ", "T",   61, {98, 123, 148, 173, 198, 223}},
        {"T  ", "T",   70, {70}},
        {"T  ", "T",   73, {98, 123, 148, 173, 198, 223}},
        {"T  ", "T",   95, {95}},
        {"T  ", "T",   98, {98, 123, 148, 173, 198, 223}},
        {"T  ", "T",  150, {150}},
        {"L ",  "L",   42, Steps(90, 405)},
        {"L ",  "L",   56, Steps(180, 540)},
        {"L ",  "L",   66, Steps(90, 675)},
        {"L ",  "L",   78, Steps(180, 675)},
        {"L ",  "L",   90, Join({{90, 115, 135}, Steps(180, 900), {845, 990}, Steps(1035, 1215)})},
        {"L ",  "L",  115, Join({{90, 115, 135}, Steps(180, 900), {845, 990}, Steps(1035, 1350)})},
        {"L ",  "L",  140, Join({{135, 140, 180}, Steps(225, 900), {845, 990}, Steps(1035, 1620)})},
        {"Ke ", "Ke",  36, {200, 250, 300, 350, 400}},
        {"Ke ", "Ke",  39, {200, 225, 250, 300, 350, 400}},
        {"Ke ", "Ke",  45, {200, 225, 250, 300, 350, 400}},
        {"Ke ", "Ke",  48, {200, 225, 250, 300, 350, 400}},
        {"K ",  "K",   36, {68, 98, 148, 198, 200, 250, 300}},
        {"K ",  "K",   45, {68, 98, 148, 198}},
        {"K ",  "K",   48, {200, 250, 300}},
    };
    return sections;
}
// clang-format on

TEST_F(Tables, the_delivered_material_file_gives_37_rows) {
    Read_material(s, std::filesystem::path{TARNVIK_DATA_DIR});
    ASSERT_EQ(s.Mat_count, 36);
    for (std::size_t i = 0; i < delivered_materials.size(); ++i) {
        const MaterialRow& row = delivered_materials[i];
        EXPECT_EQ(s.Mat[i].Id, row.Id);
        EXPECT_EQ(s.Mat[i].Type, row.Type) << row.Id;
        EXPECT_EQ(s.Mat[i].fmk, row.fmk) << row.Id;
        EXPECT_EQ(s.Mat[i].fc0k, row.fc0k) << row.Id;
        EXPECT_EQ(s.Mat[i].fc90k, row.fc90k) << row.Id;
        EXPECT_EQ(s.Mat[i].fvk, row.fvk) << row.Id;
        EXPECT_EQ(s.Mat[i].E0_mean, row.E0_mean) << row.Id;
        EXPECT_EQ(s.Mat[i].E0_05, row.E0_05) << row.Id;
        EXPECT_EQ(s.Mat[i].dens, row.dens) << row.Id;
        EXPECT_EQ(s.Mat[i].Standard, "") << row.Id; // tested, not stored
        EXPECT_EQ(s.Mat[i].G, 0.0F) << row.Id;      // never read
        EXPECT_EQ(s.Mat[i].s_fac, 0.0F) << row.Id;  // never read, 0.12 of Kerto-S either
    }
    EXPECT_EQ(s.Mat[3].Id, "C20"); // the material of a new project
    EXPECT_EQ(s.Mat[37].Id, "");
}

TEST_F(Tables, the_delivered_profile_file_gives_220_rows) {
    Read_profile(s, std::filesystem::path{TARNVIK_DATA_DIR});
    std::size_t i = 0;
    for (const Sections& sections : Delivered_sections()) {
        for (const int h : sections.h) {
            const ProfRecord& row = s.Prof.at(i++);
            EXPECT_EQ(row.Id, sections.prefix + std::to_string(sections.b) + "x" + std::to_string(h));
            EXPECT_EQ(row.Type, sections.Type);
            EXPECT_EQ(row.b, static_cast<float>(sections.b));
            EXPECT_EQ(row.h, static_cast<float>(h));
            EXPECT_EQ(row.Standard, "");
        }
    }
    EXPECT_EQ(i, 220U);
    EXPECT_EQ(s.Prof1_count, 219);
    EXPECT_EQ(s.Prof2_count, 219);
    EXPECT_EQ(s.Prof[220].Id, "");
    EXPECT_EQ(s.Prof[3].Id, "T  34x95"); // the sections of a new project
    EXPECT_EQ(s.Prof[6].Id, "T  36x73");
}

TEST_F(Tables, the_delivered_profile_file_holds_57_rows_that_are_not_standard) {
    std::ifstream file = Open_text(std::filesystem::path{TARNVIK_DATA_DIR} / profile_file, "Test");
    int rows = 0;
    int not_standard = 0;
    for (int number = 0; const auto line = Read_line(file); ++number) {
        if (number >= 7) {
            ++rows;
            const auto fields = Split(*line);
            ASSERT_EQ(fields.size(), 5U) << *line;
            not_standard += fields[2] == "NS" && fields[1] == "Ke" ? 1 : 0;
        }
    }
    EXPECT_EQ(rows, 277);
    EXPECT_EQ(not_standard, 57);
}

TEST_F(Tables, the_delivered_files_end_their_lines_with_carriage_return_and_line_feed) {
    for (const char* name : {material_file, profile_file, "Tarnviksetup.csv"}) {
        const std::string bytes = test::Read_file(std::filesystem::path{TARNVIK_DATA_DIR} / name);
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            if (bytes[i] == '\n') {
                ASSERT_TRUE(i > 0 && bytes[i - 1] == '\r') << name << " at " << i;
            }
        }
        EXPECT_EQ(bytes.substr(bytes.size() - 2), "\r\n") << name;
    }
}

TEST_F(Tables, seven_heading_lines_are_skipped_whatever_they_hold) {
    std::istringstream file{"C1;T;S;1\r\n\r\n;;S\r\nC4;T;S;1\r\nC5;T;S;1\r\nC6;T;S;1\r\nC7;T;S;1\r\nC8;T;S;8\r\n"};
    Read_material(s, file);
    EXPECT_EQ(s.Mat_count, 0);
    EXPECT_EQ(s.Mat[0].Id, "C8");
}

TEST_F(Tables, heading_lines_alone_give_a_last_index_of_minus_one) {
    Material("");
    Profile("");
    EXPECT_EQ(s.Mat_count, -1);
    EXPECT_EQ(s.Prof1_count, -1);
    EXPECT_EQ(s.Prof2_count, -1);
    Check_counts(s); // an empty list is no failure
    std::istringstream shorter{"1\r\n2\r\n"};
    Read_material(s, shorter);
    EXPECT_EQ(s.Mat_count, -1);
}

TEST_F(Tables, the_mark_is_one_character) {
    struct Row {
        const char* mark;
        bool counts;
    };
    // clang-format off
    const Row rows[] = {
        {"S",        true},
        {"S ",       true},
        {"Standard", true},
        {"SN",       true},
        {"NS",       false},
        {"s",        false},
        {"",         false},
        {" S",       false},
        {"\"S\"",    false},
    };
    // clang-format on
    for (const Row& row : rows) {
        Material("C1;T;" + std::string{row.mark} + ";1\r\n");
        EXPECT_EQ(s.Mat_count, row.counts ? 0 : -1) << '"' << row.mark << '"';
        Profile("P1;T;" + std::string{row.mark} + ";1;2\r\n");
        EXPECT_EQ(s.Prof1_count, row.counts ? 0 : -1) << '"' << row.mark << '"';
    }
}

TEST_F(Tables, a_row_that_does_not_count_leaves_no_gap) {
    Material("C1;T;S;1\r\nC2;T;NS;2\r\n\r\nC3;T\r\nC4\r\n;\r\nC5;T;S;5\r\n");
    EXPECT_EQ(s.Mat_count, 1);
    EXPECT_EQ(s.Mat[0].Id, "C1");
    EXPECT_EQ(s.Mat[1].Id, "C5");
    EXPECT_EQ(s.Mat[1].fmk, 5.0F);
}

TEST_F(Tables, texts_are_read_as_they_stand) {
    Profile(" T  28x70 ;Ke ;S;28;70\r\n");
    EXPECT_EQ(s.Prof[0].Id, " T  28x70 ");
    EXPECT_EQ(s.Prof[0].Type, "Ke ");
    Material("Gr\xE5n;T;S\r\n");
    EXPECT_EQ(s.Mat[0].Id, "Grån");
}

TEST_F(Tables, a_comma_and_a_point_serve_alike_in_the_material_file) {
    for (const char sign : {'.', ','}) { // whatever the regional settings
        const test::DecimalSign regional{sign};
        Material("C1;T;S;12,5;12.5; 3,25 ;+4.5;1e4;-0,5;9;330,5;0\r\n");
        EXPECT_EQ(s.Mat[0].fmk, 12.5F);
        EXPECT_EQ(s.Mat[0].fc0k, 12.5F);
        EXPECT_EQ(s.Mat[0].fc90k, 3.25F);
        EXPECT_EQ(s.Mat[0].fvk, 4.5F);
        EXPECT_EQ(s.Mat[0].E0_mean, 10000.0F);
        EXPECT_EQ(s.Mat[0].E0_05, -0.5F);
        EXPECT_EQ(s.Mat[0].dens, 330.5F);
        EXPECT_EQ(s.Mat[0].G, 0.0F);
    }
}

TEST_F(Tables, text_that_is_no_number_gives_zero_in_the_material_file) {
    s.Mat[0].fmk = 7.0F;
    s.Mat[0].fc0k = 7.0F;
    s.Mat[0].fc90k = 7.0F;
    Material("C1;T;S;abc;;12abc\r\n");
    EXPECT_EQ(s.Mat[0].fmk, 0.0F);
    EXPECT_EQ(s.Mat[0].fc0k, 0.0F);
    EXPECT_EQ(s.Mat[0].fc90k, 12.0F);
}

TEST_F(Tables, a_number_that_does_not_fit_leaves_the_field) {
    s.Mat[0].fmk = 7.0F;
    s.Prof[0].b = 8.0F;
    Material("C1;T;S;1e39;2\r\n");
    Profile("P1;T;S;1e39;2\r\n");
    EXPECT_EQ(s.Mat[0].fmk, 7.0F);
    EXPECT_EQ(s.Mat[0].fc0k, 2.0F); // the statement behind it is taken
    EXPECT_EQ(s.Prof[0].b, 8.0F);
    EXPECT_EQ(s.Prof[0].h, 2.0F);
}

TEST_F(Tables, sections_are_read_by_the_regional_settings) {
    Profile("P0;T;S;28.5;70\r\nP1;T;S;28,5;70\r\n");
    EXPECT_EQ(s.Prof[0].b, 28.5F);
    EXPECT_EQ(s.Prof[1].b, 0.0F); // there is no comma rule
    EXPECT_EQ(s.Prof[1].h, 70.0F);

    const test::DecimalSign regional{','};
    Profile("P0;T;S;36.5;73\r\nP1;T;S;36,5;73\r\n");
    EXPECT_EQ(s.Prof[0].b, 28.5F); // unchanged
    EXPECT_EQ(s.Prof[0].h, 73.0F);
    EXPECT_EQ(s.Prof[1].b, 36.5F);
}

TEST_F(Tables, a_section_that_is_no_number_leaves_the_field) {
    s.Prof[0].b = 7.0F;
    s.Prof[0].h = 8.0F;
    Profile("P1;T;S;abc;\r\n");
    EXPECT_EQ(s.Prof[0].b, 7.0F);
    EXPECT_EQ(s.Prof[0].h, 8.0F);
    Profile("P1;T;S;48 mm;48x98\r\n");
    EXPECT_EQ(s.Prof[0].b, 7.0F);
    EXPECT_EQ(s.Prof[0].h, 8.0F);
}

TEST_F(Tables, a_short_row_keeps_what_its_table_row_held) {
    s.Mat[0] = {"old", "L", "x", 1, 2, 3, 4, 5, 6, 7, 8, 9};
    s.Prof[0] = {"old", "L", "x", 1, 2};
    Material("C1;T;S;14\r\n");
    EXPECT_EQ(s.Mat[0].Id, "C1");
    EXPECT_EQ(s.Mat[0].Type, "T");
    EXPECT_EQ(s.Mat[0].Standard, "x");
    EXPECT_EQ(s.Mat[0].fmk, 14.0F);
    EXPECT_EQ(s.Mat[0].fc0k, 2.0F);
    EXPECT_EQ(s.Mat[0].E0_05, 6.0F);
    EXPECT_EQ(s.Mat[0].dens, 8.0F);
    EXPECT_EQ(s.Mat_count, 0);
    Profile(";;S\r\n");
    EXPECT_EQ(s.Prof[0].Id, "");
    EXPECT_EQ(s.Prof[0].Type, "");
    EXPECT_EQ(s.Prof[0].b, 1.0F);
    EXPECT_EQ(s.Prof[0].h, 2.0F);
    EXPECT_EQ(s.Prof1_count, 0);
}

TEST_F(Tables, more_fields_than_columns_are_dropped) {
    Profile("P1;T;S;28;70;99;more\r\n");
    EXPECT_EQ(s.Prof[0].b, 28.0F);
    EXPECT_EQ(s.Prof[0].h, 70.0F);
}

std::string Rows(int count) {
    std::string rows;
    for (int i = 0; i < count; ++i) {
        rows += std::to_string(i) + ";T;S;1;2\r\n";
    }
    return rows;
}

TEST_F(Tables, a_full_table_is_no_failure) {
    Material(Rows(101));
    Profile(Rows(401));
    EXPECT_EQ(s.Mat_count, 100);
    EXPECT_EQ(s.Prof1_count, 400);
    EXPECT_EQ(s.Mat[100].Id, "100");
    EXPECT_EQ(s.Prof[400].Id, "400");
    Check_counts(s);
}

TEST_F(Tables, rows_past_the_end_are_counted_and_not_stored) {
    Material(Rows(102));
    EXPECT_EQ(s.Mat_count, 101);
    EXPECT_EQ(s.Mat[100].Id, "100");
    EXPECT_EQ(Fault_of([&] { Check_counts(s); }), fault_subscript);
    Material(Rows(1));
    EXPECT_EQ(Fault_of([&] { Check_counts(s); }), 0);
    Profile(Rows(402));
    EXPECT_EQ(s.Prof1_count, 401);
    EXPECT_EQ(s.Prof2_count, 401);
    EXPECT_EQ(s.Prof[400].Id, "400");
    EXPECT_EQ(Fault_of([&] { Check_counts(s); }), fault_subscript);
}

TEST_F(Tables, the_counter_stops_at_the_end_of_its_16_bits) {
    Material(Rows(40000));
    EXPECT_EQ(s.Mat_count, 32766);
    EXPECT_EQ(Fault_of([&] { Check_counts(s); }), fault_subscript);
}

TEST_F(Tables, a_missing_file_is_told) {
    const test::TemporaryFolder folder;
    EXPECT_EQ(Fault_of([&] { Read_material(s, folder.Path()); }), fault_file_not_found);
    EXPECT_EQ(Fault_of([&] { Read_profile(s, folder.Path()); }), fault_file_not_found);
    std::filesystem::create_directory(folder / material_file);
    EXPECT_EQ(Fault_of([&] { Read_material(s, folder.Path()); }), fault_path_access);
}

} // namespace
} // namespace tarnvik
