// The project file: a binary dump, in a fixed order, of the setup record, the whole material table, the whole profile
// table, the selected rows and one project record. docs/file-formats.md gives the layout field by field.
//
// A project holds its own tables and factors: it opens with those that it was saved with, whatever the text files say.
#pragma once

#include <filesystem>
#include <istream>
#include <string>
#include <string_view>

#include "calc/GlobalParameter.h"
#include "data/SafeWrite.h"
#include "ports/MessageBox.h"

namespace tarnvik {

// What the file keeps of one connection. Units as in the connection state.
struct Project_record {
    std::string Prosjekt, Id;
    std::int16_t Lastvar{};
    FixedText<15> Lastvar_txt; // cut from the 20 characters of the state
    std::int16_t Klima{};
    bool Kun_bolt{}, Med_bulldog{};
    std::int16_t Bolt_index{}, Bulldog_index{}, Ant_index{};
    bool Standard{};
    float b1{}, h1{}, b2{}, h2{};
    float P{}, alp{};
    std::int16_t Con_type{};
    bool dob_1{}, dob_2{}, enk_1{}, enk_2{};
    FixedText<1> Bolt_ab;
    std::int16_t Avstand_index{};
    bool Man_he_on{};
    float man_he{};

    friend bool operator==(const Project_record& one, const Project_record& other) = default;
};

// From the state to the record.
void Fill_project(const ConnectionState& s, Project_record& record);

// From the record to the state, with Loading true from here until the next pass ends. dc follows from Bulldog_index as
// picking the connector sets it. Free entry gets its texts, with one decimal.
// Errors: subscript out of range (9) where a count exceeds its table, after the fields have been copied.
void Apply_project(ConnectionState& s, const Project_record& record);

// The bytes of the file.
std::string Project_bytes(const ConnectionState& s, const Project_record& record);

// Reads the nine parts in order into the state's Setup, Mat, Prof and their indices and counts, and into the record.
// Errors: bad record length (59) where the file ends too soon; what was read so far stays.
void Read_project(ConnectionState& s, Project_record& record, std::istream& stream);

// Writes the file; a longer one keeps its old tail, unless asked otherwise. Errors: as Safe_write.
SaveReport Save_project(const ConnectionState& s, const Project_record& record, const std::filesystem::path& path,
                        const SaveRequest& request = {});
// With the record filled from the state.
SaveReport Save_project(const ConnectionState& s, const std::filesystem::path& path);

// Reads the file and copies language and factors from the Setup record. The record is to be applied next.
// Errors: file not found (53), path not found (76), bad record length (59), path or file cannot be accessed (75). A
// failure restores nothing: what was read so far stays.
void Load_project(ConnectionState& s, Project_record& record, const std::filesystem::path& path);

// The same with the bytes of a file that has been read. Errors: bad record length (59), as above.
void Load_project_bytes(ConnectionState& s, Project_record& record, std::string_view bytes);

// The message of a failed open: 53, 59 and 76 have one, any other failure has none. After a 59 Loading is false.
void Open_project_failed(ConnectionState& s, int number, MessageBox& box);

} // namespace tarnvik
