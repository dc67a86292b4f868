#include "spacing/Catalogue.h"

#include <gtest/gtest.h>

#include <set>

namespace tarnvik {
namespace {

struct Case {
    const char* code;
    std::int16_t type, n_bolt;
    char letter; // blank where the arrangement plays no part
};

// clang-format off
constexpr Case cases[] = {
    {"1.1. ", 1, 1, ' '},
    {"1.2.a", 1, 2, 'a'},
    {"1.2.b", 1, 2, 'b'},
    {"1.3.a", 1, 3, 'a'},
    {"1.3.b", 1, 3, 'b'},
    {"1.4. ", 1, 4, ' '},
    {"1.6. ", 1, 6, ' '},
    {"2.1. ", 2, 1, ' '},
    {"2.2. ", 2, 2, ' '},
    {"2.3. ", 2, 3, ' '},
    {"2.4. ", 2, 4, ' '},
    {"2.6. ", 2, 6, ' '},
    {"3.1. ", 3, 1, ' '},
    {"3.2.a", 3, 2, 'a'},
    {"3.2.b", 3, 2, 'b'},
    {"3.3.a", 3, 3, 'a'},
    {"3.3.b", 3, 3, 'b'},
    {"3.4. ", 3, 4, ' '},
    {"3.6. ", 3, 6, ' '},
    {"4.1. ", 4, 1, ' '},
    {"4.2.a", 4, 2, 'a'},
    {"4.2.b", 4, 2, 'b'},
    {"4.3.a", 4, 3, 'a'},
    {"4.3.b", 4, 3, 'b'},
    {"4.4. ", 4, 4, ' '},
    {"4.6.a", 4, 6, 'a'},
    {"4.6.b", 4, 6, 'b'},
    {"5.1. ", 5, 1, ' '},
    {"5.2.a", 5, 2, 'a'},
    {"5.2.b", 5, 2, 'b'},
    {"5.3.a", 5, 3, 'a'},
    {"5.3.b", 5, 3, 'b'},
    {"5.4. ", 5, 4, ' '},
    {"5.6.a", 5, 6, 'a'},
    {"5.6.b", 5, 6, 'b'},
};
// clang-format on

FixedText<3> Code(std::int16_t type, int variant) {
    const std::array<char, 3> code{static_cast<char>('0' + type), '.', static_cast<char>('0' + variant)};
    return std::string_view{code.data(), code.size()};
}

TEST(Catalogue, has_the_35_cases_once_each) {
    ASSERT_EQ(std::size(cases), 35U);
    ASSERT_EQ(case_table.size(), 35U);
    std::set<std::string_view> codes;
    for (const Case& wanted : cases) {
        SCOPED_TRACE(wanted.code);
        codes.insert(wanted.code);
        const int row = Find_case(wanted.code);
        ASSERT_GE(row, 0);
        const CaseRow& found = case_table[static_cast<std::size_t>(row)];
        EXPECT_EQ(found.Case_code, wanted.code);
        EXPECT_EQ(found.type, '0' + wanted.type);
        EXPECT_EQ(found.n_bolt, wanted.n_bolt);
        EXPECT_EQ(found.letter, wanted.letter);
        EXPECT_EQ(found.Case_code.size(), 5U);                           // always five characters
        EXPECT_EQ(found.Case_code.find('5', 1), std::string_view::npos); // no connection of five bolts
    }
    EXPECT_EQ(codes.size(), 35U);
}

TEST(Catalogue, codes_are_found_as_they_are_stored_only) {
    for (const char* code : {"", "1.1", "1.1.", "1.2. ", "1.2.c", "1.5. ", "6.1. ", "1.4.a", "2.2.a"}) {
        EXPECT_EQ(Find_case(code), -1) << code;
    }
    EXPECT_EQ(Find_case('1', 5, 'a'), -1);
    EXPECT_EQ(Find_case('6', 1, 'a'), -1);
    EXPECT_EQ(Find_case('1', 2, 'x'), -1);
    EXPECT_EQ(Find_case('1', 4, 'x'), Find_case("1.4. "));
}

TEST(Catalogue, case_code_by_type_number_and_letter) {
    for (const Case& wanted : cases) {
        for (const char* letter : {"a", "b"}) {
            if (wanted.letter != ' ' && wanted.letter != letter[0]) {
                continue;
            }
            SCOPED_TRACE(testing::Message() << wanted.code << " with letter " << letter);
            ConnectionValues s;
            s.Case_code = "old";
            s.Con_type = wanted.type;
            s.n_bolt = wanted.n_bolt;
            s.Bolt_ab = letter;
            Get_Case_code(s);
            EXPECT_EQ(s.Case_code.View(), wanted.code);
            EXPECT_EQ(s.Bolt_ab.View(), letter); // waits where it plays no part
        }
    }
}

TEST(Catalogue, case_code_stays_where_no_row_fits) {
    struct Row {
        const char* name;
        std::int16_t type, n_bolt;
        const char* letter;
    };
    // clang-format off
    const Row rows[] = {
        {"type 0",                       0, 1, "a"},
        {"type 6",                       6, 1, "a"},
        {"type -1",                     -1, 1, "a"},
        {"five bolts",                   1, 5, "a"},
        {"no bolt yet",                  1, 0, "a"},
        {"another letter, 2 bolts",      1, 2, "x"},
        {"no letter, 3 bolts",           3, 3, " "},
        {"capital letter, 6 bolts",      4, 6, "B"},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        ConnectionValues s;
        s.Case_code = "3.3.b";
        s.Con_type = row.type;
        s.n_bolt = row.n_bolt;
        s.Bolt_ab = row.letter;
        Get_Case_code(s);
        EXPECT_EQ(s.Case_code.View(), "3.3.b");
    }
}

TEST(Catalogue, two_bolts_of_type_2_are_one_case_whatever_the_letter) {
    ConnectionValues s;
    s.Con_type = 2;
    s.n_bolt = 2;
    s.Bolt_ab = "a";
    Get_Case_code(s);
    EXPECT_EQ(s.Case_code.View(), "2.2. ");
    s.Con_type = 3; // the letter comes into force again
    Get_Case_code(s);
    EXPECT_EQ(s.Case_code.View(), "3.2.a");
}

TEST(Catalogue, the_sketch_follows_con_code_and_takes_any_letter_but_b_as_a) {
    for (const Case& wanted : cases) {
        for (int variant = 1; variant <= 3; ++variant) { // the variant never enters
            for (const char* letter : {"a", "b", "x", " ", "B"}) {
                const char branch = letter[0] == 'b' ? 'b' : 'a';
                if (wanted.letter != ' ' && wanted.letter != branch) {
                    continue;
                }
                SCOPED_TRACE(testing::Message() << wanted.code << ", variant " << variant << ", letter " << letter);
                ConnectionValues s;
                s.Con_code = Code(wanted.type, variant);
                s.Con_type = 9; // Con_code alone picks the type
                s.n_bolt = wanted.n_bolt;
                s.Bolt_ab = letter;
                const int row = Plotted_case(s);
                ASSERT_GE(row, 0);
                EXPECT_EQ(case_table[static_cast<std::size_t>(row)].Case_code, wanted.code);
            }
        }
    }
}

TEST(Catalogue, no_sketch_without_a_connection_or_a_number) {
    ConnectionValues s;
    s.n_bolt = 1;
    for (const char* code : {"", "0.1", "6.1", "1.0", "1.4", "1,1"}) {
        SCOPED_TRACE(code);
        s.Con_code = code;
        EXPECT_EQ(Plotted_case(s), -1);
    }
    s.Con_code = "1.1";
    for (const int n : {0, 5, 7, -1}) {
        SCOPED_TRACE(n);
        s.n_bolt = static_cast<std::int16_t>(n);
        EXPECT_EQ(Plotted_case(s), -1);
    }
}

TEST(Catalogue, choice_of_arrangement_by_type_and_number) {
    struct Row {
        std::int16_t type;
        bool n1, n2, n3, n4, n6;
    };
    // clang-format off
    const Row rows[] = {
        {1, false, true,  true,  false, false},
        {2, false, false, false, false, false},
        {3, false, true,  true,  false, false},
        {4, false, true,  true,  false, true},
        {5, false, true,  true,  false, true},
    };
    // clang-format on
    for (const Row& row : rows) {
        for (int variant = 1; variant <= 3; ++variant) {
            const std::pair<int, bool> wanted[] = {{1, row.n1}, {2, row.n2}, {3, row.n3}, {4, row.n4}, {6, row.n6}};
            for (const auto& [n, choice] : wanted) {
                SCOPED_TRACE(testing::Message() << Code(row.type, variant).View() << " with " << n << " bolts");
                ConnectionValues s;
                s.Con_code = Code(row.type, variant);
                s.n_bolt = static_cast<std::int16_t>(n);
                s.Ab_valg = !choice;
                s.Bolt_ab = "a";
                Get_Ab_valg(s);
                EXPECT_EQ(s.Ab_valg, choice);
                EXPECT_EQ(s.Bolt_ab.View(), "a");
            }
        }
    }
}

TEST(Catalogue, choice_of_arrangement_stays_for_any_other_number_or_code) {
    for (const bool before : {false, true}) {
        for (const char* code : {"1.1", "2.2", "4.3", "   ", "6.1"}) {
            for (const int n : {0, 5, 7, -1}) {
                SCOPED_TRACE(testing::Message() << code << " with " << n);
                ConnectionValues s;
                s.Con_code = code;
                s.n_bolt = static_cast<std::int16_t>(n);
                s.Ab_valg = before;
                Get_Ab_valg(s);
                EXPECT_EQ(s.Ab_valg, before);
            }
        }
        ConnectionValues s;
        s.Con_code = "";
        s.n_bolt = 2;
        s.Ab_valg = before;
        Get_Ab_valg(s);
        EXPECT_EQ(s.Ab_valg, before);
    }
}

} // namespace
} // namespace tarnvik
