#include "check/Check.h"

#include <algorithm>
#include <istream>
#include <memory>
#include <ostream>

#include <nlohmann/json.hpp>

#include "calc/pass/Main_beregn.h"
#include "check/Inputs.h"
#include "check/Json.h"
#include "check/MessageLog.h"
#include "check/Options.h"
#include "check/Summary.h"
#include "data/ProjectFile.h"
#include "data/SetupFile.h"
#include "data/Startup.h"
#include "ports/Rendering.h"
#include "report/PrintReport.h"
#include "report/Recorder.h"
#include "session/SystemClock.h"

namespace tarnvik {

namespace {

using Json = nlohmann::ordered_json;

// The worst status wins: 2 before 3 before 1 before 0.
int Worse(int one, int other) {
    constexpr std::array<int, 4> rank{0, 1, 3, 2};
    return rank[static_cast<std::size_t>(one)] >= rank[static_cast<std::size_t>(other)] ? one : other;
}

int Status(const ConnectionState& s, const PassResult& result) {
    if (result.end != PassEnd::normal) {
        return exit_stopped;
    }
    return 1.0F < s.uf || 1.0F < s.Tverr_kontroll ? exit_fails : exit_holds;
}

class Tool {
public:
    Tool(Options options, std::istream& in, std::ostream& out, std::ostream& err, Rendering* rendering)
        : options_(std::move(options)), in_(in), out_(out), err_(err), rendering_(rendering) {}

    int Run(const std::filesystem::path& folder) {
        std::optional<std::string_view> lang;
        if (options_.lang) {
            lang = *options_.lang;
        }
        const StartReport report = Start_state(*start_, folder, lang);
        if (report.setup_missing) {
            err_ << "tarnvik-check: " << setup_file_read << " in " << folder.string()
                 << ": file not found; Norwegian texts and the partial factors 1.3, 1.25, 1.2, 1.25 stand in for it\n";
        }
        *s_ = *start_;
        if (options_.batch) {
            return Batch();
        }
        if (options_.projects.empty()) {
            Set_all();
            return One({});
        }
        int status = exit_holds;
        for (std::size_t i = 0; i < options_.projects.size(); ++i) {
            if (i > 0) {
                *s_ = *start_;
                if (!options_.json) {
                    out_ << "\n";
                }
            }
            status = Worse(status, Project(options_.projects[i]));
        }
        return status;
    }

private:
    void Set_all() {
        for (const auto& [name, value] : options_.set) {
            Set_input(*s_, name, value);
        }
    }

    int Project(const std::string& path) {
        MessageLog box;
        try {
            Project_record record;
            Load_project(*s_, record, path);
            Apply_project(*s_, record);
        } catch (const RuntimeFault& fault) {
            Open_project_failed(*s_, fault.number, box);
            err_ << "tarnvik-check: " << path << ": expected a project file: "
                 << (fault.number == fault_bad_record_length ? "it ends too soon" : fault.description) << "\n";
            return exit_usage;
        }
        s_->File_name = path;
        s_->File_named = true;
        Set_all();
        return One(path);
    }

    // A pass, its result and the saving that was asked for.
    int One(const std::string& project) {
        MessageLog box;
        Screen screen;
        const PassResult result = Run_pass(*s_, &screen, box);
        s_->Loading = false;
        if (options_.json) {
            std::string json;
            Append_result(json, options_, project, *s_, screen, result, box, Recording(screen));
            out_ << json << "\n";
        } else {
            out_ << Summary(project, *s_, result, box);
        }
        int status = Status(*s_, result);
        if (options_.report) {
            status = Worse(status, Write_report(screen, result));
        }
        if (options_.save) {
            try {
                State_to_setup(*s_); // a project carries its language and factors in the setup record
                Save_project(*s_, *options_.save);
            } catch (const RuntimeFault& fault) {
                err_ << "tarnvik-check: " << *options_.save << ": cannot be saved: " << fault.description << "\n";
                return exit_usage;
            }
        }
        return status;
    }

    // The report of the state as it stands, recorded.
    RecordReport Recording(const Screen& screen) {
        return [this, &screen] {
            Recorder recorder;
            try {
                PrintReport(recorder, *s_, {screen.Pic_forbindelse, screen.Pic_av_bolter}, clock_.Now(), texts_);
            } catch (const RuntimeFault&) { // NOLINT(bugprone-empty-catch): a print that fails ends where it fails
            }
            return std::move(recorder.calls);
        };
    }

    int Write_report(const Screen& screen, const PassResult& result) {
        if (result.end != PassEnd::normal) {
            err_ << "tarnvik-check: " << *options_.report << ": not written, the check was stopped\n";
            return exit_stopped;
        }
        try {
            rendering_->Write_report(*options_.report, s_->Prosjekt, [&](PrintTarget& target, const Moment& now) {
                PrintReport(target, *s_, {screen.Pic_forbindelse, screen.Pic_av_bolter}, now, texts_);
            });
        } catch (const RuntimeFault& fault) {
            err_ << "tarnvik-check: " << *options_.report << ": cannot be written: " << fault.description << "\n";
            return exit_usage;
        }
        return Status(*s_, result);
    }

    int Batch() {
        Set_all();
        const ConnectionValues fresh = *s_;
        const bool with_screen = !options_.with.empty();
        auto screen = std::make_unique<Screen>();
        int status = exit_holds;
        std::string line;
        std::string json;
        for (long number = 1; out_ && std::getline(in_, line); ++number) {
            static_cast<ConnectionValues&>(*s_) = fresh; // the tables never change in a batch
            *screen = Screen{};
            json.clear();
            try {
                MessageLog box;
                PassResult result;
                const Json inputs = Json::parse(line);
                const auto pass = [&](const Json& object) {
                    box.messages.clear();
                    Set_inputs(*s_, object);
                    result = Run_pass(*s_, with_screen ? screen.get() : nullptr, box);
                    s_->Loading = false;
                };
                if (inputs.is_array()) {
                    if (inputs.empty()) {
                        throw UsageError{"expected at least one object of inputs, got []"};
                    }
                    for (const Json& object : inputs) {
                        pass(object);
                    }
                } else {
                    pass(inputs);
                }
                Append_result(json, options_, {}, *s_, *screen, result, box, Recording(*screen));
                status = Worse(status, Status(*s_, result));
            } catch (const UsageError& error) {
                json.clear();
                status = Worse(status, Bad_line(json, number, error.text));
            } catch (const Json::exception& error) {
                json.clear();
                status = Worse(status, Bad_line(json, number, std::string{"expected JSON: "} + error.what()));
            }
            json += '\n';
            out_ << json;
            if (in_.rdbuf()->in_avail() <= 0) { // a caller that waits for each answer gets it
                out_.flush();
            }
        }
        return status;
    }

    int Bad_line(std::string& json, long number, const std::string& error) {
        json = "{\"line\":" + std::to_string(number) + ",\"error\":";
        Append_json(json, error);
        json += '}';
        err_ << "tarnvik-check: line " << number << ": " << error << "\n";
        return exit_usage;
    }

    Options options_;
    std::istream& in_;
    std::ostream& out_;
    std::ostream& err_;
    Rendering* rendering_;
    SystemClock clock_;
    SpacingTexts texts_; // of all reports of the run
    std::unique_ptr<ConnectionState> start_ = std::make_unique<ConnectionState>();
    std::unique_ptr<ConnectionState> s_ = std::make_unique<ConnectionState>();
};

} // namespace

int Run_check(const std::vector<std::string>& arguments, const std::filesystem::path& program_folder, std::istream& in,
              std::ostream& out, std::ostream& err, Rendering* rendering) {
    try {
        Options options = Parse_options(arguments);
        if (options.help) {
            out << Help_text();
            return exit_holds;
        }
        if (options.version) {
            out << "tarnvik-check " << version << "\n";
            return exit_holds;
        }
        if (options.pictures) {
            if (rendering == nullptr) {
                throw UsageError{"--pictures needs the build with the window"};
            }
            const int written = rendering->Write_pictures(*options.pictures);
            out << written << " pictures written to " << *options.pictures << "\n";
            return exit_holds;
        }
        if (options.report && rendering == nullptr) {
            throw UsageError{"--report needs the build with the window"};
        }
        const std::filesystem::path folder =
            options.data.empty() ? program_folder : std::filesystem::path{options.data};
        const int status = Tool{std::move(options), in, out, err, rendering}.Run(folder);
        if (out.flush()) {
            return status;
        }
        err << "tarnvik-check: the results cannot be written\n";
    } catch (const UsageError& error) {
        err << "tarnvik-check: " << error.text << "\n";
    } catch (const DataFileError& error) {
        err << "tarnvik-check: " << error.Text() << "\n";
    } catch (const RuntimeFault& fault) {
        err << "tarnvik-check: " << Fault_text(fault) << "\n";
    }
    return exit_usage;
}

} // namespace tarnvik
