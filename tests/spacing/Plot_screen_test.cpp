#include "spacing/Plot_screen.h"

#include <gtest/gtest.h>

#include "spacing/Catalogue.h"
#include "tests/support/Record_hash.h"

namespace tarnvik {
namespace {

TEST(Plot_screen, fills_the_record_for_the_case_on_the_screen) {
    Screen screen;
    ConnectionValues s;
    s.d = 20.0F;
    s.alp = 25.0F;
    s.Con_code = "3.2";
    s.n_bolt = 3;
    s.Bolt_ab = "b";
    Plot_screen(s, ScreenWriter{&screen});
    ConnectionValues direct = s;
    Clear_spacing(direct);
    Calc_spacing(direct, Find_case("3.3.b"));
    EXPECT_EQ(test::Record_text(s), test::Record_text(direct));
    EXPECT_EQ(s.Sum_a_txt, "a1 + a2 + a3 + a4");
}

TEST(Plot_screen, any_other_combination_does_nothing) {
    struct Row {
        const char* code;
        std::int16_t n_bolt;
    };
    for (const Row row : {Row{"   ", 2}, Row{"6.1", 2}, Row{"1.4", 2}, Row{"1.1", 5}, Row{"1.1", 0}}) {
        SCOPED_TRACE(testing::Message() << row.code << ", " << row.n_bolt);
        ConnectionValues s;
        s.d = 20.0F;
        s.Con_code = row.code;
        s.n_bolt = row.n_bolt;
        s.Sa1 = 7.0F;
        s.Sa1_txt = "before";
        Plot_screen(s, ScreenWriter{nullptr});
        EXPECT_EQ(s.Sa1, 7.0F);
        EXPECT_EQ(s.Sa1_txt, "before");
        EXPECT_EQ(s.Sum_a_txt, "");
    }
}

} // namespace
} // namespace tarnvik
