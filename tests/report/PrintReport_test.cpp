#include "tests/support/OutOfPaper.h"
#include "tests/support/Report.h"

namespace tarnvik {
namespace {

using namespace test;

Recorder Report(Connection& connection) {
    Recorder recorder;
    SpacingTexts texts;
    PrintReport(recorder, *connection.s, connection.Pictures(), moment, texts);
    return recorder;
}

TEST(PrintReport, sets_the_scale_once_and_breaks_the_page_once) {
    Connection connection;
    const Recorder report = Report(connection);
    const std::vector<std::string> lines = Lines_of(report);
    const std::vector<std::string> first{"1 ScaleLeft 0", "1 ScaleTop 290", "1 ScaleWidth 200", "1 ScaleHeight -290"};
    EXPECT_EQ(std::vector<std::string>(lines.begin(), lines.begin() + 4), first);
    for (const auto op : {PrintCall::Op::ScaleLeft, PrintCall::Op::ScaleTop, PrintCall::Op::ScaleWidth,
                          PrintCall::Op::ScaleHeight, PrintCall::Op::NewPage, PrintCall::Op::EndDoc}) {
        EXPECT_EQ(Calls_of(report, op).size(), 1U) << Op_name(op);
    }
    EXPECT_EQ(lines.back(), "2 EndDoc");
}

TEST(PrintReport, connectors_add_section_6_with_the_same_picture) {
    Connection connection;
    const Recorder bolts = Report(connection);
    EXPECT_TRUE(Printed(bolts, "5.0 Location of bolts "));
    EXPECT_FALSE(Printed(bolts, "6.0 Location of bolts "));
    Pick_connector(*connection.s, 1);
    connection.s->Bolt_index = 5;
    ASSERT_EQ(connection.Pass(), PassEnd::normal);
    const Recorder both = Report(connection);
    EXPECT_EQ(Print_of(both, "6.0 Location of bolts ").y, 185.0F);
    std::vector<PrintCall> layouts;
    for (const PrintCall& call : Calls_of(both, PrintCall::Op::PaintPicture)) {
        if (call.page == 2) {
            layouts.push_back(call);
        }
    }
    ASSERT_EQ(layouts.size(), 2U);
    EXPECT_EQ(Line_of(layouts[0]), "2 PaintPicture \"Frm_tarn_vik_bolter_1_trykk/Pic1_2_b\" 10 255 65 -67.6");
    EXPECT_EQ(Line_of(layouts[1]), "2 PaintPicture \"Frm_tarn_vik_bolter_1_trykk/Pic1_2_b\" 15 170 65 -67.6");
}

TEST(PrintReport, every_text_has_its_place_set_before_it) {
    Connection connection;
    const Recorder report = Report(connection);
    bool x = false;
    bool y = false;
    for (const PrintCall& call : report.calls) {
        x = x || call.op == PrintCall::Op::CurrentX;
        y = y || call.op == PrintCall::Op::CurrentY;
        if (call.op == PrintCall::Op::Print) {
            EXPECT_TRUE(x && y) << Line_of(call);
            x = y = false;
        }
    }
}

TEST(PrintReport, changes_nothing_of_the_state_but_the_name_of_the_load_duration) {
    Connection connection;
    connection.s->Lastvar = 3;
    connection.Pass();
    const float uf = connection.s->uf;
    const auto before = connection.s->Lastvar_txt;
    Report(connection);
    EXPECT_EQ(connection.s->Lastvar_txt, "Medium te");
    EXPECT_EQ(connection.s->uf, uf);
    connection.Pass();
    EXPECT_EQ(connection.s->Lastvar_txt, before);
}

TEST(PrintReport, its_title_is_project_and_identification) {
    Connection connection{"Eng"};
    connection.s->Prosjekt = "Hall A/B";
    connection.s->Id = "node 7";
    EXPECT_EQ(Report_title(*connection.s), "Hall A/B, node 7");
    connection.s->Id = "";
    EXPECT_EQ(Report_title(*connection.s), "Hall A/B");
    connection.s->Prosjekt = "";
    EXPECT_EQ(Report_title(*connection.s), "");
    connection.s->Id = "node 7";
    EXPECT_EQ(Report_title(*connection.s), "node 7");
}

TEST(PrintReport, numbers_follow_the_decimal_sign) {
    Connection connection;
    Set_decimal_sign(',');
    const Recorder report = Report(connection);
    Set_decimal_sign('.');
    EXPECT_TRUE(Printed(report, "gm = 1,30"));
    EXPECT_TRUE(Printed(report, "1.35 + 0.015 x 20  =")) << "a text, not a number";
}

TEST(PrintReport, a_failing_target_ends_the_print_where_it_fails) {
    Connection connection;
    OutOfPaper target{30};
    SpacingTexts texts;
    EXPECT_EQ(Fault_of([&] { PrintReport(target, *connection.s, connection.Pictures(), moment, texts); }),
              fault_path_access);
}

} // namespace
} // namespace tarnvik
