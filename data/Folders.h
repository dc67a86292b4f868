// The folders of a run of the program.
//
// The data folder, with the two tables and the setup file, is the first of these:
//   1. the one that was asked for (--data);
//   2. the program's own, in a build and in an unpacked folder: a file "tarnvik.folder" beside the program says "." ;
//   3. the user's own, $XDG_DATA_HOME/tarnvik, which the first start of the window fills with the delivered files.
//   These lie
//      where "tarnvik.folder" says, as /etc/tarnvik of an installed program; beside the program where nothing is said.
#pragma once

#include <filesystem>

namespace tarnvik {

inline constexpr const char* folder_file = "tarnvik.folder";

struct DataFolder {
    std::filesystem::path folder;
    std::filesystem::path delivered; // what fills it; empty where it is not to be filled
};

DataFolder Find_data_folder(const std::filesystem::path& program, const std::filesystem::path& asked = {});

// Fills the user's own folder where none of the data files is in it, all of them or none. True where it did.
// Errors: throws std::filesystem::filesystem_error; the folder is then left as it was.
bool Fill_data_folder(const DataFolder& data);

// The folder to read from: the delivered one as long as none of the files is in the user's own.
std::filesystem::path Readable_folder(const DataFolder& data);

// The folders of the window.
struct Folders {
    std::filesystem::path App_path; // the tables and the setup file
    std::filesystem::path program;  // the program itself; the manual lies below it
    std::filesystem::path state;    // what a run keeps for the next one; empty where there is no place for it
    bool data_is_new{};             // filled by this start
};

} // namespace tarnvik
