#include "check/Line_check.h"

#include <algorithm>
#include <filesystem>

#include <nlohmann/json.hpp>

#include "calc/RuntimeFault.h"
#include "check/Inputs.h"
#include "check/Nearest.h"
#include "check/Recording.h"
#include "check/Sheets.h"
#include "check/Validation.h"
#include "data/SafeWrite.h"
#include "platform/Path.h"

namespace tarnvik {

using Json = nlohmann::ordered_json;

namespace {

void Complain(Answers& answers, long line, std::string_view id, const std::string& text) {
    std::string complaint = "tarnvik-check: line " + std::to_string(line);
    if (!id.empty()) {
        complaint += " (" + Cut(id) + ")";
    }
    answers.complaints.push_back({answers.results.size(), complaint + ": " + text + "\n"});
}

} // namespace

LineCheck::LineCheck(const Options& options, const ConnectionState& fresh)
    : options_(options), fresh_(fresh), s_(std::make_unique<ConnectionState>(fresh)),
      record_(Recording(session_, clock_)), judging_(options.checks || options.strict || options.sheets) {}

void LineCheck::Check(std::string_view lines, long number, Answers& answers) {
    for (std::size_t begin = 0; begin < lines.size(); ++number, ++answers.count) {
        const std::size_t end = std::min(lines.find('\n', begin), lines.size());
        const std::string_view line = lines.substr(begin, end - begin);
        begin = end + 1;
        if (line.find_first_not_of(" \t\r") != std::string_view::npos) {
            answers.status = Worse(answers.status, Line(line, number, answers));
            answers.results += '\n';
        }
    }
}

void LineCheck::Check(const std::vector<CsvRow>& rows, const BatchTable& table, Answers& answers) {
    for (const CsvRow& row : rows) {
        answers.status = Worse(answers.status, Row(row, table, answers));
        ++answers.count;
    }
}

int LineCheck::Line(std::string_view line, long number, Answers& answers) {
    try {
        const int status = Answer(line, answers.results);
        return Worse(status, Write_sheet(number, answers));
    } catch (const UsageError& error) {
        Complain(answers, number, id_, error.text);
        answers.results += "{\"line\":" + std::to_string(number);
        if (!id_.empty()) {
            answers.results += ",\"Id\":";
            Append_json(answers.results, id_);
        }
        answers.results += ",\"error\":";
        Append_json(answers.results, error.text);
        answers.results += '}';
        return exit_usage;
    }
}

// Errors: throws UsageError.
int LineCheck::Answer(std::string_view line, std::string& results) {
    if (!Read_fast(line)) {
        Renew();
        Calculate_line(Parse_line(line));
    }
    if (options_.checks) {
        remarks_.checks = judge_.Judge_results(*s_);
    }
    Append_result(results, options_, {}, *s_, session_.Shown(), result_, messages_, record_, remarks_);
    return Status_of_result();
}

int LineCheck::Row(const CsvRow& row, const BatchTable& table, Answers& answers) {
    try {
        const int status = Answer(row, table, answers.results);
        return Worse(status, Write_sheet(row.line, answers));
    } catch (const UsageError& error) {
        Complain(answers, row.line, table.Id(row), error.text);
        table.Append_error(answers.results, table.Id(row), error.text);
        return exit_usage;
    }
}

// Errors: throws UsageError.
int LineCheck::Answer(const CsvRow& row, const BatchTable& table, std::string& results) {
    Renew();
    table.Set_inputs(*s_, row);
    Calculate(true);
    table.Append_result(results, *s_, judge_.Judge_results(*s_), remarks_.warnings);
    return Status_of_result();
}

int LineCheck::Status_of_result() const {
    const int status = Status(*s_, result_);
    return options_.strict ? Strict_status(status, judge_.Judge_results(*s_)) : status;
}

// What has to be told of a line is left to the general reader, and where a typed he may be out of date: that one knows
// which step wrote it.
bool LineCheck::Read_fast(std::string_view line) {
    Renew();
    try {
        return reader_.Read(line, *s_, [this] { Calculate(true); }) && !(judging_ && steps_ > 1 && s_->Man_he_on);
    } catch (const UsageError&) {
        return false;
    }
}

// An object of inputs, or several that are applied one after the other; the result is that of the last.
void LineCheck::Calculate_line(const Json& inputs) {
    if (!inputs.is_array()) {
        Calculate_object(inputs);
        return;
    }
    if (inputs.empty()) {
        throw UsageError{"expected at least one object of inputs, got []"};
    }
    for (std::size_t i = 0; i < inputs.size(); ++i) {
        try {
            Calculate_object(inputs[i]);
        } catch (const UsageError& error) {
            throw inputs.size() > 1 ? UsageError{"element " + std::to_string(i + 1) + ": " + error.text} : error;
        }
    }
}

void LineCheck::Calculate_object(const Json& inputs) {
    if (inputs.is_object() && inputs.contains("Id") && inputs["Id"].is_string()) {
        id_ = inputs["Id"].get<std::string>();
    }
    Set_inputs(*s_, inputs);
    Calculate(steps_ == 0 || inputs.contains("man_he") || inputs.contains("Man_he_on"));
}

// `typed`: he has been written, or may have been. Errors: throws UsageError for what --strict refuses.
void LineCheck::Calculate(bool typed) {
    messages_.messages.clear();
    remarks_.warnings = Invalid_inputs(*s_);
    if (options_.strict && !remarks_.warnings.empty()) {
        throw UsageError{remarks_.warnings.front()};
    }
    result_ = session_.First_pass(options_.with.empty() ? Session::Showing::nothing : Session::Showing::screen);
    ++steps_;
    if (judging_) {
        judge_.After_pass(*s_, result_, typed);
    }
}

// The check sheet of --sheets. What cannot be written makes the batch fail, and is told.
int LineCheck::Write_sheet(long number, Answers& answers) {
    if (!options_.sheets) {
        return exit_holds;
    }
    const std::string name = Sheet_name(number, s_->Id);
    if (!judge_.Judge_results(*s_).not_current.empty()) {
        Complain(answers, number, s_->Id, name + ": not written, the check was stopped");
        return exit_stopped;
    }
    try {
        Safe_write(Path_of(*options_.sheets) / Path_of(name), Sheet_of(*s_, judge_, clock_.Now()), {OldTail::drop},
                   "Write_sheet");
    } catch (const RuntimeFault& fault) {
        Complain(answers, number, s_->Id, name + ": cannot be written: " + std::string{fault.description});
        return exit_usage;
    }
    return exit_holds;
}

// A new project; the tables never change in a batch.
void LineCheck::Renew() {
    static_cast<ConnectionValues&>(*s_) = fresh_;
    steps_ = 0;
    id_.clear();
    judge_.Begin();
    if (!options_.with.empty()) {
        session_.Shown() = {};
    }
}

} // namespace tarnvik
