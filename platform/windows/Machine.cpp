#include "platform/Machine.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <system_error>

#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include "platform/Path.h"

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

constexpr DWORD longest_path = 32768;

// %LOCALAPPDATA%\tarnvik; empty where the user has none.
fs::path User_folder() {
    std::wstring value(longest_path, L'\0');
    value.resize(GetEnvironmentVariableW(L"LOCALAPPDATA", value.data(), longest_path));
    const fs::path root{value};
    return root.is_absolute() ? root / "tarnvik" : fs::path{};
}

void Restore_code_page() {
    static const UINT former = GetConsoleOutputCP();
    SetConsoleOutputCP(former);
}

} // namespace

std::string Host_name() {
    std::array<wchar_t, MAX_COMPUTERNAME_LENGTH + 1> name{};
    auto size = static_cast<DWORD>(name.size());
    return GetComputerNameW(name.data(), &size) != 0 ? Text_of(name.data()) : "";
}

long Process_number() {
    return static_cast<long>(GetCurrentProcessId());
}

bool Is_running(long process) {
    const HANDLE handle = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(process));
    if (handle == nullptr) {
        return GetLastError() != ERROR_INVALID_PARAMETER; // there is none of this number
    }
    const bool running = WaitForSingleObject(handle, 0) == WAIT_TIMEOUT;
    CloseHandle(handle);
    return running;
}

// From the system's own line: those of main() have their "*" replaced by names, and lack letters before Windows 10
// of 2019.
std::vector<std::string> Arguments(int /*argc*/, char** /*argv*/) {
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i) {
        arguments.push_back(Text_of(words[i]));
    }
    LocalFree(words);
    return arguments;
}

fs::path Program_path(const char* call) {
    std::wstring name(longest_path, L'\0');
    name.resize(GetModuleFileNameW(nullptr, name.data(), longest_path));
    return name.empty() ? fs::path{call} : fs::path{name};
}

fs::path User_data_folder() {
    return User_folder();
}

fs::path User_state_folder() {
    const fs::path folder = User_folder();
    return folder.empty() ? folder : folder / "state";
}

// No line ends in two characters, no end at Ctrl+Z; and what goes to a terminal is UTF-8 there too.
void Prepare_streams() {
    for (std::FILE* const stream : {stdin, stdout, stderr}) {
        _setmode(_fileno(stream), _O_BINARY);
    }
    if (Is_terminal(1) || Is_terminal(2)) {
        std::atexit(Restore_code_page);
        Restore_code_page(); // looks what it is
        SetConsoleOutputCP(CP_UTF8);
    }
}

// Not the empty device, which the runtime takes for a terminal.
bool Is_terminal(int stream) {
    DWORD mode = 0;
    return GetConsoleMode(reinterpret_cast<HANDLE>(_get_osfhandle(stream)), &mode) != 0;
}

// Streams that lead somewhere stay.
void Attach_terminal() {
    if (GetFileType(GetStdHandle(STD_OUTPUT_HANDLE)) == FILE_TYPE_UNKNOWN &&
        AttachConsole(ATTACH_PARENT_PROCESS) != 0) {
        if (std::freopen("CONOUT$", "w", stdout) != nullptr && std::freopen("CONOUT$", "w", stderr) != nullptr) {
            Prepare_streams();
        }
    }
}

} // namespace tarnvik
