#include "sheet/Record.h"

#include <gtest/gtest.h>

#include <string>

#include "calc/pass/Main_beregn.h"
#include "tests/support/Calculation.h"
#include "tests/support/RecordingMessageBox.h"

namespace tarnvik {
namespace {

const Moment now{"21.11.2026", "08:09:10"};

std::unique_ptr<ConnectionState> Calculated() {
    auto s = test::New_project();
    test::RecordingMessageBox box;
    Main_beregn(*s, nullptr, box);
    return s;
}

SheetRecord Record_now(const ConnectionState& s) {
    return Record_of(s, Verdict_of(s, true), now, "1.2.0");
}

TEST(SheetRecord, has_inputs_tables_and_results) {
    const auto s = Calculated();
    const std::string json = Record_now(*s).json;
    for (const char* part :
         {R"("version":"1.2.0","date":"21.11.2026","time":"08:09:10","decimal":".","inputs":{"Lang":"Eng")",
          R"("P":10.0)", R"("Mat_index":3)", R"("material":{"Id":"C20","Type":"T")",
          R"("profile1":{"Id":"T  34x95","b":34.0,"h":95.0})", R"("Fv_c":)", R"("Tverr_kontroll":)", R"("Sa1":60.0)"}) {
        EXPECT_NE(json.find(part), std::string::npos) << part << "\n" << json;
    }
    EXPECT_EQ(json.find("\"Fv_g\""), std::string::npos);   // of double shear
    EXPECT_EQ(json.find("\"Rd_for\""), std::string::npos); // without connectors
    EXPECT_EQ(json.find("\"Ca1\""), std::string::npos);
}

TEST(SheetRecord, a_check_that_has_not_been_made_has_no_results) {
    const auto s = Calculated();
    const std::string json = Record_of(*s, Verdict_of(*s, false), now, "1.2.0").json;
    EXPECT_EQ(json.find("Tverr_kontroll"), std::string::npos);
}

TEST(SheetRecord, the_checksum_tells_any_change) {
    const auto s = Calculated();
    const SheetRecord record = Record_now(*s);
    EXPECT_EQ(record.checksum.size(), 32U);
    EXPECT_EQ(record.checksum, Record_checksum(record.json));
    std::string changed = record.json;
    changed[changed.size() / 2] ^= 1;
    EXPECT_NE(Record_checksum(changed), record.checksum);
    s->P = 10.01F;
    EXPECT_NE(Record_now(*s).checksum, record.checksum);
}

// Of the hash's own documentation: the value of no bytes at all.
TEST(SheetRecord, the_checksum_is_that_of_its_library) {
    EXPECT_EQ(Record_checksum(""), "99aa06d3014798d86001c324468d497f");
}

} // namespace
} // namespace tarnvik
