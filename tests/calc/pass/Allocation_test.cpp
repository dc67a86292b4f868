// A pass on the state alone allocates nothing: it runs on every accepted input and has to feel immediate. This program
// counts what goes through the global operator new.
#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include "calc/pass/Main_beregn.h"
#include "spacing/Catalogue.h"
#include "tests/support/Calculation.h"
#include "tests/support/RecordingMessageBox.h"

namespace {

long allocations = 0;

void* Counted(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc{};
}

} // namespace

void* operator new(std::size_t size) {
    return Counted(size);
}
void* operator new[](std::size_t size) {
    return Counted(size);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace tarnvik {
namespace {

TEST(Allocation, the_count_counts) {
    const long before = allocations;
    const auto text = std::make_unique<std::string>(100, 'x');
    EXPECT_GE(allocations - before, 2);
}

TEST(Allocation, a_pass_on_the_state_allocates_nothing) {
    const auto s = test::New_project();
    test::RecordingMessageBox box;
    test::Pick_connector(*s, 1);
    s->Bolt_index = 1; // M16x4.6 fits D62
    s->Prof1_index = 120;
    s->Prof2_index = 120;
    int passes = 0;
    for (const bool standard : {true, false}) {
        s->Standard = standard;
        for (const CaseRow& row : case_table) {
            s->Ant_index = static_cast<std::int16_t>(row.n_bolt == 6 ? 4 : row.n_bolt - 1);
            s->Bolt_ab = row.letter == 'a' ? "a" : "b";
            for (int variant = 1; variant <= 3; ++variant) {
                for (const float P : {25.0F, -25.0F}) {
                    SCOPED_TRACE(testing::Message() << row.Case_code << ", variant " << variant << ", P " << P);
                    test::Pick_variant(*s, static_cast<std::int16_t>(row.type - '0'), variant);
                    s->P = P;
                    // The boxes of the free entry, as a user types them; the pass writes them back.
                    s->Txt_b1 = "115,5";
                    s->Txt_h1 = " 600.25";
                    s->Txt_b2 = "90";
                    s->Txt_h2 = "720 mm";
                    const long before = allocations;
                    const PassEnd end = Main_beregn(*s, nullptr, box);
                    const long after = allocations;
                    ASSERT_EQ(after - before, 0);
                    // The pass went through everything.
                    ASSERT_EQ(end, PassEnd::normal);
                    ASSERT_EQ(s->Case_code, row.Case_code);
                    ASSERT_GT(s->Rd_bolt, 0.0F);
                    ASSERT_GT(s->Rd_for, 0.0F);
                    ASSERT_GT(s->Tverr_kontroll, 0.0F);
                    ASSERT_GT(s->Sum_cb, 0.0F);
                    ++passes;
                }
            }
        }
    }
    EXPECT_EQ(passes, 2 * 35 * 3 * 2);
}

} // namespace
} // namespace tarnvik
