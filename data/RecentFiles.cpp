#include "data/RecentFiles.h"

#include "calc/RuntimeFault.h"
#include "calc/Text.h"

namespace tarnvik {

namespace {

std::string Key(int number) {
    return "RecentFile" + std::to_string(number);
}

std::string Get(const SettingsStore& store, int number) {
    return store.Get(recent_application, recent_section, Key(number));
}

void Save(SettingsStore& store, int number, std::string_view path) {
    store.Save(recent_application, recent_section, Key(number), path);
}

} // namespace

std::string Recent_path(const RecentMenu& menu, int index) {
    const std::string& caption = menu(index).caption;
    if (Character_count(caption) < 3) {
        Raise(fault_invalid_call, "Recent_front");
    }
    return caption.substr(First_characters(caption, 3).size());
}

void Recent_load(const SettingsStore& store, RecentMenu& menu) {
    if (Get(store, 1).empty()) {
        return;
    }
    int number = 0;
    for (const Setting& setting : store.Get_all(recent_application, recent_section)) {
        if (++number > recent_count) {
            return; // rows of somebody else: the menu has no entry for them
        }
        menu(number) = {std::to_string(number) + ". " + setting.value, true};
    }
}

void Recent_shift(SettingsStore& store, std::string_view path) {
    for (int i = recent_count - 1; i >= 1; --i) {
        if (const std::string file = Get(store, i); !file.empty()) {
            Save(store, i + 1, file);
        }
    }
    Save(store, 1, path);
}

void Recent_front(SettingsStore& store, const RecentMenu& menu, std::string_view path) {
    std::array<std::string, recent_count> files;
    for (int i = 1; i <= recent_count; ++i) {
        files[static_cast<std::size_t>(i - 1)] = Recent_path(menu, i);
    }
    for (int place = 1; place <= recent_count; ++place) {
        if (files[static_cast<std::size_t>(place - 1)] != path) {
            continue;
        }
        for (int i = place; i >= 2; --i) {
            Save(store, i, files[static_cast<std::size_t>(i - 2)]);
        }
        Save(store, 1, path);
        return;
    }
    Recent_shift(store, path);
}

} // namespace tarnvik
