#include "frontend/services/QtServices.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QUrl>

#include <algorithm>

#include "frontend/painting/Texts.h"
#include "frontend/services/PrinterDialog.h"

namespace tarnvik {

namespace {

QSettings Open_settings(std::string_view application) {
    return QSettings{QSettings::NativeFormat, QSettings::UserScope, Q(application), Q(application)};
}

void Write_words(QFileDialog& dialog, const FileRequest& request) {
    const FileDialogWords& words = request.words;
    dialog.setWindowTitle(Q(words.caption));
    dialog.setNameFilter(Q(words.files + " (" + request.filter + ")"));
    dialog.setLabelText(QFileDialog::Accept, Q(words.accept));
    dialog.setLabelText(QFileDialog::Reject, Q(words.cancel));
    dialog.setLabelText(QFileDialog::LookIn, Q(words.look_in));
    dialog.setLabelText(QFileDialog::FileName, Q(words.file_name));
    dialog.setLabelText(QFileDialog::FileType, Q(words.file_type));
}

std::optional<std::string> Chosen(QFileDialog& dialog) {
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return U(dialog.selectedFiles().constFirst());
}

} // namespace

void QtBoxService::Show_then(std::string_view text, int style, std::function<void()> then) {
    // Where both passes of one input say the same, the user answers once.
    const auto waits = [&](const Pending& other) { return other.text == text && other.style == style && !other.then; };
    if (!then && ((shown_ && waits(current_)) || std::any_of(pending_.begin(), pending_.end(), waits))) {
        return;
    }
    Enqueue({std::string{text}, style, std::move(then), {}, {}, {}});
}

void QtBoxService::Ask(const Question& question, std::function<void(bool yes)> then) {
    Enqueue({question.text, box_plain, {}, question.yes, question.no, std::move(then)});
}

void QtBoxService::Enqueue(Pending box) {
    pending_.push_back(std::move(box));
    QMetaObject::invokeMethod(this, &QtBoxService::Next, Qt::QueuedConnection);
}

void QtBoxService::Next() {
    if (shown_ || pending_.empty()) {
        return;
    }
    shown_ = true;
    current_ = std::move(pending_.front());
    pending_.pop_front();
    while (QWidget* popup = QApplication::activePopupWidget()) { // a list that dropped down would hide the box
        popup->close();
    }
    Show_box(current_);
}

void QtBoxService::Show_box(const Pending& pending) {
    QWidget* parent = QApplication::activeModalWidget();
    if (parent == nullptr) {
        parent = QApplication::activeWindow();
    }
    for (QWidget* window : QApplication::topLevelWidgets()) { // at the start none is active yet
        if (parent == nullptr && window->isVisible() && window->isWindow() &&
            !window->windowFlags().testFlag(Qt::ToolTip)) {
            parent = window;
        }
    }
    auto* box = new QMessageBox{pending.style == box_exclamation ? QMessageBox::Warning : QMessageBox::NoIcon,
                                QStringLiteral(" "), Q(pending.text), QMessageBox::NoButton, parent};
    box->setObjectName(QStringLiteral("MessageBox"));
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::ApplicationModal);
    const QAbstractButton* yes = nullptr;
    if (pending.answered) {
        // No button of these two roles answers to Escape or to the box's own cross.
        yes = box->addButton(Q(pending.yes), QMessageBox::AcceptRole);
        box->addButton(Q(pending.no), QMessageBox::DestructiveRole);
    } else {
        box->addButton(QMessageBox::Ok);
    }
    connect(box, &QMessageBox::finished, this,
            [this, box, yes, then = pending.then, answered = pending.answered]() mutable {
                shown_ = false;
                if (answered) {
                    then = [answered, first = box->clickedButton() == yes] { answered(first); };
                }
                if (then) {
                    // After the box is gone, so that the focus goes back to a window that is active again.
                    QMetaObject::invokeMethod(this, then, Qt::QueuedConnection);
                }
                QMetaObject::invokeMethod(this, &QtBoxService::Next, Qt::QueuedConnection);
            });
    box->show();
}

std::optional<std::string> QtFileDialogs::Open(const FileRequest& request) {
    QFileDialog dialog{QApplication::activeWindow()};
    dialog.setFileMode(QFileDialog::ExistingFile);
    Write_words(dialog, request);
    dialog.setDirectory(request.folder.empty() ? QDir::currentPath() : Q(request.folder));
    return Chosen(dialog);
}

std::optional<std::string> QtFileDialogs::Save(const FileRequest& request) {
    QFileDialog dialog{QApplication::activeWindow()};
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    Write_words(dialog, request);
    dialog.setDefaultSuffix(Q(request.default_extension));
    dialog.setOption(QFileDialog::DontConfirmOverwrite, (request.flags & prompt_on_overwrite) == 0);
    const QFileInfo start{Q(request.file_name)};
    dialog.setDirectory(start.absoluteDir());
    dialog.selectFile(start.fileName());
    return Chosen(dialog);
}

std::unique_ptr<PrintTarget> QtPrinterService::Show_printer(const PrinterRequest& request) {
    return Ask_for_printer(request);
}

bool QtDocumentOpener::Open_file(const std::string& path) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(Q(path)));
}

bool QtDocumentOpener::Open_link(const std::string& url) {
    return QDesktopServices::openUrl(QUrl{Q(url)});
}

std::string QtSettingsStore::Get(std::string_view application, std::string_view section, std::string_view key) const {
    QSettings settings = Open_settings(application);
    settings.beginGroup(Q(section));
    return U(settings.value(Q(key)).toString());
}

std::vector<Setting> QtSettingsStore::Get_all(std::string_view application, std::string_view section) const {
    QSettings settings = Open_settings(application);
    settings.beginGroup(Q(section));
    std::vector<Setting> rows;
    for (const QString& key : settings.childKeys()) {
        rows.push_back({U(key), U(settings.value(key).toString())});
    }
    return rows;
}

void QtSettingsStore::Save(std::string_view application, std::string_view section, std::string_view key,
                           std::string_view value) {
    QSettings settings = Open_settings(application);
    settings.beginGroup(Q(section));
    settings.setValue(Q(key), Q(value));
}

} // namespace tarnvik
