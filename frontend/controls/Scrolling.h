// Windows on a screen that is too small for them: what they hold keeps its places, and scroll bars take over.
#pragma once

#include <QRect>
#include <QScrollArea>
#include <QSize>

namespace tarnvik {

// What the main window is laid out for, whatever the size at which it is shown: 1024 by 741 pixels at 96 dots per inch.
// The sizes of the other windows are parts of it.
QSize Laid_out_size(const QWidget& window);

// Where a window with a frame like that of `window` may stand, without the frame: the available area of the screen.
QRect Room_on_screen(const QWidget& window);

// What of `wanted` is shown in `room`: no larger than it, and inside. Where one side has to scroll, the other takes the
// room of the bar as well, as far as there is any.
QRect Shown_in(const QRect& room, const QRect& wanted);

// What holds the controls of a window. Its widget has the size that they are laid out for.
class ScrolledGround : public QScrollArea {
    Q_OBJECT

public:
    explicit ScrolledGround(QWidget* parent);
    // From now on a control that gets the focus is brought into sight. One that is clicked stays under the pointer.
    void Follow_focus();
};

} // namespace tarnvik
