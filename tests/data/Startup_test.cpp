#include "data/Startup.h"

#include <gtest/gtest.h>

#include <memory>

#include "calc/pass/Main_beregn.h"
#include "data/SetupFile.h"
#include "data/Tables.h"
#include "tests/support/Files.h"
#include "tests/support/RecordingMessageBox.h"

namespace tarnvik {
namespace {

namespace fs = std::filesystem;
using test::RecordingMessageBox;
using test::TemporaryFolder;
using test::Write_file;

class Startup : public testing::Test {
protected:
    Startup() {
        for (const char* name : {material_file, profile_file, setup_file_read}) {
            fs::copy_file(fs::path{TARNVIK_DATA_DIR} / name, folder / name);
        }
    }

    StartReport Start(std::optional<std::string_view> lang = std::nullopt) {
        return Start_state(s, folder.Path(), lang);
    }

    // The text of the failure, empty without one.
    std::string Failure() {
        try {
            Start();
        } catch (const DataFileError& error) {
            return error.Text();
        }
        return {};
    }

    void Add_rows(const char* name, int rows) const {
        std::string text;
        for (int i = 0; i < rows; ++i) {
            text += "X;T;S;48;98\r\n";
        }
        std::ofstream{folder / name, std::ios::binary | std::ios::app} << text;
    }

    TemporaryFolder folder;
    std::unique_ptr<ConnectionState> state_ = std::make_unique<ConnectionState>();
    ConnectionState& s = *state_;
};

TEST_F(Startup, the_delivered_files_give_a_new_project) {
    const StartReport report = Start();
    EXPECT_FALSE(report.setup);
    EXPECT_EQ(s.Lang.View(), "Eng");
    EXPECT_EQ(s.Prosjekt, "Project 1"); // the start values follow the language of the setup file
    EXPECT_EQ(s.File_name, "New File");
    EXPECT_EQ(s.gm_T, 1.3F);
    EXPECT_EQ(s.gm_L, 1.25F);
    EXPECT_EQ(s.gm_Ke, 1.2F);
    EXPECT_EQ(s.gm_K, 1.25F);
    EXPECT_EQ(s.Mat_count, 36);
    EXPECT_EQ(s.Prof1_count, 219);
    EXPECT_TRUE(s.Loading); // until the first pass has run
    EXPECT_EQ(s.Mat[static_cast<std::size_t>(s.Mat_index)].Id, "C20");
    EXPECT_EQ(s.Prof[static_cast<std::size_t>(s.Prof1_index)].Id, "T  34x95");
    EXPECT_EQ(s.Prof[static_cast<std::size_t>(s.Prof2_index)].Id, "T  36x73");

    RecordingMessageBox box;
    EXPECT_EQ(Run_pass(s, nullptr, box).end, PassEnd::normal);
    EXPECT_FALSE(s.Loading);
    EXPECT_EQ(s.b1, 34.0F);
    EXPECT_EQ(s.h1, 95.0F);
    EXPECT_EQ(s.b2, 36.0F);
    EXPECT_EQ(s.h2, 73.0F);
}

TEST_F(Startup, a_language_that_is_asked_for_overrides_the_setup_file) {
    Start("Nor");
    EXPECT_EQ(s.Lang.View(), "Nor");
    EXPECT_EQ(s.Prosjekt, "Prosjekt 1");
    EXPECT_EQ(s.File_name, "Ny Fil");
}

TEST_F(Startup, without_a_setup_file_texts_are_norwegian_and_factors_the_standards) {
    fs::remove(folder / setup_file_read);
    const StartReport report = Start();
    EXPECT_TRUE(report.setup);
    EXPECT_FALSE(Is_english(s));
    EXPECT_EQ(s.gm_T, 1.3F);
    EXPECT_EQ(s.gm_L, 1.25F);
    EXPECT_EQ(s.gm_Ke, 1.2F);
    EXPECT_EQ(s.gm_K, 1.25F);
    RecordingMessageBox box;
    EXPECT_EQ(Run_pass(s, nullptr, box).end, PassEnd::normal);
    EXPECT_EQ(s.Lastvar_txt.View(), "Permanent           ");
}

TEST_F(Startup, the_file_that_saving_writes_is_not_read) {
    fs::rename(folder / setup_file_read, folder / setup_file_written);
    EXPECT_TRUE(Start().setup.has_value());
}

TEST_F(Startup, a_missing_table_is_named_with_its_folder) {
    fs::remove(folder / material_file);
    EXPECT_EQ(Failure(), "TarnvikMaterial.csv in " + folder.Path().string() + ": file not found");
    fs::copy_file(fs::path{TARNVIK_DATA_DIR} / material_file, folder / material_file);
    fs::remove(folder / profile_file);
    EXPECT_EQ(Failure(), "TarnvikProfile.csv in " + folder.Path().string() + ": file not found");
    fs::create_directory(folder / profile_file);
    EXPECT_EQ(Failure(), "TarnvikProfile.csv in " + folder.Path().string() + ": not a regular file");
}

TEST_F(Startup, more_materials_than_the_table_holds_are_fatal) {
    Add_rows(material_file, 101 - 37);
    EXPECT_EQ(Failure(), "");
    EXPECT_EQ(s.Mat_count, 100);
    Add_rows(material_file, 1);
    EXPECT_EQ(Failure(), "TarnvikMaterial.csv in " + folder.Path().string() + ": more than 101 rows marked S");
}

TEST_F(Startup, more_sections_than_the_table_holds_are_fatal) {
    Add_rows(profile_file, 401 - 220);
    EXPECT_EQ(Failure(), "");
    EXPECT_EQ(s.Prof1_count, 400);
    Add_rows(profile_file, 1);
    EXPECT_EQ(Failure(), "TarnvikProfile.csv in " + folder.Path().string() + ": more than 401 rows marked S");
}

TEST_F(Startup, empty_tables_start_with_their_zeros) {
    Write_file(folder / material_file, "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n");
    Write_file(folder / profile_file, "");
    EXPECT_EQ(Failure(), "");
    EXPECT_EQ(s.Mat_count, -1);
    EXPECT_EQ(s.Prof1_count, -1);
    RecordingMessageBox box;
    EXPECT_EQ(Run_pass(s, nullptr, box).end, PassEnd::zero_section);
}

} // namespace
} // namespace tarnvik
