// The distances against a calculation that was written apart from this one: 25200 records by their hash and 630 of
// them value by value (tests/reference).
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "spacing/Catalogue.h"
#include "tests/support/Record_hash.h"

namespace tarnvik {
namespace {

using test::Bits;

std::vector<std::string> Fields(const std::string& line) {
    std::vector<std::string> fields;
    std::size_t start = 0;
    for (std::size_t comma = line.find(','); comma != std::string::npos; comma = line.find(',', start)) {
        fields.push_back(line.substr(start, comma - start));
        start = comma + 1;
    }
    fields.push_back(line.substr(start));
    return fields;
}

std::vector<std::vector<std::string>> Rows(const char* file) {
    std::ifstream in{std::string{TARNVIK_SOURCE_DIR "/tests/reference/"} + file, std::ios::binary};
    EXPECT_TRUE(in) << file;
    std::vector<std::vector<std::string>> rows;
    for (std::string line; std::getline(in, line);) {
        if (!line.starts_with('#')) {
            rows.push_back(Fields(line));
        }
    }
    return rows;
}

float Number(const std::string& text) {
    return std::strtof(text.c_str(), nullptr);
}

// The first six columns: case, P, alp, Bolt_index, Bulldog_index, Avstand_index.
void Fill(ConnectionValues& s, const std::vector<std::string>& row) {
    s.P = Number(row[1]);
    s.alp = Number(row[2]);
    s.Bolt_index = static_cast<std::int16_t>(std::stoi(row[3]));
    s.Bulldog_index = static_cast<std::int16_t>(std::stoi(row[4]));
    s.Avstand_index = static_cast<std::int16_t>(std::stoi(row[5]));
    Get_bolt(s);
    Get_dc(s);
    Clear_spacing(s);
    const int case_row = Find_case(row[0]);
    ASSERT_GE(case_row, 0) << row[0];
    Calc_spacing(s, case_row);
}

std::string Inputs(const std::vector<std::string>& row) {
    return row[0] + ", P " + row[1] + ", angle " + row[2] + ", bolt " + row[3] + ", connector " + row[4] +
           ", spacing " + row[5];
}

TEST(Rules_reference, all_records_by_hash) {
    const auto rows = Rows("spacings.csv");
    // 35 cases, 3 forces, 6 angles, 4 bolts, 5 connectors, 2 chosen spacings
    ASSERT_EQ(rows.size(), 35U * 3 * 6 * 4 * 5 * 2);
    ConnectionValues s;
    int wrong = 0;
    for (const auto& row : rows) {
        ASSERT_EQ(row.size(), 7U);
        Fill(s, row);
        if (test::Record_hash(s) != row[6] && ++wrong <= 5) {
            ADD_FAILURE() << Inputs(row) << "\n" << test::Record_text(s);
        }
    }
    EXPECT_EQ(wrong, 0);
}

TEST(Rules_reference, records_value_by_value) {
    const auto rows = Rows("spacings_full.csv");
    ASSERT_EQ(rows.size(), 630U);
    ConnectionValues s;
    for (const auto& row : rows) {
        ASSERT_EQ(row.size(), 6U + 12 * 5 + 6);
        SCOPED_TRACE(Inputs(row));
        Fill(s, row);
        std::size_t column = 6;
        for (const Distance distance : test::all_distances) {
            const DistanceFields& fields = Fields_of(distance);
            SCOPED_TRACE(testing::Message() << "distance " << static_cast<int>(distance));
            EXPECT_EQ(s.*fields.lbl, row[column]);
            EXPECT_EQ(Bits(s.*fields.S), Bits(Number(row[column + 1])))
                << s.*fields.S << ", wanted " << row[column + 1];
            EXPECT_EQ(s.*fields.S_txt, row[column + 2]);
            EXPECT_EQ(Bits(s.*fields.C), Bits(Number(row[column + 3])))
                << s.*fields.C << ", wanted " << row[column + 3];
            EXPECT_EQ(s.*fields.C_txt, row[column + 4]);
            column += 5;
        }
        EXPECT_EQ(s.Sum_a_txt, row[column]);
        EXPECT_EQ(Bits(s.Sum_a), Bits(Number(row[column + 1])));
        EXPECT_EQ(Bits(s.Sum_ca), Bits(Number(row[column + 2])));
        EXPECT_EQ(s.Sum_b_txt, row[column + 3]);
        EXPECT_EQ(Bits(s.Sum_b), Bits(Number(row[column + 4])));
        EXPECT_EQ(Bits(s.Sum_cb), Bits(Number(row[column + 5])));
        if (HasFailure()) {
            break; // one record tells enough
        }
    }
}

} // namespace
} // namespace tarnvik
