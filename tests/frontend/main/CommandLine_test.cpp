#include "frontend/main/CommandLine.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

const std::filesystem::path root = std::filesystem::current_path().root_path();

TEST(CommandLine, takes_one_project_or_none) {
    EXPECT_EQ(Parse_command_line({}).project, "");
    EXPECT_EQ(Parse_command_line({"/tmp/a.tnvik"}).project, (root / "tmp/a.tnvik").make_preferred().string());
    EXPECT_EQ(Parse_command_line({"a b.tnvik"}).project, (std::filesystem::current_path() / "a b.tnvik").string());
    EXPECT_EQ(Parse_command_line({"--", "-a.tnvik"}).project, (std::filesystem::current_path() / "-a.tnvik").string());
    EXPECT_NE(Parse_command_line({"a.tnvik", "b.tnvik"}).error, "");
    EXPECT_NE(Parse_command_line({""}).error, "");
}

TEST(CommandLine, answers_help_and_version_and_refuses_the_rest) {
    EXPECT_TRUE(Parse_command_line({"--help"}).help);
    EXPECT_TRUE(Parse_command_line({"--version"}).version);
    EXPECT_EQ(Parse_command_line({"--wrong"}).error, "unknown option --wrong; see tarnvik --help");
    EXPECT_NE(Parse_command_line({"-x"}).error, "");
    const std::string help = Command_line_help("/home/anna/data");
    EXPECT_NE(help.find("tarnvik [OPTION]... [PROJECT.tnvik]"), std::string::npos);
    EXPECT_NE(help.find("/home/anna/data"), std::string::npos);
}

TEST(CommandLine, takes_the_data_folder_in_both_forms) {
    EXPECT_EQ(Parse_command_line({"--data", "/d", "a.tnvik"}).data, (root / "d").string());
    EXPECT_EQ(Parse_command_line({"--data=/d"}).data, (root / "d").string());
    EXPECT_EQ(Parse_command_line({"a.tnvik"}).data, "");
    EXPECT_NE(Parse_command_line({"--data"}).error, "");
    EXPECT_NE(Parse_command_line({"--data="}).error, "");
}

class OpenedProject : public WindowTest {};

TEST_F(OpenedProject, a_project_of_the_command_line_opens_as_from_the_menu) {
    Start();
    dialogs.answer = (work / "joint.tnvik").string();
    Enter_value("Txt_last", "7.5");
    Menu("mnuFileItem(3)");
    Enter_value("Txt_last", "1");
    window->Open((work / "joint.tnvik").string());
    Settle();
    EXPECT_EQ(s.P, 7.5F);
    EXPECT_EQ(Caption(), "Tarnvik: " + (work / "joint.tnvik").string());
    EXPECT_TRUE(boxes.messages.empty());
}

} // namespace
} // namespace tarnvik::test
