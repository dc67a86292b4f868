// Puts on the controls of the main window what a pass has written into a Screen.
#pragma once

#include <array>

#include "calc/GlobalParameter.h"
#include "calc/Screen.h"
#include "frontend/main/MainControls.h"

class QAction;
class QWidget;

namespace tarnvik {

class ListBox;
class PictureArea;
class PictureButton;
class TableArea;
class TextBox;

class ScreenView {
public:
    ScreenView(const MainControls& controls, ConnectionValues& s);

    // Only what the record holds changes, and the button of the type that looks pressed. Loading is set meanwhile: a
    // control that is disabled or hidden under the focus is not left by the user.
    void Show(const Screen& screen) const;

private:
    // One of the controls that a pass writes, as what it is; null where it is something else.
    struct Shown {
        WriteCaption caption;
        QAction* action{};
        QWidget* widget{};
        TextBox* box{};
        ListBox* list{};
    };
    void Describe_pictures(const Screen& screen) const;
    static void Show_control(const Shown& shown, const ControlView& view);

    ConnectionValues& s_;
    std::array<Shown, control_count> shown_;
    TableArea& bolt_table_;
    TableArea& connector_table_;
    PictureArea& connection_;
    PictureArea& bolt_sketch_;
    PictureArea& connector_sketch_;
    std::array<PictureButton*, 5> types_{};
};

} // namespace tarnvik
