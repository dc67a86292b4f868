#include "frontend/controls/Accessible.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>

#include <algorithm>

#include "frontend/controls/Areas.h"
#include "frontend/controls/Controls.h"
#include "frontend/controls/PaintedArea.h"

namespace tarnvik {

namespace {

// A text to be read, which nobody edits: it has neither a cursor nor a selection of its own.
class ReadText : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    using QAccessibleWidget::QAccessibleWidget;

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                                  : QAccessibleWidget::interface_cast(type);
    }
    [[nodiscard]] QString text(QAccessible::Text type) const override {
        return type == QAccessible::Value ? Read() : QAccessibleWidget::text(type);
    }
    [[nodiscard]] QString text(int start, int end) const override { return Read().mid(start, end - start); }
    [[nodiscard]] int characterCount() const override { return static_cast<int>(Read().size()); }
    [[nodiscard]] QRect characterRect(int /*offset*/) const override { return rect(); }
    [[nodiscard]] int offsetAtPoint(const QPoint& /*point*/) const override { return 0; }
    [[nodiscard]] int cursorPosition() const override { return 0; }
    void setCursorPosition(int /*position*/) override {}
    [[nodiscard]] int selectionCount() const override { return 0; }
    void selection(int /*index*/, int* start, int* end) const override { *start = *end = 0; }
    void addSelection(int /*start*/, int /*end*/) override {}
    void removeSelection(int /*index*/) override {}
    void setSelection(int /*index*/, int /*start*/, int /*end*/) override {}
    void scrollToSubstring(int /*start*/, int /*end*/) override {}
    QString attributes(int /*offset*/, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }

private:
    [[nodiscard]] virtual QString Read() const = 0;
};

// Named by what it shows, as "Minimum distances of the bolts"; its text are the lines.
template <class Area> class AreaReading : public ReadText {
public:
    explicit AreaReading(Area* area) : ReadText(area, QAccessible::StaticText), area_(*area) {}

private:
    [[nodiscard]] QString Read() const override { return area_.Lines().join(QLatin1Char('\n')); }

    const Area& area_;
};

// The toolkit gives a list its value as the name; here the name says what is chosen in it.
class ListReading : public ReadText {
public:
    explicit ListReading(ListBox* list) : ReadText(list, QAccessible::ComboBox), list_(*list) {}

    [[nodiscard]] int childCount() const override { return 1; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(list_.view()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child != nullptr && child->object() == list_.view() ? 0 : -1;
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = list_.view()->isVisible();
        state.collapsed = !state.expanded;
        state.hasPopup = true;
        return state;
    }
    [[nodiscard]] QStringList actionNames() const override {
        return QStringList{showMenuAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override {
        if (action != showMenuAction()) {
            QAccessibleWidget::doAction(action);
        } else if (list_.view()->isVisible()) {
            list_.hidePopup();
        } else {
            list_.showPopup();
        }
    }

private:
    [[nodiscard]] QString Read() const override { return list_.currentText(); }

    ListBox& list_;
};

// One of several buttons of which one is in force.
template <class Button> class ChoiceReading : public QAccessibleWidget {
public:
    explicit ChoiceReading(Button* button) : QAccessibleWidget(button, QAccessible::RadioButton), button_(*button) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = button_.Pressed_look();
        return state;
    }
    [[nodiscard]] QStringList actionNames() const override {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override {
        if (action == pressAction()) {
            button_.click();
        } else {
            QAccessibleWidget::doAction(action);
        }
    }

private:
    Button& button_;
};

// A frame has its own title; the toolkit gives a frame in a frame that of the outer one.
class FrameReading : public QAccessibleWidget {
public:
    explicit FrameReading(Frame* frame) : QAccessibleWidget(frame, QAccessible::Grouping), frame_(*frame) {}

    [[nodiscard]] QString text(QAccessible::Text type) const override {
        return type == QAccessible::Name ? frame_.title().trimmed() : QAccessibleWidget::text(type);
    }

private:
    const Frame& frame_;
};

// A value with what it is: the place of the value in the name is "%1".
class ValueReading : public QAccessibleWidget {
public:
    explicit ValueReading(ValueLabel* label) : QAccessibleWidget(label, QAccessible::StaticText), label_(*label) {}

    [[nodiscard]] QString text(QAccessible::Text type) const override {
        const QString value = label_.text().trimmed();
        if (type == QAccessible::Name) {
            const QString name = QAccessibleWidget::text(type);
            return name.isEmpty() ? value : QString{name}.replace(QLatin1String("%1"), value);
        }
        return type == QAccessible::Value ? value : QAccessibleWidget::text(type);
    }

private:
    const ValueLabel& label_;
};

// What a mark says, says it at once.
class MarkReading : public QAccessibleWidget {
public:
    explicit MarkReading(Mark* mark) : QAccessibleWidget(mark, QAccessible::AlertMessage), mark_(*mark) {}

    [[nodiscard]] QString text(QAccessible::Text type) const override {
        return type == QAccessible::Name ? mark_.text() : QAccessibleWidget::text(type);
    }

private:
    const Mark& mark_;
};

template <class Reading, class Control> QAccessibleInterface* Read_as(QObject* object) {
    auto* control = qobject_cast<Control*>(object);
    return control == nullptr ? nullptr : new Reading{control};
}

QAccessibleInterface* Picture_reading(QObject* object) {
    auto* picture = qobject_cast<PictureArea*>(object);
    return picture == nullptr ? nullptr : new QAccessibleWidget{picture, QAccessible::Graphic};
}

struct Reader {
    const char* control;
    QAccessibleInterface* (*read)(QObject* object);
};
// clang-format off
constexpr Reader readers[]{
    {"tarnvik::TableArea",     Read_as<AreaReading<TableArea>, TableArea>},
    {"tarnvik::PaintedArea",   Read_as<AreaReading<PaintedArea>, PaintedArea>},
    {"tarnvik::PictureArea",   Picture_reading},
    {"tarnvik::PictureButton", Read_as<ChoiceReading<PictureButton>, PictureButton>},
    {"tarnvik::ChoiceButton",  Read_as<ChoiceReading<ChoiceButton>, ChoiceButton>},
    {"tarnvik::Frame",         Read_as<FrameReading, Frame>},
    {"tarnvik::ListBox",       Read_as<ListReading, ListBox>},
    {"tarnvik::ValueLabel",    Read_as<ValueReading, ValueLabel>},
    {"tarnvik::Mark",          Read_as<MarkReading, Mark>},
};
// clang-format on

QAccessibleInterface* New_reading(const QString& control, QObject* object) {
    const auto* found = std::find_if(std::begin(readers), std::end(readers),
                                     [&](const Reader& reader) { return control == QLatin1String(reader.control); });
    return found == std::end(readers) ? nullptr : found->read(object);
}

} // namespace

void Install_accessibility() {
    QAccessible::installFactory(New_reading);
}

} // namespace tarnvik
