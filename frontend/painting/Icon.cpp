#include "frontend/painting/Icon.h"

#include <QString>

// The linker drops the resources of a static library that nobody asks for. In no namespace, as the macro declares a
// function of the global one.
static void Ask_for_resources() {
    Q_INIT_RESOURCE(tarnvik);
}

namespace tarnvik {

QIcon Program_icon() {
    Ask_for_resources();
    QIcon icon;
    for (const int size : {16, 32, 48, 64, 128, 256}) {
        icon.addFile(QStringLiteral(":/tarnvik/tarnvik-%1.png").arg(size), {size, size});
    }
    return icon;
}

} // namespace tarnvik
