#include "platform/SystemFile.h"

#include <algorithm>
#include <random>
#include <string>
#include <system_error>
#include <vector>

#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <sddl.h>

#include "platform/Path.h"
#include "platform/windows/Error.h"
#include "platform/windows/Self.h"

namespace tarnvik {

namespace fs = std::filesystem;

namespace {

// Whoever has a file open keeps nobody from replacing it.
constexpr DWORD shared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

HANDLE Handle_of(const SystemFile& file) {
    return reinterpret_cast<HANDLE>(_get_osfhandle(file.Get()));
}

void Check(bool success) {
    if (!success) {
        Note_error();
        Throw_error();
    }
}

// None on failure; errno says why.
SystemFile Taken_over(HANDLE handle) {
    if (handle == INVALID_HANDLE_VALUE) {
        Note_error();
        return {};
    }
    const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(handle), _O_BINARY | _O_NOINHERIT);
    if (descriptor < 0) {
        CloseHandle(handle);
    }
    return SystemFile{descriptor};
}

SystemFile Open(const fs::path& path, Access access, DWORD flags) {
    const DWORD rights = access == Access::read ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE;
    return Taken_over(
        CreateFileW(path.c_str(), rights, shared, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL | flags, nullptr));
}

std::optional<FileStatus> Look(const fs::path& path, DWORD flags) {
    const SystemFile file =
        Taken_over(CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, shared, nullptr, OPEN_EXISTING,
                               FILE_FLAG_BACKUP_SEMANTICS | flags, nullptr)); // without which no folder is opened
    return file ? std::optional{Status_of(file)} : std::nullopt;
}

std::uint64_t Joined(DWORD high, DWORD low) {
    return (std::uint64_t{high} << 32U) | low;
}

OVERLAPPED At(std::uint64_t offset) {
    OVERLAPPED place{};
    place.Offset = static_cast<DWORD>(offset);
    place.OffsetHigh = static_cast<DWORD>(offset >> 32U);
    return place;
}

// As the system's own structure, which has the flags of Windows 10 in the place of its first member.
struct Renaming {
    DWORD flags;
    HANDLE root;
    DWORD length; // bytes
    std::array<wchar_t, 1> name;
};

// Also over a file that is open, in one step of the file system. False where the system or the file system cannot.
bool Rename_open_file(const fs::path& from, const fs::path& to) {
    constexpr auto rename_with_flags = static_cast<FILE_INFO_BY_HANDLE_CLASS>(22);
    constexpr DWORD replace_open_file = 0x1 | 0x2;
    const SystemFile file =
        Taken_over(CreateFileW(from.c_str(), DELETE | SYNCHRONIZE, shared, nullptr, OPEN_EXISTING, 0, nullptr));
    if (!file) {
        return false;
    }
    const std::wstring name = Absolute_path(to).native();
    const std::size_t length = name.size() * sizeof(wchar_t);
    std::vector<std::uint64_t> room((sizeof(Renaming) + length) / sizeof(std::uint64_t) + 1);
    auto* renaming = new (room.data()) Renaming{replace_open_file, nullptr, static_cast<DWORD>(length), {}};
    std::copy(name.begin(), name.end(), renaming->name.data());
    return SetFileInformationByHandle(Handle_of(file), rename_with_flags, renaming,
                                      static_cast<DWORD>(room.size() * sizeof(std::uint64_t))) != 0;
}

// Of a file that nobody but this user and the system itself may read.
class ClosedRights {
public:
    ClosedRights() {
        wchar_t* user = nullptr;
        Check(ConvertSidToStringSidW(Self{}.User(), &user) != 0);
        const std::wstring list = L"D:P(A;;FA;;;" + std::wstring{user} + L")(A;;FA;;;SY)";
        LocalFree(user);
        Check(ConvertStringSecurityDescriptorToSecurityDescriptorW(list.c_str(), SDDL_REVISION_1, &descriptor_,
                                                                   nullptr) != 0);
        attributes_.nLength = sizeof attributes_;
        attributes_.lpSecurityDescriptor = descriptor_;
    }
    ClosedRights(const ClosedRights&) = delete;
    ClosedRights& operator=(const ClosedRights&) = delete;
    ~ClosedRights() { LocalFree(descriptor_); }

    SECURITY_ATTRIBUTES* Get() { return &attributes_; }

private:
    PSECURITY_DESCRIPTOR descriptor_{};
    SECURITY_ATTRIBUTES attributes_{};
};

} // namespace

SystemFile::~SystemFile() {
    if (descriptor_ >= 0) {
        _close(descriptor_);
    }
}

void SystemFile::Close() {
    if (_close(Release()) != 0) {
        Throw_error();
    }
}

bool Is_disk_full(int number) {
    return number == ENOSPC || number == EFBIG;
}

SystemFile Open_file(const fs::path& path, Access access) {
    return Open(path, access, 0);
}

SystemFile Open_no_link(const fs::path& path, Access access) {
    return Open(path, access, FILE_FLAG_OPEN_REPARSE_POINT);
}

SystemFile Create_file(const fs::path& path, NewRights rights) {
    constexpr DWORD all = GENERIC_READ | GENERIC_WRITE | READ_CONTROL | WRITE_DAC;
    const auto create = [&](SECURITY_ATTRIBUTES* security) {
        return Taken_over(CreateFileW(path.c_str(), all, shared, security, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    };
    if (rights == NewRights::usual) {
        return create(nullptr);
    }
    try {
        return create(ClosedRights{}.Get());
    } catch (const std::system_error& error) {
        errno = error.code().value();
        return {};
    }
}

SystemFile Create_file(std::string& name, std::size_t after) {
    constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz0123456789"; // case makes no difference in names
    constexpr std::size_t count = 6;
    constexpr int most_tries = 100;
    std::random_device random;
    for (int i = 0; i < most_tries; ++i) {
        for (std::size_t k = 0; k < count; ++k) {
            name[name.size() - after - count + k] = letters[random() % letters.size()];
        }
        SystemFile file = Create_file(Path_of(name), NewRights::closed);
        if (file || errno != EEXIST) {
            return file;
        }
    }
    return {};
}

// The times of a change of rights are left out: the system may write them later.
FileStatus Status_of(const SystemFile& file) {
    constexpr std::uint64_t ticks_per_second = 10'000'000;
    constexpr std::uint64_t seconds_to_1970 = 11'644'473'600;
    BY_HANDLE_FILE_INFORMATION status{};
    Check(GetFileInformationByHandle(Handle_of(file), &status) != 0);
    const std::uint64_t written = Joined(status.ftLastWriteTime.dwHighDateTime, status.ftLastWriteTime.dwLowDateTime);
    return {(status.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE)) == 0 &&
                GetFileType(Handle_of(file)) == FILE_TYPE_DISK,
            Joined(status.nFileSizeHigh, status.nFileSizeLow),
            status.nNumberOfLinks,
            static_cast<std::time_t>(written / ticks_per_second) - static_cast<std::time_t>(seconds_to_1970),
            {status.dwVolumeSerialNumber, Joined(status.nFileIndexHigh, status.nFileIndexLow)},
            {static_cast<std::int64_t>(written)}};
}

std::optional<FileStatus> Status_of(const fs::path& path) {
    return Look(path, 0);
}

std::optional<FileStatus> Status_of_link(const fs::path& path) {
    return Look(path, FILE_FLAG_OPEN_REPARSE_POINT);
}

std::size_t Read_at(const SystemFile& file, char* bytes, std::size_t count, std::uint64_t offset) {
    std::size_t done = 0;
    while (done < count) {
        OVERLAPPED place = At(offset + done);
        DWORD read = 0;
        const auto wanted = static_cast<DWORD>(std::min<std::size_t>(count - done, 1U << 30U));
        if (ReadFile(Handle_of(file), bytes + done, wanted, &read, &place) == 0) {
            Check(GetLastError() == ERROR_HANDLE_EOF);
            break;
        }
        if (read == 0) {
            break;
        }
        done += read;
    }
    return done;
}

void Write_at(const SystemFile& file, std::string_view bytes, std::uint64_t offset) {
    while (!bytes.empty()) {
        OVERLAPPED place = At(offset);
        DWORD written = 0;
        const auto wanted = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1U << 30U));
        Check(WriteFile(Handle_of(file), bytes.data(), wanted, &written, &place) != 0);
        if (written == 0) {
            Throw_error(ENOSPC);
        }
        bytes.remove_prefix(written);
        offset += written;
    }
}

void Cut_at(const SystemFile& file, std::uint64_t size) {
    FILE_END_OF_FILE_INFO end{};
    end.EndOfFile.QuadPart = static_cast<LONGLONG>(size);
    Check(SetFileInformationByHandle(Handle_of(file), FileEndOfFileInfo, &end, sizeof end) != 0);
}

void Flush(const SystemFile& file) {
    Check(FlushFileBuffers(Handle_of(file)) != 0);
}

// The file systems of Windows write their names to a journal in order, and not every one of them flushes a folder.
void Flush_folder(const fs::path& folder, const SystemFile& /*file*/) {
    const SystemFile names = Taken_over(CreateFileW(folder.c_str(), GENERIC_WRITE, shared, nullptr, OPEN_EXISTING,
                                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (names) {
        FlushFileBuffers(Handle_of(names));
    }
}

// It lies among the user's own, which are closed to others.
void Make_closed_folder(const fs::path& folder) {
    fs::create_directories(folder);
}

// On a byte that no file reaches: a lock of Windows would keep others from reading what it covers.
LockResult Try_lock(const SystemFile& file) {
    OVERLAPPED place = At(0x7fff'ffff'0000'0000);
    if (LockFileEx(Handle_of(file), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place) != 0) {
        return LockResult::taken;
    }
    const DWORD error = GetLastError();
    return error == ERROR_LOCK_VIOLATION || error == ERROR_IO_PENDING ? LockResult::busy : LockResult::none_here;
}

void Rename_over(const fs::path& from, const fs::path& to) {
    if (!Rename_open_file(from, to)) {
        Check(MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0);
    }
}

bool Rename_to_free(const fs::path& from, const fs::path& to) {
    if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH) != 0) {
        return true;
    }
    Note_error();
    if (errno == EEXIST) {
        return false;
    }
    Throw_error();
}

bool Remove_file(const fs::path& path) {
    const bool removed = DeleteFileW(path.c_str()) != 0;
    if (!removed) {
        Note_error();
    }
    return removed;
}

} // namespace tarnvik
