// One run of the headless tool on a session: projects or a batch, results, what is written.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <memory>
#include <string>

#include "calc/GlobalParameter.h"
#include "calc/pass/Main_beregn.h"
#include "check/Checks.h"
#include "check/Json.h"
#include "check/MessageLog.h"
#include "check/Options.h"
#include "ports/Rendering.h"
#include "session/Session.h"
#include "session/SystemClock.h"

namespace tarnvik {

class Tool : private SessionView {
public:
    // `rendering` may be null where neither the report nor pictures are asked for.
    Tool(Options options, std::istream& in, std::ostream& out, std::ostream& err, Rendering* rendering);

    // Starts from the data files of the folder and does what the options ask for. Gives the exit status.
    // Errors: throws UsageError and DataFileError.
    int Run(const std::filesystem::path& folder);

private:
    MessageBox& Box() override { return messages_; }

    void Set_all();
    int Projects();
    int Project(const std::string& path);
    int One(const std::string& project);
    int Find(const std::string& project);
    int Loads(const std::string& project);
    int Sweep();
    SweepPoint Point(const std::vector<double>& values, const NamedValues& inputs, int& status);
    int Write_plot(const std::vector<SweepPoint>& points);
    bool Acceptable(const std::string& project);
    int Write_report(const PassResult& result);
    int Write_sheet(const Judgement& judgement);
    int Verify(const std::string& file);
    int Save();

    Options options_;
    std::istream& in_;
    std::ostream& out_;
    std::ostream& err_;
    Rendering* rendering_;
    SystemClock clock_;
    MessageLog messages_; // of the last pass
    Remarks remarks_;     // on it
    std::unique_ptr<ConnectionState> start_ = std::make_unique<ConnectionState>();
    std::unique_ptr<ConnectionState> s_ = std::make_unique<ConnectionState>();
    Session session_{*s_, *this};
    Judge judge_{session_.Results()};
};

} // namespace tarnvik
