#include "data/InPlace.h"

#include <algorithm>

#include "data/KeptCopy.h"

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

// What makes the file longer comes first: a disk that is full of it has not touched the former content yet.
void Overwrite(const SystemFile& former, std::string_view content, OldTail tail) {
    const auto size = static_cast<std::size_t>(Status_of(former).size);
    if (content.size() > size) {
        Write_at(former, content.substr(size), size);
    }
    Write_at(former, content.substr(0, std::min(size, content.size())), 0);
    if (tail == OldTail::drop && content.size() < size) {
        Cut_at(former, content.size());
    }
    Flush(former);
}

void Restore(const SystemFile& former, const UndoCopy& copy) {
    Copy_from(copy.file, 0, former);
    Cut_at(former, Status_of(copy.file).size);
    Flush(former);
}

} // namespace

void Write_in_place(const SystemFile& former, const fs::path& target, std::string_view content, OldTail tail) {
    const UndoCopy copy = Make_undo_copy(former, target);
    try {
        Flush_folder(Folder_of(copy.path), copy.file);
        Overwrite(former, content, tail);
    } catch (...) {
        Restore(former, copy);
        Remove_undo_copy(copy);
        throw;
    }
    Remove_undo_copy(copy);
}

std::optional<fs::path> Mend(const SystemFile& former, const fs::path& target) {
    const std::optional<UndoCopy> copy = Find_undo_copy(former, target);
    if (!copy) {
        return {};
    }
    std::optional<fs::path> found;
    if (!Same_content(former, copy->file)) {
        found = Keep_copy(former, target);
        Restore(former, *copy);
    }
    Remove_undo_copy(*copy);
    return found;
}

} // namespace tarnvik
