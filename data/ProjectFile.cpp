#include "data/ProjectFile.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <fstream>
#include <system_error>

#include "calc/RuntimeFault.h"
#include "data/CodePage.h"
#include "data/SafeWrite.h"
#include "data/SetupFile.h"
#include "data/Tables.h"

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view where = "Open_project";

constexpr std::size_t reserved_bytes = 624;
constexpr int reserved_texts = 101;
constexpr std::size_t reserved_fixed_text = 100; // twice

// Numbers little-endian, texts in Windows-1252.
class Writer {
public:
    void Number(std::int16_t value) { Word(static_cast<std::uint16_t>(value)); }
    void Number(float value) {
        auto bits = std::bit_cast<std::uint32_t>(value);
        for (int i = 0; i < 4; ++i) {
            bytes_ += static_cast<char>(bits & 0xFFU);
            bits >>= 8U;
        }
    }
    void Number(bool value) { Number(static_cast<std::int16_t>(value ? -1 : 0)); }
    // A damaged text may have more bytes than characters: the width of the field is what readers count on.
    template <std::size_t N> void Fixed(const FixedText<N>& text) {
        std::string encoded = To_windows_1252(text);
        encoded.resize(N, ' ');
        bytes_ += encoded;
    }
    void Counted(std::string_view text) {
        std::string encoded = To_windows_1252(text);
        if (encoded.size() > 0xFFFFU) { // the length is 16 bits wide
            encoded.resize(0xFFFFU);
        }
        Word(static_cast<std::uint16_t>(encoded.size()));
        bytes_ += encoded;
    }
    void Zeros(std::size_t count) { bytes_.append(count, '\0'); }
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
    explicit Reader(std::istream& file) : file_(file) {}

    void Number(std::int16_t& value) { value = static_cast<std::int16_t>(Word()); }
    void Number(float& value) {
        std::array<unsigned char, 4> bytes{};
        Bytes(bytes.data(), bytes.size());
        std::uint32_t bits = 0;
        for (std::size_t i = bytes.size(); i-- > 0;) {
            bits = (bits << 8U) | bytes[i];
        }
        value = std::bit_cast<float>(bits);
    }
    void Number(bool& value) { value = Word() != 0; }
    template <std::size_t N> void Fixed(FixedText<N>& text) {
        std::array<char, N> bytes{};
        Bytes(bytes.data(), bytes.size());
        for (char& c : bytes) { // a fixed text may be filled up with zeros
            c = c == '\0' ? ' ' : c;
        }
        text = std::string_view{From_windows_1252({bytes.data(), bytes.size()})};
    }
    // In blocks, so that a damaged length never asks for more memory than the file has bytes for.
    void Counted(std::string& text) {
        std::size_t left = Word();
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
    void Skip(std::size_t count) {
        std::array<char, 1024> block{};
        while (count > 0) {
            const std::size_t part = std::min(count, block.size());
            Bytes(block.data(), part);
            count -= part;
        }
    }
    void Skip_counted() { Skip(Word()); }

private:
    std::uint16_t Word() {
        std::array<unsigned char, 2> bytes{};
        Bytes(bytes.data(), bytes.size());
        return static_cast<std::uint16_t>(bytes[0] | (bytes[1] << 8U));
    }
    template <class Byte> void Bytes(Byte* to, std::size_t count) {
        static_assert(sizeof(Byte) == 1);
        file_.read(reinterpret_cast<char*>(to), static_cast<std::streamsize>(count));
        if (static_cast<std::size_t>(file_.gcount()) != count) {
            Raise(fault_bad_record_length, where);
        }
    }

    std::istream& file_;
};

// The fields of the three records in the order of the file, for the writer and for the reader alike.
template <class Archive, class Mat> void Material_fields(Archive& archive, Mat& row) {
    archive.Counted(row.Id);
    archive.Counted(row.Type);
    archive.Counted(row.Standard);
    archive.Number(row.fmk);
    archive.Number(row.fc0k);
    archive.Number(row.fc90k);
    archive.Number(row.fvk);
    archive.Number(row.E0_mean);
    archive.Number(row.E0_05);
    archive.Number(row.G);
    archive.Number(row.dens);
    archive.Number(row.s_fac);
}

template <class Archive, class Prof> void Profile_fields(Archive& archive, Prof& row) {
    archive.Counted(row.Id);
    archive.Counted(row.Type);
    archive.Counted(row.Standard);
    archive.Number(row.b);
    archive.Number(row.h);
}

template <class Archive, class Setup> void Setup_fields(Archive& archive, Setup& setup) {
    archive.Fixed(setup.Language);
    for (auto& line : setup.Setup_line) {
        archive.Counted(line);
    }
    archive.Number(setup.gam_timb);
    archive.Number(setup.gam_lam);
    archive.Number(setup.gam_kerto);
    archive.Number(setup.gam_k_bjelke);
}

template <class Archive, class Record> void Record_fields(Archive& archive, Record& r) {
    archive.Counted(r.Prosjekt);
    archive.Counted(r.Id);
    archive.Number(r.Lastvar);
    archive.Fixed(r.Lastvar_txt);
    archive.Number(r.Klima);
    archive.Number(r.Kun_bolt);
    archive.Number(r.Med_bulldog);
    archive.Number(r.Bolt_index);
    archive.Number(r.Bulldog_index);
    archive.Number(r.Ant_index);
    archive.Number(r.Standard);
    archive.Number(r.b1);
    archive.Number(r.h1);
    archive.Number(r.b2);
    archive.Number(r.h2);
    archive.Number(r.P);
    archive.Number(r.alp);
    archive.Number(r.Con_type);
    archive.Number(r.dob_1);
    archive.Number(r.dob_2);
    archive.Number(r.enk_1);
    archive.Number(r.enk_2);
    archive.Fixed(r.Bolt_ab);
    archive.Number(r.Avstand_index);
    archive.Number(r.Man_he_on);
    archive.Number(r.man_he);
}

} // namespace

void Fill_project(const ConnectionState& s, Project_record& r) {
    r.Prosjekt = s.Prosjekt;
    r.Id = s.Id;
    r.Lastvar = s.Lastvar;
    r.Lastvar_txt = s.Lastvar_txt.View();
    r.Klima = s.Klima;
    r.Kun_bolt = s.Kun_bolt;
    r.Med_bulldog = s.Med_bulldog;
    r.Bolt_index = s.Bolt_index;
    r.Bulldog_index = s.Bulldog_index;
    r.Ant_index = s.Ant_index;
    r.Standard = s.Standard;
    r.b1 = s.b1;
    r.h1 = s.h1;
    r.b2 = s.b2;
    r.h2 = s.h2;
    r.P = s.P;
    r.alp = s.alp;
    r.Con_type = s.Con_type;
    r.dob_1 = s.dob_1;
    r.dob_2 = s.dob_2;
    r.enk_1 = s.enk_1;
    r.enk_2 = s.enk_2;
    r.Bolt_ab = s.Bolt_ab;
    r.Avstand_index = s.Avstand_index;
    r.Man_he_on = s.Man_he_on;
    r.man_he = s.man_he;
}

void Apply_project(ConnectionState& s, const Project_record& r) {
    s.Loading = true;
    s.Prosjekt = r.Prosjekt;
    s.Id = r.Id;
    s.Lastvar = r.Lastvar;
    s.Lastvar_txt = r.Lastvar_txt.View();
    s.Klima = r.Klima;
    s.Kun_bolt = r.Kun_bolt;
    s.Med_bulldog = r.Med_bulldog;
    s.Bolt_index = r.Bolt_index;
    s.Bulldog_index = r.Bulldog_index;
    s.Ant_index = r.Ant_index;
    s.Standard = r.Standard;
    s.b1 = r.b1;
    s.h1 = r.h1;
    s.b2 = r.b2;
    s.h2 = r.h2;
    s.P = r.P;
    s.alp = r.alp;
    s.Con_type = r.Con_type;
    s.dob_1 = r.dob_1;
    s.dob_2 = r.dob_2;
    s.enk_1 = r.enk_1;
    s.enk_2 = r.enk_2;
    s.Bolt_ab = r.Bolt_ab;
    s.Avstand_index = r.Avstand_index;
    s.Man_he_on = r.Man_he_on;
    s.man_he = r.man_he;
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
    constexpr std::int16_t reserved_word = 0;
    Writer file;
    Setup_fields(file, s.Setup);
    for (const MatRecord& row : s.Mat) {
        Material_fields(file, row);
    }
    file.Number(s.Mat_index);
    file.Number(s.Mat_count);
    for (const ProfRecord& row : s.Prof) {
        Profile_fields(file, row);
    }
    file.Number(reserved_word);
    file.Number(s.Prof1_index);
    file.Number(s.Prof1_count);
    file.Number(reserved_word);
    file.Number(s.Prof2_index);
    file.Number(s.Prof2_count);
    Record_fields(file, record);
    file.Zeros(reserved_bytes);
    for (int i = 0; i < reserved_texts; ++i) {
        file.Counted({});
    }
    file.Zeros(2 * reserved_fixed_text);
    return file.Take();
}

void Read_project(ConnectionState& s, Project_record& record, std::istream& stream) {
    std::int16_t reserved_word = 0;
    Reader file{stream};
    Setup_fields(file, s.Setup);
    for (MatRecord& row : s.Mat) {
        Material_fields(file, row);
    }
    file.Number(s.Mat_index);
    file.Number(s.Mat_count);
    for (ProfRecord& row : s.Prof) {
        Profile_fields(file, row);
    }
    file.Number(reserved_word);
    file.Number(s.Prof1_index);
    file.Number(s.Prof1_count);
    file.Number(reserved_word);
    file.Number(s.Prof2_index);
    file.Number(s.Prof2_count);
    Record_fields(file, record);
    file.Skip(reserved_bytes);
    for (int i = 0; i < reserved_texts; ++i) {
        file.Skip_counted();
    }
    file.Skip(2 * reserved_fixed_text);
}

void Save_project(const ConnectionState& s, const Project_record& record, const fs::path& path) {
    Safe_write(path, Project_bytes(s, record), OldTail::keep, "Save_project");
}

void Save_project(const ConnectionState& s, const fs::path& path) {
    Project_record record;
    Fill_project(s, record);
    Save_project(s, record, path);
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

int Open_project(ConnectionState& s, const fs::path& path, MessageBox& box) {
    try {
        Project_record record;
        Load_project(s, record, path);
        Apply_project(s, record);
        return 0;
    } catch (const RuntimeFault& fault) {
        Open_project_failed(s, fault.number, box);
        return fault.number;
    }
}

} // namespace tarnvik
