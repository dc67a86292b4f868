// A window of one size that depends on that of the main window. Where the screen has no room for it, it scrolls.
#pragma once

#include <QDialog>

namespace tarnvik {

class ScrolledGround;

class ScrolledDialog : public QDialog {
    Q_OBJECT

public:
    explicit ScrolledDialog(QWidget& parent);

protected:
    // What holds the controls.
    [[nodiscard]] QWidget& Ground() const;

    // Gives the ground the size of `wanted`, and the window its place and size as far as the screen of the main window
    // has room for it.
    void Place(const QRect& wanted, const QWidget& main);

private:
    ScrolledGround& scrolled_;
};

} // namespace tarnvik
