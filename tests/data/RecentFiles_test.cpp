#include "data/RecentFiles.h"

#include <gtest/gtest.h>

#include "tests/calc/Support.h"
#include "tests/support/MemorySettingsStore.h"

namespace tarnvik {
namespace {

using test::Fault_of;
using test::MemorySettingsStore;
using Files = std::vector<std::string>;

class RecentFiles : public testing::Test {
protected:
    void Known(const Files& files) {
        for (std::size_t i = 0; i < files.size(); ++i) {
            Save("RecentFile" + std::to_string(i + 1), files[i]);
        }
        store.saved.clear();
    }
    void Save(std::string_view key, std::string_view value) { store.Save("Tarn-Vik", "Recent Files", key, value); }

    // "RecentFile1" to "RecentFile4", without the empty ones at the end.
    [[nodiscard]] Files Stored() const {
        Files files;
        for (const char* key : {"RecentFile1", "RecentFile2", "RecentFile3", "RecentFile4"}) {
            files.push_back(store.Get("Tarn-Vik", "Recent Files", key));
        }
        while (!files.empty() && files.back().empty()) {
            files.pop_back();
        }
        return files;
    }
    [[nodiscard]] Files Captions() const {
        return {menu(1).caption, menu(2).caption, menu(3).caption, menu(4).caption};
    }
    [[nodiscard]] std::vector<bool> Shown() const {
        return {menu(1).visible, menu(2).visible, menu(3).visible, menu(4).visible};
    }
    int Front(std::string_view path) {
        return Fault_of([&] { Recent_front(store, menu, path); });
    }

    MemorySettingsStore store;
    RecentMenu menu;
};

TEST_F(RecentFiles, first_start_leaves_the_placeholders) {
    Recent_load(store, menu);
    EXPECT_EQ(Captions(), (Files{"&oldfile1", "&oldfile2", "&oldfile3", "-"}));
    EXPECT_EQ(Shown(), (std::vector<bool>{false, false, false, true})); // the last one is the separator
    EXPECT_TRUE(store.saved.empty());
}

TEST_F(RecentFiles, load_shows_the_known_files_numbered) {
    Known({R"(C:\a.tnvik)", "/home/kari/Bru 1. etasje.tnvik"});
    Recent_load(store, menu);
    EXPECT_EQ(Captions(), (Files{R"(1. C:\a.tnvik)", "2. /home/kari/Bru 1. etasje.tnvik", "&oldfile3", "-"}));
    EXPECT_EQ(Shown(), (std::vector<bool>{true, true, false, true}));
}

TEST_F(RecentFiles, fourth_file_takes_the_place_of_the_separator) {
    Known({"a", "b", "c", "d"});
    Recent_load(store, menu);
    EXPECT_EQ(Captions(), (Files{"1. a", "2. b", "3. c", "4. d"}));
    EXPECT_EQ(Shown(), (std::vector<bool>{true, true, true, true}));
}

TEST_F(RecentFiles, load_does_nothing_while_the_first_is_empty) {
    Save("RecentFile2", "b");
    Recent_load(store, menu);
    EXPECT_EQ(menu(1).caption, "&oldfile1");
    Save("RecentFile1", "");
    Recent_load(store, menu);
    EXPECT_EQ(menu(1).caption, "&oldfile1");
}

TEST_F(RecentFiles, load_takes_the_order_of_the_store_whatever_the_keys) {
    Save("RecentFile3", "c");
    Save("RecentFile1", "a");
    Save("Other", "o");
    Recent_load(store, menu);
    EXPECT_EQ(Captions(), (Files{"1. c", "2. a", "3. o", "-"}));
}

TEST_F(RecentFiles, load_reads_its_own_section_and_no_more_than_four_rows) {
    store.Save("Tarn-Vik", "Window", "Left", "1");
    store.Save("Another", "Recent Files", "RecentFile1", "z");
    Recent_load(store, menu);
    EXPECT_EQ(menu(1).caption, "&oldfile1");
    Known({"a", "b", "c", "d"});
    Save("RecentFile5", "e");
    Recent_load(store, menu);
    EXPECT_EQ(Captions(), (Files{"1. a", "2. b", "3. c", "4. d"}));
}

TEST_F(RecentFiles, load_never_hides_an_entry_again) {
    Known({"a", "b", "c"});
    Recent_load(store, menu);
    store.rows.resize(1);
    Recent_load(store, menu);
    EXPECT_EQ(Captions(), (Files{"1. a", "2. b", "3. c", "-"}));
    EXPECT_EQ(Shown(), (std::vector<bool>{true, true, true, true}));
}

TEST_F(RecentFiles, shift_puts_the_path_in_front) {
    Recent_shift(store, "a");
    EXPECT_EQ(Stored(), (Files{"a"}));
    Recent_shift(store, "b");
    EXPECT_EQ(Stored(), (Files{"b", "a"}));
    Recent_shift(store, "c");
    Recent_shift(store, "d");
    EXPECT_EQ(Stored(), (Files{"d", "c", "b", "a"}));
    Recent_shift(store, "e");
    EXPECT_EQ(Stored(), (Files{"e", "d", "c", "b"}));
}

TEST_F(RecentFiles, shift_can_list_a_path_twice) {
    Known({"a", "b"});
    Recent_shift(store, "a");
    EXPECT_EQ(Stored(), (Files{"a", "a", "b"}));
}

TEST_F(RecentFiles, shift_passes_over_an_empty_row) {
    Known({"a", "", "c", "d"});
    Recent_shift(store, "e");
    EXPECT_EQ(Stored(), (Files{"e", "a", "c", "c"})); // the empty row overwrites nothing
}

TEST_F(RecentFiles, shift_saves_from_the_back) {
    Known({"a", "b"});
    Recent_shift(store, "c");
    EXPECT_EQ(store.saved, (std::vector<Setting>{{"RecentFile3", "b"}, {"RecentFile2", "a"}, {"RecentFile1", "c"}}));
}

TEST_F(RecentFiles, front_with_fewer_than_four_files_fails_and_saves_nothing) {
    for (const Files& files : {Files{}, Files{"a"}, Files{"a", "b"}, Files{"a", "b", "c"}}) {
        SCOPED_TRACE(files.size());
        store.rows.clear();
        menu = RecentMenu{};
        Known(files);
        Recent_load(store, menu);
        EXPECT_EQ(Front("x"), 5);
        EXPECT_EQ(Front("a"), 5); // also of a file that it knows
        EXPECT_TRUE(store.saved.empty());
        EXPECT_EQ(Stored(), files);
    }
}

TEST_F(RecentFiles, with_three_known_an_open_adds_nothing_and_a_save_as_does) {
    Known({"a", "b", "c"});
    Recent_load(store, menu);
    EXPECT_EQ(Front("d"), 5);
    Recent_load(store, menu);
    EXPECT_EQ(menu(4).caption, "-");
    Recent_shift(store, "d");
    Recent_load(store, menu);
    EXPECT_EQ(Captions(), (Files{"1. d", "2. a", "3. b", "4. c"}));
    EXPECT_EQ(Front("b"), 0);
    EXPECT_EQ(Stored(), (Files{"b", "d", "a", "c"}));
}

TEST_F(RecentFiles, front_reorders_once_four_are_known) {
    struct Row {
        const char* name;
        const char* path;
        Files stored;
        std::size_t saves;
    };
    // clang-format off
    const Row rows[] = {
        {"the first",  "a", {"a", "b", "c", "d"}, 1},
        {"the second", "b", {"b", "a", "c", "d"}, 2},
        {"the third",  "c", {"c", "a", "b", "d"}, 3},
        {"the fourth", "d", {"d", "a", "b", "c"}, 4},
        {"a new one",  "e", {"e", "a", "b", "c"}, 4},
        {"other case", "B", {"B", "a", "b", "c"}, 4},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        store.rows.clear();
        Known({"a", "b", "c", "d"});
        Recent_load(store, menu);
        EXPECT_EQ(Front(row.path), 0);
        EXPECT_EQ(Stored(), row.stored);
        EXPECT_EQ(store.saved.size(), row.saves);
        EXPECT_EQ(menu(1).caption, "1. a"); // the menu follows with the next load
    }
}

TEST_F(RecentFiles, front_works_from_the_captions_not_from_the_keys) {
    Save("RecentFile4", "d");
    Save("RecentFile3", "c");
    Save("RecentFile2", "b");
    Save("RecentFile1", "a");
    Recent_load(store, menu);
    EXPECT_EQ(Captions(), (Files{"1. d", "2. c", "3. b", "4. a"}));
    EXPECT_EQ(Front("c"), 0); // the second entry: 2 := the first entry, 1 := the path
    EXPECT_EQ(Stored(), (Files{"c", "d", "c", "d"}));
}

TEST_F(RecentFiles, path_of_an_entry_is_its_caption_less_three_characters) {
    menu(1).caption = "1. /tmp/Bjørk & co. 2.tnvik";
    EXPECT_EQ(Recent_path(menu, 1), "/tmp/Bjørk & co. 2.tnvik");
    menu(1).caption = "1. ";
    EXPECT_EQ(Recent_path(menu, 1), "");
    menu(1).caption = "øæåx"; // characters, not bytes
    EXPECT_EQ(Recent_path(menu, 1), "x");
    menu(1).caption = "øæ";
    EXPECT_EQ(Fault_of([this] { (void)Recent_path(menu, 1); }), 5);
    EXPECT_EQ(Recent_path(menu, 2), "dfile2"); // a placeholder can be cut
    EXPECT_EQ(Fault_of([this] { (void)Recent_path(menu, 4); }), 5);
}

} // namespace
} // namespace tarnvik
