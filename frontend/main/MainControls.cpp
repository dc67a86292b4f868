#include "frontend/main/MainControls.h"

#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "frontend/controls/Areas.h"
#include "frontend/controls/Controls.h"
#include "frontend/controls/Scrolling.h"
#include "frontend/main/ControlTable.h"
#include "frontend/painting/SetText.h"
#include "frontend/painting/Texts.h"

namespace tarnvik {

namespace {

template <class Kept> Kept* New_label(const QString& caption, QWidget* parent) {
    auto* made = new Kept{caption, parent};
    made->setTextFormat(Qt::PlainText);
    made->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return made;
}

template <class Button> Button* New_button(const QString& caption, QWidget* parent) {
    auto* made = new Button{caption, parent};
    made->setAutoDefault(false);
    return made;
}

PictureButton* New_picture_button(const QString& caption, QWidget* parent) {
    auto* made = new PictureButton{parent};
    made->setText(caption);
    made->setFocusPolicy(Qt::StrongFocus);
    return made;
}

QWidget* New_focus_area(QWidget* parent) {
    auto* made = new FocusArea{parent};
    made->setFocusPolicy(Qt::StrongFocus);
    return made;
}

QWidget* New_control(const ControlRow& row, QWidget* parent) {
    const QString caption = Q(row.caption);
    switch (row.kind) {
    case Kind::frame:
        return new Frame{caption, parent};
    case Kind::label:
        return New_label<Label>(caption, parent);
    case Kind::value:
        return New_label<ValueLabel>(caption, parent);
    case Kind::mark:
        return New_label<Mark>(caption, parent);
    case Kind::text_box:
        return new TextBox{parent};
    case Kind::list:
        return new ListBox{parent};
    case Kind::option:
        return new Option{caption, parent};
    case Kind::check:
        return new QCheckBox{caption, parent};
    case Kind::button:
        return New_button<QPushButton>(caption, parent);
    case Kind::choice_button:
        return New_button<ChoiceButton>(caption, parent);
    case Kind::picture_button:
        return New_picture_button(caption, parent);
    case Kind::picture:
        return new PictureArea{parent};
    case Kind::table:
        return new TableArea{parent};
    case Kind::focus_area:
        return New_focus_area(parent);
    case Kind::plain:
        break;
    }
    return new QWidget{parent};
}

} // namespace

MainControls::MainControls(QMainWindow& window) {
    Build_menus(window);
    Build_controls(window);
    Name_controls();
    Set_tab_order();
}

QObject* MainControls::Look_up(std::string_view name) const {
    const auto found = controls_.find(name);
    return found == controls_.end() ? nullptr : found->second;
}

void MainControls::Missing(std::string_view name) {
    throw std::logic_error("no control named " + std::string{name});
}

void MainControls::Build_controls(QMainWindow& window) {
    auto* scrolled = new ScrolledGround{&window};
    scrolled->setObjectName(QStringLiteral("scrolled"));
    scrolled->Follow_focus();
    window.setCentralWidget(scrolled);
    QWidget* ground = scrolled->widget();
    ground->setObjectName(QStringLiteral("ground"));
    controls_.emplace("frmMain", &window);
    for (const ControlRow& row : Control_rows()) {
        QWidget* parent = *row.parent == '\0' ? ground : &Find<QWidget>(row.parent);
        QWidget* control = New_control(row, parent);
        control->setObjectName(Q(row.name));
        controls_.emplace(row.name, control);
    }
    Find<QWidget>("Cmd_detail").hide();
}

void MainControls::Name_controls() {
    for (const Buddy& buddy : Buddies()) {
        Find<Label>(buddy.label).setBuddy(&Find<QWidget>(buddy.box));
    }
    for (int i = 0; i < 5; ++i) {
        const std::string name = "Cmd_type(" + std::to_string(i) + ")";
        Find<PictureButton>(name).Set_picture("frmMain/" + name);
    }
}

void MainControls::Build_menus(QMainWindow& window) {
    struct Entry {
        const char* name;
        const char* caption;
    };
    QMenuBar* const bar = window.menuBar();
    const auto add = [this](QWidget* menu, const Entry& entry) {
        auto* action = new QAction{Q(entry.caption), menu};
        menu->addAction(action);
        action->setObjectName(Q(entry.name));
        action->setMenuRole(QAction::NoRole);
        controls_.emplace(entry.name, action);
        return action;
    };
    const auto top = [this, bar](const Entry& entry) {
        QMenu* menu = bar->addMenu(Q(entry.caption));
        menu->setObjectName(Q(entry.name));
        controls_.emplace(entry.name, menu);
        return menu;
    };

    QMenu* file = top({"mnufile", "&File"});
    add(file, {"mnuFileItem(1)", "&Åpne"})->setShortcut(QKeySequence::Open);
    add(file, {"mnuFileItem(2)", "&Lagre"})->setShortcut(QKeySequence::Save);
    add(file, {"mnuFileItem(3)", "&Lagre som"})->setShortcut(QKeySequence{Qt::CTRL | Qt::SHIFT | Qt::Key_S});
    add(file, {"mnurecentfile(0)", ""})->setSeparator(true);
    add(file, {"mnurecentfile(1)", "&oldfile1"})->setVisible(false);
    add(file, {"mnurecentfile(2)", "&oldfile2"})->setVisible(false);
    add(file, {"mnurecentfile(3)", "&oldfile3"})->setVisible(false);
    add(file, {"mnurecentfile(4)", "-"})->setSeparator(true);
    add(file, {"mnuexit", "&Exit"})->setShortcut(QKeySequence{Qt::CTRL | Qt::Key_Q});
    add(bar, {"mnusetup", "&Setup"});
    add(bar, {"mnuklasse", "&Klasser"});
    add(bar, {"mnuDatabase", "&Database"});
    add(bar, {"mnuprint", "&Skriv ut"})->setShortcut(QKeySequence::Print);
    QMenu* help = top({"mnuhelp", "&Hjelp"});
    add(help, {"mmuTheory", "&User && Theory Manual"})->setShortcut(QKeySequence::HelpContents);
    add(help, {"mnuabout", "&Om Tarnvik"});
    auto* unsaved = new CornerLabel{bar};
    unsaved->setObjectName(QStringLiteral("Lbl_unsaved"));
    bar->setCornerWidget(unsaved);
    controls_.emplace("Lbl_unsaved", unsaved);
}

void MainControls::Set_tab_order() {
    QWidget* last = nullptr;
    const auto add = [&last](QWidget* control) {
        if (last != nullptr) {
            QWidget::setTabOrder(last, control);
        }
        last = control;
    };
    QWidget* area = nullptr; // comes after the boxes that it holds, as for the Enter key
    for (const ControlRow& row : Control_rows()) {
        auto& control = Find<QWidget>(row.name);
        if (area != nullptr && !area->isAncestorOf(&control)) {
            add(std::exchange(area, nullptr));
        }
        if (row.kind == Kind::focus_area) {
            area = &control;
        } else if (control.focusPolicy() != Qt::NoFocus) {
            add(&control);
        }
    }
}

void Set_values_off(const MainControls& controls) {
    constexpr double gap = 3.0; // pixels at 96 dots per inch, a blank
    for (const CaptionedValue& row : Captioned_values()) {
        const auto& caption = controls.Find<Label>(row.caption);
        auto& value = controls.Find<ValueLabel>(row.value);
        const SetText set = Set_text(caption.text(), caption.font(), caption.size());
        const double end = caption.x() + set.width * set.narrowing;
        const double missing = Scaled(gap, value.logicalDpiX()) - (value.x() - end);
        value.setContentsMargins(std::max(0, static_cast<int>(std::ceil(missing))), 0, 0, 0);
    }
}

WriteCaption Caption_of(QObject& control) {
    if (auto* label = dynamic_cast<QLabel*>(&control)) {
        return [label](const QString& text) {
            const bool changed = label->text() != text;
            label->setText(text);
            if (changed && !label->accessibleName().isEmpty()) { // one without tells it by itself
                QAccessibleEvent read{label, QAccessible::NameChanged};
                QAccessible::updateAccessibility(&read);
            }
        };
    }
    if (auto* box = dynamic_cast<QLineEdit*>(&control)) {
        return [box](const QString& text) {
            if (box->text() != text) {
                box->setText(text);
            }
        };
    }
    if (auto* group = dynamic_cast<QGroupBox*>(&control)) {
        return [group](const QString& text) { group->setTitle(text); };
    }
    if (auto* button = dynamic_cast<QAbstractButton*>(&control)) {
        return [button](const QString& text) { button->setText(text); };
    }
    if (auto* menu = dynamic_cast<QMenu*>(&control)) {
        return [menu](const QString& text) { menu->setTitle(text); };
    }
    if (auto* action = dynamic_cast<QAction*>(&control)) {
        return [action](const QString& text) { action->setText(text); };
    }
    return {};
}

} // namespace tarnvik
