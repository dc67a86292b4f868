// The step-by-step calculation of the connection, with its equations. It shows the values of the last pass.
#pragma once

#include "frontend/dialogs/ScrolledDialog.h"

class QShowEvent;

namespace tarnvik {

class Session;

class frmDetailed : public ScrolledDialog {
    Q_OBJECT

public:
    // `window` is the main window: the calculations stand in its middle, as high as it is laid out for.
    frmDetailed(QWidget& window, const Session& session);

signals:
    // The check sheet of what is shown is asked for.
    void Sheet_wanted();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Lay_out();
    void Show_standing();
    void Show_governing();
    void Show_sheet_command();

    QWidget& window_;
    const Session& session_;
};

} // namespace tarnvik
