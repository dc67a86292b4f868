#include "data/SetupFile.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>

#include "tests/support/Files.h"

namespace tarnvik {
namespace {

using test::Fault_of;
using test::Read_file;
using test::TemporaryFolder;
using test::Write_file;

const std::string delivered = "FileName:;EC5setup; ;\r\nLanguage;Eng\r\n0;1;2;3\r\n"
                              "gam_timb;gam_lam;gam_kerto;gam_k-bjelke\r\n1.3;1.25;1.2;1.25;\r\n";

SetupRecord Read(const std::string& bytes, SetupRecord setup = {}) {
    std::istringstream file{bytes};
    Read_setup(setup, file);
    return setup;
}

void Expect_factors(const SetupRecord& setup, float timb, float lam, float kerto, float k_bjelke) {
    EXPECT_EQ(setup.gam_timb, timb);
    EXPECT_EQ(setup.gam_lam, lam);
    EXPECT_EQ(setup.gam_kerto, kerto);
    EXPECT_EQ(setup.gam_k_bjelke, k_bjelke);
}

TEST(SetupFile, reads_one_name_and_writes_another) {
    EXPECT_STREQ(setup_file_read, "Tarnviksetup.csv");
    EXPECT_STREQ(setup_file_written, "Tarviksetup.csv");
}

TEST(SetupFile, the_delivered_file) {
    EXPECT_EQ(Read_file(std::filesystem::path{TARNVIK_DATA_DIR} / setup_file_read), delivered);
    SetupRecord setup;
    Read_setup(setup, std::filesystem::path{TARNVIK_DATA_DIR});
    EXPECT_EQ(setup.Language.View(), "Eng");
    EXPECT_EQ(setup.Setup_line[0], "FileName:;EC5setup; ;");
    EXPECT_EQ(setup.Setup_line[1], "Language"); // its first field only
    EXPECT_EQ(setup.Setup_line[2], "0;1;2;3");
    EXPECT_EQ(setup.Setup_line[3], "gam_timb;gam_lam;gam_kerto;gam_k-bjelke");
    EXPECT_EQ(setup.Setup_line[4], "");
    EXPECT_EQ(setup.Setup_line[5], "");
    Expect_factors(setup, 1.3F, 1.25F, 1.2F, 1.25F);
}

TEST(SetupFile, a_comma_and_a_point_serve_alike) {
    for (const char sign : {'.', ','}) {
        const test::DecimalSign regional{sign};
        Expect_factors(Read("a\r\nLanguage;Nor\r\nb\r\nc\r\n1,3;1,25;1,2;1,25;\r\n"), 1.3F, 1.25F, 1.2F, 1.25F);
        Expect_factors(Read("a\r\nLanguage;Nor\r\nb\r\nc\r\n1.3;1.25;1.2;1.25;\r\n"), 1.3F, 1.25F, 1.2F, 1.25F);
    }
}

TEST(SetupFile, the_language_is_cut_or_padded_to_three_characters) {
    EXPECT_EQ(Read("a\r\nLanguage;English\r\n").Language.View(), "Eng");
    EXPECT_EQ(Read("a\r\nLanguage;N\r\n").Language.View(), "N  ");
    EXPECT_EQ(Read("a\r\nLanguage;\r\n").Language.View(), "   ");
    EXPECT_EQ(Read("a\r\nLanguage;Nor;more\r\n").Language.View(), "Nor");
    EXPECT_EQ(Read("a\r\nLanguage;\xD8st\xE5\r\n").Language.View(), "Øst");
}

TEST(SetupFile, what_a_short_file_does_not_give_stays) {
    const SetupRecord former = Read("old 0\r\nold 1;Nor\r\nold 2\r\nold 3\r\n2;3;4;5\r\n");
    struct Row {
        const char* name;
        const char* bytes;
        const char* lines; // of the first four lines: n new, o old
        const char* language;
        float factors[4];
    };
    // clang-format off
    const Row rows[] = {
        {"empty",              "",                                  "oooo", "Nor", {2, 3, 4, 5}},
        {"one line",           "n",                                 "nooo", "Nor", {2, 3, 4, 5}},
        {"no language field",  "n\r\nn\r\n",                        "nnoo", "Nor", {2, 3, 4, 5}},
        {"two lines",          "n\r\nn;Eng\r\n",                    "nnoo", "Eng", {2, 3, 4, 5}},
        {"four lines",         "n\r\nn;Eng\r\nn\r\nn",              "nnnn", "Eng", {2, 3, 4, 5}},
        {"two factors",        "n\r\nn;Eng\r\nn\r\nn\r\n7;8",       "nnnn", "Eng", {7, 8, 4, 5}},
        {"an empty factor",    "n\r\nn;Eng\r\nn\r\nn\r\n7;8;",      "nnnn", "Eng", {7, 8, 0, 5}},
        {"no number",          "n\r\nn;Eng\r\nn\r\nn\r\nx;8;9;1;",  "nnnn", "Eng", {0, 8, 9, 1}},
        {"too large",          "n\r\nn;Eng\r\nn\r\nn\r\n7;1e39;9;1","nnnn", "Eng", {7, 3, 9, 1}},
    };
    // clang-format on
    for (const Row& row : rows) {
        const SetupRecord setup = Read(row.bytes, former);
        for (std::size_t i = 0; i < 4; ++i) {
            EXPECT_EQ(setup.Setup_line[i], row.lines[i] == 'n' ? "n" : "old " + std::to_string(i)) << row.name;
        }
        EXPECT_EQ(setup.Language.View(), row.language) << row.name;
        Expect_factors(setup, row.factors[0], row.factors[1], row.factors[2], row.factors[3]);
    }
}

TEST(SetupFile, written_text_is_the_layout_of_the_delivered_file) {
    EXPECT_EQ(Setup_text(Read(delivered)), delivered);
}

TEST(SetupFile, norwegian_regional_settings_write_commas_and_they_read_back) {
    const SetupRecord setup = Read(delivered);
    const test::DecimalSign regional{','};
    const std::string text = Setup_text(setup);
    EXPECT_EQ(text, "FileName:;EC5setup; ;\r\nLanguage;Eng\r\n0;1;2;3\r\n"
                    "gam_timb;gam_lam;gam_kerto;gam_k-bjelke\r\n1,3;1,25;1,2;1,25;\r\n");
    Expect_factors(Read(text), 1.3F, 1.25F, 1.2F, 1.25F);
}

TEST(SetupFile, without_a_file_read_the_heading_lines_are_written_empty) {
    SetupRecord setup;
    setup.Language = "Nor";
    setup.gam_timb = 1.0F;
    EXPECT_EQ(Setup_text(setup), "\r\n;Nor\r\n\r\n\r\n1;0;0;0;\r\n");
}

TEST(SetupFile, texts_are_written_in_the_code_page) {
    SetupRecord setup;
    setup.Setup_line[0] = "Høyde α";
    EXPECT_EQ(Setup_text(setup).substr(0, 9), "H\xF8yde ?\r\n");
}

TEST(SetupFile, what_is_saved_is_not_what_the_next_start_reads) {
    const TemporaryFolder folder;
    Write_file(folder / setup_file_read, delivered);
    SetupRecord setup = Read(delivered);
    setup.Language = "Nor";
    setup.gam_timb = 1.5F;
    Write_setup(setup, folder.Path());
    EXPECT_EQ(Read_file(folder / setup_file_read), delivered);
    EXPECT_EQ(Read_file(folder / setup_file_written),
              "FileName:;EC5setup; ;\r\nLanguage;Nor\r\n0;1;2;3\r\n"
              "gam_timb;gam_lam;gam_kerto;gam_k-bjelke\r\n1.5;1.25;1.2;1.25;\r\n");
    SetupRecord next;
    Read_setup(next, folder.Path());
    EXPECT_EQ(next.gam_timb, 1.3F);
    EXPECT_EQ(next.Language.View(), "Eng");
}

TEST(SetupFile, saving_replaces_a_longer_file) {
    const TemporaryFolder folder;
    Write_file(folder / setup_file_written, delivered + delivered);
    Write_setup(Read(delivered), folder.Path());
    EXPECT_EQ(Read_file(folder / setup_file_written), delivered);
}

TEST(SetupFile, failures_have_numbers) {
    const TemporaryFolder folder;
    SetupRecord setup;
    EXPECT_EQ(Fault_of([&] { Read_setup(setup, folder.Path()); }), fault_file_not_found);
    EXPECT_EQ(Fault_of([&] { Write_setup(setup, folder / "missing"); }), fault_path_not_found);
}

// A setup file as a start finds it.
class LoadedSetup : public testing::Test {
protected:
    void Load(std::string_view bytes) {
        Write_file(folder / setup_file_read, bytes);
        problem = Load_setup(setup, folder.Path());
    }
    std::string Text(bool english) const {
        return problem ? Setup_problem_text(*problem, "/f", english) : std::string{};
    }

    TemporaryFolder folder;
    SetupRecord setup;
    std::optional<SetupProblem> problem;
};

TEST_F(LoadedSetup, what_stands_in_for_a_missing_file) {
    setup = Read(delivered);
    problem = Load_setup(setup, folder.Path());
    EXPECT_EQ(setup.Language.View(), "   "); // which gives Norwegian texts
    EXPECT_EQ(setup.Setup_line[0], "");
    Expect_factors(setup, 1.3F, 1.25F, 1.2F, 1.25F);
    EXPECT_EQ(Text(true), "Tarnviksetup.csv in /f: file not found.\nNorwegian texts and the partial factors 1.3, 1.25, "
                          "1.2, 1.25 are used.");
    EXPECT_EQ(Text(false), "Tarnviksetup.csv i /f: filen finnes ikke.\nNorske tekster og partialfaktorene 1.3, 1.25, "
                           "1.2, 1.25 brukes.");
}

TEST_F(LoadedSetup, a_whole_file_has_no_problem) {
    Load(delivered);
    EXPECT_FALSE(problem);
    Load("a\r\nLanguage;Nor\r\nb\r\nc\r\n1.5;1.6;1.7;1.8"); // no last line end
    EXPECT_FALSE(problem);
    Expect_factors(setup, 1.5F, 1.6F, 1.7F, 1.8F);
}

TEST_F(LoadedSetup, an_empty_file_is_told_as_that) {
    Load("");
    EXPECT_TRUE(Text(true).starts_with("Tarnviksetup.csv in /f: the file is empty.\nNorwegian texts")) << Text(true);
    Expect_factors(setup, 1.3F, 1.25F, 1.2F, 1.25F);
}

TEST_F(LoadedSetup, a_cut_file_is_told_by_its_last_line_and_keeps_its_language) {
    Load("a\r\nLanguage;Eng\r\nb\r\n");
    EXPECT_TRUE(Text(true).starts_with("Tarnviksetup.csv in /f, line 3: expected five lines, the file ends here.\n"
                                       "The partial factors"))
        << Text(true);
    EXPECT_EQ(setup.Language.View(), "Eng");
    Expect_factors(setup, 1.3F, 1.25F, 1.2F, 1.25F);
}

TEST_F(LoadedSetup, shifted_lines_are_told_by_the_line_of_the_factors) {
    Load("new\r\na\r\nLanguage;Eng\r\nb\r\ngam_timb;gam_lam;gam_kerto;gam_k-bjelke\r\n1.3;1.25;1.2;1.25;\r\n");
    EXPECT_TRUE(Text(false).starts_with("Tarnviksetup.csv i /f, linje 5: ventet fire partialfaktorer over 0, fant "
                                        "\"gam_timb;gam_lam;gam_kerto;gam_k-bjelke\"."))
        << Text(false);
    Expect_factors(setup, 1.3F, 1.25F, 1.2F, 1.25F);
}

TEST_F(LoadedSetup, a_factor_that_is_not_above_0_is_replaced_and_the_others_stay) {
    Load("a\r\nLanguage;Eng\r\nb\r\nc\r\n1.5;0;-2;1.8;\r\n");
    ASSERT_TRUE(problem);
    EXPECT_EQ(problem->line, 5);
    Expect_factors(setup, 1.5F, 1.25F, 1.2F, 1.8F);
}

TEST_F(LoadedSetup, what_is_no_regular_file_or_too_large_is_refused_at_once) {
    std::filesystem::create_directory(folder / setup_file_read);
    problem = Load_setup(setup, folder.Path());
    EXPECT_TRUE(Text(true).starts_with("Tarnviksetup.csv in /f: not a regular file.")) << Text(true);
    EXPECT_TRUE(Text(false).starts_with("Tarnviksetup.csv i /f: ikke en vanlig fil.")) << Text(false);
    std::filesystem::remove(folder / setup_file_read);
    Load("");
    std::filesystem::resize_file(folder / setup_file_read, 64U * 1024U * 1024U + 1U); // takes no room on the disk
    problem = Load_setup(setup, folder.Path());
    EXPECT_TRUE(Text(true).starts_with("Tarnviksetup.csv in /f: larger than 64 MB.")) << Text(true);
}

TEST(SetupFile, working_values_and_record_are_copied_both_ways) {
    const auto state = std::make_unique<ConnectionState>();
    ConnectionState& s = *state;
    s.Setup = Read("a\r\nLanguage;Nor\r\nb\r\nc\r\n1.5;1.6;1.7;1.8;\r\n");
    Setup_to_state(s);
    EXPECT_EQ(s.Lang.View(), "Nor");
    EXPECT_EQ(s.gm_T, 1.5F);
    EXPECT_EQ(s.gm_L, 1.6F);
    EXPECT_EQ(s.gm_Ke, 1.7F);
    EXPECT_EQ(s.gm_K, 1.8F);
    s.Lang = "Eng";
    s.gm_T = 2.5F;
    s.gm_L = 2.6F;
    s.gm_Ke = 2.7F;
    s.gm_K = 2.8F;
    State_to_setup(s);
    EXPECT_EQ(s.Setup.Language.View(), "Eng");
    Expect_factors(s.Setup, 2.5F, 2.6F, 2.7F, 2.8F);
    EXPECT_EQ(s.Setup.Setup_line[0], "a");
}

} // namespace
} // namespace tarnvik
