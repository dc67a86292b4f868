// The options and buttons of the main window that choose the connection.
#pragma once

#include <QAbstractButton>
#include <QObject>

#include <array>
#include <functional>

#include "frontend/main/InputBoxes.h"
#include "frontend/main/Lists.h"
#include "frontend/main/MainControls.h"
#include "session/Session.h"

namespace tarnvik {

class Selections : public QObject {
    Q_OBJECT

public:
    Selections(const MainControls& controls, Session& session, InputBoxes& boxes, Lists& lists);

    // The controls of a new project.
    void StartValue_controls();

    // Brings an opened project onto the controls. Errors: throws RuntimeFault 9 for a Con_type that has no button.
    void Show_project();

private:
    void Connect_option(QAbstractButton& option, std::function<void()> write);
    void Connect_sections();
    void Connect_force();
    void Connect_members();
    void Only_bolts();
    void With_connectors();
    void Select_double_1();
    void Select_double_2();
    void Cmd_type(int Index);
    void Cmd_boltetype(int Index);
    void Check_man_click(bool checked);
    void Show_connector_labels(bool shown);
    void Show_connector_frames(bool shown);
    void Enable_sections(bool standard);
    void Enable_manual_he(bool enabled);
    void Show_fasteners();
    void Show_sections();
    void Show_force();
    void Show_members();
    void Show_manual_he();

    Session& session_;
    ConnectionState& s_;
    InputBoxes& boxes_;
    Lists& lists_;

    QAbstractButton& only_bolts_;
    QAbstractButton& with_connectors_;
    QAbstractButton& standard_;
    QAbstractButton& free_entry_;
    QAbstractButton& compression_;
    QAbstractButton& tension_;
    QAbstractButton& single_1_;
    QAbstractButton& double_1_;
    QAbstractButton& single_2_;
    QAbstractButton& double_2_;
    QAbstractButton& manual_;

    QWidget& connector_frame_;
    QWidget& connector_distances_;
    std::array<QWidget*, 4> connector_labels_; // shown with connectors only, wherever the frames are
    QWidget& standard_frame_;
    QWidget& free_frame_;
    QWidget& b1_box_;
    QWidget& alp_label_;
    QWidget& alp_box_;
    QWidget& man_he_label_;
    QWidget& man_he_box_;
};

} // namespace tarnvik
