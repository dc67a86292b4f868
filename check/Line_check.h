// The checks of batch lines, or of rows of a table, on a session of their own.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "calc/GlobalParameter.h"
#include "calc/pass/Main_beregn.h"
#include "check/Batch_table.h"
#include "check/Checks.h"
#include "check/Csv.h"
#include "check/Json.h"
#include "check/Line_reader.h"
#include "check/MessageLog.h"
#include "check/Options.h"
#include "check/Status.h"
#include "session/Session.h"
#include "session/SystemClock.h"

namespace tarnvik {

// What several lines or rows led to.
struct Answers {
    // What is wrong with one, to be told before the results from `at` on.
    struct Complaint {
        std::size_t at;
        std::string text; // with its line end
    };

    std::string results; // a line each
    std::vector<Complaint> complaints;
    int status{exit_holds}; // the worst
    long count{};           // how many there were, blank ones among them
};

class LineCheck : private SessionView {
public:
    // Every line starts from `fresh`, a state that has not been calculated yet. The options have to outlive this.
    LineCheck(const Options& options, const ConnectionState& fresh);

    // Checks the lines, the first of them with the number `number`, and adds to `answers`.
    void Check(std::string_view lines, long number, Answers& answers);

    // The same of rows of the table.
    void Check(const std::vector<CsvRow>& rows, const BatchTable& table, Answers& answers);

private:
    MessageBox& Box() override { return messages_; }

    int Line(std::string_view line, long number, Answers& answers);
    int Answer(std::string_view line, std::string& results);
    int Row(const CsvRow& row, const BatchTable& table, Answers& answers);
    int Answer(const CsvRow& row, const BatchTable& table, std::string& results);
    [[nodiscard]] int Status_of_result() const;
    bool Read_fast(std::string_view line);
    void Calculate_line(const nlohmann::ordered_json& inputs);
    void Calculate_object(const nlohmann::ordered_json& inputs);
    void Calculate(bool typed);
    int Write_sheet(long number, Answers& answers);
    void Renew();

    const Options& options_;
    const ConnectionValues fresh_;
    std::unique_ptr<ConnectionState> s_;
    MessageLog messages_; // of the last pass
    Session session_{*s_, *this};
    SystemClock clock_;
    RecordReport record_;
    LineReader reader_;
    PassResult result_; // of the last pass
    Remarks remarks_;   // on it
    Judge judge_{session_.Results()};
    const bool judging_; // the verdict is asked for
    int steps_{};        // passes of the line
    std::string id_;     // what the line is called by its own inputs, as far as the general reader has come
};

} // namespace tarnvik
