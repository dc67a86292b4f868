#include "frontend/dialogs/Sheet_saving.h"

#include <filesystem>
#include <optional>
#include <string>

#include "calc/RuntimeFault.h"
#include "calc/Version.h"
#include "data/SafeWrite.h"
#include "frontend/dialogs/File_words.h"
#include "platform/Path.h"
#include "ports/Services.h"
#include "session/Session.h"
#include "sheet/Check_sheet.h"

namespace tarnvik {

namespace {

FileRequest Request_of(const ConnectionState& s) {
    const bool english = Is_english(s);
    FileRequest request;
    request.filter = "*.html";
    request.default_extension = "html";
    request.flags = prompt_on_overwrite | hide_read_only;
    request.words = File_words(english, true, english ? "Save check sheet as" : "Lagre kontrollark som",
                               english ? "Web pages" : "Nettsider");
    std::filesystem::path file = s.File_named ? Path_of(s.File_name) : std::filesystem::path{"Tarnvik"};
    request.folder = file.parent_path().string();
    request.file_name = file.replace_extension(".html").string();
    return request;
}

} // namespace

void Save_sheet(const Session& session, const Services& services) {
    const ConnectionState& s = session.State();
    const bool english = Is_english(s);
    const std::optional<std::string> path = services.files.Save(Request_of(s));
    if (!path) {
        return;
    }
    const Verdict verdict = Verdict_of(s, session.Results().Splitting_current(s));
    try {
        Safe_write(Path_of(*path), Check_sheet(s, verdict, services.clock.Now(), TARNVIK_VERSION), {OldTail::drop},
                   "Save_sheet");
    } catch (const RuntimeFault& fault) {
        services.boxes.Show(*path + (english ? "\ncannot be written: " : "\nkan ikke skrives: ") +
                                std::string{fault.description},
                            box_plain);
        return;
    }
    if (!services.opener.Open_file(*path)) {
        services.boxes.Show((english ? "Saved, but it cannot be opened:\n" : "Lagret, men kan ikke åpnes:\n") + *path,
                            box_plain);
    }
}

} // namespace tarnvik
