#include "session/File_standing.h"

#include <algorithm>
#include <utility>

#include "platform/Path.h"

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

// A name that fits the line that it stands in.
std::string Short_name(const fs::path& path) {
    constexpr std::size_t longest = 24;
    std::string name = path.filename().string();
    if (name.size() <= longest) {
        return name;
    }
    std::size_t from = name.size() - longest;
    while (from < name.size() && (static_cast<unsigned char>(name[from]) & 0xC0U) == 0x80U) {
        ++from; // not within a character
    }
    return "..." + name.substr(from);
}

} // namespace

Words Open_words(const RuntimeFault& fault) {
    switch (fault.number) {
    case fault_file_not_found:
        return {"file not found", "filen finnes ikke"};
    case fault_path_not_found:
        return {"folder not found", "mappen finnes ikke"};
    case fault_bad_record_length:
        return {"not a whole project file", "ikke en hel prosjektfil"};
    case fault_path_access:
        return {"the file cannot be read", "filen kan ikke leses"};
    case fault_subscript:
        return {"its tables have too many rows", "tabellene har for mange rader"};
    default:
        return {"the file does not make sense", "filen gir ikke mening"};
    }
}

Words Save_words(const RuntimeFault& fault) {
    switch (fault.number) {
    case fault_disk_full:
        return {"the disk is full", "disken er full"};
    case fault_path_not_found:
        return {"folder not found", "mappen finnes ikke"};
    case fault_path_access:
        return {"the file cannot be written", "filen kan ikke skrives"};
    default:
        return {"the file cannot be written whole", "filen kan ikke skrives hel"};
    }
}

std::optional<std::string> FileStanding::Look_at(const fs::path& path) {
    path_ = Plain_path(path);
    SeenFile seen = See_file(path_);
    known_ = seen.identity;
    return std::move(seen.content);
}

void FileStanding::Note_opened(const fs::path& path, const std::optional<RuntimeFault>& failure,
                               const std::optional<fs::path>& mended) {
    if (failure || !unread_.empty()) {
        std::erase(unread_, Plain_path(path));
    }
    Say(false, {});
    mended_ = mended;
    if (failure) {
        unread_.push_back(Plain_path(path));
        Say(true, {"Not opened: ", "Ikke åpnet: "}, Open_words(*failure));
    } else if (mended) {
        Say_kept({"Opened; a save that was cut off is kept as ", "Åpnet; en avbrutt lagring er tatt vare på som "},
                 {*mended});
    }
}

SaveRequest FileStanding::Request(const fs::path& path, bool asked) const {
    const fs::path plain = Plain_path(path);
    SaveRequest request;
    if (std::find(unread_.begin(), unread_.end(), plain) != unread_.end()) {
        request.keep_former = true;
    } else if (plain == path_) {
        request.known = known_;
    } else {
        request.keep_former = !asked;
    }
    return request;
}

void FileStanding::Note_saved(const fs::path& path, const SaveReport& report) {
    const fs::path plain = Plain_path(path);
    const bool unread = std::erase(unread_, plain) > 0;
    const bool known = plain == path_;
    path_ = plain;
    known_ = report.identity;
    Say(false, {});
    if (report.kept.empty()) {
        return;
    }
    if (report.mended) {
        Say_kept({"Saved; a save that was cut off is kept as ", "Lagret; en avbrutt lagring er tatt vare på som "},
                 report.kept);
    } else if (unread) {
        Say_kept({"Saved; what could not be opened is kept as ", "Lagret; det som ikke lot seg åpne, ligger i "},
                 report.kept);
    } else if (!known) {
        Say_kept({"Saved; a file of this name is kept as ", "Lagret; en fil med dette navnet ligger i "}, report.kept);
    } else {
        Say_kept({"Saved; changed by others, their file is kept as ", "Lagret; endret av andre, deres fil ligger i "},
                 report.kept);
    }
}

void FileStanding::Note_not_saved(const RuntimeFault& failure) {
    Say(true, {"Not saved: ", "Ikke lagret: "}, Save_words(failure));
}

void FileStanding::Say(bool failed, const Words& what, const Words& why) {
    failed_ = failed;
    what_ = what;
    why_ = why;
    kept_.clear();
}

void FileStanding::Say_kept(const Words& what, const std::vector<fs::path>& paths) {
    Say(false, what);
    kept_ = paths;
}

std::string FileStanding::Text(bool english) const {
    std::string text{what_.In(english)};
    text += why_.In(english);
    if (!kept_.empty()) {
        text += Short_name(kept_.back());
    }
    return text;
}

std::string FileStanding::Paths() const {
    std::string text;
    for (const fs::path& path : kept_) {
        text += (text.empty() ? "" : "\n") + path.string();
    }
    return text;
}

} // namespace tarnvik
