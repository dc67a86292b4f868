// The window's surroundings as the toolkit gives them: message boxes, file dialogs, settings, documents.
#include <QDesktopServices>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

#include <algorithm>

#include "data/RecentFiles.h"
#include "frontend/services/QtServices.h"
#include "tests/support/Window.h"

namespace tarnvik::test {
namespace {

QMessageBox* Shown_box() {
    return dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
}

std::string Shown_text() {
    const QMessageBox* box = Shown_box();
    return box == nullptr ? "no box" : box->text().toStdString();
}

void Press_ok() {
    ASSERT_NE(Shown_box(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(Shown_box()));
    QTest::keyClick(Shown_box(), Qt::Key_Return);
    Settle();
}

// Message boxes

TEST(MessageBoxes, come_after_the_handler_without_a_title) {
    QtBoxService boxes;
    boxes.Show(" h =< 0 ", box_exclamation);
    EXPECT_EQ(Shown_box(), nullptr); // the handler runs to its end first
    Settle();
    ASSERT_NE(Shown_box(), nullptr);
    EXPECT_EQ(Shown_text(), " h =< 0 ");
    EXPECT_EQ(Shown_box()->windowTitle().trimmed(), QString{});
    EXPECT_EQ(Shown_box()->icon(), QMessageBox::Warning);
    Press_ok();
    EXPECT_EQ(Shown_box(), nullptr);
    boxes.Show("plain & <b>not bold</b>", box_plain);
    Settle();
    ASSERT_NE(Shown_box(), nullptr);
    EXPECT_EQ(Shown_box()->icon(), QMessageBox::NoIcon);
    EXPECT_EQ(Shown_box()->textFormat(), Qt::PlainText);
    QTest::keyClick(Shown_box(), Qt::Key_Escape); // an answer as well
    Settle();
    EXPECT_EQ(Shown_box(), nullptr);
}

TEST(MessageBoxes, come_one_after_the_other_each_with_its_answer) {
    QtBoxService boxes;
    std::string answered;
    boxes.Show_then("one", box_plain, [&answered] { answered += "1"; });
    boxes.Show_then("two", box_plain, [&answered] { answered += "2"; });
    Settle();
    EXPECT_EQ(Shown_text(), "one");
    EXPECT_EQ(answered, "");
    Press_ok();
    EXPECT_EQ(answered, "1");
    EXPECT_EQ(Shown_text(), "two");
    Press_ok();
    EXPECT_EQ(answered, "12");
    EXPECT_EQ(Shown_box(), nullptr);
}

// Two passes of one input that say the same: one box to answer.
TEST(MessageBoxes, the_same_words_are_not_said_again_while_they_wait) {
    QtBoxService boxes;
    boxes.Show("same", box_plain);
    boxes.Show("same", box_plain);
    Settle();
    boxes.Show("same", box_plain);
    Settle();
    Press_ok();
    EXPECT_EQ(Shown_box(), nullptr);
    boxes.Show("same", box_plain);
    Settle();
    EXPECT_EQ(Shown_text(), "same");
    boxes.Show("same", box_exclamation); // another style is another box
    Press_ok();
    EXPECT_EQ(Shown_text(), "same");
    Press_ok();
}

// The real box over the real window

class RealBoxes : public WindowTest {
protected:
    RealBoxes() { box_service = &real_; }
    void Press_ok_and_come_back() {
        Press_ok();
        Be_active();
    }

private:
    QtBoxService real_;
};

TEST_F(RealBoxes, a_refusal_by_the_tab_key) {
    Start();
    Type("Txt_last", "0");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Shown_text(), " Load has to be given as a posetiv value > 0  ");
    EXPECT_EQ(Shown_box()->parentWidget(), window.get());
    EXPECT_EQ(Back("Txt_last"), green);
    Press_ok_and_come_back();
    EXPECT_EQ(Shown_box(), nullptr);
    EXPECT_EQ(Focus(), "Txt_last");
    EXPECT_EQ(Back("Txt_last"), green);
    EXPECT_EQ(Box("Txt_last").selectedText(), QStringLiteral("0"));
    EXPECT_EQ(Back("Txt_alp"), white);
    Keys("12");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Shown_box(), nullptr);
    EXPECT_EQ(s.P, 12.0F);
    EXPECT_EQ(passes, 1);
    EXPECT_EQ(Focus(), "Txt_alp");
    EXPECT_EQ(Back("Txt_alp"), green);
}

TEST_F(RealBoxes, a_refusal_by_the_mouse) {
    Start();
    Type("Txt_last", "x");
    Click("Cmd_type(2)");
    EXPECT_EQ(Shown_text(), " Load has to be given as a posetiv value > 0  ");
    Press_ok_and_come_back();
    EXPECT_EQ(s.Con_type, 1);
    EXPECT_EQ(Focus(), "Txt_last");
    Type("Txt_last", "5");
    Click("Cmd_type(2)");
    EXPECT_EQ(s.Con_type, 3);
    EXPECT_EQ(s.P, 5.0F);
    EXPECT_EQ(Shown_box(), nullptr);
}

TEST_F(RealBoxes, refused_again_and_again) {
    Start();
    Type("Txt_alp", "0");
    for (int i = 0; i < 3; ++i) {
        Key(Qt::Key_Tab);
        EXPECT_EQ(Shown_text(), "alp =< 0 ");
        Press_ok_and_come_back();
        EXPECT_EQ(Focus(), "Txt_alp");
    }
    EXPECT_EQ(passes, 0);
}

TEST_F(RealBoxes, b1_in_English_goes_on_to_what_was_meant) {
    Start();
    Click("Opt_valg");
    Type("Txt_b1", "0");
    Key(Qt::Key_Return);
    EXPECT_EQ(Shown_text(), "b1 =< 0 ");
    Press_ok_and_come_back();
    EXPECT_EQ(Focus(), "Txt_h2");
    EXPECT_EQ(Back("Txt_b1"), green);
    EXPECT_EQ(Back("Txt_h2"), green);
    EXPECT_EQ(Box("Txt_h2").selectedText(), Box("Txt_h2").text());
}

TEST_F(RealBoxes, a_refused_connector_is_told_once_for_one_click) {
    Start();
    Pick("Comb_bolter", 7); // M24: D62 is too small for it, and the option selects D62
    Click("Opt_bolt_bulldog(1)");
    EXPECT_EQ(Shown_text(), "Use larger connector or smaller bolt");
    Press_ok_and_come_back();
    EXPECT_EQ(Shown_box(), nullptr);
    EXPECT_EQ(passes, 3); // of the bolt, of the list and of the option
    Pick("Comb_bulldog", 2);
    EXPECT_EQ(Shown_text(), "Use larger connector or smaller bolt");
    Press_ok_and_come_back();
    Pick("Comb_bulldog", 3);
    EXPECT_EQ(Shown_box(), nullptr);
}

TEST_F(RealBoxes, a_refused_factor_over_the_setup) {
    Start();
    Menu("mnusetup", [this](QWidget& dialog) {
        auto& box = Find_in<TextBox>(dialog, "Txt_gamma_timb");
        Click(box);
        Keys("0");
        Key(Qt::Key_Tab);
        EXPECT_EQ(Shown_text(), "Number is <= 0.1 ");
        EXPECT_EQ(Shown_box()->icon(), QMessageBox::NoIcon);
        EXPECT_EQ(Shown_box()->parentWidget(), &dialog);
        Press_ok();
        dialog.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        Settle();
        EXPECT_EQ(Focus(), "Txt_gamma_timb");
        EXPECT_EQ(box.Back(), green);
        Keys("1.3");
        Key(Qt::Key_Tab);
        EXPECT_EQ(Shown_box(), nullptr);
        EXPECT_EQ(s.gm_T, 1.3F);
    });
}

TEST_F(RealBoxes, a_fault_is_told_and_the_program_goes_on) {
    Start();
    Pick("cboProf2", 12); // T  45x45
    EXPECT_EQ(Shown_text(), "Run-time error 5: invalid procedure call or argument (Tverr_brudd)");
    Press_ok_and_come_back();
    Pick("cboProf2", 11);
    EXPECT_EQ(Shown_box(), nullptr);
    EXPECT_EQ(Text("Txt_h2"), "198.0");
}

// Settings

TEST(Settings, are_kept_between_two_runs_in_the_order_of_their_keys) {
    {
        QtSettingsStore store;
        store.Save("Tarn-Vik", "Recent Files", "RecentFile2", "/b, with a comma; and more");
        store.Save("Tarn-Vik", "Recent Files", "RecentFile1", "/å/ø \"x\".tnvik");
        store.Save("Tarn-Vik", "Other", "RecentFile3", "of another section");
    }
    const QtSettingsStore store;
    EXPECT_EQ(store.Get("Tarn-Vik", "Recent Files", "RecentFile1"), "/å/ø \"x\".tnvik");
    EXPECT_EQ(store.Get("Tarn-Vik", "Recent Files", "RecentFile3"), "");
    EXPECT_EQ(store.Get("Other", "Recent Files", "RecentFile1"), "");
    EXPECT_EQ(
        store.Get_all("Tarn-Vik", "Recent Files"),
        (std::vector<Setting>{{"RecentFile1", "/å/ø \"x\".tnvik"}, {"RecentFile2", "/b, with a comma; and more"}}));
}

// File dialogs

template <class Act> void In_file_dialog(Act act) {
    QTimer::singleShot(0, qApp, [act] {
        auto* dialog = dynamic_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        act(*dialog);
    });
}

class FileDialog : public testing::Test {
protected:
    FileDialog() : former_(std::filesystem::current_path()) {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        std::filesystem::current_path(folder.Path());
    }
    ~FileDialog() override { std::filesystem::current_path(former_); }
    static void Name(QFileDialog& dialog, const std::string& name) {
        Find_in<QLineEdit>(dialog, "fileNameEdit").setText(QString::fromStdString(name));
        static_cast<QDialog&>(dialog).accept();
    }

    TemporaryFolder folder;
    QtFileDialogs dialogs;

private:
    std::filesystem::path former_;
};

TEST_F(FileDialog, open_gives_the_path_of_a_file_that_exists) {
    Write_file(folder / "one.tnvik", "x");
    In_file_dialog([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        ASSERT_EQ(dialog.nameFilters().size(), 1);
        EXPECT_TRUE(dialog.nameFilters().constFirst().contains(QLatin1String("*.tnvik")));
        Name(dialog, "one.tnvik");
    });
    EXPECT_EQ(dialogs.Open({"*.tnvik", "*.tnvik", "", 4100}), (folder / "one.tnvik").generic_string());
}

TEST_F(FileDialog, both_say_what_they_are_asked_to) {
    const FileDialogWords words{"Åpne prosjekt", "Åpne", "Avbryt", "Let i:", "Filnavn:", "Filtype:", "Prosjekter"};
    const auto look = [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdString(), "Åpne prosjekt");
        EXPECT_EQ(dialog.labelText(QFileDialog::Accept).toStdString(), "Åpne");
        EXPECT_EQ(dialog.labelText(QFileDialog::Reject).toStdString(), "Avbryt");
        EXPECT_EQ(dialog.labelText(QFileDialog::LookIn).toStdString(), "Let i:");
        EXPECT_EQ(dialog.labelText(QFileDialog::FileName).toStdString(), "Filnavn:");
        EXPECT_EQ(dialog.labelText(QFileDialog::FileType).toStdString(), "Filtype:");
        EXPECT_EQ(dialog.nameFilters().constFirst().toStdString(), "Prosjekter (*.tnvik)");
        dialog.reject();
    };
    In_file_dialog(look);
    EXPECT_EQ(dialogs.Open({"*.tnvik", "*.tnvik", "", 4100, words}), std::nullopt);
    In_file_dialog(look);
    EXPECT_EQ(dialogs.Save({"*.tnvik", "New File", "tnvik", 6, words}), std::nullopt);
}

TEST_F(FileDialog, open_cancelled) {
    In_file_dialog([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(dialogs.Open({"*.tnvik", "*.tnvik", "", 4100}), std::nullopt);
}

TEST_F(FileDialog, save_starts_with_the_name_and_adds_the_extension) {
    In_file_dialog([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_FALSE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
        EXPECT_EQ(Text_of(Find_in<QLineEdit>(dialog, "fileNameEdit")), "New File");
        Name(dialog, "another");
    });
    EXPECT_EQ(dialogs.Save({"*.tnvik", "New File", "tnvik", 6}), (folder / "another.tnvik").generic_string());
}

TEST_F(FileDialog, save_asks_before_it_writes_over) {
    Write_file(folder / "one.tnvik", "x");
    In_file_dialog([](QFileDialog& dialog) {
        QTimer::singleShot(0, &dialog, [] {
            QMessageBox* question = Shown_box();
            ASSERT_NE(question, nullptr);
            question->button(QMessageBox::No)->click();
        });
        Name(dialog, "one.tnvik");
        EXPECT_TRUE(dialog.isVisible());
        dialog.reject();
    });
    EXPECT_EQ(dialogs.Save({"*.tnvik", "one.tnvik", "tnvik", 6}), std::nullopt);
}

// Documents

class Handler : public QObject {
    Q_OBJECT

public slots:
    void Open(const QUrl& url) { opened.push_back(url.toString().toStdString()); }

public:
    std::vector<std::string> opened;
};

TEST(Documents, are_opened_by_the_desktop) {
    Handler handler;
    for (const char* scheme : {"file", "https", "mailto"}) {
        QDesktopServices::setUrlHandler(QLatin1String(scheme), &handler, "Open");
    }
    QtDocumentOpener opener;
    EXPECT_TRUE(opener.Open_file("/opt/a b/Documentation/Manual & more.pdf"));
    EXPECT_TRUE(opener.Open_link("https://tarnvik.example"));
    EXPECT_TRUE(opener.Open_link("mailto:post@tarnvik.example"));
    EXPECT_EQ(handler.opened, (std::vector<std::string>{"file:///opt/a b/Documentation/Manual & more.pdf",
                                                        "https://tarnvik.example", "mailto:post@tarnvik.example"}));
    for (const char* scheme : {"file", "https", "mailto"}) {
        QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
    }
}

} // namespace
} // namespace tarnvik::test

#include "Services_test.moc"
