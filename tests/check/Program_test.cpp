// The program as another process: exit status, streams, memory and what stands beside it.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <malloc.h>
#include <poll.h>
#include <set>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <nlohmann/json.hpp>

#include "tests/support/Regions.h"
#include "tests/support/Tool.h"

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define UNDER_ADDRESS_SANITIZER 1
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define UNDER_ADDRESS_SANITIZER 1
#endif

namespace tarnvik {
namespace {

namespace fs = std::filesystem;
using test::Json;
using test::TemporaryFolder;
using test::ToolRun;

const char* const program = TARNVIK_CHECK;

void Exec(const std::string& path, const std::vector<std::string>& arguments) {
    std::vector<char*> argv{const_cast<char*>(path.c_str())};
    for (const std::string& argument : arguments) {
        argv.push_back(const_cast<char*>(argument.c_str()));
    }
    argv.push_back(nullptr);
    execv(path.c_str(), argv.data());
    _exit(127);
}

struct ProgramRun : ToolRun {
    long peak_kilobytes{};
};

// Runs the program with its streams in files, so that neither side ever waits for the other.
class Program : public testing::Test {
protected:
    ProgramRun Start(const std::vector<std::string>& arguments, std::string input = {}, const std::string& output = {},
                     const std::string& path = program) {
        test::Write_file(folder / "in", input);
        input = {};
        malloc_trim(0); // a process begins with the memory of its parent, which would count as its own
        const std::string out = output.empty() ? (folder / "out").string() : output;
        const pid_t child = fork();
        if (child == 0) {
            const auto stream = [](const std::string& name, int flags, int number) {
                const int file = open(name.c_str(), flags, 0600);
                if (file < 0 || dup2(file, number) < 0) {
                    _exit(126);
                }
            };
            stream((folder / "in").string(), O_RDONLY, 0);
            stream(out, O_WRONLY | O_CREAT | O_TRUNC, 1);
            stream((folder / "err").string(), O_WRONLY | O_CREAT | O_TRUNC, 2);
            Exec(path, arguments);
        }
        int status = 0;
        rusage usage{};
        wait4(child, &status, 0, &usage);
        ProgramRun run;
        run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
        run.peak_kilobytes = usage.ru_maxrss;
        run.out = output.empty() ? test::Read_file(out) : std::string{};
        run.err = test::Read_file(folder / "err");
        return run;
    }

    TemporaryFolder folder;
};

TEST_F(Program, exit_status_and_streams) {
    EXPECT_EQ(Start({"--set", "P=0.01"}).status, 0);
    EXPECT_EQ(Start({"--set", "P=1000"}).status, 1);
    EXPECT_EQ(Start({"--set", "Mat_index=101"}).status, 3);
    const ProgramRun wrong = Start({"--what"});
    EXPECT_EQ(wrong.status, 2);
    EXPECT_EQ(wrong.out, "");
    EXPECT_EQ(wrong.err, "tarnvik-check: unknown option --what; see tarnvik-check --help\n");
    EXPECT_EQ(Start({"--version"}).out, "tarnvik-check 1.2.0\n");
}

TEST_F(Program, the_data_files_lie_beside_the_program_whatever_the_current_folder) {
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    const ProgramRun run = Start({"--json"});
    fs::current_path(before);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.Object()["state"]["Mat_count"], 36);
}

TEST_F(Program, a_link_to_the_program_finds_its_data_files) {
    fs::create_symlink(program, folder / "tarnvik-check");
    const ProgramRun run = Start({"--json"}, {}, {}, (folder / "tarnvik-check").string());
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.Object()["end"], "normal");
}

TEST_F(Program, texts_follow_the_regional_settings_and_the_numbers_of_json_do_not) {
    const test::Region region{"nb_NO"};
    if (!region.Made()) {
        GTEST_SKIP() << "localedef has no nb_NO here";
    }
    const ProgramRun run = Start({"--json", "--with", "screen"});
    EXPECT_EQ(run.Object()["screen"]["Txt_b1"]["caption"], "34,0");
    EXPECT_EQ(run.Object()["state"]["Txt_b1"], "34,0");
    EXPECT_NE(run.out.find("\"fc90k\":2.3,"), std::string::npos);
}

TEST_F(Program, an_installed_tool_reads_the_users_own_data_and_creates_nothing) {
    const fs::path installed = folder / "lib";
    fs::create_directory(installed);
    fs::copy_file(program, installed / "tarnvik-check");
    test::Write_file(installed / "tarnvik.folder", std::string{TARNVIK_DATA_DIR} + "\n");
    const char* const former = std::getenv("XDG_DATA_HOME");
    const std::string kept = former == nullptr ? "" : former;
    setenv("XDG_DATA_HOME", (folder / "home").c_str(), 1);
    const std::string tool = (installed / "tarnvik-check").string();
    EXPECT_EQ(Start({"--json"}, {}, {}, tool).Object()["state"]["Mat_count"], 36);
    EXPECT_FALSE(fs::exists(folder / "home"));
    fs::create_directories(folder / "home" / "tarnvik");
    for (const char* file : {"TarnvikMaterial.csv", "TarnvikProfile.csv"}) {
        fs::copy_file(fs::path{TARNVIK_DATA_DIR} / file, folder / "home" / "tarnvik" / file);
    }
    test::Write_file(folder / "home" / "tarnvik" / "Tarnviksetup.csv", "a\nLanguage;Nor\nb\nc\n1.5;1.5;1.5;1.5\n");
    EXPECT_EQ(Start({"--json"}, {}, {}, tool).Object()["state"]["gm"], 1.5);
    if (kept.empty()) {
        unsetenv("XDG_DATA_HOME");
    } else {
        setenv("XDG_DATA_HOME", kept.c_str(), 1);
    }
}

TEST_F(Program, the_same_results_as_within_this_process) {
    const std::string input = "{}\n{\"Con_type\":5,\"alp\":90}\nx\n";
    const ProgramRun run = Start({"--batch", "--data", TARNVIK_DATA_DIR}, input);
    const ToolRun here = test::Tool({"--batch"}, input);
    EXPECT_EQ(run.out, here.out);
    EXPECT_EQ(run.err, here.err);
    EXPECT_EQ(run.status, here.status);
}

TEST_F(Program, results_that_cannot_be_written_are_no_success) {
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"--set", "P=0.01"}, std::vector<std::string>{"--json", "--set", "P=0.01"},
          std::vector<std::string>{"--batch"}, std::vector<std::string>{"--help"},
          std::vector<std::string>{"--version"}, std::vector<std::string>{"--list", "bolts"}}) {
        const ProgramRun run = Start(arguments, "{\"P\":0.01}\n", "/dev/full");
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.err, "tarnvik-check: the results cannot be written\n");
    }
}

TEST_F(Program, standard_input_that_cannot_be_read_is_an_error) {
    for (const char* stream : {" </", " <&-"}) { // a folder; none at all
        const ProgramRun run = Start({"-c", std::string{program} + " --batch" + stream}, {}, {}, "/bin/sh");
        EXPECT_EQ(run.status, 2) << stream;
        EXPECT_EQ(run.err, "tarnvik-check: standard input cannot be read\n") << stream;
        EXPECT_EQ(run.out, "") << stream;
    }
}

TEST_F(Program, memory_does_not_grow_with_the_lines_of_a_batch) {
#ifdef UNDER_ADDRESS_SANITIZER
    GTEST_SKIP() << "the sanitizer keeps freed memory";
#endif
    const auto lines = [](int count) {
        std::string text;
        for (int i = 0; i < count; ++i) {
            text += R"({"P":)" + std::to_string(i % 90) + R"(,"Con_type":)" + std::to_string(i % 5 + 1) + "}\n";
        }
        return text;
    };
    for (const char* jobs : {"1", "2"}) {
        const ProgramRun few = Start({"--batch", "--fields", "P", "--jobs", jobs}, lines(10000));
        const ProgramRun many = Start({"--batch", "--fields", "P", "--jobs", jobs}, lines(200000));
        EXPECT_EQ(std::count(few.out.begin(), few.out.end(), '\n'), 10000);
        EXPECT_EQ(std::count(many.out.begin(), many.out.end(), '\n'), 200000);
        // The lines take 4.8 MB and their results 10 MB: what held them would show.
        EXPECT_LT(many.peak_kilobytes, few.peak_kilobytes + 2048);
    }
}

class ProgramJobs : public Program, public testing::WithParamInterface<const char*> {};
INSTANTIATE_TEST_SUITE_P(jobs, ProgramJobs, testing::Values("1", "2"));

// A caller that waits for each answer before it asks again.
TEST_P(ProgramJobs, every_line_is_answered_at_once) {
    std::array<int, 2> to{};
    std::array<int, 2> from{};
    ASSERT_EQ(pipe(to.data()), 0);
    ASSERT_EQ(pipe(from.data()), 0);
    const pid_t child = fork();
    if (child == 0) {
        dup2(to[0], 0);
        dup2(from[1], 1);
        for (const int end : {to[0], to[1], from[0], from[1]}) {
            close(end);
        }
        Exec(program, {"--batch", "--fields", "P", "--jobs", GetParam()});
    }
    close(to[0]);
    close(from[1]);
    for (int i = 1; i <= 3; ++i) {
        // With the begin of the next line behind it.
        const std::string line = (i == 1 ? "{" : "") + ("\"P\":" + std::to_string(i)) + "}\n{";
        ASSERT_EQ(write(to[1], line.data(), line.size()), static_cast<ssize_t>(line.size()));
        std::string answer;
        while (answer.empty() || answer.back() != '\n') {
            pollfd ready{from[0], POLLIN, 0};
            ASSERT_EQ(poll(&ready, 1, 60000), 1) << "no answer to line " << i;
            std::array<char, 4096> block{};
            const ssize_t count = read(from[0], block.data(), block.size());
            ASSERT_GT(count, 0) << "line " << i;
            answer.append(block.data(), static_cast<std::size_t>(count));
        }
        EXPECT_EQ(Json::parse(answer)["state"]["P"], i);
    }
    close(to[1]);
    int status = 0;
    waitpid(child, &status, 0);
    close(from[0]);
    EXPECT_TRUE(WIFEXITED(status));
}

// What the terminal of a batch that gets its second line after the first second shows, results in a file.
std::string Terminal_of_a_long_batch(const fs::path& folder) {
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
    grantpt(terminal);
    unlockpt(terminal);
    const int err = open(ptsname(terminal), O_RDWR | O_NOCTTY);
    std::array<int, 2> to{};
    EXPECT_EQ(pipe(to.data()), 0);
    const pid_t child = fork();
    if (child == 0) {
        dup2(to[0], 0);
        dup2(open((folder / "out").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), 1);
        dup2(err, 2);
        close(to[0]);
        close(to[1]);
        Exec(program, {"--batch", "--fields", "P"});
    }
    close(to[0]);
    close(err);
    const auto send = [&to](std::string_view line) {
        EXPECT_EQ(write(to[1], line.data(), line.size()), static_cast<ssize_t>(line.size()));
    };
    send("{\"P\":1}\n");
    usleep(1500000);
    send("{\"P\":\"x\"}\n");
    close(to[1]);
    waitpid(child, nullptr, 0);
    std::array<char, 4096> block{};
    const ssize_t count = read(terminal, block.data(), block.size());
    close(terminal);
    return {block.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0))};
}

TEST_F(Program, a_terminal_shows_how_far_a_long_batch_is) {
    const std::string shown = Terminal_of_a_long_batch(folder.Path());
    const std::size_t line = shown.find("2 lines, ");
    ASSERT_NE(line, std::string::npos) << shown;
    EXPECT_EQ(shown.find("tarnvik-check: line 2: P: expected a number, got \"x\"\r\n"), 0U) << shown;
    EXPECT_EQ(shown.back(), '\r'); // taken off at the end
    const std::string out = test::Read_file(folder / "out");
    EXPECT_EQ(std::count(out.begin(), out.end(), '\n'), 2);
}

// Where what paints lies beside the tool, and where it does not.
TEST_F(Program, paints_with_the_program_beside_it) {
    fs::copy_file(program, folder / "tarnvik-check");
    test::Write_file(folder / "tarnvik.folder", std::string{TARNVIK_DATA_DIR} + "\n");
    const ProgramRun alone =
        Start({"--report", (folder / "r.pdf").string()}, {}, {}, (folder / "tarnvik-check").string());
    EXPECT_EQ(alone.status, 2);
    EXPECT_NE(alone.err.find("needs tarnvik-paint beside the program"), std::string::npos);
#ifdef TARNVIK_WITH_PAINTER
    const ProgramRun run = Start({"--set", "P=1", "--report", (folder / "r.pdf").string()});
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(test::Read_file(folder / "r.pdf").substr(0, 5), "%PDF-");
    const ProgramRun refused = Start({"--set", "P=1", "--report", (folder / "no" / "r.pdf").string()});
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(refused.err,
              "tarnvik-check: " + (folder / "no" / "r.pdf").string() + ": cannot be written: path not found\n");
    const ProgramRun pictures = Start({"--pictures", (folder / "p").string()});
    EXPECT_EQ(pictures.status, 0);
    EXPECT_TRUE(fs::exists(folder / "p" / "frmMain" / "Cmd_type(0).png"));
#endif
}

#ifdef TARNVIK_WITH_PAINTER
// The names of a document's fonts, which it has in no order.
std::set<std::string> Fonts_of(const std::string& pdf) {
    constexpr std::string_view key = "/BaseFont /";
    std::set<std::string> names;
    for (std::size_t at = pdf.find(key); at != std::string::npos; at = pdf.find(key, at + 1)) {
        const std::size_t begin = at + key.size();
        names.insert(pdf.substr(begin, pdf.find_first_of("\r\n", begin) - begin));
    }
    return names;
}

TEST_F(Program, a_report_is_set_in_the_delivered_faces_where_no_font_is_installed) {
    Start({"--set", "P=1", "--report", (folder / "here.pdf").string()});
    test::Write_file(folder / "none.conf", "<?xml version=\"1.0\"?><fontconfig></fontconfig>");
    setenv("FONTCONFIG_FILE", (folder / "none.conf").c_str(), 1);
    Start({"--set", "P=1", "--report", (folder / "bare.pdf").string()});
    unsetenv("FONTCONFIG_FILE");
    const std::string here = test::Read_file(folder / "here.pdf");
    const std::string bare = test::Read_file(folder / "bare.pdf");
    const std::set<std::string> delivered{"TarnvikSans-Regular", "TarnvikSans-Bold",        "TarnvikSerif-Regular",
                                          "TarnvikSerif-Bold",   "TarnvikSerif-BoldItalic", "TarnvikEquations1",
                                          "TarnvikEquations2",   "TarnvikEquations3"};
    EXPECT_EQ(Fonts_of(here), delivered);
    EXPECT_EQ(Fonts_of(bare), delivered);
    EXPECT_NEAR(static_cast<double>(bare.size()), static_cast<double>(here.size()), 100.0); // the clock's digits differ
}
#endif

TEST_F(Program, a_saved_project_is_the_same_from_any_folder) {
    const ProgramRun saved = Start({"--json", "--set", "P=4", "--save", (folder / "a.tnvik").string()});
    const ProgramRun opened = Start({"--json", (folder / "a.tnvik").string()});
    EXPECT_EQ(opened.Object()["state"]["uf"], saved.Object()["state"]["uf"]);
    EXPECT_EQ(opened.status, saved.status);
    EXPECT_EQ(opened.err, "");
}

} // namespace
} // namespace tarnvik
