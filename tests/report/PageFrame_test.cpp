#include "tests/support/Report.h"

namespace tarnvik {
namespace {

using namespace test;

Recorder Frame(const ConnectionState& s, int page = 1, const Moment& now = moment) {
    Recorder recorder;
    PrintHeader(recorder, s, now, 15, 290, page);
    return recorder;
}

TEST(PageFrame, eleven_lines_six_device_pixels_wide) {
    const Connection connection;
    const Recorder frame = Frame(*connection.s);
    const auto lines = Calls_of(frame, PrintCall::Op::Line);
    ASSERT_EQ(lines.size(), 11U);
    EXPECT_EQ(Line_of(lines[4]), "1 Line 162 278.5 185 278.5 width 6");
    EXPECT_EQ(Line_of(lines[9]), "1 Line 173 290 173 282 width 6");
    const std::vector<std::string> first{"1 CurrentY 290", "1 CurrentX 15", "1 DrawWidth 6"};
    const std::vector<std::string> all = Lines_of(frame);
    EXPECT_EQ(std::vector<std::string>(all.begin(), all.begin() + 3), first);
}

TEST(PageFrame, names_are_cut_into_two_lines_by_characters) {
    Connection connection;
    std::string name;
    for (int i = 0; i < 120; ++i) {
        name += i % 2 == 0 ? "ø" : "x";
    }
    connection.s->Prosjekt = name;
    connection.s->Id = name;
    const Recorder frame = Frame(*connection.s);
    const auto cut = [&](std::size_t first, std::size_t last) {
        std::string part;
        for (std::size_t i = first; i <= last; ++i) {
            part += i % 2 == 1 ? "ø" : "x";
        }
        return part;
    };
    EXPECT_EQ(Text_at(frame, 90.0F, 289.2F), cut(1, 37));
    EXPECT_EQ(Text_at(frame, 90.0F, 286.0F), cut(38, 97));
    EXPECT_EQ(Text_at(frame, 96.0F, 281.3F), cut(1, 44));
    EXPECT_EQ(Text_at(frame, 96.0F, 278.0F), cut(45, 104));
}

TEST(PageFrame, short_names_leave_the_second_line_empty) {
    Connection connection;
    connection.s->Prosjekt = std::string(37, 'p');
    connection.s->Id = std::string(44, 'i');
    const Recorder frame = Frame(*connection.s);
    EXPECT_EQ(Text_at(frame, 90.0F, 289.2F), std::string(37, 'p'));
    EXPECT_EQ(Text_at(frame, 90.0F, 286.0F), "");
    EXPECT_EQ(Text_at(frame, 96.0F, 278.0F), "");
}

TEST(PageFrame, the_file_is_named_once_there_is_one) {
    Connection connection;
    EXPECT_EQ(connection.s->File_name, "New File");
    EXPECT_EQ(Text_at(Frame(*connection.s), 23.0F, 274.3F), "");
    connection.s->File_name = "/home/me/" + std::string(200, 'x') + ".tnvik";
    connection.s->File_named = true;
    const Recorder frame = Frame(*connection.s);
    EXPECT_EQ(Text_at(frame, 23.0F, 274.3F), connection.s->File_name);
    EXPECT_EQ(Print_of(frame, connection.s->File_name).font.size, 8.0F);
}

TEST(PageFrame, both_pages_are_of_one) {
    const Connection connection;
    for (int page = 1; page <= 2; ++page) {
        const Recorder frame = Frame(*connection.s, page);
        EXPECT_EQ(Text_at(frame, 174.0F, 286.0F), std::to_string(page));
        EXPECT_EQ(Text_at(frame, 177.0F, 286.0F), "/ 1");
    }
}

TEST(PageFrame, date_and_time_stand_at_the_same_place_in_both_languages) {
    const Connection english{"Eng"};
    const Connection norwegian{"Nor"};
    const Recorder eng = Frame(*english.s);
    const Recorder nor = Frame(*norwegian.s);
    // "Date:" is 4895 units of 1/2048 em wide, at 7 points.
    const auto date_x =
        static_cast<float>(165.0 + static_cast<double>(static_cast<float>(4895 / 2048.0 * 7 * 25.4 / 72)));
    EXPECT_EQ(Print_of(eng, "21.11.2026").x, date_x);
    EXPECT_EQ(Print_of(nor, "21.11.2026").x, date_x);
    EXPECT_EQ(Print_of(eng, "08:09:10").x, Print_of(nor, "08:09:10").x);
    EXPECT_EQ(Print_of(eng, "08:09:10").font, (PrintFont{"arial", 7.0F, false, false}));
    EXPECT_EQ(Print_of(nor, "Dato:").x, Print_of(eng, "Date:").x);
    EXPECT_EQ(Print_of(nor, "Tid:").x, Print_of(eng, "Time:").x);
}

TEST(PageFrame, only_the_product_name_is_bold) {
    const Connection connection;
    for (const PrintCall& call : Prints(Frame(*connection.s))) {
        EXPECT_EQ(call.font.bold, call.text == "Tarnvik") << call.text;
        EXPECT_EQ(call.font.name, "arial");
        EXPECT_FALSE(call.font.italic);
    }
}

TEST(PageFrame, words_of_the_languages) {
    const Connection norwegian{"Nor"};
    const Recorder frame = Frame(*norwegian.s);
    for (const char* text : {"Beregning av bolteforbindelser ifølge Eurocode 5", "Versjon  1.2.0",
                             "Prosjekt:", "Side:", "Identifikation:", "File:"}) {
        EXPECT_TRUE(Printed(frame, text)) << text;
    }
    EXPECT_TRUE(Printed(Frame(*Connection{"Eng"}.s), "Version  1.2.0"));
}

} // namespace
} // namespace tarnvik
