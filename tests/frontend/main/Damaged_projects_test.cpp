// Projects that were damaged at random, opened by the window's own command: each is opened or its failure is told, the
// window lives on, and a sound project shows the same afterwards. TARNVIK_DAMAGED_PROJECTS=100000 opens more of them.
#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <random>

#include "data/ProjectFile.h"
#include "tests/support/Memory.h"
#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* not_compatible = "Input file not compatible with Tarn-Vik Version  1.2.0";
constexpr auto longest_allowed = std::chrono::seconds{20}; // also under sanitizers, on a machine that is busy

class DamagedProjects : public WindowTest {
protected:
    std::size_t Any(std::size_t below) { return std::uniform_int_distribution<std::size_t>{0, below - 1}(random_); }

    // Half of the damage falls on the record at the end, which is a tenth of the file; some on its head.
    std::size_t Place(std::size_t size) {
        constexpr std::size_t record = 1300;
        constexpr std::size_t head = 130;
        switch (Any(6)) {
        case 0:
            return Any(std::min(head, size));
        case 1:
        case 2:
            return Any(size);
        default:
            return size - 1 - Any(std::min(record, size));
        }
    }

    void Put(std::string& file, const void* bytes, std::size_t count) {
        const std::size_t at = Place(file.size());
        std::memcpy(file.data() + at, bytes, std::min(count, file.size() - at));
    }

    void Damage(std::string& file) {
        static constexpr std::array<std::int16_t, 12> words{0, -1, 1, 2, 5, 8, 100, 101, 400, 401, 32767, -32768};
        static constexpr std::array<std::uint32_t, 9> floats{
            0,          0x80000000, 0x3F800000, 0xC2B40000, 0x00000001, // 0, -0, 1, -90, the least
            0x7F7FFFFF, 0x7F800000, 0xFF800000, 0x7FC00000};            // the largest, both infinities, not a number
        const auto byte = static_cast<char>(Any(256));
        switch (Any(8)) {
        case 0:
        case 1:
            Put(file, &byte, 1);
            return;
        case 2:
        case 3:
            Put(file, &words[Any(words.size())], sizeof words[0]);
            return;
        case 4:
            Put(file, &floats[Any(floats.size())], sizeof floats[0]);
            return;
        case 5:
            file.insert(Place(file.size()), 1 + Any(16), byte);
            return;
        case 6:
            file.erase(Place(file.size()), 1 + Any(64));
            return;
        default:
            file.resize(Any(4) == 0 ? Place(file.size()) : file.size() + Any(300));
        }
    }

    std::string Damaged() {
        std::string file = sound_[Any(sound_.size())];
        for (std::size_t i = 0, count = 1 + Any(4); i < count && !file.empty(); ++i) {
            Damage(file);
        }
        return file;
    }

    void Open(const std::string& name) {
        boxes.messages.clear();
        dialogs.asked.clear();
        dialogs.answer = (work / name).string();
        passes = 0;
        const auto begin = Clock::now();
        Menu("mnuFileItem(1)");
        while (boxes.Waiting() > 0) {
            boxes.Answer();
            Settle();
        }
        longest_ = std::max(longest_, Clock::now() - begin);
        EXPECT_EQ(passes, 1);
        EXPECT_FALSE(s.Loading);
        EXPECT_EQ(Caption(), "Tarnvik: " + s.File_name);
    }

    // The file ends too soon: told in a box and in the line. Any other failure has the line. What opens has none.
    void Expect_told(const std::string& file) {
        ConnectionState read;
        Project_record record;
        bool short_file = false;
        try {
            Load_project_bytes(read, record, file);
        } catch (const RuntimeFault&) {
            short_file = true;
        }
        const bool boxed = !boxes.messages.empty() && boxes.messages[0].text == not_compatible;
        EXPECT_EQ(boxed, short_file);
        EXPECT_TRUE(Visible("Lbl_file") || !boxed);
        if (Visible("Lbl_file")) {
            EXPECT_FALSE(Text("Lbl_file").empty());
            ++(boxed ? refused_ : told_);
        } else {
            EXPECT_EQ(std::bit_cast<std::uint32_t>(s.P),
                      std::bit_cast<std::uint32_t>(record.P)); // also what is no number
            ++opened_;
        }
    }

    // All that a sound project shows.
    std::vector<std::string> Shown() {
        std::vector<std::string> shown;
        for (const auto* label : window->findChildren<QLabel*>()) {
            if (label->isVisible() && label->objectName() != QLatin1String("Lbl_tverr_2")) {
                shown.push_back(label->objectName().toStdString() + " " + label->text().toStdString());
            }
        }
        return shown;
    }

    void Read_sound_projects() {
        for (const auto& entry : std::filesystem::directory_iterator{TARNVIK_SOURCE_DIR "/examples"}) {
            if (entry.path().extension() == ".tnvik") {
                sound_.push_back(Read_file(entry.path()));
            }
        }
        std::sort(sound_.begin(), sound_.end());
        ASSERT_GE(sound_.size(), 6U);
        Write_file(work / "sound.tnvik", Read_file(TARNVIK_SOURCE_DIR "/examples/heel-joint.tnvik"));
    }

    std::mt19937 random_{1};
    std::vector<std::string> sound_;
    Clock::duration longest_{};
    int opened_{}, refused_{}, told_{};
};

TEST_F(DamagedProjects, each_opens_or_is_told_and_a_sound_one_shows_the_same_afterwards) {
    const int asked = qEnvironmentVariableIntValue("TARNVIK_DAMAGED_PROJECTS");
    const int count = asked > 0 ? asked : 300;
    Start();
    Read_sound_projects();
    Open("sound.tnvik");
    const std::vector<std::string> before = Shown();
    ASSERT_GT(before.size(), 20U);
    for (int i = 0; i < count && !HasFailure(); ++i) {
        const std::string file = Damaged();
        Write_file(work / "damaged.tnvik", file);
        Open("damaged.tnvik");
        Expect_told(file);
        if (HasFailure()) {
            Write_file(std::filesystem::path{TARNVIK_SOURCE_DIR} / "build/damaged.tnvik", file);
        }
        if ((i + 1) % 100 == 0) {
            Open("sound.tnvik");
            EXPECT_EQ(Shown(), before) << "after " << i + 1;
        }
        if (asked > 0 && (i + 1) % std::max(1, count / 10) == 0) {
            std::printf("%d projects: %ld MB\n", i + 1, Resident_kB() / 1024);
            std::fflush(stdout);
        }
    }
    EXPECT_LT(longest_, longest_allowed);
    EXPECT_GT(opened_, 0);
    EXPECT_GT(refused_, 0);
    std::printf("%d opened, %d refused with a box, %d told in the line alone; longest %.3f s\n", opened_, refused_,
                told_, std::chrono::duration<double>(longest_).count());
}

} // namespace
} // namespace tarnvik::test
