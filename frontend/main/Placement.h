// Where the controls of the main window stand.
#pragma once

#include "frontend/main/MainControls.h"

class QMainWindow;

namespace tarnvik {

// Sizes and places all controls for the window as large as it is laid out for, whatever the size at which it is shown:
// built sizes, room for the texts of both languages, the layout rules, and then, once, pixels.
void WritefrmInput1(QMainWindow& window, const MainControls& controls);

} // namespace tarnvik
