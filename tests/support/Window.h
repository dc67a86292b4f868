// The real window, offscreen, in the hands of a test: started from a program's folder of its own, with the surroundings
// of Fakes.h. Controls are found by their object name.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "calc/GlobalParameter.h"
#include "data/Folders.h"
#include "frontend/controls/Areas.h"
#include "frontend/controls/Controls.h"
#include "frontend/main/frmMain.h"
#include "tests/support/Fakes.h"
#include "tests/support/Files.h"
#include "tests/support/MemorySettingsStore.h"

namespace tarnvik::test {

// Lets everything happen that waits in the queue.
inline void Settle() {
    for (int i = 0; i < 4; ++i) {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

// A control below `root`, or `root` itself, by its name. Errors: throws with the name.
template <class T> T& Find_in(QObject& root, const std::string& name) {
    const QString wanted = QString::fromStdString(name);
    T* found = nullptr;
    if (root.objectName() == wanted) {
        found = dynamic_cast<T*>(&root);
    }
    for (QObject* object : root.findChildren<QObject*>(wanted)) {
        if (found != nullptr) {
            throw std::runtime_error{"two controls named " + name};
        }
        found = dynamic_cast<T*>(object);
    }
    if (found == nullptr) {
        throw std::runtime_error{"no control named " + name + " of the kind that the test wants"};
    }
    return *found;
}

// Caption or text of any control or menu entry.
inline std::string Text_of(QObject& object) {
    if (auto* label = dynamic_cast<QLabel*>(&object)) {
        return label->text().toStdString();
    }
    if (auto* box = dynamic_cast<QLineEdit*>(&object)) {
        return box->text().toStdString();
    }
    if (auto* frame = dynamic_cast<QGroupBox*>(&object)) {
        return frame->title().toStdString();
    }
    if (auto* button = dynamic_cast<QAbstractButton*>(&object)) {
        return button->text().toStdString();
    }
    if (auto* menu = dynamic_cast<QMenu*>(&object)) {
        return menu->title().toStdString();
    }
    if (auto* action = dynamic_cast<QAction*>(&object)) {
        return action->text().toStdString();
    }
    if (auto* list = dynamic_cast<QComboBox*>(&object)) {
        return list->currentText().toStdString();
    }
    if (auto* widget = dynamic_cast<QWidget*>(&object)) {
        return widget->windowTitle().toStdString();
    }
    throw std::runtime_error{object.objectName().toStdString() + " has no text"};
}

class WindowTest : public testing::Test {
protected:
    static constexpr std::uint32_t green = 65280;
    static constexpr std::uint32_t white = 16777215;
    static constexpr std::uint32_t dark_green = 32768;
    static constexpr std::uint32_t red = 255;

    using Messages = std::vector<RecordingBoxes::Message>;

    WindowTest() : former_directory_(std::filesystem::current_path()) {
        for (const char* file : {"TarnvikMaterial.csv", "TarnvikProfile.csv", "Tarnviksetup.csv"}) {
            std::filesystem::copy_file(std::filesystem::path{TARNVIK_DATA_DIR} / file, folder / file);
        }
        std::filesystem::current_path(work.Path());
    }
    ~WindowTest() override {
        window.reset();
        Settle();
        std::filesystem::current_path(former_directory_);
    }

    void Write_setup_language(std::string_view lang) {
        Write_file(folder / "Tarnviksetup.csv", "FileName:;EC5setup; ;\r\nLanguage;" + std::string{lang} +
                                                    "\r\n0;1;2;3\r\ngam_timb;gam_lam;gam_kerto;gam_k-bjelke\r\n"
                                                    "1.3;1.25;1.2;1.25;\r\n");
    }

    // The load step in a language of the setup file, up to the active window.
    void Start(std::string_view lang = "Eng") {
        Write_setup_language(lang);
        Start_as_is();
    }
    void Start_as_is() {
        if (window != nullptr) {
            window->close(); // a start after a normal end
        }
        window = std::make_unique<frmMain>(
            s, Services{*box_service, dialogs, opener, settings, *printer_service, clock}, Own_folders());
        QObject::connect(window.get(), &frmMain::Calculated, window.get(), [this] { ++passes; });
        window->Load();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        Settle();
        passes = 0;
    }

    template <class T = QWidget> T& Find(const std::string& name) { return Find_in<T>(*window, name); }
    TextBox& Box(const std::string& name) { return Find<TextBox>(name); }
    std::string Text(const std::string& name) { return Text_of(Find<QObject>(name)); }
    bool Visible(const std::string& name) { return Find(name).isVisible(); }
    bool Enabled(const std::string& name) { return Find(name).isEnabled(); }
    bool Checked(const std::string& name) { return Find<QAbstractButton>(name).isChecked(); }
    int Row(const std::string& name) { return Find<QComboBox>(name).currentIndex(); }
    std::uint32_t Back(const std::string& name) { return Box(name).Back(); }
    std::uint32_t Fore(const std::string& name) {
        const QColor colour = Find(name).palette().color(QPalette::WindowText);
        return static_cast<std::uint32_t>(colour.red() + 256 * colour.green() + 65536 * colour.blue());
    }
    std::string Focus() {
        const QWidget* focus = QApplication::focusWidget();
        return focus == nullptr ? "" : focus->objectName().toStdString();
    }
    std::string Caption() { return window->windowTitle().toStdString(); }

    // The mouse on whatever the window shows at the middle of the control, or at `at` in it.
    static void Click(QWidget& control, QPoint at = {-1, -1}) {
        ASSERT_TRUE(control.isVisible()) << control.objectName().toStdString() << " is not to be seen";
        ASSERT_TRUE(control.isEnabled()) << control.objectName().toStdString() << " is not enabled";
        QWidget* top = control.window();
        const QPoint where = at.x() < 0 ? QPoint{std::min(12, control.width() / 2), control.height() / 2} : at;
        QTest::mouseClick(top->windowHandle(), Qt::LeftButton, {}, control.mapTo(top, where));
        Settle();
    }
    void Click(const std::string& name) { Click(Find(name)); }

    // A key to whatever has the focus.
    static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QWidget* focus = QApplication::focusWidget();
        ASSERT_NE(focus, nullptr) << "nothing has the focus";
        QTest::keyClick(focus->window()->windowHandle(), key, modifiers);
        Settle();
    }
    static void Keys(const std::string& text) {
        for (const QChar letter : QString::fromStdString(text)) {
            QWidget* focus = QApplication::focusWidget();
            ASSERT_NE(focus, nullptr) << "nothing has the focus";
            QTest::sendKeyEvent(QTest::Click, focus, Qt::Key_unknown, QString{letter}, Qt::NoModifier);
        }
        Settle();
    }
    // Types over the text of a box, which is entered with the mouse if need be and not left.
    void Type(const std::string& name, const std::string& text) {
        if (Focus() == name) {
            Key(Qt::Key_A, Qt::ControlModifier);
        } else {
            Click(name);
        }
        ASSERT_EQ(Focus(), name);
        if (text.empty()) {
            Key(Qt::Key_Delete);
        } else {
            Keys(text);
        }
    }
    // The same, and the Tab key.
    void Enter_value(const std::string& name, const std::string& text) {
        Type(name, text);
        Key(Qt::Key_Tab);
    }
    // Drops a list down and chooses a row in it, also the one that is selected.
    static void Pick(QComboBox& list, int row) {
        Click(list);
        QAbstractItemView* view = list.view();
        ASSERT_TRUE(view->isVisible()) << list.objectName().toStdString() << " did not drop down";
        view->setCurrentIndex(list.model()->index(row, 0));
        QTest::keyClick(view, Qt::Key_Return);
        Settle();
    }
    void Pick(const std::string& name, int row) { Pick(Find<QComboBox>(name), row); }

    // Chooses a menu entry while `in_dialog` waits to act in the modal window that comes up.
    void Menu(const std::string& name, const std::function<void(QWidget& dialog)>& in_dialog = {}) {
        if (in_dialog) {
            In_dialog(in_dialog);
        }
        auto& action = Find<QAction>(name);
        ASSERT_TRUE(action.isEnabled()) << name;
        action.trigger();
        Settle();
        Be_active();
    }
    // A window manager activates the window that is left when another closes; the offscreen platform does not.
    void Be_active() {
        if (!window->isActiveWindow()) {
            window->activateWindow();
            ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
            Settle();
        }
    }
    // Acts in the next modal window; closes it afterwards where the action left it open.
    static void In_dialog(const std::function<void(QWidget& dialog)>& act) {
        QTimer::singleShot(0, qApp, [act] {
            const QPointer<QWidget> dialog = QApplication::activeModalWidget();
            ASSERT_FALSE(dialog.isNull()) << "no dialog came up";
            EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
            Settle();
            try {
                act(*dialog);
            } catch (const std::exception& error) {
                ADD_FAILURE() << error.what();
            }
            if (!dialog.isNull() && dialog->isVisible()) {
                dialog->close();
            }
        });
    }

    // The user reads the one box that waits and presses OK.
    void Answer() {
        ASSERT_EQ(boxes.Waiting(), 1U);
        boxes.Answer();
        Settle();
    }

    [[nodiscard]] Folders Own_folders() const { return {folder.Path(), folder.Path(), state_folder.Path()}; }

    TemporaryFolder folder; // of the program
    TemporaryFolder state_folder;
    TemporaryFolder work; // the current directory
    RecordingBoxes boxes;
    BoxService* box_service{&boxes};
    ScriptedDialogs dialogs;
    RecordingOpener opener;
    MemorySettingsStore settings;
    ScriptedPrinter printer;
    PrinterService* printer_service{&printer};
    StoppedClock clock;
    ConnectionState s;
    std::unique_ptr<frmMain> window;
    int passes{}; // since the start

private:
    std::filesystem::path former_directory_;
};

inline void PrintTo(const RecordingBoxes::Message& message, std::ostream* out) {
    *out << '"' << message.text << "\" style " << message.style;
}

} // namespace tarnvik::test
