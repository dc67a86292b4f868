// The window's surroundings as the toolkit gives them.
#pragma once

#include <QObject>
#include <QPointer>

#include <deque>
#include <functional>
#include <string>

#include "ports/Services.h"
#include "ports/SettingsStore.h"

class QWidget;

namespace tarnvik {

// Boxes one after the other, each shown when control has returned to the event loop.
class QtBoxService : public QObject, public BoxService {
    Q_OBJECT

public:
    void Show_then(std::string_view text, int style, std::function<void()> then) override;
    void Ask(const Question& question, std::function<void(bool yes)> then) override;

private:
    struct Pending {
        std::string text;
        int style{};
        std::function<void()> then;
        std::string yes, no; // of a question
        std::function<void(bool)> answered;
    };
    void Enqueue(Pending box);
    void Next();
    void Show_box(const Pending& pending);

    std::deque<Pending> pending_;
    Pending current_{}; // while shown_
    bool shown_{};
};

class QtFileDialogs : public FileDialogs {
public:
    std::optional<std::string> Open(const FileRequest& request) override;
    std::optional<std::string> Save(const FileRequest& request) override;
};

// The toolkit's printer dialog. PDF is always among its printers, and the only one where no other is installed.
class QtPrinterService : public PrinterService {
public:
    std::unique_ptr<PrintTarget> Show_printer(const PrinterRequest& request) override;
};

class QtDocumentOpener : public DocumentOpener {
public:
    bool Open_file(const std::string& path) override;
    bool Open_link(const std::string& url) override;
};

// QSettings: the application and the section as they are asked for.
class QtSettingsStore : public SettingsStore {
public:
    [[nodiscard]] std::string Get(std::string_view application, std::string_view section,
                                  std::string_view key) const override;
    [[nodiscard]] std::vector<Setting> Get_all(std::string_view application, std::string_view section) const override;
    void Save(std::string_view application, std::string_view section, std::string_view key,
              std::string_view value) override;
};

} // namespace tarnvik
