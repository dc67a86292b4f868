// The setup: language and partial factors. Every change is live at once; there is no cancel.
#pragma once

#include <QDialog>

namespace tarnvik {

class frmMain;
class TextBox;

class frmSetup : public QDialog {
    Q_OBJECT

public:
    explicit frmSetup(frmMain& window);

private:
    void Write_captions();
    void Set_language(const char* Lang);
    void Leave_factor(TextBox& box, int factor);

    frmMain& window_;
};

} // namespace tarnvik
