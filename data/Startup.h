// The data part of the program's start: from an empty state to a new project.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "calc/GlobalParameter.h"
#include "data/SetupFile.h"

namespace tarnvik {

// A data file without which the program cannot work, or that holds more rows than its table.
struct DataFileError {
    std::string file;
    std::filesystem::path folder;
    std::string reason; // "file not found", "too many rows"

    // "TarnvikMaterial.csv in /opt/tarnvik: file not found"
    [[nodiscard]] std::string Text() const;
};

struct StartReport {
    std::optional<SetupProblem> setup; // what the setup file lacks, and what stands in
};

// Reads the setup file, the material and the profile table from the folder and runs StartValue. `lang` overrides the
// setup file's language. Loading is true afterwards: the caller clears it after its first pass.
// Errors: throws DataFileError for a missing or unreadable material or profile file and for more rows marked "S" than a
// table holds.
StartReport Start_state(ConnectionState& s, const std::filesystem::path& folder,
                        std::optional<std::string_view> lang = std::nullopt);

} // namespace tarnvik
