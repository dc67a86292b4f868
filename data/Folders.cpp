#include "data/Folders.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <string>
#include <system_error>

#include "data/SetupFile.h"
#include "data/Tables.h"
#include "platform/Machine.h"
#include "platform/Path.h"

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

constexpr std::array<const char*, 3> data_files{material_file, profile_file, setup_file_read};

bool Has_data(const fs::path& folder) {
    return std::any_of(data_files.begin(), data_files.end(), [&folder](const char* file) {
        std::error_code ignored;
        return fs::exists(folder / file, ignored);
    });
}

// The first line of the file beside the program; empty where there is none.
fs::path Said_beside(const fs::path& program) {
    std::ifstream file{program / folder_file};
    std::string line;
    std::getline(file, line);
    return Path_of(line);
}

} // namespace

DataFolder Find_data_folder(const fs::path& program, const fs::path& asked) {
    if (!asked.empty()) {
        return {asked, {}};
    }
    const fs::path said = Said_beside(program);
    const fs::path own = User_data_folder();
    const fs::path delivered = said.empty() ? program : (program / said).lexically_normal();
    if (said == "." || own.empty()) {
        return {said == "." ? program : delivered, {}};
    }
    return {own, delivered};
}

// Into a folder beside it, which then takes its name: a start that is cut off leaves no half of them.
bool Fill_data_folder(const DataFolder& data) {
    if (data.delivered.empty() || Has_data(data.folder)) {
        return false;
    }
    fs::create_directories(data.folder);
    fs::path filling = data.folder;
    filling += ".new";
    fs::remove_all(filling);
    fs::create_directory(filling);
    for (const char* file : data_files) {
        fs::copy_file(data.delivered / file, filling / file);
        fs::permissions(filling / file, fs::perms::owner_write, fs::perm_options::add);
    }
    std::error_code not_empty;
    fs::rename(filling, data.folder, not_empty);
    if (not_empty) { // other files are in it already
        for (const char* file : data_files) {
            fs::rename(filling / file, data.folder / file);
        }
        fs::remove(filling);
    }
    return true;
}

fs::path Readable_folder(const DataFolder& data) {
    return data.delivered.empty() || Has_data(data.folder) ? data.folder : data.delivered;
}

} // namespace tarnvik
