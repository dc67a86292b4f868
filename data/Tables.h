// Readers of the material and the profile table.
//
// Both files: lines ended by CR LF (a lone CR or LF ends a line as well), fields separated by ";", seven heading lines
// skipped unread, then data rows. A row counts whose third field begins with "S"; all others are dropped without a
// trace. Nothing in a file is an error: a short row keeps what its table row held, a number that cannot be read leaves
// its field, a row past the table's end is counted and not stored.
#pragma once

#include <filesystem>
#include <istream>

#include "calc/GlobalParameter.h"

namespace tarnvik {

inline constexpr const char* material_file = "TarnvikMaterial.csv";
inline constexpr const char* profile_file = "TarnvikProfile.csv";

// Fill Mat and Mat_count, or Prof, Prof1_count and Prof2_count, from a stream in Windows-1252. The counts hold the last
// used index; with more rows than the table holds they exceed it (see Check_counts).
void Read_material(ConnectionState& s, std::istream& file);
void Read_profile(ConnectionState& s, std::istream& file);

// The same from the file in the program's folder. Errors: file not found (53), path or file cannot be accessed (75).
void Read_material(ConnectionState& s, const std::filesystem::path& folder);
void Read_profile(ConnectionState& s, const std::filesystem::path& folder);

// What filling the lists from the tables does with a count beyond the table: subscript out of range (9).
void Check_counts(const ConnectionState& s);

} // namespace tarnvik
