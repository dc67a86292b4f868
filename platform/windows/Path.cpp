#include "platform/Path.h"

#include <string>
#include <string_view>

#include <windows.h>

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

constexpr DWORD longest_path = 32768;

// As the user writes it: the system puts a mark of its own before the names that it gives.
fs::path Without_mark(std::wstring_view name) {
    constexpr std::wstring_view mark = L"\\\\?\\";
    constexpr std::wstring_view server = L"\\\\?\\UNC\\";
    if (name.starts_with(server)) {
        return L"\\\\" + std::wstring{name.substr(server.size())};
    }
    return name.starts_with(mark) ? name.substr(mark.size()) : name;
}

} // namespace

fs::path Absolute_path(const fs::path& path) {
    std::wstring name(longest_path, L'\0');
    name.resize(GetFullPathNameW(path.c_str(), longest_path, name.data(), nullptr));
    return name.empty() ? path : fs::path{name};
}

fs::path Plain_path(const fs::path& path) {
    return Absolute_path(path);
}

fs::path Target_of(const fs::path& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        return Absolute_path(path);
    }
    constexpr DWORD shared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE file =
        CreateFileW(path.c_str(), 0, shared, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return Absolute_path(path);
    }
    std::wstring name(longest_path, L'\0');
    name.resize(GetFinalPathNameByHandleW(file, name.data(), longest_path, FILE_NAME_NORMALIZED));
    CloseHandle(file);
    return name.empty() ? Absolute_path(path) : Without_mark(name);
}

} // namespace tarnvik
