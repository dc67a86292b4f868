#include "check/Paint_program.h"

#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "calc/RuntimeFault.h"
#include "check/Paint_channel.h"
#include "session/SystemClock.h"

namespace tarnvik {

namespace {

// The program at work: its standard input is the other end of the channel.
class Work {
public:
    Work(std::vector<std::string> command, std::string_view where) : channel_(Start(std::move(command), where)) {}
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;
    ~Work() {
        channel_.reset(); // the end of its input ends it
        waitpid(process_, nullptr, 0);
    }

    PaintChannel& Channel() { return *channel_; }

private:
    std::unique_ptr<PaintChannel> Start(std::vector<std::string> command, std::string_view where) {
        std::array<int, 2> ends{};
        if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
            Raise(fault_path_access, where);
        }
        auto channel = std::make_unique<PaintChannel>(ends[0]);
        std::vector<char*> arguments;
        for (std::string& word : command) {
            arguments.push_back(word.data());
        }
        arguments.push_back(nullptr);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, ends[1], STDIN_FILENO);
        const int error = posix_spawn(&process_, arguments[0], &actions, nullptr, arguments.data(), environ);
        posix_spawn_file_actions_destroy(&actions);
        close(ends[1]);
        if (error != 0) {
            Raise(fault_path_access, where);
        }
        return channel;
    }

    pid_t process_{};
    std::unique_ptr<PaintChannel> channel_;
};

} // namespace

bool PaintProgram::Found() const {
    return access(program_.c_str(), X_OK) == 0;
}

int PaintProgram::Write_pictures(const std::filesystem::path& folder) {
    constexpr std::string_view where = "Write_pictures";
    Work work{{program_.string(), paint_pictures, folder.string()}, where};
    return Written(work.Channel(), where);
}

void PaintProgram::Write_report(const std::filesystem::path& file, const std::string& title,
                                const std::function<void(PrintTarget&, const Moment&)>& draw) {
    constexpr std::string_view where = "Write_report";
    Work work{{program_.string(), paint_report, file.string(), title}, where};
    draw(*Sending_target(work.Channel()), SystemClock{}.Now());
    Written(work.Channel(), where);
}

} // namespace tarnvik
