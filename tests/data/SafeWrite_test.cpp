#include "data/SafeWrite.h"

#include <gtest/gtest.h>

#include "tests/support/Files.h"

namespace tarnvik {
namespace {

namespace fs = std::filesystem;
using test::Fault_of;
using test::Read_file;
using test::TemporaryFolder;
using test::Write_file;

int Save(const fs::path& path, std::string_view content, OldTail tail = OldTail::keep) {
    return Fault_of([&] { Safe_write(path, content, {tail}, "Test"); });
}

TEST(SafeWrite, a_new_file_holds_the_content_and_nothing_else_is_left) {
    const TemporaryFolder folder;
    EXPECT_EQ(Save(folder / "Ny Fil", std::string("a\0\r\n\xFF", 5)), 0);
    EXPECT_EQ(Read_file(folder / "Ny Fil"), std::string("a\0\r\n\xFF", 5));
    EXPECT_EQ(folder.Files(), 1U);
}

TEST(SafeWrite, an_empty_content_makes_an_empty_file) {
    const TemporaryFolder folder;
    EXPECT_EQ(Save(folder / "empty", ""), 0);
    EXPECT_EQ(Read_file(folder / "empty"), "");
}

TEST(SafeWrite, a_longer_file_keeps_its_old_tail_byte_for_byte) {
    const TemporaryFolder folder;
    std::string old(200000, '\0'); // longer than any block of the copy
    for (std::size_t i = 0; i < old.size(); ++i) {
        old[i] = static_cast<char>(i * 7 + i / 256);
    }
    for (const std::size_t length : {std::size_t{0}, std::size_t{1}, std::size_t{65535}, std::size_t{65536},
                                     std::size_t{199999}, std::size_t{200000}, std::size_t{200001}}) {
        Write_file(folder / "a", old);
        const std::string content(length, 'n');
        EXPECT_EQ(Save(folder / "a", content), 0);
        const std::string tail = length < old.size() ? old.substr(length) : std::string{};
        EXPECT_EQ(Read_file(folder / "a"), content + tail) << length;
    }
    EXPECT_EQ(folder.Files(), 1U);
}

TEST(SafeWrite, a_file_that_is_replaced_loses_its_tail) {
    const TemporaryFolder folder;
    Write_file(folder / "a", "a long former content");
    EXPECT_EQ(Save(folder / "a", "short", OldTail::drop), 0);
    EXPECT_EQ(Read_file(folder / "a"), "short");
}

TEST(SafeWrite, a_bare_name_goes_to_the_current_folder) {
    const TemporaryFolder folder;
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    const int number = Save("Ny Fil", "content");
    fs::current_path(before);
    EXPECT_EQ(number, 0);
    EXPECT_EQ(Read_file(folder / "Ny Fil"), "content");
}

TEST(SafeWrite, what_is_no_place_for_a_file_is_refused) {
    const TemporaryFolder folder;
    Write_file(folder / "file", "former");
    fs::create_directory(folder / "folder");
    EXPECT_EQ(Save(folder / "missing/a", "content"), fault_path_not_found);
    EXPECT_EQ(Save(folder / "file/a", "content"), fault_path_not_found);
    EXPECT_EQ(Save(folder / "folder", "content"), fault_path_access);
    EXPECT_EQ(Save(folder / "folder/", "content"), fault_path_access);
    EXPECT_EQ(Save("", "content"), fault_path_access);
    EXPECT_EQ(Read_file(folder / "file"), "former");
    EXPECT_EQ(folder.Files(), 2U);
}

TEST(SafeWrite, the_fault_names_the_caller) {
    const TemporaryFolder folder;
    try {
        Safe_write(folder / "missing/a", "content", {}, "Save_project");
        FAIL() << "no fault";
    } catch (const RuntimeFault& fault) {
        EXPECT_EQ(Fault_text(fault), "Run-time error 76: path not found (Save_project)");
    }
}

} // namespace
} // namespace tarnvik
