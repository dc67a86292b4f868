#include "platform/windows/Error.h"

#include <cerrno>
#include <system_error>

#include <windows.h>

namespace tarnvik {

int Errno_of(unsigned long error) {
    switch (error) {
    case ERROR_BAD_PATHNAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_INVALID_DRIVE:
        return ENOENT;
    case ERROR_NOT_ENOUGH_QUOTA:
    case ERROR_HANDLE_DISK_FULL:
        return ENOSPC;
    case ERROR_WRITE_PROTECT:
        return EROFS;
    default:
        break;
    }
    const std::error_condition condition =
        std::error_code{static_cast<int>(error), std::system_category()}.default_error_condition();
    return condition.category() == std::generic_category() ? condition.value() : EACCES;
}

void Note_error() {
    errno = Errno_of(GetLastError());
}

} // namespace tarnvik
