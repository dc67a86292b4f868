#include "report/Recorder.h"

#include "tests/support/Report.h"

namespace tarnvik {
namespace {

using namespace test;

TEST(Recorder, every_operation_is_a_line_with_its_page) {
    Recorder recorder;
    recorder.ScaleLeft(0.0F);
    recorder.ScaleTop(290.0F);
    recorder.ScaleWidth(200.0F);
    recorder.ScaleHeight(-290.0F);
    recorder.DrawWidth(6);
    recorder.Line(15.0F, 290.0F, 185.0F, 278.5F);
    recorder.FontName("Times New Roman");
    recorder.FontSize(9.0F);
    recorder.FontBold(true);
    recorder.FontItalic(true);
    recorder.CurrentX(16.1F);
    recorder.CurrentY(289.8F);
    recorder.Print("a \"text\" with \\");
    recorder.FontBold(false);
    recorder.FontItalic(false);
    recorder.PaintPicture("Frm/Pic", 10.0F, 255.0F, 65.0F, -67.6F);
    recorder.NewPage();
    recorder.EndDoc();
    recorder.EndDoc();

    const std::vector<std::string> wanted{
        "1 ScaleLeft 0",
        "1 ScaleTop 290",
        "1 ScaleWidth 200",
        "1 ScaleHeight -290",
        "1 DrawWidth 6",
        "1 Line 15 290 185 278.5 width 6",
        "1 FontName \"Times New Roman\"",
        "1 FontSize 9",
        "1 FontBold true",
        "1 FontItalic true",
        "1 CurrentX 16.1",
        "1 CurrentY 289.8",
        "1 Print \"a \\\"text\\\" with \\\\\" at 16.1 289.8 in Times New Roman 9 bold italic",
        "1 FontBold false",
        "1 FontItalic false",
        "1 PaintPicture \"Frm/Pic\" 10 255 65 -67.6",
        "1 NewPage",
        "2 EndDoc",
        "2 EndDoc",
    };
    EXPECT_EQ(Lines_of(recorder), wanted);
}

// Advances of the fonts' own drawings, 1/2048 em: "0" is 1139 in Arial and 1024 in Times New Roman, "." 569 and 512,
// "ø" 1251 and 1024. A point is 25.4/72 mm, and a report unit a millimetre.
TEST(Recorder, widths_of_texts_are_those_of_the_fonts) {
    Recorder recorder;
    recorder.FontName("arial");
    recorder.FontSize(8.0F);
    EXPECT_FLOAT_EQ(recorder.TextWidth("00.0"), static_cast<float>((3 * 1139 + 569) / 2048.0 * 8.0 * 25.4 / 72.0));
    EXPECT_FLOAT_EQ(recorder.TextWidth("ø"), static_cast<float>(1251 / 2048.0 * 8.0 * 25.4 / 72.0));
    recorder.FontName("Times New Roman");
    recorder.FontSize(9.0F);
    EXPECT_FLOAT_EQ(recorder.TextWidth("00.0"), 5.55625F); // 1.75 em of 9 points
    EXPECT_FLOAT_EQ(recorder.TextWidth("ø"), 1.5875F);     // half an em
    EXPECT_FLOAT_EQ(recorder.TextWidth(""), 0.0F);
    EXPECT_EQ(Lines_of(recorder).back(), "1 TextWidth \"\" 0 in Times New Roman 9");
}

TEST(Recorder, a_damaged_text_is_measured_to_its_end) {
    Recorder recorder;
    recorder.FontSize(9.0F);
    EXPECT_GT(recorder.TextWidth("\xC3"), 0.0F);
    EXPECT_GT(recorder.TextWidth("\xF0\x9F\x98\x80\x80\x80"), 0.0F);
}

} // namespace
} // namespace tarnvik
