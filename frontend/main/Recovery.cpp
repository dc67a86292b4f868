#include "frontend/main/Recovery.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <memory>
#include <utility>

#include "calc/Words.h"
#include "frontend/painting/Texts.h"

namespace tarnvik {

namespace {

constexpr Words words{"Not saved", "Ikke lagret"};
constexpr int pause = 1000; // ms, from a change to its file, and so between two files

Question Offer_of(const QString& path, const std::string& project, bool english) {
    const std::string time = U(QLocale::system().toString(QFileInfo{path}.lastModified(), QLocale::ShortFormat));
    const std::string name = project.empty() ? english ? "a new project" : "et nytt prosjekt" : project;
    if (english) {
        return {"Work on " + name + " was not saved when the program ended (" + time +
                    ").\nOpen it again? What is discarded is gone.",
                "Open", "Discard"};
    }
    return {"Arbeid på " + name + " var ikke lagret da programmet sluttet (" + time +
                ").\nÅpne det igjen? Det som forkastes, er borte.",
            "Åpne", "Forkast"};
}

} // namespace

Recovery::Recovery(const MainControls& controls, const Session& session, const InputBoxes& boxes,
                   BoxService& box_service, std::filesystem::path folder)
    : session_(session), boxes_(boxes), box_service_(box_service), label_(controls.Find<CornerLabel>("Lbl_unsaved")),
      folder_(std::move(folder)), file_(folder_) {
    label_.Set_texts({Q(words.eng), Q(words.nor)});
    thread_.setMaxThreadCount(1);
    timer_.setSingleShot(true);
    timer_.setInterval(pause);
    connect(&timer_, &QTimer::timeout, this, &Recovery::Write);
    connect(&boxes, &InputBoxes::Names_typed, this, &Recovery::Note);
}

Recovery::~Recovery() {
    thread_.waitForDone();
}

void Recovery::Note() {
    const bool unsaved = session_.Unsaved(boxes_.Names());
    const bool english = Is_english(session_.State());
    label_.setText(unsaved ? Q(words.In(english)) : QString{});
    label_.setToolTip(english ? QStringLiteral("The project differs from what was last saved.")
                              : QStringLiteral("Prosjektet er endret siden det sist ble lagret."));
    if (!timer_.isActive()) {
        timer_.start();
    }
}

void Recovery::Run(const std::function<void()>& work) {
    thread_.start(work);
}

void Recovery::Write() {
    const TypedNames names = boxes_.Names();
    std::string content;
    if (session_.Unsaved(names)) {
        const ConnectionState& s = session_.State();
        content = session_.Bytes(names) + Recovery_tail(s.File_named ? s.File_name : std::string{});
    }
    if (content == written_) {
        return;
    }
    written_ = content;
    Run([this, content = std::move(content)] {
        if (content.empty()) {
            file_.Remove();
        } else {
            file_.Write(content); // as far as the disk lets it: nothing of the user's own hangs on it
        }
    });
}

void Recovery::Offer(const OpenLeftWork& open) {
    std::optional<LeftWork> claimed = Claim_left_work(folder_);
    if (!claimed) {
        return;
    }
    const auto left = std::make_shared<LeftWork>(std::move(*claimed));
    QFile file{Q(left->path.string())};
    const std::string project =
        file.open(QIODevice::ReadOnly) ? Recovered_project(file.readAll().toStdString()) : std::string{};
    box_service_.Ask(Offer_of(file.fileName(), project, Is_english(session_.State())),
                     [this, left, open, project](bool yes) {
                         if (yes) {
                             open(left->path.string(), project);
                             Write(); // under the name of this run, before the former file goes
                         }
                         Run([left] {
                             std::error_code ignored;
                             std::filesystem::remove(left->path, ignored);
                         });
                     });
}

void Recovery::Keep() {
    Write();
    timer_.stop();
    thread_.waitForDone();
}

void Recovery::Drop() {
    timer_.stop();
    Run([this] { file_.Remove(); });
    thread_.waitForDone();
}

} // namespace tarnvik
