#include "platform/Partner.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <system_error>

#include <windows.h>

#include <fcntl.h>
#include <io.h>

#include "platform/Path.h"
#include "platform/windows/Error.h"

namespace tarnvik {

namespace {

HANDLE Handle_of(int channel) {
    return reinterpret_cast<HANDLE>(_get_osfhandle(channel));
}

int Taken_over(HANDLE handle) {
    return _open_osfhandle(reinterpret_cast<intptr_t>(handle), _O_BINARY | _O_NOINHERIT);
}

[[noreturn]] void Throw_last() {
    throw std::system_error{Errno_of(GetLastError()), std::generic_category()};
}

// So that the other program reads it back as it is: backslashes count before a quotation mark alone.
std::wstring Quoted(const std::string& word) {
    std::wstring quoted{L'"'};
    std::size_t backslashes = 0;
    const std::wstring wide = Path_of(word).native();
    for (const wchar_t c : wide) {
        if (c == L'"') {
            quoted.append(backslashes + 1, L'\\');
        }
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        quoted += c;
    }
    return quoted.append(backslashes, L'\\') + L'"';
}

} // namespace

// A pipe with a name for a moment: one without passes bytes one way only.
std::array<int, 2> Make_channel() {
    static std::atomic<int> next_number;
    constexpr DWORD room = 65536;
    const std::wstring name =
        L"\\\\.\\pipe\\tarnvik-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(next_number++);
    const HANDLE near_end = CreateNamedPipeW(
        name.c_str(), PIPE_ACCESS_DUPLEX | FILE_FLAG_FIRST_PIPE_INSTANCE,
        PIPE_TYPE_BYTE | PIPE_READMODE_BYTE | PIPE_WAIT | PIPE_REJECT_REMOTE_CLIENTS, 1, room, room, 0, nullptr);
    if (near_end == INVALID_HANDLE_VALUE) {
        Throw_last();
    }
    const HANDLE far_end =
        CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (far_end == INVALID_HANDLE_VALUE) {
        const DWORD error = GetLastError();
        CloseHandle(near_end);
        SetLastError(error);
        Throw_last();
    }
    return {Taken_over(near_end), Taken_over(far_end)};
}

long Send_some(int channel, std::string_view bytes) {
    DWORD sent = 0;
    const auto count = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1U << 20U));
    return WriteFile(Handle_of(channel), bytes.data(), count, &sent, nullptr) != 0 ? static_cast<long>(sent) : -1;
}

long Receive_some(int channel, char* bytes, std::size_t count) {
    DWORD read = 0;
    return ReadFile(Handle_of(channel), bytes, static_cast<DWORD>(count), &read, nullptr) != 0 ? static_cast<long>(read)
                                                                                               : -1;
}

void Close_channel(int channel) {
    _close(channel);
}

bool Is_program(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(path, ignored);
}

std::intptr_t Start_program(std::vector<std::string> command, int channel) {
    const std::wstring program = Path_of(command.front()).native();
    std::wstring line;
    for (const std::string& word : command) {
        line += (line.empty() ? L"" : L" ") + Quoted(word);
    }
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = Handle_of(channel);
    start.hStdOutput = GetStdHandle(STD_OUTPUT_HANDLE);
    start.hStdError = GetStdHandle(STD_ERROR_HANDLE);
    SetHandleInformation(start.hStdInput, HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
    PROCESS_INFORMATION process{};
    const BOOL started = CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr,
                                        nullptr, &start, &process);
    const DWORD error = GetLastError();
    _close(channel);
    if (started == 0) {
        SetLastError(error);
        Throw_last();
    }
    CloseHandle(process.hThread);
    return reinterpret_cast<std::intptr_t>(process.hProcess);
}

void Wait_for(std::intptr_t process) {
    const auto handle = reinterpret_cast<HANDLE>(process);
    WaitForSingleObject(handle, INFINITE);
    CloseHandle(handle);
}

} // namespace tarnvik
