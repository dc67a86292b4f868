#include "calc/RuntimeFault.h"

#include <gtest/gtest.h>

namespace tarnvik {
namespace {

TEST(RuntimeFault, every_number_has_its_description) {
    struct Row {
        int number;
        const char* description;
    };
    // clang-format off
    const Row rows[] = {
        { 5, "invalid procedure call or argument"},
        { 6, "overflow"},
        { 9, "subscript out of range"},
        {11, "division by zero"},
        {13, "type mismatch"},
        {53, "file not found"},
        {59, "bad record length"},
        {76, "path not found"},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.number);
        EXPECT_EQ(Fault_description(row.number), row.description);
    }
}

TEST(RuntimeFault, the_box_of_the_last_resort_reads) {
    EXPECT_EQ(Fault_text({5, Fault_description(5), "Tverr_brudd"}),
              "Run-time error 5: invalid procedure call or argument (Tverr_brudd)");
    EXPECT_EQ(Fault_text({11, Fault_description(11), ""}), "Run-time error 11: division by zero");
}

TEST(RuntimeFault, raise_throws_number_description_and_place) {
    try {
        Raise(9, "Get_material");
    } catch (const RuntimeFault& fault) {
        EXPECT_EQ(fault.number, 9);
        EXPECT_EQ(fault.description, "subscript out of range");
        EXPECT_EQ(fault.where, "Get_material");
    }
}

} // namespace
} // namespace tarnvik
