#include "session/Session.h"

#include <utility>

#include "data/StartValue.h"
#include "platform/Path.h"

namespace tarnvik {

const StartReport& Session::Start(const std::filesystem::path& folder, std::optional<std::string_view> lang) {
    folder_ = folder;
    started_ = Start_state(s_, folder, lang);
    return started_;
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

void Session::Read_project(const std::string& path, const FileContent& content, const std::function<void()>& show) {
    results_.Forget_splitting(); // a typed he comes with the file, its check does not
    saved_.reset();
    Project_record record;
    if (content) {
        Load_project_bytes(s_, record, *content);
    } else {
        Load_project(s_, record, Path_of(path));
    }
    Apply_project(s_, record);
    if (show) {
        show();
    }
}

std::optional<RuntimeFault> Session::Try_read(const std::string& path, const FileContent& content,
                                              const std::function<void()>& show) {
    try {
        Read_project(path, content, show);
    } catch (const RuntimeFault& fault) {
        Open_project_failed(s_, fault.number, view_.Box());
        return fault;
    }
    return std::nullopt;
}

std::optional<RuntimeFault> Session::Open_project(const std::string& path, const std::function<void()>& show) {
    std::optional<RuntimeFault> failure;
    std::optional<std::filesystem::path> mended;
    FileContent content;
    try {
        mended = Mend_file(Path_of(path), "Open_project");
        content = file_.Look_at(Path_of(path));
    } catch (const RuntimeFault& fault) {
        Open_project_failed(s_, fault.number, view_.Box());
        failure = fault;
    }
    if (!failure) {
        failure = Try_read(path, content, show);
    }
    file_.Note_opened(Path_of(path), failure, mended);
    Name(path);
    return failure;
}

std::optional<RuntimeFault> Session::Recover(const std::string& path, const std::string& project,
                                             const std::function<void()>& show) {
    const std::optional<RuntimeFault> failure = Try_read(path, {}, show);
    if (!failure && project.empty()) {
        Name_new_file(s_);
    } else if (!failure) {
        Name(project);
        file_.Look_at(Path_of(project));
    }
    return failure;
}

void Session::Name(const std::string& path) {
    s_.File_name = path;
    s_.File_named = true;
}

Session::Content Session::Content_now(const std::optional<TypedNames>& typed) const {
    Content content{{}, s_.Setup};
    Fill_project(s_, content.record);
    if (typed) {
        content.record.Prosjekt = typed->Prosjekt;
        content.record.Id = typed->Id;
    }
    return content;
}

void Session::Save(const std::string& path, const std::optional<TypedNames>& typed, bool asked) {
    const std::filesystem::path file = Path_of(path);
    Content content = Content_now(typed);
    try {
        file_.Note_saved(file, Save_project(s_, content.record, file, file_.Request(file, asked)));
    } catch (const RuntimeFault& fault) {
        file_.Note_not_saved(fault);
        throw;
    }
    saved_ = std::move(content);
}

std::string Session::Bytes(const std::optional<TypedNames>& typed) const {
    return Project_bytes(s_, Content_now(typed).record);
}

void Session::Note_saved(const std::optional<TypedNames>& typed) {
    saved_ = Content_now(typed);
}

bool Session::Unsaved(const std::optional<TypedNames>& typed) const {
    return !saved_ || !(*saved_ == Content_now(typed));
}

void Session::Print(PrintTarget& target, const Moment& now) {
    PrintReport(target, s_, {screen_.Pic_forbindelse, screen_.Pic_av_bolter}, now, report_texts_);
}

} // namespace tarnvik
