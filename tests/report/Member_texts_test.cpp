#include "report/Member_texts.h"

#include <gtest/gtest.h>

namespace tarnvik {
namespace {

ConnectionValues Of(std::int16_t type, const char* code) {
    ConnectionValues s;
    s.Con_type = type;
    s.Con_code = code;
    return s;
}

// Types 2, 4 and 5 share their group; labels do not ask for the type.
TEST(Member_texts, notes_go_by_the_group_of_the_type) {
    EXPECT_NE(Member_notes(Of(1, "1.3")), nullptr);
    EXPECT_EQ(Member_notes(Of(1, "2.1")), nullptr);
    EXPECT_NE(Member_notes(Of(2, "4.1")), nullptr);
    EXPECT_NE(Member_notes(Of(4, "5.2")), nullptr);
    EXPECT_NE(Member_notes(Of(5, "2.3")), nullptr);
    EXPECT_EQ(Member_notes(Of(5, "3.1")), nullptr);
    EXPECT_NE(Member_notes(Of(3, "3.1")), nullptr);
    EXPECT_EQ(Member_notes(Of(3, "1.1")), nullptr);
    EXPECT_EQ(Member_notes(Of(0, "1.1")), nullptr);
    EXPECT_EQ(Member_notes(Of(6, "5.1")), nullptr);
    EXPECT_NE(Member_labels(Of(0, "1.1")), nullptr);
}

TEST(Member_texts, code_outside_the_catalogue) {
    EXPECT_EQ(Member_labels(Of(1, "1.4")), nullptr);
    EXPECT_EQ(Member_labels(Of(1, "")), nullptr);
    EXPECT_EQ(Member_notes(Of(1, "")), nullptr);
}

} // namespace
} // namespace tarnvik
