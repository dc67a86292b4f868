// Writing over a file that cannot be replaced by another one: in place, with an undo copy beside it meanwhile. A
// crash leaves both, and whoever opens or saves the file next puts the former content back.
//
// `former` is the file, open for reading and writing and locked, so that an undo copy that is there is a dead
// process's. Errors: throws std::system_error.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

#include "platform/SystemFile.h"

namespace tarnvik {

enum class OldTail : std::uint8_t {
    keep, // a longer file keeps what lies behind the new content
    drop,
};

// A failure leaves the former content; only where that cannot be put back either, the undo copy stays.
void Write_in_place(const SystemFile& former, const std::filesystem::path& target, std::string_view content,
                    OldTail tail);

// Mends what a crash has left. Where the content was not the former one, it is kept as NAME~; the path.
std::optional<std::filesystem::path> Mend(const SystemFile& former, const std::filesystem::path& target);

} // namespace tarnvik
