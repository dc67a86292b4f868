// The two sides of the painting program, each at an end of a channel.
#include "check/Paint_channel.h"

#include <gtest/gtest.h>

#include <array>
#include <thread>

#include <nlohmann/json.hpp>

#include "calc/RuntimeFault.h"
#include "platform/Partner.h"
#include "tests/support/RecordingRendering.h"

namespace tarnvik {
namespace {

class PaintChannels : public testing::Test {
protected:
    PaintChannels() {
        const std::array<int, 2> ends = Make_channel();
        tool = std::make_unique<PaintChannel>(ends[0]);
        painter = std::make_unique<PaintChannel>(ends[1]);
    }

    // The number of the fault that the tool is told, 0 for none; `draw` draws on the target.
    template <class Draw> int Report(const Draw& draw) {
        std::thread painting{[this] {
            Serve_report(*painter, rendering, "a b.pdf", "Prosjekt Å");
            painter.reset();
        }};
        int fault = 0;
        try {
            draw(*Sending_target(*tool));
            EXPECT_EQ(Written(*tool, "test"), 1);
        } catch (const RuntimeFault& raised) {
            fault = raised.number;
        }
        tool.reset();
        painting.join();
        return fault;
    }

    std::unique_ptr<PaintChannel> tool, painter;
    test::RecordingRendering rendering;
};

// Every operation with values that a text could spoil.
void Draw_all(PrintTarget& target) {
    target.ScaleLeft(-0.1F);
    target.ScaleTop(290.0F);
    target.ScaleWidth(200.0F);
    target.ScaleHeight(-1.0F / 3.0F);
    target.CurrentX(1.0e-20F);
    target.CurrentY(16777217.0F);
    target.FontName("Times New Roman");
    target.FontSize(11.5F);
    target.FontBold(true);
    target.FontItalic(false);
    target.DrawWidth(6);
    target.Line(0.1F, 0.2F, 0.3F, 0.4F);
    target.PaintPicture("Frm_tarn_vik_forbindelser/Pic_1_1", 1.1F, 2.2F, 3.3F, -4.4F);
    target.Print("a\"\\\n\t\x01 æøå ☃");
    target.NewPage();
    target.CurrentX(target.TextWidth("Å b"));
    target.Print("");
    target.EndDoc();
}

TEST_F(PaintChannels, every_call_arrives_as_it_was_made) {
    EXPECT_EQ(Report([](PrintTarget& target) { Draw_all(target); }), 0);
    Recorder expected;
    Draw_all(expected);
    ASSERT_EQ(rendering.recorder.calls.size(), expected.calls.size());
    for (std::size_t i = 0; i < expected.calls.size(); ++i) {
        const PrintCall& got = rendering.recorder.calls[i];
        const PrintCall& call = expected.calls[i];
        EXPECT_EQ(got.op, call.op);
        EXPECT_EQ(got.page, call.page);
        EXPECT_EQ(got.value, call.value);
        EXPECT_EQ(got.flag, call.flag);
        EXPECT_EQ(got.text, call.text);
        EXPECT_EQ(got.font, call.font);
        for (const auto member :
             {&PrintCall::x, &PrintCall::y, &PrintCall::x2, &PrintCall::y2, &PrintCall::width, &PrintCall::height}) {
            EXPECT_EQ(got.*member, call.*member) << Op_name(call.op);
        }
    }
    EXPECT_EQ(rendering.files.at(0), "a b.pdf");
    EXPECT_EQ(rendering.titles.at(0), "Prosjekt Å");
}

TEST_F(PaintChannels, a_fault_of_the_painter_is_raised_in_the_tool) {
    rendering.fault = fault_disk_full;
    EXPECT_EQ(Report([](PrintTarget& target) { Draw_all(target); }), fault_disk_full);
}

TEST_F(PaintChannels, a_painter_that_is_gone_is_a_fault) {
    painter.reset();
    try {
        Draw_all(*Sending_target(*tool));
        FAIL() << "it went on";
    } catch (const RuntimeFault& fault) {
        EXPECT_EQ(fault.number, fault_path_access);
    }
}

TEST_F(PaintChannels, a_report_that_is_given_up_is_not_ended) {
    std::thread painting{[this] { Serve_report(*painter, rendering, "a.pdf", ""); }};
    Sending_target(*tool)->FontBold(true);
    tool->Flush();
    tool.reset();
    painting.join();
    for (const PrintCall& call : rendering.recorder.calls) {
        EXPECT_NE(call.op, PrintCall::Op::EndDoc);
    }
}

TEST_F(PaintChannels, what_is_no_call_is_a_fault) {
    using Json = nlohmann::json;
    for (const Json& line : {Json::array({"Fly", 1}), Json::array(), Json::array({1}), Json::array({"Line", 1, 2, 3}),
                             Json::array({"Print", 5}), Json::array({"FontBold", "x"}), Json(5)}) {
        const std::array<int, 2> ends = Make_channel();
        PaintChannel sender{ends[0]};
        PaintChannel receiver{ends[1]};
        sender.Send(line);
        sender.Flush();
        Serve_report(receiver, rendering, "a.pdf", "");
        const auto answer = sender.Receive();
        ASSERT_TRUE(answer);
        EXPECT_EQ(answer->at(0), "fault") << line;
    }
}

} // namespace
} // namespace tarnvik
