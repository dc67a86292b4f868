// Icons.
#pragma once

#include <QIcon>

#include <functional>

namespace tarnvik {

// An icon that is made when it is seen for the first time: nobody waits at the start for what is not shown there.
QIcon Late_icon(std::function<QIcon()> make);

// The program's, in the sizes of frontend/resources, compiled into the program.
QIcon Program_icon();

} // namespace tarnvik
