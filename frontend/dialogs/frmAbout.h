// About the program: its name, title, version, rights, and two links.
#pragma once

#include <QDialog>

namespace tarnvik {

class frmMain;

class frmAbout : public QDialog {
    Q_OBJECT

public:
    explicit frmAbout(frmMain& window);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    frmMain& window_;
};

} // namespace tarnvik
