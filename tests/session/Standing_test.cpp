#include "session/Standing.h"

#include <gtest/gtest.h>

#include "calc/RuntimeFault.h"
#include "tests/support/Calculation.h"
#include "tests/support/RecordingMessageBox.h"

namespace tarnvik::test {
namespace {

class StandingTest : public testing::Test {
protected:
    void Pass() {
        Screen screen;
        standing.Note_pass(s, Run_pass(s, &screen, box));
    }
    [[nodiscard]] std::string Text() const { return Verdict_text(Verdict_of(s, standing.Splitting_current(s)), true); }

    std::unique_ptr<ConnectionState> state = New_project();
    ConnectionState& s = *state;
    RecordingMessageBox box;
    Standing standing;
};

TEST_F(StandingTest, nothing_is_current_before_the_first_pass) {
    EXPECT_FALSE(standing.Current(s));
    EXPECT_EQ(standing.Not_current(s, true), "Not current: not calculated yet");
    Pass();
    EXPECT_TRUE(standing.Current(s));
    EXPECT_TRUE(standing.Splitting_current(s));
    EXPECT_EQ(standing.Not_current(s, true), "");
}

TEST_F(StandingTest, a_pass_that_was_stopped_says_why_until_one_ends_normally) {
    Pass();
    Pick_connector(s, 0); // D50 does not take M20
    Pass();
    EXPECT_EQ(standing.Not_current(s, true), "Not current: connector refused");
    EXPECT_EQ(standing.Not_current(s, false), "Ikke aktuelt: forbinderen er avvist");
    Pick_connector(s, 2);
    Pass();
    EXPECT_EQ(standing.Not_current(s, true), "");
    s.Standard = false;
    s.Txt_b1 = "0";
    Pass();
    EXPECT_EQ(standing.Not_current(s, true), "Not current: a section has a side of zero");
}

TEST_F(StandingTest, a_fault_is_told_by_its_cause_never_by_a_number) {
    Pass();
    s.Standard = false;
    s.Txt_b1 = s.Txt_b2 = "36";
    s.Txt_h1 = s.Txt_h2 = "40"; // 4 d is 80: no he is left
    Pass();
    EXPECT_EQ(standing.Not_current(s, true), "Not current: member too low for the distances");
    s = *New_project();
    s.Mat_index = 101;
    Pass();
    EXPECT_EQ(standing.Not_current(s, true), "Not current: material is not in its table");
    s = *New_project();
    s.Prof1_index = 401;
    Pass();
    EXPECT_EQ(standing.Not_current(s, true), "Not current: section is not in its table");
    for (const int number : {5, 6, 9, 11, 99}) {
        const PassResult result{PassEnd::fault, RuntimeFault{number, Fault_description(number), "Get_fh"}};
        const std::string text{Reason_of(result, s, true)};
        EXPECT_EQ(text.find_first_of("0123456789"), std::string::npos) << text;
        EXPECT_NE(text, Reason_of(result, s, false));
    }
}

TEST_F(StandingTest, a_value_that_was_refused_makes_the_results_old) {
    Pass();
    s.P = -3.0F; // stored before it is tested
    EXPECT_EQ(standing.Not_current(s, true), "Not current: a value is not accepted");
    EXPECT_FALSE(standing.Splitting_current(s));
    s.P = 10.0F;
    EXPECT_TRUE(standing.Current(s)); // the same inputs again
}

TEST_F(StandingTest, names_of_the_project_and_the_language_are_no_inputs_of_the_results) {
    Pass();
    s.Prosjekt = "another";
    s.Id = "another";
    s.Lang = "Nor";
    EXPECT_TRUE(standing.Current(s));
}

TEST_F(StandingTest, every_input_of_a_pass_counts) {
    const auto changed = [this](auto change) {
        Pass();
        EXPECT_TRUE(standing.Current(s));
        const ConnectionValues kept = s;
        change();
        EXPECT_FALSE(standing.Current(s));
        static_cast<ConnectionValues&>(s) = kept;
    };
    for (std::int16_t ConnectionValues::*choice :
         {&ConnectionValues::Lastvar, &ConnectionValues::Klima, &ConnectionValues::Mat_index,
          &ConnectionValues::Prof1_index, &ConnectionValues::Prof2_index, &ConnectionValues::Con_type,
          &ConnectionValues::Bolt_index, &ConnectionValues::Bulldog_index, &ConnectionValues::Ant_index,
          &ConnectionValues::Avstand_index}) {
        changed([&] { ++(s.*choice); });
    }
    for (bool ConnectionValues::*flag :
         {&ConnectionValues::Standard, &ConnectionValues::enk_1, &ConnectionValues::dob_1, &ConnectionValues::enk_2,
          &ConnectionValues::dob_2, &ConnectionValues::Kun_bolt, &ConnectionValues::Med_bulldog}) {
        changed([&] { s.*flag = !(s.*flag); });
    }
    for (float ConnectionValues::*value :
         {&ConnectionValues::gm_T, &ConnectionValues::gm_L, &ConnectionValues::gm_Ke, &ConnectionValues::gm_K,
          &ConnectionValues::b1, &ConnectionValues::h1, &ConnectionValues::b2, &ConnectionValues::h2,
          &ConnectionValues::alp, &ConnectionValues::P, &ConnectionValues::dc}) {
        changed([&] { s.*value += 1.0F; });
    }
    changed([this] { s.Bolt_ab = "a"; });
}

TEST_F(StandingTest, splitting_with_a_typed_he_is_old_once_an_input_has_changed) {
    Pass();
    s.Man_he_on = true;
    Pass();
    EXPECT_TRUE(standing.Splitting_current(s)); // nothing that it reads has changed
    s.P = 2.0F;
    Pass();
    EXPECT_TRUE(standing.Current(s));
    EXPECT_FALSE(standing.Splitting_current(s));
    standing.Note_splitting(s); // he was accepted
    EXPECT_TRUE(standing.Splitting_current(s));
    standing.Forget_splitting();
    EXPECT_FALSE(standing.Splitting_current(s));
    s.Man_he_on = false;
    Pass();
    EXPECT_TRUE(standing.Splitting_current(s));
}

TEST_F(StandingTest, verdict_in_words) {
    // Hand-made results: what a pass leaves, without one.
    s.uf = 0.5F;
    s.Tverr_kontroll = 1.0F; // at the limit holds
    s.Sum_a = 100.0F;
    s.h1 = 100.0F;
    s.Sum_b = 90.0F;
    s.h2 = 100.0F;
    s.Sum_ca = s.Sum_cb = 500.0F; // without connectors these do not apply
    const auto text = [this](bool checked, bool english) { return Verdict_text(Verdict_of(s, checked), english); };
    EXPECT_EQ(text(true, true), "Holds");
    EXPECT_EQ(text(true, false), "Holder");
    EXPECT_EQ(text(false, true), "Splitting not checked");
    EXPECT_FALSE(Verdict_of(s, false).Holds());
    EXPECT_TRUE(Verdict_of(s, true).Holds());
    s.uf = 1.0001F;
    EXPECT_EQ(text(true, true), "Does not hold: utilisation");
    EXPECT_EQ(text(false, true), "Does not hold: utilisation");
    s.Tverr_kontroll = 2.0F;
    s.Sum_b = 100.5F;
    EXPECT_EQ(text(true, true), "Does not hold: utilisation, splitting, distances of bolts");
    s.Med_bulldog = true;
    EXPECT_EQ(text(true, true), "Does not hold: utilisation, splitting, distances of bolts, distances of connectors");
    EXPECT_EQ(text(true, false),
              "Holder ikke: utnyttelse, tverrstrekk, avstander for bolter, avstander for forbindere");
}

TEST_F(StandingTest, details_give_the_figures_and_the_mode_that_governs) {
    Pass();
    const std::string details = Verdict_details(Verdict_of(s, true), s, true);
    // 2 x M20 in 34 x 95 and 36 x 73: sums 120 and 200 mm, 3 d + 3 d and 3 d + 4 d + 3 d.
    EXPECT_NE(details.find("Distances of bolts, member 1: 120 > 95 mm\n"), std::string::npos) << details;
    EXPECT_NE(details.find("Distances of bolts, member 2: 200 > 73 mm\n"), std::string::npos) << details;
    EXPECT_EQ(details.find("connectors"), std::string::npos);
    EXPECT_NE(details.find("governs, (8.6 "), std::string::npos) << details;
}

TEST_F(StandingTest, the_least_capacity_governs) {
    s.Fv_a = 5.0F;
    s.Fv_b = 4.0F;
    s.Fv_c = 3.0F;
    s.Fv_d = 3.0F;
    s.Fv_e = 6.0F;
    s.Fv_f = 7.0F;
    s.Fv_g = 1.0F;
    s.Fv_h = 2.0F;
    s.Fv_j = 0.5F;
    s.Fv_k = 9.0F;
    EXPECT_EQ(Governing_mode(s).mode, 'c'); // the first of equal ones
    EXPECT_EQ(Governing_mode(s).equation, "8.6 c");
    s.dob_1 = true;
    EXPECT_EQ(Governing_mode(s).mode, 'j');
    EXPECT_EQ(Governing_mode(s).value, 0.5F);
}

} // namespace
} // namespace tarnvik::test
