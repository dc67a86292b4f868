#include "data/Lines.h"

#include <cstdint>
#include <system_error>

#include "calc/RuntimeFault.h"
#include "data/CodePage.h"

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t largest = std::uintmax_t{64} * 1024 * 1024;

[[noreturn]] void Refuse(std::string_view reason, std::string_view where) {
    throw RuntimeFault{fault_path_access, reason, where};
}

} // namespace

std::ifstream Open_text(const fs::path& path, std::string_view where) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) {
        Raise(fault_file_not_found, where);
    }
    if (error) {
        Refuse("its folder cannot be entered", where);
    }
    if (status.type() != fs::file_type::regular) {
        Refuse("not a regular file", where);
    }
    if (fs::file_size(path, error) > largest && !error) {
        Refuse("larger than 64 MB", where);
    }
    std::ifstream file{path, std::ios::binary};
    if (!file) {
        Refuse("no right to read it", where);
    }
    return file;
}

std::optional<std::string> Read_line(std::istream& file) {
    using Traits = std::istream::traits_type;
    std::streambuf* buffer = file.rdbuf();
    if (Traits::eq_int_type(buffer->sgetc(), Traits::eof())) {
        return std::nullopt;
    }
    std::string bytes;
    for (;;) {
        const auto next = buffer->sbumpc();
        if (Traits::eq_int_type(next, Traits::eof())) {
            break;
        }
        const char c = Traits::to_char_type(next);
        if (c == '\n') {
            break;
        }
        if (c == '\r') {
            if (Traits::eq_int_type(buffer->sgetc(), Traits::to_int_type('\n'))) {
                buffer->sbumpc();
            }
            break;
        }
        bytes += c;
    }
    return From_windows_1252(bytes);
}

std::vector<std::string_view> Split(std::string_view line) {
    std::vector<std::string_view> fields;
    for (;;) {
        const std::size_t end = line.find(';');
        fields.push_back(line.substr(0, end));
        if (end == std::string_view::npos) {
            return fields;
        }
        line.remove_prefix(end + 1);
    }
}

} // namespace tarnvik
