// The last four project files: kept in the settings store, shown in the File menu.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "ports/SettingsStore.h"

namespace tarnvik {

inline constexpr std::string_view recent_application = "Tarn-Vik";
inline constexpr std::string_view recent_section = "Recent Files";
inline constexpr int recent_count = 4; // keys "RecentFile1" to "RecentFile4"

struct RecentEntry {
    std::string caption; // of a file: its number, ". " and the path, as it stands
    bool visible{};
};

// The entries mnurecentfile(1) to (4). The first three are placeholders until files are known; the fourth is a
// separator,
// "-", until four are.
struct RecentMenu {
    std::array<RecentEntry, recent_count> entries{
        RecentEntry{"&oldfile1", false},
        RecentEntry{"&oldfile2", false},
        RecentEntry{"&oldfile3", false},
        RecentEntry{"-", true},
    };

    // mnurecentfile(index), 1 to 4.
    RecentEntry& operator()(int index) { return entries.at(static_cast<std::size_t>(index - 1)); }
    const RecentEntry& operator()(int index) const { return entries.at(static_cast<std::size_t>(index - 1)); }
};

// The path of an entry: its caption less the first three characters.
// Errors: throws RuntimeFault 5 where the caption is shorter.
std::string Recent_path(const RecentMenu& menu, int index);

// Settings to menu: the files in the store's order, whatever their keys. Nothing happens while "RecentFile1" is empty;
// an entry once shown is never hidden again.
void Recent_load(const SettingsStore& store, RecentMenu& menu);

// After a save as: the path in front, the others one back, the oldest out. A path can so stand twice.
void Recent_shift(SettingsStore& store, std::string_view path);

// After an open: the path in front; the files that stood before it one back. Works from the captions of the menu.
// Errors: throws RuntimeFault 5, with nothing saved, while the fourth entry is the separator: until four files are
// known the list grows by save as alone. Callers go on without a word.
void Recent_front(SettingsStore& store, const RecentMenu& menu, std::string_view path);

} // namespace tarnvik
