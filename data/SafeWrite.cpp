#include "data/SafeWrite.h"

#include <cerrno>
#include <chrono>
#include <string>
#include <system_error>
#include <utility>

#include "calc/RuntimeFault.h"
#include "data/KeptCopy.h"
#include "data/TemporaryFile.h"
#include "platform/FileRights.h"
#include "platform/Path.h"

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

int Number_of(int system_error) {
    if (system_error == ENOENT || system_error == ENOTDIR) {
        return fault_path_not_found;
    }
    return Is_disk_full(system_error) ? fault_disk_full : fault_path_access;
}

// Whether nothing of the file would be lost with the content written over it.
bool Content_holds(std::string_view content, OldTail tail, const SystemFile& former) {
    const auto size = static_cast<std::size_t>(Status_of(former).size);
    if (content.size() > size || (content.size() < size && tail == OldTail::drop)) {
        return false;
    }
    const std::size_t length = content.size();
    std::string there(length, '\0');
    return Read_at(former, there.data(), length, 0) == length && there == content;
}

class Saving {
public:
    Saving(fs::path target, std::string_view content, const SaveRequest& request)
        : target_(std::move(target)), content_(content), request_(request) {}

    SaveReport Run() {
        while (!Try()) {
            if (std::chrono::steady_clock::now() > deadline_) {
                Throw_error(EBUSY);
            }
        }
        return std::move(report_);
    }

private:
    enum class Replaced : std::uint8_t {
        done,
        changed, // another process has written the target meanwhile
        refused, // the target cannot be replaced as it should
    };

    // False where the target has changed meanwhile: all begins anew with what it is now.
    bool Try();
    bool Open_former();
    void Keep_former();
    [[nodiscard]] bool As_seen() const;
    Replaced Replace();
    bool Fill(const TemporaryFile& temporary);
    bool Take_place(TemporaryFile& temporary);
    bool Overwrite();

    fs::path target_;
    std::string_view content_;
    SaveRequest request_;
    SaveReport report_;
    Deadline deadline_{End_of_patience()};
    SystemFile former_; // locked; none for a new file
    FileStatus seen_;   // what it was when its content was looked at
};

bool Saving::Try() {
    if (!Open_former()) {
        return false;
    }
    Keep_former();
    if (former_ && seen_.names > 1) {
        return Overwrite();
    }
    const Replaced replaced = Replace();
    return replaced == Replaced::refused ? Overwrite() : replaced == Replaced::done;
}

// What overwriting in place would refuse is refused here: a renaming alone asks only for the folder's permission.
bool Saving::Open_former() {
    former_ = {};
    const std::optional<FileStatus> status = Status_of(target_);
    if (!status) {
        if (errno != ENOENT) {
            Throw_error();
        }
        return true;
    }
    if (!status->regular) {
        Throw_error(EACCES); // a device or a pipe is no place for a project
    }
    former_ = Open_file(target_, Access::read_write);
    if (!former_) {
        if (errno != ENOENT) {
            Throw_error();
        }
        return false;
    }
    Lock(former_, deadline_);
    seen_ = Status_of(former_);
    if (!As_seen()) {
        return false; // another saver has replaced it while this one waited
    }
    if (const std::optional<fs::path> found = Mend(former_, target_)) {
        report_.mended = true;
        report_.kept.push_back(*found);
        seen_ = Status_of(former_);
    }
    return true;
}

void Saving::Keep_former() {
    if (!former_) {
        if (const std::optional<fs::path> retired = Retire_undo_copy(target_)) {
            report_.kept.push_back(*retired);
        }
        return;
    }
    const FileIdentity now = Identity_of(former_);
    const bool keeps = request_.keep_former || (request_.known && *request_.known != now);
    if (keeps && !Content_holds(content_, request_.tail, former_)) {
        report_.kept.push_back(Keep_copy(former_, target_));
    }
    request_.keep_former = false; // should all begin anew, only another content is kept
    if (keeps) {
        request_.known = now;
    }
}

bool Saving::As_seen() const {
    const std::optional<FileStatus> now = Status_of(target_);
    if (!now) {
        return !former_ && errno == ENOENT;
    }
    return former_ && *now == seen_;
}

Saving::Replaced Saving::Replace() {
    std::optional<TemporaryFile> temporary;
    try {
        temporary.emplace(target_, former_ ? NewRights::closed : NewRights::usual);
        if (!Fill(*temporary)) {
            return Replaced::refused;
        }
        if (!As_seen() || !Take_place(*temporary)) {
            return Replaced::changed;
        }
    } catch (const std::system_error& error) {
        if (!former_ || !Folder_refuses(error.code().value())) {
            throw;
        }
        return Replaced::refused;
    }
    Flush_folder(Folder_of(target_), temporary->File());
    temporary->Close();
    return Replaced::done;
}

// Whole and on the disk, but for its name. False where it may not have the rights of the former file.
bool Saving::Fill(const TemporaryFile& temporary) {
    Write_at(temporary.File(), content_, 0);
    if (former_) {
        if (request_.tail == OldTail::keep) {
            Copy_from(former_, content_.size(), temporary.File());
        }
        if (!Copy_rights(former_, temporary.File())) {
            return false;
        }
    }
    report_.identity = Identity_of(temporary.File());
    Flush(temporary.File());
    return true;
}

bool Saving::Take_place(TemporaryFile& temporary) {
    if (!former_) {
        return temporary.Take_free(target_);
    }
    temporary.Replace(target_);
    return true;
}

bool Saving::Overwrite() {
    if (!As_seen()) {
        return false;
    }
    Write_in_place(former_, target_, content_, request_.tail);
    report_.identity = Identity_of(former_);
    former_.Close();
    return true;
}

} // namespace

SaveReport Safe_write(const fs::path& path, std::string_view content, const SaveRequest& request,
                      std::string_view where) {
    try {
        fs::path target = Target_of(path);
        std::error_code error;
        if (!target.has_filename() || fs::is_directory(target, error)) {
            Throw_error(EISDIR);
        }
        return Saving{std::move(target), content, request}.Run();
    } catch (const std::system_error& error) {
        Raise(Number_of(error.code().default_error_condition().value()), where);
    }
}

std::optional<fs::path> Mend_file(const fs::path& path, std::string_view where) {
    try {
        const fs::path target = Target_of(path);
        if (!Has_undo_copy(target) || !fs::is_regular_file(target)) {
            return {};
        }
        if (const SystemFile former = Open_file(target, Access::read_write)) {
            Lock(former);
            return Mend(former, target);
        }
        const SystemFile former = Open_file(target, Access::read);
        if (!former) {
            return {}; // whoever reads it will tell
        }
        Lock(former);
        const std::optional<UndoCopy> copy = Find_undo_copy(former, target);
        if (copy && !Same_content(former, copy->file)) {
            Throw_error(EACCES);
        }
        return {};
    } catch (const std::system_error& error) {
        Raise(Number_of(error.code().default_error_condition().value()), where);
    }
}

} // namespace tarnvik
