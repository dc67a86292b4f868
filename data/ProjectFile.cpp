#include "data/ProjectFile.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <fstream>
#include <system_error>
#include <tuple>
#include <utility>

#include "calc/RuntimeFault.h"
#include "data/CodePage.h"
#include "data/SetupFile.h"
#include "data/Tables.h"

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view where = "Open_project";

// Numbers little-endian, texts in Windows-1252, a fixed text without and any other with its length before it.
class Writer {
public:
    void Field(std::int16_t value) { Word(static_cast<std::uint16_t>(value)); }
    void Field(float value) {
        auto bits = std::bit_cast<std::uint32_t>(value);
        for (int i = 0; i < 4; ++i) {
            bytes_ += static_cast<char>(bits & 0xFFU);
            bits >>= 8U;
        }
    }
    void Field(bool value) { Field(static_cast<std::int16_t>(value ? -1 : 0)); }
    // A damaged text may have more bytes than characters: the width of the field is what readers count on.
    template <std::size_t N> void Field(const FixedText<N>& text) {
        std::string encoded = To_windows_1252(text);
        encoded.resize(N, ' ');
        bytes_ += encoded;
    }
    void Field(const std::string& text) {
        std::string encoded = To_windows_1252(text);
        if (encoded.size() > 0xFFFFU) { // the length is 16 bits wide
            encoded.resize(0xFFFFU);
        }
        Word(static_cast<std::uint16_t>(encoded.size()));
        bytes_ += encoded;
    }
    void Reserved(std::size_t count) { bytes_.append(count, '\0'); }
    void Reserved_text() { Word(0); }
    std::string Take() { return std::move(bytes_); }

private:
    void Word(std::uint16_t value) {
        bytes_ += static_cast<char>(value & 0xFFU);
        bytes_ += static_cast<char>(value >> 8U);
    }

    std::string bytes_;
};

class Reader {
public:
    explicit Reader(std::istream& file) : file_(&file) {}
    explicit Reader(std::string_view bytes) : rest_(bytes) {}

    void Field(std::int16_t& value) { value = static_cast<std::int16_t>(Word()); }
    void Field(float& value) {
        std::array<unsigned char, 4> bytes{};
        Bytes(bytes.data(), bytes.size());
        std::uint32_t bits = 0;
        for (std::size_t i = bytes.size(); i-- > 0;) {
            bits = (bits << 8U) | bytes[i];
        }
        value = std::bit_cast<float>(bits);
    }
    void Field(bool& value) { value = Word() != 0; }
    template <std::size_t N> void Field(FixedText<N>& text) {
        std::array<char, N> bytes{};
        Bytes(bytes.data(), bytes.size());
        for (char& c : bytes) { // a fixed text may be filled up with zeros
            c = c == '\0' ? ' ' : c;
        }
        text = std::string_view{From_windows_1252({bytes.data(), bytes.size()})};
    }
    // In blocks, so that a damaged length never asks for more memory than the file has bytes for.
    void Field(std::string& text) {
        std::size_t left = Word();
        if (left <= rest_.size()) {
            text = From_windows_1252(rest_.substr(0, left));
            rest_.remove_prefix(left);
            return;
        }
        constexpr std::size_t block = 4096;
        std::string bytes;
        while (left > 0) {
            const std::size_t count = std::min(left, block);
            const std::size_t at = bytes.size();
            bytes.resize(at + count);
            Bytes(bytes.data() + at, count);
            left -= count;
        }
        text = From_windows_1252(bytes);
    }
    void Reserved(std::size_t count) {
        std::array<char, 1024> block{};
        while (count > 0) {
            const std::size_t part = std::min(count, block.size());
            Bytes(block.data(), part);
            count -= part;
        }
    }
    void Reserved_text() { Reserved(Word()); }

private:
    std::uint16_t Word() {
        std::array<unsigned char, 2> bytes{};
        Bytes(bytes.data(), bytes.size());
        return static_cast<std::uint16_t>(bytes[0] | (bytes[1] << 8U));
    }
    template <class Byte> void Bytes(Byte* to, std::size_t count) {
        static_assert(sizeof(Byte) == 1);
        while (count > 0) {
            if (rest_.empty()) {
                Read_block();
            }
            const std::size_t part = std::min(count, rest_.size());
            std::copy_n(rest_.data(), part, reinterpret_cast<char*>(to));
            rest_.remove_prefix(part);
            to += part;
            count -= part;
        }
    }
    // A file has some thousand fields, most of them of two or four bytes: a stream takes long to give each by itself.
    void Read_block() {
        if (file_ != nullptr) {
            block_.resize(16384);
            file_->read(block_.data(), static_cast<std::streamsize>(block_.size()));
            rest_ = {block_.data(), static_cast<std::size_t>(file_->gcount())};
        }
        if (rest_.empty()) {
            Raise(fault_bad_record_length, where);
        }
    }

    std::istream* file_{}; // none where all the bytes are at hand
    std::string block_;
    std::string_view rest_; // of the block, or of all
};

// The fields of the records in the order of the file, for the writer and for the reader alike.
template <class Setup> auto Setup_fields(Setup& setup) {
    auto& line = setup.Setup_line;
    return std::tie(setup.Language, line[0], line[1], line[2], line[3], line[4], line[5], setup.gam_timb, setup.gam_lam,
                    setup.gam_kerto, setup.gam_k_bjelke);
}

template <class Mat> auto Material_fields(Mat& row) {
    return std::tie(row.Id, row.Type, row.Standard, row.fmk, row.fc0k, row.fc90k, row.fvk, row.E0_mean, row.E0_05,
                    row.G, row.dens, row.s_fac);
}

template <class Prof> auto Profile_fields(Prof& row) {
    return std::tie(row.Id, row.Type, row.Standard, row.b, row.h);
}

// Those of the project record, or of the state that it is filled from and applied to.
template <class Record> auto Record_fields(Record& r) {
    return std::tie(r.Prosjekt, r.Id, r.Lastvar, r.Lastvar_txt, r.Klima, r.Kun_bolt, r.Med_bulldog, r.Bolt_index,
                    r.Bulldog_index, r.Ant_index, r.Standard, r.b1, r.h1, r.b2, r.h2, r.P, r.alp, r.Con_type, r.dob_1,
                    r.dob_2, r.enk_1, r.enk_2, r.Bolt_ab, r.Avstand_index, r.Man_he_on, r.man_he);
}

template <class Archive, class Fields> void Visit(Archive& file, Fields fields) {
    std::apply([&file](auto&... field) { (file.Field(field), ...); }, fields);
}

// The nine parts of the file in their order.
template <class Archive, class State, class Record> void Visit_parts(Archive& file, State& s, Record& record) {
    constexpr std::size_t reserved_word = 2;
    constexpr std::size_t reserved_bytes = 624;
    constexpr int reserved_texts = 101;
    constexpr std::size_t reserved_fixed_texts = 200;
    Visit(file, Setup_fields(s.Setup));
    for (auto& row : s.Mat) {
        Visit(file, Material_fields(row));
    }
    Visit(file, std::tie(s.Mat_index, s.Mat_count));
    for (auto& row : s.Prof) {
        Visit(file, Profile_fields(row));
    }
    file.Reserved(reserved_word);
    Visit(file, std::tie(s.Prof1_index, s.Prof1_count));
    file.Reserved(reserved_word);
    Visit(file, std::tie(s.Prof2_index, s.Prof2_count));
    Visit(file, Record_fields(record));
    file.Reserved(reserved_bytes);
    for (int i = 0; i < reserved_texts; ++i) {
        file.Reserved_text();
    }
    file.Reserved(reserved_fixed_texts);
}

} // namespace

void Fill_project(const ConnectionState& s, Project_record& record) {
    Record_fields(record) = Record_fields(s);
}

void Apply_project(ConnectionState& s, const Project_record& record) {
    s.Loading = true;
    Record_fields(s) = Record_fields(record);
    Get_dc(s);
    Check_counts(s);
    s.Kun_bolt = !s.Med_bulldog;
    if (!s.Standard) {
        s.Txt_b1 = Format(s.b1, "0.0").View();
        s.Txt_h1 = Format(s.h1, "0.0").View();
        s.Txt_b2 = Format(s.b2, "0.0").View();
        s.Txt_h2 = Format(s.h2, "0.0").View();
    }
}

std::string Project_bytes(const ConnectionState& s, const Project_record& record) {
    Writer file;
    Visit_parts(file, s, record);
    return file.Take();
}

void Read_project(ConnectionState& s, Project_record& record, std::istream& stream) {
    Reader file{stream};
    Visit_parts(file, s, record);
}

SaveReport Save_project(const ConnectionState& s, const Project_record& record, const fs::path& path,
                        const SaveRequest& request) {
    return Safe_write(path, Project_bytes(s, record), request, "Save_project");
}

SaveReport Save_project(const ConnectionState& s, const fs::path& path) {
    Project_record record;
    Fill_project(s, record);
    return Save_project(s, record, path);
}

void Load_project_bytes(ConnectionState& s, Project_record& record, std::string_view bytes) {
    Reader file{bytes};
    Visit_parts(file, s, record);
    Setup_to_state(s);
}

void Load_project(ConnectionState& s, Project_record& record, const fs::path& path) {
    std::error_code error;
    const fs::path parent = path.parent_path();
    if (!parent.empty() && !fs::is_directory(parent, error)) {
        Raise(fault_path_not_found, where);
    }
    if (!fs::exists(path, error)) {
        Raise(error ? fault_path_access : fault_file_not_found, where);
    }
    if (!fs::is_regular_file(path, error)) { // before opening: a pipe would wait for its other end
        Raise(fault_path_access, where);
    }
    std::ifstream file{path, std::ios::binary};
    if (!file) {
        Raise(fault_path_access, where);
    }
    Read_project(s, record, file);
    Setup_to_state(s);
}

void Open_project_failed(ConnectionState& s, int number, MessageBox& box) {
    switch (number) {
    case fault_file_not_found:
        box.Show(" Can't find file ", box_exclamation);
        break;
    case fault_bad_record_length:
        box.Show("Input file not compatible with Tarn-Vik Version  1.2.0", box_plain);
        s.Loading = false;
        break;
    case fault_path_not_found:
        box.Show(" Path not found ", box_exclamation);
        break;
    default:
        break;
    }
}

} // namespace tarnvik
