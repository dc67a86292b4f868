#include "check/Line_check.h"

#include <algorithm>

#include <nlohmann/json.hpp>

#include "check/Inputs.h"
#include "check/Recording.h"

namespace tarnvik {

using Json = nlohmann::ordered_json;

LineCheck::LineCheck(const Options& options, const ConnectionState& fresh)
    : options_(options), fresh_(fresh), s_(std::make_unique<ConnectionState>(fresh)),
      record_(Recording(session_, clock_)) {}

long LineCheck::Check(std::string_view lines, long number, Answers& answers) {
    const long first = number;
    for (std::size_t begin = 0; begin < lines.size(); ++number) {
        const std::size_t end = std::min(lines.find('\n', begin), lines.size());
        answers.status = Worse(answers.status, Line(lines.substr(begin, end - begin), number, answers));
        answers.results += '\n';
        begin = end + 1;
    }
    return number - first;
}

int LineCheck::Line(std::string_view line, long number, Answers& answers) {
    std::string error;
    try {
        Renew();
        if (!reader_.Read(line, *s_, [this] { Calculate(); })) {
            Renew();
            Calculate_line(Json::parse(line));
        }
        Append_result(answers.results, options_, {}, *s_, session_.Shown(), result_, messages_, record_);
        return Status(*s_, result_);
    } catch (const UsageError& usage) {
        error = usage.text;
    } catch (const Json::exception& json) {
        error = std::string{"expected JSON: "} + json.what();
    }
    answers.complaints.push_back(
        {answers.results.size(), "tarnvik-check: line " + std::to_string(number) + ": " + error + "\n"});
    answers.results += "{\"line\":" + std::to_string(number) + ",\"error\":";
    Append_json(answers.results, error);
    answers.results += '}';
    return exit_usage;
}

// An object of inputs, or several that are applied one after the other; the result is that of the last.
void LineCheck::Calculate_line(const Json& inputs) {
    if (!inputs.is_array()) {
        Set_inputs(*s_, inputs);
        Calculate();
        return;
    }
    if (inputs.empty()) {
        throw UsageError{"expected at least one object of inputs, got []"};
    }
    for (const Json& object : inputs) {
        Set_inputs(*s_, object);
        Calculate();
    }
}

void LineCheck::Calculate() {
    messages_.messages.clear();
    result_ = session_.First_pass(options_.with.empty() ? Session::Showing::nothing : Session::Showing::screen);
}

// A new project; the tables never change in a batch.
void LineCheck::Renew() {
    static_cast<ConnectionValues&>(*s_) = fresh_;
    if (!options_.with.empty()) {
        session_.Shown() = {};
    }
}

} // namespace tarnvik
