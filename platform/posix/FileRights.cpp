#include "platform/FileRights.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace tarnvik {

namespace {

constexpr const char* access_list = "system.posix_acl_access";
constexpr mode_t closed = 0600;
constexpr mode_t all_bits = 07777;

// What belongs to the bytes of a file and not to its name: the system makes it anew, or drops it at every write.
constexpr std::array<std::string_view, 3> of_the_bytes{"security.capability", "security.evm", "security.ima"};

struct stat Rights_of(const SystemFile& file) {
    struct stat status {};
    if (fstat(file.Get(), &status) != 0) {
        Throw_error();
    }
    return status;
}

bool Without_attributes(int error) {
    return error == ENODATA || error == ENOTSUP;
}

std::optional<std::string> Attribute(const SystemFile& file, const char* name) {
    for (;;) {
        const ssize_t size = fgetxattr(file.Get(), name, nullptr, 0);
        if (size < 0) {
            if (!Without_attributes(errno)) {
                Throw_error();
            }
            return {};
        }
        std::string value(static_cast<std::size_t>(size), '\0');
        const ssize_t read = fgetxattr(file.Get(), name, value.data(), value.size());
        if (read == size) {
            return value;
        }
        if (read < 0 && errno != ERANGE && !Without_attributes(errno)) { // else it has changed in between
            Throw_error();
        }
    }
}

// Names with a zero byte behind each.
std::string Attribute_names(const SystemFile& file) {
    for (;;) {
        const ssize_t size = flistxattr(file.Get(), nullptr, 0);
        if (size < 0) {
            if (errno != ENOTSUP) {
                Throw_error();
            }
            return {};
        }
        std::string names(static_cast<std::size_t>(size), '\0');
        const ssize_t read = flistxattr(file.Get(), names.data(), names.size());
        if (read >= 0) {
            names.resize(static_cast<std::size_t>(read));
            return names;
        }
        if (errno != ERANGE) {
            Throw_error();
        }
    }
}

// Where it is the same already, nothing is asked of the system.
bool Give_attribute(const SystemFile& to, const char* name, const std::optional<std::string>& value) {
    if (Attribute(to, name) == value) {
        return true;
    }
    if (!value) {
        return fremovexattr(to.Get(), name) == 0;
    }
    return fsetxattr(to.Get(), name, value->data(), value->size(), 0) == 0;
}

bool Give_attributes(const SystemFile& from, const SystemFile& to) {
    const std::string names = Attribute_names(from);
    for (std::string_view rest = names; !rest.empty();) {
        const std::string name{rest.substr(0, rest.find('\0'))};
        rest.remove_prefix(std::min(rest.size(), name.size() + 1));
        const bool skipped =
            name == access_list || std::find(of_the_bytes.begin(), of_the_bytes.end(), name) != of_the_bytes.end();
        if (!skipped && !Give_attribute(to, name.c_str(), Attribute(from, name.c_str()))) {
            return false;
        }
    }
    return true;
}

bool Give_owner(const SystemFile& to, uid_t owner, gid_t group) {
    const struct stat now = Rights_of(to);
    return (now.st_uid == owner && now.st_gid == group) || fchown(to.Get(), owner, group) == 0;
}

bool Give_mode(const SystemFile& to, mode_t mode) {
    return (Rights_of(to).st_mode & all_bits) == mode || fchmod(to.Get(), mode) == 0;
}

// The access list is set before the mode: on a folder with a default list the new file has inherited one, and the
// group's bits of the mode would open it to those whom that list names.
bool Give_access(const SystemFile& from, const SystemFile& to, mode_t mode) {
    return Give_attribute(to, access_list, Attribute(from, access_list)) && Give_mode(to, mode);
}

// The owner first: a change of owner takes bits of the mode away.
bool Give_all(const SystemFile& from, const SystemFile& to) {
    const struct stat old = Rights_of(from);
    const mode_t mode = old.st_mode & all_bits;
    if (!Give_owner(to, old.st_uid, old.st_gid) || !Give_attributes(from, to) || !Give_access(from, to, mode)) {
        return false;
    }
    const struct stat now = Rights_of(to); // some file systems take a change and do not make it
    return now.st_uid == old.st_uid && now.st_gid == old.st_gid && (now.st_mode & all_bits) == mode;
}

void Close_again(const SystemFile& to) {
    if (!Give_attribute(to, access_list, {}) || !Give_mode(to, closed)) {
        Throw_error();
    }
}

} // namespace

bool Copy_rights(const SystemFile& from, const SystemFile& to) {
    try {
        if (Give_all(from, to)) {
            return true;
        }
    } catch (const std::system_error&) { // NOLINT(bugprone-empty-catch): what cannot be read cannot be given either
    }
    Close_again(to);
    return false;
}

void Copy_rights_or_fewer(const SystemFile& from, const SystemFile& to) {
    if (Copy_rights(from, to)) {
        return;
    }
    const struct stat old = Rights_of(from);
    const mode_t bits = old.st_mode & 0777U;
    if (Give_owner(to, static_cast<uid_t>(-1), old.st_gid)) {
        if (!Give_access(from, to, bits)) {
            Close_again(to);
        }
    } else if (!Attribute(from, access_list) && Give_attribute(to, access_list, {})) {
        // In another group its members and all others get what both had.
        const mode_t both = (bits >> 3U) & bits & 07U;
        if (!Give_mode(to, (bits & 0700U) | (both << 3U) | both)) {
            Close_again(to);
        }
    }
}

bool Is_trusted(const SystemFile& copy, const SystemFile& former, const std::filesystem::path& folder) {
    const struct stat status = Rights_of(copy);
    struct stat around {};
    if (stat(folder.c_str(), &around) != 0) {
        Throw_error();
    }
    return status.st_uid == geteuid() || status.st_uid == 0 || status.st_uid == Rights_of(former).st_uid ||
           (around.st_mode & static_cast<mode_t>(S_ISVTX)) == 0;
}

} // namespace tarnvik
