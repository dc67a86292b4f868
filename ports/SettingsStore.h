// The per-user settings store, behind an interface: where it lives is the front end's business.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnvik {

struct Setting {
    std::string key;
    std::string value;

    friend bool operator==(const Setting& one, const Setting& other) = default;
};

class SettingsStore {
public:
    SettingsStore() = default;
    SettingsStore(const SettingsStore&) = delete;
    SettingsStore& operator=(const SettingsStore&) = delete;
    virtual ~SettingsStore() = default;

    // The value, or an empty text where there is none.
    [[nodiscard]] virtual std::string Get(std::string_view application, std::string_view section,
                                          std::string_view key) const = 0;

    // All settings of a section, in the store's own order.
    [[nodiscard]] virtual std::vector<Setting> Get_all(std::string_view application,
                                                       std::string_view section) const = 0;

    virtual void Save(std::string_view application, std::string_view section, std::string_view key,
                      std::string_view value) = 0;
};

} // namespace tarnvik
