#include "platform/Partner.h"

#include <cerrno>
#include <system_error>

#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarnvik {

std::array<int, 2> Make_channel() {
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        throw std::system_error{errno, std::generic_category()};
    }
    return ends;
}

long Send_some(int channel, std::string_view bytes) {
    return send(channel, bytes.data(), bytes.size(), MSG_NOSIGNAL);
}

long Receive_some(int channel, char* bytes, std::size_t count) {
    return recv(channel, bytes, count, 0);
}

void Close_channel(int channel) {
    close(channel);
}

bool Is_program(const std::filesystem::path& path) {
    return access(path.c_str(), X_OK) == 0;
}

std::intptr_t Start_program(std::vector<std::string> command, int channel) {
    std::vector<char*> arguments;
    for (std::string& word : command) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, channel, partner_channel);
    pid_t process{};
    const int error = posix_spawn(&process, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(channel);
    if (error != 0) {
        throw std::system_error{error, std::generic_category()};
    }
    return process;
}

void Wait_for(std::intptr_t process) {
    waitpid(static_cast<pid_t>(process), nullptr, 0);
}

} // namespace tarnvik
