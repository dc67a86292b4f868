// What the program knows of the project's file, and what the last opening or saving has to say for itself. The
// program's own.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "calc/RuntimeFault.h"
#include "calc/Words.h"
#include "data/FileIdentity.h"
#include "data/SafeWrite.h"

namespace tarnvik {

// Why a project could not be opened; why a file could not be saved.
Words Open_words(const RuntimeFault& fault);
Words Save_words(const RuntimeFault& fault);

class FileStanding {
public:
    // Before the file is read, or instead: what it holds, where that can be told.
    std::optional<std::string> Look_at(const std::filesystem::path& path);

    // The opening has ended. `mended`: what a save that was cut off had left, where the opening found such a thing.
    void Note_opened(const std::filesystem::path& path, const std::optional<RuntimeFault>& failure,
                     const std::optional<std::filesystem::path>& mended);

    // How to save there: a file whose opening failed, or that has changed since, is kept as NAME~; with `asked` false
    // so is any other that the program has never read, because nobody was asked whether to replace it.
    [[nodiscard]] SaveRequest Request(const std::filesystem::path& path, bool asked) const;
    void Note_saved(const std::filesystem::path& path, const SaveReport& report);
    void Note_not_saved(const RuntimeFault& failure);

    // "Not opened: file not found", "Not saved: disk full", or what was kept and why; empty where there is nothing to
    // say. Ends with the next opening or saving that works.
    [[nodiscard]] std::string Text(bool english) const;
    [[nodiscard]] bool Failed() const { return failed_; }

    // What the last opening found half-written and put right: where that lies now. Nothing after any other.
    [[nodiscard]] const std::optional<std::filesystem::path>& Mended() const { return mended_; }

    // The paths that the line speaks of, each on its own; empty without.
    [[nodiscard]] std::string Paths() const;

private:
    void Say(bool failed, const Words& what, const Words& why = {});
    void Say_kept(const Words& what, const std::vector<std::filesystem::path>& paths);

    std::filesystem::path path_;                // of the file that was last opened or saved
    FileIdentity known_;                        // what it held then
    std::vector<std::filesystem::path> unread_; // whose opening failed
    bool failed_{};
    Words what_, why_;
    std::vector<std::filesystem::path> kept_;
    std::optional<std::filesystem::path> mended_;
};

} // namespace tarnvik
