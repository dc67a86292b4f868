#include "frontend/main/BoxEditing.h"

#include <QApplication>
#include <QEvent>

#include <utility>

#include "calc/RuntimeFault.h"

namespace tarnvik {

namespace {

// The click or the key that left the box.
bool Acts(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::Wheel:
        return true;
    default:
        return false;
    }
}

} // namespace

BoxEditing::BoxEditing(QWidget& window, const ConnectionValues& s, BoxService& boxes)
    : window_(window), s_(s), boxes_(boxes) {
    qApp->installEventFilter(this);
}

void BoxEditing::Enter_box(TextBox& box) {
    box.Set_back(colour_green_box);
    box.selectAll();
}

void BoxEditing::Refuse(TextBox& box, std::string_view text, int style, bool give_back) {
    refused_ = &box;
    told_ = !text.empty();
    if (!give_back) {
        left_ = {&box, std::string{text}, style};
    }
    emit Refused();
    const auto after = [this, give_back] { End_refusal(give_back); };
    if (told_) {
        boxes_.Show_then(text, style, after);
    } else if (QApplication::mouseButtons() != Qt::NoButton) {
        on_release_ = after;
    } else {
        QMetaObject::invokeMethod(this, after, Qt::QueuedConnection);
    }
}

void BoxEditing::End_refusal(bool give_back) {
    TextBox* refused = refused_;
    const bool elsewhere = refused == nullptr || !refused->isEnabled() || (!told_ && !refused->isActiveWindow());
    if (give_back && !elsewhere) {
        refused->setFocus(Qt::OtherFocusReason);
        Enter_box(*refused);
    }
    refused_ = nullptr;
    // What was entered while the message waited starts its editing now. Its window need not be active again yet.
    if (auto* entered = dynamic_cast<TextBox*>(window_.focusWidget()); !give_back && entered != nullptr) {
        emit entered->Got_focus();
    }
}

void BoxEditing::Input_error(TextBox& box, int number) {
    std::string_view text;
    if (number == fault_type_mismatch) {
        text = Is_english(s_) ? "Input string mismatch " : "Ikke akseptabel karakter ";
    }
    Refuse(box, text, box_exclamation, true);
}

bool BoxEditing::Ready_for_command() {
    if (auto* box = dynamic_cast<TextBox*>(window_.focusWidget())) {
        box->clearFocus();
        if (Refusing() && told_) {
            return false;
        }
    }
    if (!left_.box.isNull() && left_.box->isEnabled() && left_.box->Back() == colour_green_box) {
        Refuse(*left_.box, left_.text, left_.style, true);
        return false;
    }
    return true;
}

void BoxEditing::Carry_out(const std::function<void()>& command) {
    const QPointer<QWidget> box{dynamic_cast<TextBox*>(window_.focusWidget())};
    if (!Ready_for_command()) {
        return;
    }
    command();
    if (!box.isNull() && box->isEnabled() && window_.focusWidget() == nullptr) {
        box->setFocus(Qt::OtherFocusReason);
    }
}

bool BoxEditing::eventFilter(QObject* watched, QEvent* event) {
    if (on_release_ && event->type() == QEvent::MouseButtonRelease) {
        QMetaObject::invokeMethod(this, std::exchange(on_release_, {}), Qt::QueuedConnection);
    }
    if (Refusing() && told_ && Acts(event->type())) {
        auto* widget = qobject_cast<QWidget*>(watched);
        if (widget != nullptr && widget->window() == refused_->window()) {
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tarnvik
