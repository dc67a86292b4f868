// The setup file: language and partial factors.
//
// The reader opens Tarnviksetup.csv, the writer creates Tarviksetup.csv, one letter apart, on purpose: what the user
// saves is not what the next start reads, unless the user renames the file.
#pragma once

#include <filesystem>
#include <istream>
#include <string>

#include "calc/GlobalParameter.h"

namespace tarnvik {

inline constexpr const char* setup_file_read = "Tarnviksetup.csv";
inline constexpr const char* setup_file_written = "Tarviksetup.csv";

// Fills the Setup record from a stream in Windows-1252. What a line does not give stays as it was.
void Read_setup(SetupRecord& setup, std::istream& file);

// The same from the file in the program's folder. Errors: file not found (53), path or file cannot be accessed (75).
void Read_setup(SetupRecord& setup, const std::filesystem::path& folder);

// What stands in for a missing setup file: no language, so that the texts are Norwegian, and the partial factors of
// EN 1995-1-1 table 2.3.
void Default_setup(SetupRecord& setup);

// The five lines of the file in Windows-1252; factors with the decimal sign of the regional settings.
std::string Setup_text(const SetupRecord& setup);

// Creates or replaces the written file in the program's folder. Errors: as Safe_write.
void Write_setup(const SetupRecord& setup, const std::filesystem::path& folder);

// Lang and the four factors from the record to the working values, and back.
void Setup_to_state(ConnectionState& s);
void State_to_setup(ConnectionState& s);

} // namespace tarnvik
