// The program's icon.
#pragma once

#include <QIcon>

namespace tarnvik {

// In the sizes of frontend/resources, compiled into the program.
QIcon Program_icon();

} // namespace tarnvik
