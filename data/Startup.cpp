#include "data/Startup.h"

#include "calc/RuntimeFault.h"
#include "data/StartValue.h"
#include "data/Tables.h"

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

template <class Read> void Read_or_name(const char* file, const fs::path& folder, Read read) {
    try {
        read();
    } catch (const RuntimeFault& fault) {
        throw DataFileError{file, folder, std::string{fault.description}};
    }
}

std::string Too_many(int rows) {
    return "more than " + std::to_string(rows) + " rows marked S";
}

} // namespace

std::string DataFileError::Text() const {
    return file + " in " + folder.string() + ": " + reason;
}

StartReport Start_state(ConnectionState& s, const fs::path& folder, std::optional<std::string_view> lang) {
    StartReport report;
    s.Lang = "Nor";
    s.Loading = true;
    report.setup = Load_setup(s.Setup, folder);
    Setup_to_state(s);
    if (lang) {
        s.Lang = *lang;
    }
    Read_or_name(material_file, folder, [&] { Read_material(s, folder); });
    Read_or_name(profile_file, folder, [&] { Read_profile(s, folder); });
    if (s.Mat_count >= mat_rows) {
        throw DataFileError{material_file, folder, Too_many(mat_rows)};
    }
    if (s.Prof1_count >= prof_rows) {
        throw DataFileError{profile_file, folder, Too_many(prof_rows)};
    }
    StartValue(s);
    return report;
}

} // namespace tarnvik
