#include "session/Search.h"

#include <gtest/gtest.h>

#include <set>
#include <tuple>

#include "tests/support/Calculation.h"
#include "tests/support/RecordingMessageBox.h"

namespace tarnvik::test {
namespace {

using Choice = std::tuple<int, int, int, char, int>; // connector, bolt, number, arrangement, spacing

Choice Choice_of(const Fasteners& f) {
    return {f.Bulldog_index, f.Bolt_index, f.Ant_index, f.Bolt_ab, f.Avstand_index};
}

void Free_entry(ConnectionState& s, const char* b1, const char* h1, const char* b2, const char* h2) {
    s.Standard = false;
    s.Txt_b1 = b1;
    s.Txt_h1 = h1;
    s.Txt_b2 = b2;
    s.Txt_h2 = h2;
}

// What an engineer finds who tries one after the other, each on the joint as it was given.
std::set<Choice> Holding_one_by_one(const ConnectionState& joint, std::int16_t first_connector) {
    std::set<Choice> holding;
    ConnectionState s;
    Fasteners f;
    for (f.Bulldog_index = first_connector; f.Bulldog_index < 5; ++f.Bulldog_index) {
        for (f.Bolt_index = 0; f.Bolt_index < 8; ++f.Bolt_index) {
            for (f.Ant_index = 0; f.Ant_index < 5; ++f.Ant_index) {
                for (int i = 0; i < 32; ++i) {
                    f.Bolt_ab = i < 16 ? 'a' : 'b';
                    f.Avstand_index = static_cast<std::int16_t>(i % 16);
                    if (i == 0) {
                        s = joint;
                    } else {
                        static_cast<ConnectionValues&>(s) = joint;
                    }
                    Set_fasteners(s, f);
                    RecordingMessageBox box;
                    if (Run_pass(s, nullptr, box).end == PassEnd::normal && Verdict_of(s, true).Holds()) {
                        holding.insert(Choice_of(f));
                    }
                }
            }
        }
    }
    return holding;
}

// Every choice that an entry stands for.
std::set<Choice> Expanded(const SearchResult& result) {
    std::set<Choice> choices;
    for (const FoundFasteners& found : result.found) {
        Fasteners f = found.fasteners;
        std::vector<std::int16_t> bolts = found.other_bolts;
        bolts.push_back(f.Bolt_index);
        for (const std::int16_t bolt : bolts) {
            f.Bolt_index = bolt;
            for (const char layout : {'a', 'b'}) {
                f.Bolt_ab = layout;
                for (int row = found.fasteners.Avstand_index; row <= found.last_spacing; ++row) {
                    f.Avstand_index = static_cast<std::int16_t>(row);
                    if (found.both_layouts || layout == found.fasteners.Bolt_ab) {
                        EXPECT_TRUE(choices.insert(Choice_of(f)).second) << "listed twice";
                    }
                }
            }
        }
    }
    return choices;
}

SearchLimits All() {
    SearchLimits limits;
    limits.with_connectors = true;
    return limits;
}

TEST(Search, finds_what_holds_one_by_one) {
    struct Joint {
        std::int16_t type;
        int variant;
        float alp, P;
    };
    for (const Joint& joint : {Joint{1, 1, 25.0F, 4.0F}, Joint{1, 2, 40.0F, -14.0F}, Joint{2, 2, 90.0F, -8.0F},
                               Joint{3, 3, 60.0F, 4.0F}, Joint{4, 2, 90.0F, 9.0F}, Joint{5, 3, 90.0F, -7.0F}}) {
        const auto s = New_project();
        Pick_variant(*s, joint.type, joint.variant);
        s->alp = joint.alp;
        s->P = joint.P;
        Free_entry(*s, "48,04", "198", "73", "223"); // 48.04 is rounded by the first pass
        const SearchResult result = Search_fasteners(*s, All(), true);
        const std::set<Choice> holding = Holding_one_by_one(*s, no_connector);
        EXPECT_FALSE(holding.empty()) << joint.type;
        EXPECT_LT(holding.size(), 7680U);
        EXPECT_EQ(Expanded(result), holding) << joint.type;
        EXPECT_EQ(result.holding, holding.size());
        EXPECT_EQ(result.choices, 7680U);
    }
}

TEST(Search, ranks_by_number_diameter_and_utilisation) {
    const auto s = New_project();
    Pick_variant(*s, 1, 2);
    s->P = -10.0F;
    Free_entry(*s, "48", "198", "48", "223");
    const SearchResult result = Search_fasteners(*s, All(), true);
    ASSERT_GT(result.found.size(), 100U);
    std::tuple<int, float, float> last{};
    for (const FoundFasteners& found : result.found) {
        const auto& checks = found.judgement.verdict.checks;
        const float utilisation = std::max(checks[0].value, checks[1].value);
        EXPECT_EQ(found.Utilisation(), utilisation);
        EXPECT_EQ(found.Governs(), checks[1].value > checks[0].value ? Check::splitting : Check::utilisation);
        const std::tuple rank{bolt_numbers.at(static_cast<std::size_t>(found.fasteners.Ant_index)),
                              bolt_table.at(static_cast<std::size_t>(found.fasteners.Bolt_index)).d, utilisation};
        EXPECT_LE(last, rank);
        last = rank;
    }
}

TEST(Search, lists_choices_without_a_difference_once) {
    const auto s = New_project();
    s->alp = 0.0F; // along the grain of both: the spacing needs none of their heights
    s->P = -0.5F;
    Free_entry(*s, "48", "198", "48", "198");
    SearchLimits limits;
    limits.Bolt_index = 0;
    limits.Ant_index = 0; // one bolt has neither arrangement nor spacing
    SearchResult result = Search_fasteners(*s, limits, true);
    ASSERT_EQ(result.found.size(), 1U);
    EXPECT_EQ(result.holding, 32U);
    EXPECT_TRUE(result.found[0].both_layouts);
    EXPECT_EQ(result.found[0].fasteners.Bolt_ab, 'a');
    EXPECT_EQ(result.found[0].fasteners.Avstand_index, 0);
    EXPECT_EQ(result.found[0].last_spacing, 15);
    // Two bolts in a row count as two from 2^0.9 (a1 / 13 d)^0.25 = 2 on, which is 17.2 d.
    limits.Ant_index = 1;
    limits.Bolt_ab = 'b';
    result = Search_fasteners(*s, limits, true);
    ASSERT_EQ(result.found.size(), 14U); // 5d to 17d, and 18d to 20d in one
    for (const FoundFasteners& found : result.found) {
        const int row = found.fasteners.Avstand_index;
        EXPECT_EQ(found.last_spacing, row < 13 ? row : 15);
        EXPECT_FALSE(found.both_layouts);
    }
    EXPECT_EQ(result.found[0].fasteners.Avstand_index, 13); // the least utilised
    // Side by side they have an arrangement, and no spacing along the grain.
    limits.Bolt_ab.reset();
    result = Search_fasteners(*s, limits, true);
    EXPECT_EQ(result.found.size(), 15U);
}

TEST(Search, lists_grades_without_a_difference_once) {
    const auto s = New_project();
    Pick_variant(*s, 1, 2);
    s->P = -1.0F;
    Free_entry(*s, "48", "198", "20", "198"); // a thin middle member: mode h, (8.7 h), without the bolt's yield moment
    SearchLimits limits;
    limits.Ant_index = 0;
    SearchResult result = Search_fasteners(*s, limits, true);
    ASSERT_EQ(result.found.size(), 4U); // M12, M16, M20, M24
    for (const FoundFasteners& found : result.found) {
        EXPECT_EQ(found.judgement.governing.mode, 'h');
        EXPECT_EQ(found.other_bolts,
                  std::vector<std::int16_t>{static_cast<std::int16_t>(found.fasteners.Bolt_index + 4)});
        EXPECT_LT(found.fasteners.Bolt_index, 4); // the lower grade
    }
    // In thick members the bolt yields.
    Free_entry(*s, "98", "198", "198", "198");
    result = Search_fasteners(*s, limits, true);
    ASSERT_EQ(result.found.size(), 8U);
    for (const FoundFasteners& found : result.found) {
        EXPECT_TRUE(found.other_bolts.empty());
    }
}

TEST(Search, limits_say_what_is_tried) {
    SearchLimits limits;
    EXPECT_EQ(limits.Count(), 1280U);
    EXPECT_EQ(All().Count(), 7680U);
    EXPECT_EQ(limits.First().Bulldog_index, no_connector);
    limits.Bulldog_index = 2;
    EXPECT_EQ(limits.Count(), 1280U);
    limits.Bolt_index = 5;
    limits.Ant_index = 4;
    limits.Bolt_ab = 'b';
    limits.Avstand_index = 2;
    EXPECT_EQ(limits.Count(), 1U);
    EXPECT_EQ(Choice_of(limits.First()), (Choice{2, 5, 4, 'b', 2}));
    const auto s = New_project();
    s->P = 0.1F;
    Free_entry(*s, "98", "600", "98", "600");
    const SearchResult result = Search_fasteners(*s, limits, true);
    ASSERT_EQ(result.found.size(), 1U);
    EXPECT_EQ(Choice_of(result.found[0].fasteners), (Choice{2, 5, 4, 'b', 2}));
    EXPECT_GT(result.found[0].Rd_for, 0.0F);
}

TEST(Search, says_why_others_are_left_out) {
    const auto s = New_project();
    s->P = 10000.0F;
    const std::string project = s->Prosjekt;
    SearchResult result = Search_fasteners(*s, All(), true);
    EXPECT_TRUE(result.found.empty());
    EXPECT_EQ(result.failing[0], 7680U - 1920U); // every one that is calculated
    EXPECT_EQ(result.not_checked, 0U);
    // D50 does not take M20 and M24, D62 and D75 not M24, D95 and D117 not M12, in two grades each: 12 pairs.
    ASSERT_EQ(result.stopped.size(), 1U);
    EXPECT_EQ(result.stopped[0].reason, "connector refused");
    EXPECT_EQ(result.stopped[0].choices, 12U * 5 * 2 * 16);
    EXPECT_EQ(result.Stopped_choices(), 1920U);
    EXPECT_EQ(s->P, 10000.0F); // the joint stays
    EXPECT_EQ(s->uf, 0.0F);
    Free_entry(*s, "0", "198", "48", "198");
    result = Search_fasteners(*s, {}, false);
    EXPECT_EQ(result.Stopped_choices(), 1280U);
    EXPECT_EQ(result.stopped.at(0).reason, "et tverrsnitt har en side lik null");
}

TEST(Search, a_typed_he_is_checked_with_every_choice) {
    const auto s = New_project();
    s->P = 2.0F;
    Free_entry(*s, "48", "198", "48", "223");
    s->Man_he_on = true;
    s->man_he = 150.0F;
    SearchLimits limits;
    limits.Ant_index = 0;
    SearchResult result = Search_fasteners(*s, limits, true);
    ASSERT_FALSE(result.found.empty());
    for (const FoundFasteners& found : result.found) {
        EXPECT_TRUE(found.judgement.he_typed);
        EXPECT_EQ(found.judgement.verdict.checks[1].value, result.found[0].judgement.verdict.checks[1].value);
    }
    s->man_he = 300.0F; // the member has 223
    result = Search_fasteners(*s, limits, true);
    EXPECT_TRUE(result.found.empty());
    EXPECT_EQ(result.not_checked, 256U);
}

} // namespace
} // namespace tarnvik::test
