// The controls and menu entries of the main window by their names, for whoever connects or shows them.
//
// They are looked up while the window is built; what runs at every input keeps what it has found.
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <map>
#include <string>
#include <string_view>

class QMainWindow;

namespace tarnvik {

class MainControls {
public:
    // Makes the controls of the tables in the window, and its menus. The window itself is among them.
    explicit MainControls(QMainWindow& window);

    // Null where there is none of that name.
    [[nodiscard]] QObject* Look_up(std::string_view name) const;

    // Throws std::logic_error that says the name where there is none of that kind.
    template <class T> [[nodiscard]] T& Find(std::string_view name) const {
        T* found = dynamic_cast<T*>(Look_up(name));
        if (found == nullptr) {
            Missing(name);
        }
        return *found;
    }

    [[noreturn]] static void Missing(std::string_view name);

private:
    void Build_controls(QMainWindow& window);
    void Name_controls();
    void Build_menus(QMainWindow& window);
    void Set_tab_order();

    std::map<std::string, QObject*, std::less<>> controls_;
};

// Values stand off by a blank from the captions that they follow: by as much as is missing, inside their labels, whose
// places are given. For the captions and places of this moment.
void Set_values_off(const MainControls& controls);

// What writes the caption or the text of a control or menu entry; empty for one that has none.
using WriteCaption = std::function<void(const QString&)>;
WriteCaption Caption_of(QObject& control);

} // namespace tarnvik
