#include "platform/FileRights.h"

#include <array>
#include <system_error>

#include <windows.h>

#include <aclapi.h>
#include <io.h>

#include "platform/windows/Error.h"
#include "platform/windows/Self.h"

namespace tarnvik {

namespace {

HANDLE Handle_of(const SystemFile& file) {
    return reinterpret_cast<HANDLE>(_get_osfhandle(file.Get()));
}

void Check(DWORD error) {
    if (error != ERROR_SUCCESS) {
        Throw_error(Errno_of(error));
    }
}

// Owner and access list of a file.
class Security {
public:
    explicit Security(const SystemFile& file) {
        Check(GetSecurityInfo(Handle_of(file), SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION,
                              &owner_, nullptr, &list_, nullptr, &descriptor_));
    }
    Security(const Security&) = delete;
    Security& operator=(const Security&) = delete;
    ~Security() { LocalFree(descriptor_); }

    [[nodiscard]] bool Has_owner_of(const Security& other) const { return EqualSid(owner_, other.owner_) != 0; }
    [[nodiscard]] bool Is_owned_by(WELL_KNOWN_SID_TYPE group) const { return IsWellKnownSid(owner_, group) != 0; }
    [[nodiscard]] bool Is_owned_by(PSID user) const { return EqualSid(owner_, user) != 0; }
    [[nodiscard]] PACL List() const { return list_; }

    // Cut off from the list of its folder.
    [[nodiscard]] bool Stands_alone() const {
        SECURITY_DESCRIPTOR_CONTROL control{};
        DWORD revision{};
        return GetSecurityDescriptorControl(descriptor_, &control, &revision) != 0 &&
               (control & SE_DACL_PROTECTED) != 0;
    }

private:
    PSECURITY_DESCRIPTOR descriptor_{};
    PSID owner_{};
    PACL list_{};
};

// What else than the content is under the file's name, as the note of a mail program where it came from.
bool Has_more_streams(const SystemFile& file) {
    std::array<std::uint64_t, 512> room{};
    if (GetFileInformationByHandleEx(Handle_of(file), FileStreamInfo, room.data(), sizeof room) == 0) {
        return GetLastError() == ERROR_MORE_DATA; // else the file system has no such thing
    }
    return reinterpret_cast<const FILE_STREAM_INFO*>(room.data())->NextEntryOffset != 0;
}

FILE_BASIC_INFO Basics_of(const SystemFile& file) {
    FILE_BASIC_INFO basics{};
    const bool known = GetFileInformationByHandleEx(Handle_of(file), FileBasicInfo, &basics, sizeof basics) != 0;
    Check(known ? ERROR_SUCCESS : GetLastError());
    return basics;
}

// Hidden and the like, and when the file was made. False where the content itself would be kept in another way.
bool Give_basics(const SystemFile& from, const SystemFile& to) {
    constexpr DWORD of_the_bytes = FILE_ATTRIBUTE_ENCRYPTED | FILE_ATTRIBUTE_COMPRESSED | FILE_ATTRIBUTE_SPARSE_FILE;
    const FILE_BASIC_INFO old = Basics_of(from);
    if (((old.FileAttributes ^ Basics_of(to).FileAttributes) & of_the_bytes) != 0) {
        return false;
    }
    FILE_BASIC_INFO given{}; // a time of zero stays as it is
    given.CreationTime = old.CreationTime;
    given.FileAttributes = old.FileAttributes;
    return SetFileInformationByHandle(Handle_of(to), FileBasicInfo, &given, sizeof given) != 0;
}

bool Give_access(const Security& from, const SystemFile& to) {
    const auto inheriting = static_cast<SECURITY_INFORMATION>(
        from.Stands_alone() ? PROTECTED_DACL_SECURITY_INFORMATION : UNPROTECTED_DACL_SECURITY_INFORMATION);
    return SetSecurityInfo(Handle_of(to), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION | inheriting, nullptr, nullptr,
                           from.List(), nullptr) == ERROR_SUCCESS;
}

} // namespace

// The rights last: until then the file is closed.
bool Copy_rights(const SystemFile& from, const SystemFile& to) {
    try {
        const Security rights{from};
        return !Has_more_streams(from) && rights.Has_owner_of(Security{to}) && Give_basics(from, to) &&
               Give_access(rights, to);
    } catch (const std::system_error&) { // what cannot be read cannot be given either
        return false;
    }
}

void Copy_rights_or_fewer(const SystemFile& from, const SystemFile& to) {
    try {
        Give_access(Security{from}, to);
    } catch (const std::system_error&) { // NOLINT(bugprone-empty-catch): it stays closed
    }
}

// Whose the file is, the user's own, and the administrators' are trusted, in every folder.
bool Is_trusted(const SystemFile& copy, const SystemFile& former, const std::filesystem::path& /*folder*/) {
    const Security rights{copy};
    return rights.Has_owner_of(Security{former}) || rights.Is_owned_by(Self{}.User()) ||
           rights.Is_owned_by(WinBuiltinAdministratorsSid) || rights.Is_owned_by(WinLocalSystemSid);
}

} // namespace tarnvik
