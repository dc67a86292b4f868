// The user's surroundings on Windows.
#include "platform/Machine.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <windows.h>

#include "data/Folders.h"
#include "platform/Path.h"
#include "platform/Region.h"
#include "session/SystemClock.h"
#include "tests/support/Files.h"

namespace tarnvik {
namespace {

TEST(Machine, the_users_folders_lie_below_the_local_application_data) {
    SetEnvironmentVariableW(L"LOCALAPPDATA", L"C:\\Users\\bj\u00f8rk\\AppData\\Local");
    EXPECT_EQ(Text_of(User_data_folder()), "C:\\Users\\bjørk\\AppData\\Local\\tarnvik");
    EXPECT_EQ(Text_of(User_state_folder()), "C:\\Users\\bjørk\\AppData\\Local\\tarnvik\\state");
    SetEnvironmentVariableW(L"LOCALAPPDATA", L"not absolute");
    EXPECT_TRUE(User_data_folder().empty());
    SetEnvironmentVariableW(L"LOCALAPPDATA", nullptr);
    EXPECT_TRUE(User_state_folder().empty());
}

TEST(Machine, the_first_start_fills_the_users_own_folder) {
    const test::TemporaryFolder folder;
    for (const char* name : {"TarnvikMaterial.csv", "TarnvikProfile.csv", "Tarnviksetup.csv"}) {
        std::filesystem::copy_file(std::filesystem::path{TARNVIK_DATA_DIR} / name, folder / name);
    }
    SetEnvironmentVariableW(L"LOCALAPPDATA", (folder / "bjørk").c_str());
    const DataFolder data = Find_data_folder(folder.Path());
    EXPECT_EQ(data.folder, folder / "bjørk" / "tarnvik");
    EXPECT_TRUE(Fill_data_folder(data));
    EXPECT_FALSE(Fill_data_folder(data));
    EXPECT_TRUE(std::filesystem::exists(data.folder / "Tarnviksetup.csv"));
    test::Write_file(folder / "tarnvik.folder", ".\r\n");
    EXPECT_EQ(Find_data_folder(folder.Path()).folder, folder.Path());
}

TEST(Machine, it_knows_itself) {
    EXPECT_EQ(Program_path("nothing").filename(), "windows_tests.exe");
    EXPECT_TRUE(Is_running(Process_number()));
    EXPECT_FALSE(Is_running(0x7ffffff0));
    EXPECT_FALSE(Host_name().empty());
}

TEST(Path, servers_drives_and_folders_of_the_run) {
    EXPECT_EQ(Text_of(Absolute_path(Path_of("//tjener/prosjekt/høyde/../bjørk.tnvik"))),
              "\\\\tjener\\prosjekt\\bjørk.tnvik");
    EXPECT_EQ(Text_of(Plain_path(Path_of("\\\\tjener\\prosjekt\\å.tnvik"))), "\\\\tjener\\prosjekt\\å.tnvik");
    EXPECT_EQ(Text_of(Absolute_path(Path_of("C:/x/./y.tnvik"))), "C:\\x\\y.tnvik");
    EXPECT_EQ(Absolute_path(Path_of("y.tnvik")), std::filesystem::current_path() / "y.tnvik");
    EXPECT_EQ(Text_of(Target_of(Path_of("//tjener/prosjekt/ny.tnvik"))), "\\\\tjener\\prosjekt\\ny.tnvik");
}

// As this process sees them; the program asks the same for each number and date that it shows.
TEST(Region, decimal_sign_and_date_are_the_users) {
    const LCID user = GetUserDefaultLCID();
    char sign[8]{};
    GetLocaleInfoA(user, LOCALE_SDECIMAL, sign, sizeof sign);
    EXPECT_EQ(Decimal_sign_text(), sign);
    EXPECT_EQ(System_decimal_sign(), sign[0] == ',' ? ',' : '.');
    std::tm day{};
    day.tm_year = 126;
    day.tm_mon = 10;
    day.tm_mday = 21;
    const std::string date = Date_text(day);
    EXPECT_NE(date.find("21"), std::string::npos) << date;
    EXPECT_NE(date.find("26"), std::string::npos) << date;
    EXPECT_GT(std::count_if(date.begin(), date.end(), [](char c) { return c < '0' || c > '9'; }), 1) << date;
    EXPECT_EQ(SystemClock{}.Now().time.size(), 8U);
}

} // namespace
} // namespace tarnvik
