// The setup file: language and partial factors.
//
// The reader opens Tarnviksetup.csv, the writer creates Tarviksetup.csv, one letter apart, on purpose: what the user
// saves is not what the next start reads, unless the user renames the file.
#pragma once

#include <filesystem>
#include <istream>
#include <optional>
#include <string>

#include "calc/GlobalParameter.h"
#include "calc/Words.h"

namespace tarnvik {

inline constexpr const char* setup_file_read = "Tarnviksetup.csv";
inline constexpr const char* setup_file_written = "Tarviksetup.csv";

// Fills the Setup record from a stream in Windows-1252. What a line does not give stays as it was.
void Read_setup(SetupRecord& setup, std::istream& file);

// The same from the file in the program's folder. Errors: file not found (53), path or file cannot be accessed (75).
void Read_setup(SetupRecord& setup, const std::filesystem::path& folder);

// What a setup file lacks at a start.
struct SetupProblem {
    Words text;          // what was expected and what stands there
    int line{};          // of the file; 0: the file as a whole
    std::string found{}; // the line as it stands
    bool no_language{};  // the texts are Norwegian
};

// The same, with the partial factors of EN 1995-1-1 table 2.3 in the place of those that the file does not give above
// 0, and told: a file that is missing or cannot be read, that is empty or cut, factors that are not above 0. Without a
// language the texts are Norwegian.
std::optional<SetupProblem> Load_setup(SetupRecord& setup, const std::filesystem::path& folder);

// "Tarnviksetup.csv in /opt/tarnvik, line 5: ..." and what stands in.
std::string Setup_problem_text(const SetupProblem& problem, const std::filesystem::path& folder, bool english);

// The five lines of the file in Windows-1252; factors with the decimal sign of the regional settings.
std::string Setup_text(const SetupRecord& setup);

// Creates or replaces the written file in the program's folder. Errors: as Safe_write.
void Write_setup(const SetupRecord& setup, const std::filesystem::path& folder);

// Lang and the four factors from the record to the working values, and back.
void Setup_to_state(ConnectionState& s);
void State_to_setup(ConnectionState& s);

} // namespace tarnvik
