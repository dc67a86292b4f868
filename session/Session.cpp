#include "session/Session.h"

#include "data/ProjectFile.h"

namespace tarnvik {

StartReport Session::Start(const std::filesystem::path& folder, std::optional<std::string_view> lang) {
    folder_ = folder;
    return Start_state(s_, folder, lang);
}

PassResult Session::Pass(Showing showing) {
    view_.Before_pass();
    PassResult result = Run_pass(s_, showing == Showing::screen ? &screen_ : nullptr, view_.Box());
    results_.Note_pass(s_, result);
    view_.After_pass();
    return result;
}

PassResult Session::First_pass(Showing showing) {
    PassResult result = Pass(showing);
    s_.Loading = false;
    return result;
}

void Session::Main_beregn() {
    if (const PassResult result = Pass(); result.fault) {
        throw RuntimeFault{*result.fault};
    }
}

void Session::Recalculate() {
    if (const PassResult result = Pass(); result.fault) {
        view_.Box().Show(Fault_text(*result.fault), box_plain);
    }
}

std::optional<RuntimeFault> Session::Open_project(const std::string& path, const std::function<void()>& show) {
    std::optional<RuntimeFault> failure;
    results_.Forget_splitting(); // a typed he comes with the file, its check does not
    try {
        Project_record record;
        Load_project(s_, record, path);
        Apply_project(s_, record);
        if (show) {
            show();
        }
    } catch (const RuntimeFault& fault) {
        Open_project_failed(s_, fault.number, view_.Box());
        failure = fault;
    }
    Name(path);
    return failure;
}

void Session::Name(const std::string& path) {
    s_.File_name = path;
    s_.File_named = true;
}

void Session::Save(const std::string& path, const std::optional<TypedNames>& typed) const {
    Project_record record;
    Fill_project(s_, record);
    if (typed) {
        record.Prosjekt = typed->Prosjekt;
        record.Id = typed->Id;
    }
    Save_project(s_, record, path);
}

void Session::Print(PrintTarget& target, const Moment& now) {
    PrintReport(target, s_, {screen_.Pic_forbindelse, screen_.Pic_av_bolter}, now, report_texts_);
}

} // namespace tarnvik
