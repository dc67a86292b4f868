// The per-user settings store, behind an interface: where it lives is the front end's business.
#pragma once

#include <algorithm>
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

// Settings in memory, for tests: a key stands where it was first saved. Keeps what was saved, in turn.
class MemorySettingsStore final : public SettingsStore {
public:
    struct Row {
        std::string application, section;
        Setting setting;
    };

    [[nodiscard]] std::string Get(std::string_view application, std::string_view section,
                                  std::string_view key) const override {
        for (const Row& row : rows) {
            if (row.application == application && row.section == section && row.setting.key == key) {
                return row.setting.value;
            }
        }
        return {};
    }

    [[nodiscard]] std::vector<Setting> Get_all(std::string_view application, std::string_view section) const override {
        std::vector<Setting> settings;
        for (const Row& row : rows) {
            if (row.application == application && row.section == section) {
                settings.push_back(row.setting);
            }
        }
        return settings;
    }

    void Save(std::string_view application, std::string_view section, std::string_view key,
              std::string_view value) override {
        saved.push_back({std::string{key}, std::string{value}});
        const auto found = std::find_if(rows.begin(), rows.end(), [&](const Row& row) {
            return row.application == application && row.section == section && row.setting.key == key;
        });
        if (found == rows.end()) {
            rows.push_back({std::string{application}, std::string{section}, saved.back()});
        } else {
            found->setting.value = value;
        }
    }

    std::vector<Row> rows;
    std::vector<Setting> saved; // every Save, also of a value that stood already
};

} // namespace tarnvik
