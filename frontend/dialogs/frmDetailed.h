// The step-by-step calculation of the connection, with its equations. It shows the values of the last pass.
#pragma once

#include <QDialog>

class QShowEvent;

namespace tarnvik {

class frmMain;

class frmDetailed : public QDialog {
    Q_OBJECT

public:
    explicit frmDetailed(frmMain& window);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Lay_out();

    frmMain& window_;
};

} // namespace tarnvik
