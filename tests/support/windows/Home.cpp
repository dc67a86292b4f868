#include "tests/support/Home.h"

#include <string>

#include <windows.h>

namespace tarnvik::test {

namespace {

// The user's part of the registry is an empty key of this process, which is deleted with it.
class OwnRegistry {
public:
    OwnRegistry()
        : valid_(RegCreateKeyExW(HKEY_CURRENT_USER, name_.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS,
                                 nullptr, &key_, nullptr) == ERROR_SUCCESS &&
                 RegOverridePredefKey(HKEY_CURRENT_USER, key_) == ERROR_SUCCESS) {}
    OwnRegistry(const OwnRegistry&) = delete;
    OwnRegistry& operator=(const OwnRegistry&) = delete;
    ~OwnRegistry() {
        RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        RegCloseKey(key_);
        RegDeleteTreeW(HKEY_CURRENT_USER, name_.c_str());
    }

    [[nodiscard]] bool Valid() const { return valid_; }

private:
    std::wstring name_{L"Software\\Tarnvik test " + std::to_wstring(GetCurrentProcessId())};
    HKEY key_{};
    bool valid_;
};

} // namespace

bool Move_home(const std::filesystem::path& folder) {
    static const OwnRegistry registry;
    return SetEnvironmentVariableW(L"LOCALAPPDATA", folder.c_str()) != 0 && registry.Valid();
}

} // namespace tarnvik::test
