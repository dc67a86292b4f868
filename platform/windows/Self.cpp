#include "platform/windows/Self.h"

#include <system_error>

#include "platform/windows/Error.h"

namespace tarnvik {

Self::Self() {
    HANDLE token = nullptr;
    DWORD size = 0;
    if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token) == 0) {
        throw std::system_error{Errno_of(GetLastError()), std::generic_category()};
    }
    const bool known = GetTokenInformation(token, TokenUser, room_.data(), sizeof room_, &size) != 0;
    const DWORD error = GetLastError();
    CloseHandle(token);
    if (!known) {
        throw std::system_error{Errno_of(error), std::generic_category()};
    }
}

} // namespace tarnvik
