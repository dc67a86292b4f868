#include "session/Load_cases.h"

#include <gtest/gtest.h>

#include "tests/support/Calculation.h"
#include "tests/support/RecordingMessageBox.h"

namespace tarnvik::test {
namespace {

std::unique_ptr<ConnectionState> Joint() {
    auto s = New_project();
    s->Standard = false;
    s->Txt_b1 = s->Txt_b2 = "48";
    s->Txt_h1 = "198";
    s->Txt_h2 = "223";
    return s;
}

TEST(Load_cases, each_is_a_check_with_its_kmod) {
    const auto joint = Joint();
    joint->P = 99.0F;
    const std::vector<LoadCase> loads{
        {"dead", 2.0F, 1}, {"stored", 3.0F, 2}, {"snow", -4.0F, 3}, {"wind", 5.0F, 4}, {"impact", 1.0F, 5}};
    const LoadsResult result = Check_loads(*joint, loads);
    EXPECT_EQ(joint->P, 99.0F); // the joint stays
    ASSERT_EQ(result.loads.size(), loads.size());
    const float kmod[]{0.6F, 0.7F, 0.8F, 0.9F, 1.1F}; // table 3.1, service class 1
    for (std::size_t i = 0; i < loads.size(); ++i) {
        const auto s = Joint();
        s->P = loads[i].P;
        s->Lastvar = loads[i].Lastvar;
        RecordingMessageBox box;
        ASSERT_EQ(Run_pass(*s, nullptr, box).end, PassEnd::normal);
        const CheckedLoad& one = result.loads[i];
        EXPECT_TRUE(one.calculated);
        EXPECT_EQ(one.load.name, loads[i].name);
        EXPECT_EQ(one.kmod, kmod[i]);
        const Verdict verdict = Verdict_of(*s, true);
        for (std::size_t k = 0; k < check_count; ++k) {
            EXPECT_EQ(one.judgement.verdict.checks[k].value, verdict.checks[k].value);
        }
    }
}

TEST(Load_cases, what_governs_is_the_largest_value_and_the_first_that_has_it) {
    // Utilisation goes with P / kmod: 6 / 0.6 = 10, 6.4 / 0.8 = 8, 9.9 / 0.9 = 11, 12.1 / 1.1 = 11.
    const std::vector<LoadCase> loads{{"dead", 6.0F, 1}, {"snow", 6.4F, 3}, {"wind", 9.9F, 4}, {"impact", 12.1F, 5}};
    const LoadsResult result = Check_loads(*Joint(), loads);
    for (const Check check : {Check::utilisation, Check::splitting}) {
        const auto& governing = result.governing[static_cast<std::size_t>(check)];
        ASSERT_TRUE(governing);
        const float value = governing->check.value;
        EXPECT_NEAR(value, result.loads[2].judgement.verdict[check].value, 1e-5);
        EXPECT_NEAR(value, 1.1 * result.loads[0].judgement.verdict[check].value, 1e-5);
    }
    // Distances hang on the sign alone.
    ASSERT_TRUE(result.Governing_distances());
    const auto& distances = result.governing[static_cast<std::size_t>(*result.Governing_distances())];
    EXPECT_EQ(distances->load, 0U);
    EXPECT_FALSE(result.governing[static_cast<std::size_t>(Check::connectors_fit_1)]);
}

TEST(Load_cases, the_verdict_is_over_all) {
    EXPECT_EQ(Check_loads(*Joint(), {{"a", 1.0F, 3}, {"b", -1.0F, 3}}).Holds(), true);
    EXPECT_EQ(Check_loads(*Joint(), {{"a", 1.0F, 3}, {"b", 900.0F, 3}}).Holds(), false);
    const auto he = Joint(); // outside the member: not checked
    he->Man_he_on = true;
    he->man_he = 300.0F;
    EXPECT_EQ(Check_loads(*he, {{"a", 1.0F, 3}}).Holds(), std::nullopt);
    EXPECT_EQ(Check_loads(*he, {{"a", 1.0F, 3}, {"b", 900.0F, 3}}).Holds(), false);
    const auto zero = Joint();
    zero->Txt_b1 = "0";
    const LoadsResult stopped = Check_loads(*zero, {{"a", 1.0F, 3}});
    EXPECT_FALSE(stopped.loads.at(0).calculated);
    EXPECT_EQ(stopped.Holds(), std::nullopt);
    EXPECT_EQ(stopped.Governing_distances(), std::nullopt);
    EXPECT_FALSE(stopped.governing[0]);
}

TEST(Load_cases, distances_of_connectors_count_too) {
    const auto joint = Joint();
    Pick_connector(*joint, 4); // D117 needs more of the height than M20
    const LoadsResult result = Check_loads(*joint, {{"a", 1.0F, 3}});
    ASSERT_TRUE(result.Governing_distances());
    const Check check = *result.Governing_distances();
    EXPECT_TRUE(check == Check::connectors_fit_1 || check == Check::connectors_fit_2);
}

} // namespace
} // namespace tarnvik::test
