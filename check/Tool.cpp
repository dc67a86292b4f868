#include "check/Tool.h"

#include <fstream>
#include <istream>
#include <iterator>
#include <optional>
#include <ostream>
#include <string_view>
#include <utility>

#include "calc/RuntimeFault.h"
#include "check/Batch.h"
#include "check/Find.h"
#include "check/Inputs.h"
#include "check/Lists.h"
#include "check/Loads.h"
#include "check/Plot.h"
#include "check/Recording.h"
#include "check/Sheets.h"
#include "check/Status.h"
#include "check/Summary.h"
#include "check/Validation.h"
#include "data/SafeWrite.h"
#include "data/SetupFile.h"
#include "platform/Path.h"
#include "report/PrintReport.h"

namespace tarnvik {

Tool::Tool(Options options, std::istream& in, std::ostream& out, std::ostream& err, Rendering* rendering)
    : options_(std::move(options)), in_(in), out_(out), err_(err), rendering_(rendering) {}

int Tool::Run(const std::filesystem::path& folder) {
    std::optional<std::string_view> lang;
    if (options_.lang) {
        lang = *options_.lang;
    }
    const StartReport report = session_.Start(folder, lang);
    if (report.setup) {
        err_ << "tarnvik-check: " << Setup_problem_text(*report.setup, folder, true) << "\n";
    }
    if (options_.list) {
        out_ << List_text(*s_, *options_.list, options_.json);
        return exit_holds;
    }
    if (options_.verify) {
        return Verify(*options_.verify);
    }
    if (options_.batch) {
        Set_all();
        return Run_batch(options_, *s_, in_, out_, err_);
    }
    if (options_.projects.empty()) {
        Set_all();
        return One({});
    }
    return Projects();
}

void Tool::Set_all() {
    for (const auto& [name, value] : options_.set) {
        Set_input(*s_, name, value);
    }
    Set_named_inputs(*s_, options_.named);
}

// ---------------------------------------------------------------------------------------------------------------------
// Projects

int Tool::Projects() {
    *start_ = *s_;
    int status = exit_holds;
    for (std::size_t i = 0; i < options_.projects.size(); ++i) {
        if (i > 0) {
            *s_ = *start_;
            session_.Shown() = {};
            if (!options_.json) {
                out_ << "\n";
            }
        }
        status = Worse(status, Project(options_.projects[i]));
    }
    return status;
}

int Tool::Project(const std::string& path) {
    const std::optional<RuntimeFault> failure = session_.Open_project(path);
    if (session_.File().Mended()) {
        err_ << "tarnvik-check: " << path
             << ": was left half-written; its former content is back, what was there lies in "
             << session_.File().Mended()->string() << "\n";
    }
    if (failure) {
        err_ << "tarnvik-check: " << path << ": expected a project file: "
             << (failure->number == fault_bad_record_length ? "it ends too soon" : failure->description) << "\n";
        return exit_usage;
    }
    Set_all();
    return One(path);
}

// Tells what the inputs may not be, where the result does not. Under --strict that is an error.
bool Tool::Acceptable(const std::string& project) {
    remarks_ = {Invalid_inputs(*s_), std::nullopt};
    if (!options_.json || options_.strict) {
        for (const std::string& warning : remarks_.warnings) {
            err_ << "tarnvik-check: " << project << (project.empty() ? "" : ": ")
                 << (options_.strict ? "" : "warning: ") << warning << "\n";
        }
    }
    return !options_.strict || remarks_.warnings.empty();
}

// A pass, its result and what was asked to be written.
int Tool::One(const std::string& project) {
    if (options_.find) {
        return Find(project);
    }
    if (options_.loads) {
        return Loads(project);
    }
    if (!Acceptable(project)) {
        return exit_usage;
    }
    if (!options_.sweep.empty()) {
        return Sweep();
    }
    messages_.messages.clear();
    judge_.Begin();
    const PassResult result = session_.First_pass();
    judge_.After_pass(*s_, result, true);
    const Judgement judgement = judge_.Judge_results(*s_);
    if (options_.json) {
        if (options_.checks) {
            remarks_.checks = judgement;
        }
        std::string json;
        Append_result(json, options_, project, *s_, session_.Shown(), result, messages_, Recording(session_, clock_),
                      remarks_);
        out_ << json << "\n";
    } else {
        out_ << Summary(project, *s_, result, messages_) << Checks_summary(judgement);
    }
    int status = Status(*s_, result);
    if (options_.strict) {
        status = Strict_status(status, judgement);
    }
    if (options_.report) {
        status = Worse(status, Write_report(result));
    }
    if (options_.sheet) {
        status = Worse(status, Write_sheet(judgement));
    }
    if (options_.save) {
        status = Worse(status, Save());
    }
    return status;
}

// ---------------------------------------------------------------------------------------------------------------------
// A search

int Tool::Find(const std::string& project) {
    const SearchLimits limits = Search_limits(options_.fix, options_.with_connectors);
    Set_fasteners(*s_, limits.First()); // what the joint has of them itself counts for nothing
    if (!Acceptable(project)) {
        return exit_usage;
    }
    const SearchResult result = Search_fasteners(*s_, limits, true);
    if (options_.json) {
        out_ << Found_json(result, remarks_.warnings);
    } else if (options_.csv) {
        out_ << Found_csv(result);
        err_ << (result.found.empty() ? "tarnvik-check: " + Nothing_found_text(result) : "");
    } else {
        out_ << Found_table(result);
    }
    return Search_status(result);
}

// ---------------------------------------------------------------------------------------------------------------------
// Load cases

int Tool::Loads(const std::string& project) {
    const LoadTable table = Read_loads(*options_.loads);
    s_->Lastvar = table.loads.front().Lastvar; // that of the joint counts for nothing
    if (!Acceptable(project)) {
        return exit_usage;
    }
    const LoadsResult result = Check_loads(*s_, table.loads);
    if (options_.json) {
        out_ << Loads_json(result, remarks_.warnings);
    } else {
        out_ << (options_.csv ? Loads_csv(result, table) : Loads_summary(result));
    }
    return Loads_status(result, options_.strict);
}

// ---------------------------------------------------------------------------------------------------------------------
// A sweep

int Tool::Sweep() {
    const ConnectionValues fresh = *s_;
    const SweepRange& first = options_.sweep.front();
    const SweepRange* const second = options_.sweep.size() > 1 ? &options_.sweep[1] : nullptr;
    std::string table = options_.json ? std::string{} : Sweep_heading(options_.sweep); // none where a value is refused
    int status = exit_holds;
    std::vector<SweepPoint> points;
    for (std::size_t i = 0; i < first.Count(); ++i) {
        for (std::size_t k = 0; k < (second != nullptr ? second->Count() : 1); ++k) {
            static_cast<ConnectionValues&>(*s_) = fresh;
            std::vector<double> values{first.Value(i)};
            NamedValues inputs{{first.name, first.Text(i)}};
            if (second != nullptr) {
                values.push_back(second->Value(k));
                inputs.emplace_back(second->name, second->Text(k));
            }
            SweepPoint point = Point(values, inputs, status);
            table += options_.json ? Sweep_json(options_.sweep, point) : Sweep_line(point);
            if (options_.plot) {
                points.push_back(std::move(point));
            }
        }
    }
    out_ << table;
    return options_.plot ? Worse(status, Write_plot(points)) : status;
}

// Errors: throws UsageError, also for what --strict refuses.
SweepPoint Tool::Point(const std::vector<double>& values, const NamedValues& inputs, int& status) {
    NamedValues named;
    for (const auto& [name, value] : inputs) {
        if (Is_named_input(name)) {
            named.emplace_back(name, value);
        } else {
            Set_input(*s_, name, value);
        }
    }
    Set_named_inputs(*s_, named);
    SweepPoint point{values, Invalid_inputs(*s_), {}};
    if (options_.strict && !point.warnings.empty()) {
        throw UsageError{"--sweep: " + point.warnings.front()};
    }
    messages_.messages.clear();
    judge_.Begin();
    const PassResult result = session_.First_pass(Session::Showing::nothing);
    judge_.After_pass(*s_, result, true);
    point.judgement = judge_.Judge_results(*s_);
    const int plain = Status(*s_, result);
    status = Worse(status, options_.strict ? Strict_status(plain, point.judgement) : plain);
    return point;
}

int Tool::Write_plot(const std::vector<SweepPoint>& points) {
    const std::string title = s_->Prosjekt + ", " + s_->Id;
    try {
        const std::string svg = options_.sweep.size() > 1 ? Plot_grid(options_.sweep, points, title)
                                                          : Plot_sweep(options_.sweep.front(), points, title);
        Safe_write(Path_of(*options_.plot), svg, {OldTail::drop}, "Write_plot");
    } catch (const RuntimeFault& fault) {
        err_ << "tarnvik-check: " << *options_.plot << ": cannot be written: " << fault.description << "\n";
        return exit_usage;
    }
    return exit_holds;
}

// ---------------------------------------------------------------------------------------------------------------------

int Tool::Write_report(const PassResult& result) {
    if (result.end != PassEnd::normal) {
        err_ << "tarnvik-check: " << *options_.report << ": not written, the check was stopped\n";
        return exit_stopped;
    }
    try {
        rendering_->Write_report(Path_of(*options_.report), Report_title(*s_),
                                 [this](PrintTarget& target, const Moment& now) { session_.Print(target, now); });
    } catch (const RuntimeFault& fault) {
        err_ << "tarnvik-check: " << *options_.report << ": cannot be written: " << fault.description << "\n";
        return exit_usage;
    }
    return exit_holds;
}

int Tool::Write_sheet(const Judgement& judgement) {
    if (!judgement.not_current.empty()) {
        err_ << "tarnvik-check: " << *options_.sheet << ": not written, the check was stopped\n";
        return exit_stopped;
    }
    try {
        Safe_write(Path_of(*options_.sheet), Sheet_of(*s_, judge_, clock_.Now()), {OldTail::drop}, "Write_sheet");
    } catch (const RuntimeFault& fault) {
        err_ << "tarnvik-check: " << *options_.sheet << ": cannot be written: " << fault.description << "\n";
        return exit_usage;
    }
    return exit_holds;
}

int Tool::Verify(const std::string& file) {
    std::ifstream stream{Path_of(file), std::ios::binary};
    const std::string html{std::istreambuf_iterator<char>{stream}, {}};
    if (!stream) {
        throw UsageError{file + ": cannot be read"};
    }
    try {
        const Verification found = Verify_sheet(html, session_, judge_);
        out_ << file << ": " << found.text << "\n";
        return found.holds ? exit_holds : exit_fails;
    } catch (const UsageError& error) {
        throw UsageError{file + ": " + error.text};
    }
}

int Tool::Save() {
    try {
        State_to_setup(*s_); // a project carries its language and factors in the setup record
        session_.Save(*options_.save);
    } catch (const RuntimeFault& fault) {
        err_ << "tarnvik-check: " << *options_.save << ": cannot be saved: " << fault.description << "\n";
        return exit_usage;
    }
    return exit_holds;
}

} // namespace tarnvik
