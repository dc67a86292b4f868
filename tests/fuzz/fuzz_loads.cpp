// Tables of load cases: refused with a reason, or checked and told as summary, CSV and JSON.
#include <string>

#include <nlohmann/json.hpp>

#include "Fuzz.h"
#include "check/Csv.h"
#include "check/Loads.h"
#include "check/Options.h"

namespace {

using namespace tarnvik;

// What is written as CSV reads back to a row for each case.
void Read_back(const std::string& csv, const LoadsResult& result) {
    CsvReader reader;
    std::vector<CsvRow> rows = reader.Read(csv);
    for (CsvRow& row : reader.Finish()) {
        rows.push_back(std::move(row));
    }
    FUZZ_CHECK(rows.size() == result.loads.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        FUZZ_CHECK(rows[i].error.empty());
        FUZZ_CHECK(rows[i].cells.at(0) == result.loads[i].load.name);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto s = std::make_unique<ConnectionState>(fuzz::New_project());
    try {
        const LoadTable table = Parse_loads({reinterpret_cast<const char*>(data), size}, "loads.csv");
        FUZZ_CHECK(!table.loads.empty());
        const LoadsResult result = Check_loads(*s, table.loads);
        FUZZ_CHECK(result.loads.size() == table.loads.size());
        Read_back(Loads_csv(result, table), result);
        FUZZ_CHECK(nlohmann::json::parse(Loads_json(result, {})).at("cases").size() == result.loads.size());
        FUZZ_CHECK(!Loads_summary(result).empty());
        FUZZ_CHECK((Loads_status(result, true) == 0) == (result.Holds() == std::optional{true}));
    } catch (const UsageError& error) {
        FUZZ_CHECK(error.text.starts_with("loads.csv"));
    }
    return 0;
}
