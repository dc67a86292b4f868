// A settings store of the tests and of the benchmarks.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "ports/SettingsStore.h"

namespace tarnvik::test {

// Settings in memory: a key stands where it was first saved. Keeps what was saved, in turn.
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

} // namespace tarnvik::test
