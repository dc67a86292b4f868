// What the window asks of its surroundings: each behind one small interface, so that tests answer in its place.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "ports/Clock.h"
#include "ports/MessageBox.h"
#include "ports/PrintTarget.h"
#include "ports/SettingsStore.h"

namespace tarnvik {

struct Question {
    std::string text;
    std::string yes, no; // what the buttons say
};

// Message boxes of the window. A box never nests an event loop: it is shown after the running handler has returned, and
// what has to follow its answer is passed along.
class BoxService : public MessageBox {
public:
    void Show(std::string_view text, int style) override { Show_then(text, style, {}); }

    // `then` runs when the box has been answered.
    virtual void Show_then(std::string_view text, int style, std::function<void()> then) = 0;

    // A question with two answers, none of which a stray key gives; `then` learns whether it was the first.
    virtual void Ask(const Question& question, std::function<void(bool yes)> then) = 0;
};

// Flags of a file dialog, those of the common dialog.
inline constexpr int prompt_on_overwrite = 2;
inline constexpr int hide_read_only = 4; // no box for opening read-only
inline constexpr int file_must_exist = 4096;

// What a file dialog says, in the program's language.
struct FileDialogWords {
    std::string caption, accept, cancel, look_in, file_name, file_type;
    std::string files; // what the filter finds: "Tarnvik projects"
};

// What a file dialog is asked for.
struct FileRequest {
    std::string filter;    // "*.tnvik"
    std::string file_name; // what the dialog starts with
    std::string default_extension;
    int flags{}; // joined by |
    FileDialogWords words{};
    std::string folder{}; // to start in; empty: the current one
};

class FileDialogs {
public:
    FileDialogs() = default;
    FileDialogs(const FileDialogs&) = delete;
    FileDialogs& operator=(const FileDialogs&) = delete;
    virtual ~FileDialogs() = default;

    // The chosen path, or nothing where the dialog was cancelled.
    virtual std::optional<std::string> Open(const FileRequest& request) = 0;
    virtual std::optional<std::string> Save(const FileRequest& request) = 0;
};

// Flags of the printer dialog, those of the common dialog.
inline constexpr int no_selection = 4;               // the report is printed whole
inline constexpr int hide_print_to_file = 0x10'0000; // no box for printing to a file

// What the printer dialog is asked for.
struct PrinterRequest {
    int flags{};           // joined by |
    std::string document;  // the job's name
    std::string caption{}; // in the program's language
};

class PrinterService {
public:
    PrinterService() = default;
    PrinterService(const PrinterService&) = delete;
    PrinterService& operator=(const PrinterService&) = delete;
    virtual ~PrinterService() = default;

    // The dialog, and the print job that it leads to; null where it was cancelled. A job that is not ended is dropped.
    // Errors: throws RuntimeFault where no job can be started.
    virtual std::unique_ptr<PrintTarget> Show_printer(const PrinterRequest& request) = 0;
};

// Opens a document or a link with the desktop's own program.
class DocumentOpener {
public:
    DocumentOpener() = default;
    DocumentOpener(const DocumentOpener&) = delete;
    DocumentOpener& operator=(const DocumentOpener&) = delete;
    virtual ~DocumentOpener() = default;

    // False where it cannot be opened.
    virtual bool Open_file(const std::string& path) = 0;
    virtual bool Open_link(const std::string& url) = 0;
};

// All that the window asks for. They outlive it.
struct Services {
    BoxService& boxes;
    FileDialogs& files;
    DocumentOpener& opener;
    SettingsStore& settings;
    PrinterService& printer;
    Clock& clock;
};

} // namespace tarnvik
