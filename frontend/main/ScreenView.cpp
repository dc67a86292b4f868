#include "frontend/main/ScreenView.h"

#include <QAction>
#include <QSignalBlocker>

#include <string>
#include <utility>

#include "frontend/controls/Areas.h"
#include "frontend/controls/Controls.h"
#include "frontend/main/PictureWords.h"
#include "frontend/painting/Texts.h"

namespace tarnvik {

namespace {

void Set_bold(QWidget& widget, bool on) {
    if (widget.font().bold() != on) {
        QFont font = widget.font();
        font.setBold(on);
        widget.setFont(font);
    }
}

void Set_fore(QWidget& widget, std::uint32_t colour) {
    QPalette palette = widget.palette();
    if (palette.color(QPalette::Active, widget.foregroundRole()) != To_colour(colour)) {
        palette.setColor(widget.foregroundRole(), To_colour(colour));
        widget.setPalette(palette);
    }
}

} // namespace

ScreenView::ScreenView(const MainControls& controls, ConnectionValues& s)
    : s_(s), bolt_table_(controls.Find<TableArea>("Pic_av_bolter_dif")),
      connector_table_(controls.Find<TableArea>("Pic_av_bulldog_dif")),
      connection_(controls.Find<PictureArea>("Pic_forbindelse")),
      bolt_sketch_(controls.Find<PictureArea>("Pic_av_bolter")),
      connector_sketch_(controls.Find<PictureArea>("Pic_av_bulldog")) {
    for (std::size_t i = 0; i < control_count; ++i) {
        const std::string_view name = Control_name(static_cast<Control>(i));
        QObject* control = controls.Look_up(name);
        if (control == nullptr) {
            MainControls::Missing(name);
        }
        shown_[i] = {Caption_of(*control), dynamic_cast<QAction*>(control), dynamic_cast<QWidget*>(control),
                     dynamic_cast<TextBox*>(control), dynamic_cast<ListBox*>(control)};
    }
    for (std::size_t i = 0; i < types_.size(); ++i) {
        types_[i] = &controls.Find<PictureButton>("Cmd_type(" + std::to_string(i) + ")");
    }
}

void ScreenView::Show_control(const Shown& shown, const ControlView& view) {
    if (shown.action != nullptr) {
        if (view.enabled) {
            shown.action->setEnabled(*view.enabled);
        }
        return;
    }
    if (view.caption) {
        shown.caption(Q(*view.caption));
    }
    if (view.visible) {
        shown.widget->setVisible(*view.visible);
    }
    if (view.enabled) {
        shown.widget->setEnabled(*view.enabled);
    }
    if (view.bold) {
        Set_bold(*shown.widget, *view.bold);
    }
    if (view.fore) {
        Set_fore(*shown.widget, *view.fore);
    }
    if (view.back && shown.list != nullptr) {
        shown.list->Set_back(*view.back);
    } else if (view.back && shown.box != nullptr) {
        shown.box->Set_back(*view.back);
    }
    if (view.index && shown.list != nullptr) {
        const QSignalBlocker quiet{shown.list}; // the state holds this row already
        shown.list->setCurrentIndex(*view.index);
    }
}

void ScreenView::Describe_pictures(const Screen& screen) const {
    const bool english = Is_english(s_);
    connection_.setAccessibleDescription(Q(Connection_words(s_, english)));
    const QString sketched = Q(Case_words(s_, screen.Pic_av_bolter, english));
    bolt_sketch_.setAccessibleDescription(sketched);
    connector_sketch_.setAccessibleDescription(sketched);
}

void ScreenView::Show(const Screen& screen) const {
    const bool loading = std::exchange(s_.Loading, true);
    for (std::size_t i = 0; i < control_count; ++i) {
        Show_control(shown_[i], screen.controls[i]);
    }
    bolt_table_.Set_rows(screen.Pic_av_bolter_dif);
    connector_table_.Set_rows(screen.Pic_av_bulldog_dif);
    connection_.Set_picture(screen.Pic_forbindelse);
    bolt_sketch_.Set_picture(screen.Pic_av_bolter);
    connector_sketch_.Set_picture(screen.Pic_av_bulldog);
    Describe_pictures(screen);
    for (std::size_t i = 0; i < types_.size(); ++i) {
        types_[i]->Set_pressed_look(s_.Con_type == static_cast<int>(i) + 1);
    }
    s_.Loading = loading;
}

} // namespace tarnvik
