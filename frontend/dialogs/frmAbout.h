// About the program: its name, title, version, rights, and two links.
#pragma once

#include <QDialog>

#include "frontend/dialogs/AboutTexts.h"
#include "ports/MessageBox.h"
#include "ports/Services.h"

class QBoxLayout;
class QLabel;

namespace tarnvik {

class frmAbout : public QDialog {
    Q_OBJECT

public:
    frmAbout(QWidget& window, bool english, const AboutTexts& texts, DocumentOpener& opener, MessageBox& boxes);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QBoxLayout* Add_icon();
    void Add_lines(QBoxLayout& lines, const AboutTexts& texts);

    bool english_;
    DocumentOpener& opener_;
    MessageBox& boxes_;
};

} // namespace tarnvik
