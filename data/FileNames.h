// The names of the files that a save makes beside its target. docs/file-formats.md lists them.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tarnvik {

// ".NAME.HOST.PID-N.tmp": the new content on its way to NAME. No other process gives a file this name, and N numbers
// those of one process.
std::string Temporary_name(std::string_view name, int number);

// Whose temporary file of NAME it is.
enum class Owner {
    nobody, // it is none
    here,   // a process of this machine
    elsewhere,
};
struct TemporaryOwner {
    Owner owner{Owner::nobody};
    long process{};
};
TemporaryOwner Owner_of(std::string_view temporary, std::string_view name);

// "NAME~", "NAME~2", "NAME~3": a content that NAME had.
std::string Kept_name(std::string_view name, int number);

// ".NAME.undo": what NAME held before it was written in place.
std::string Undo_name(std::string_view name);

// The same in the folder for what finds no place beside its file: "NAME.HASH.undo", the hash that of the whole
// path.
std::string Undo_name_of_path(const std::filesystem::path& path);

} // namespace tarnvik
