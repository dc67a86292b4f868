// "Check sheet..." of the detailed calculations.
#include "frontend/dialogs/Sheet_saving.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/support/Window.h"

namespace tarnvik {
namespace {

using namespace test;

std::string Read(const std::string& file) {
    std::ifstream stream{file, std::ios::binary};
    return {std::istreambuf_iterator<char>{stream}, {}};
}

class SheetSaving : public WindowTest {
protected:
    // Opens the detailed calculations and acts in them.
    void Detailed(const std::function<void(QWidget& dialog)>& act) {
        bool came = false;
        In_dialog([&](QWidget& dialog) {
            came = true;
            act(dialog);
        });
        Click("Cmd_detail");
        EXPECT_TRUE(came);
        Settle();
    }
};

TEST_F(SheetSaving, writes_the_sheet_at_the_chosen_place_and_opens_it) {
    Start("Eng");
    const std::string file = (folder / "sheet.html").string();
    dialogs.answer = file;
    Detailed([](QWidget& dialog) {
        EXPECT_EQ(Text_of(Find_in<QPushButton>(dialog, "Cmd_sheet")), "Check sheet...");
        Click(Find_in<QPushButton>(dialog, "Cmd_sheet"));
        EXPECT_TRUE(dialog.isVisible());
    });
    const std::string html = Read(file);
    EXPECT_TRUE(html.starts_with("<!DOCTYPE html>\n<html lang=\"en\">")) << html.substr(0, 60);
    EXPECT_NE(html.find("21.11.2026 08:09:10"), std::string::npos);
    EXPECT_EQ(opener.files, std::vector<std::string>{file});
    EXPECT_TRUE(boxes.messages.empty());
    ASSERT_EQ(dialogs.asked.size(), 1U);
    EXPECT_EQ(dialogs.asked[0].dialog, "save");
    const FileRequest& request = dialogs.asked[0].request;
    EXPECT_EQ(request.filter, "*.html");
    EXPECT_EQ(request.default_extension, "html");
    EXPECT_EQ(request.file_name, "Tarnvik.html");
    EXPECT_EQ(request.flags, prompt_on_overwrite | hide_read_only);
    EXPECT_EQ(request.words.caption, "Save check sheet as");
    EXPECT_EQ(passes, 0); // it shows what the last pass left
}

TEST_F(SheetSaving, offers_a_place_beside_the_project_in_the_language) {
    Start("Nor");
    s.File_name = "/work/projects/heel.tnvik";
    s.File_named = true;
    Detailed([](QWidget& dialog) {
        EXPECT_EQ(Text_of(Find_in<QPushButton>(dialog, "Cmd_sheet")), "Kontrollark...");
        Click(Find_in<QPushButton>(dialog, "Cmd_sheet"));
    });
    ASSERT_EQ(dialogs.asked.size(), 1U);
    EXPECT_EQ(dialogs.asked[0].request.folder, "/work/projects");
    EXPECT_EQ(dialogs.asked[0].request.file_name, "/work/projects/heel.html");
    EXPECT_EQ(dialogs.asked[0].request.words.caption, "Lagre kontrollark som");
    EXPECT_TRUE(opener.files.empty()); // the dialog was cancelled
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(SheetSaving, what_fails_is_told) {
    Start("Eng");
    dialogs.answer = (folder / "none" / "sheet.html").string();
    const auto save = [this] { Detailed([](QWidget& dialog) { Click(Find_in<QPushButton>(dialog, "Cmd_sheet")); }); };
    save();
    ASSERT_EQ(boxes.messages.size(), 1U);
    EXPECT_EQ(boxes.messages[0].text, *dialogs.answer + "\ncannot be written: path not found");
    EXPECT_TRUE(opener.files.empty());
    boxes.Answer();

    dialogs.answer = (folder / "sheet.html").string();
    opener.opens = false;
    save();
    ASSERT_EQ(boxes.messages.size(), 2U);
    EXPECT_EQ(boxes.messages[1].text, "Saved, but it cannot be opened:\n" + *dialogs.answer);
    EXPECT_TRUE(std::filesystem::exists(*dialogs.answer));
}

TEST_F(SheetSaving, only_while_the_results_are_current) {
    Start("Eng");
    Detailed([](QWidget& dialog) { EXPECT_TRUE(Find_in<QPushButton>(dialog, "Cmd_sheet").isEnabled()); });
    s.alp += 1.0F; // an input that no pass has seen
    Detailed([](QWidget& dialog) { EXPECT_FALSE(Find_in<QPushButton>(dialog, "Cmd_sheet").isEnabled()); });
}

TEST_F(SheetSaving, stands_beside_ok_and_leaves_it_the_enter_key) {
    Start("Eng");
    Detailed([](QWidget& dialog) {
        const auto& ok = Find_in<QPushButton>(dialog, "Cmd_ok");
        const auto& sheet = Find_in<QPushButton>(dialog, "Cmd_sheet");
        EXPECT_EQ(sheet.y(), ok.y());
        EXPECT_EQ(sheet.height(), ok.height());
        EXPECT_GT(sheet.x(), ok.geometry().right());
        EXPECT_TRUE(dialog.rect().contains(sheet.geometry()));
        EXPECT_GE(sheet.width(), sheet.sizeHint().width());
        EXPECT_FALSE(sheet.autoDefault());
        QTest::keyClick(&dialog, Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
}

} // namespace
} // namespace tarnvik
