#include "check/Tool.h"

#include <istream>
#include <optional>
#include <ostream>
#include <string_view>
#include <utility>

#include "calc/RuntimeFault.h"
#include "check/Batch.h"
#include "check/Inputs.h"
#include "check/Recording.h"
#include "check/Status.h"
#include "check/Summary.h"
#include "data/SetupFile.h"
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

// A pass, its result and what was asked to be written.
int Tool::One(const std::string& project) {
    messages_.messages.clear();
    const PassResult result = session_.First_pass();
    if (options_.json) {
        std::string json;
        Append_result(json, options_, project, *s_, session_.Shown(), result, messages_, Recording(session_, clock_));
        out_ << json << "\n";
    } else {
        out_ << Summary(project, *s_, result, messages_);
    }
    int status = Status(*s_, result);
    if (options_.report) {
        status = Worse(status, Write_report(result));
    }
    if (options_.save) {
        status = Worse(status, Save());
    }
    return status;
}

int Tool::Write_report(const PassResult& result) {
    if (result.end != PassEnd::normal) {
        err_ << "tarnvik-check: " << *options_.report << ": not written, the check was stopped\n";
        return exit_stopped;
    }
    try {
        rendering_->Write_report(*options_.report, Report_title(*s_),
                                 [this](PrintTarget& target, const Moment& now) { session_.Print(target, now); });
    } catch (const RuntimeFault& fault) {
        err_ << "tarnvik-check: " << *options_.report << ": cannot be written: " << fault.description << "\n";
        return exit_usage;
    }
    return exit_holds;
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
