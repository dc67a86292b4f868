// main() of the program that paints for the headless tool.
#include <unistd.h>

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "calc/Text.h"
#include "check/Paint_channel.h"
#include "check/Paint_program.h"
#include "frontend/services/QtRendering.h"
#include "session/SystemClock.h"

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const bool pictures = arguments.size() == 2 && arguments[0] == tarnvik::paint_pictures;
    const bool report = arguments.size() == 3 && arguments[0] == tarnvik::paint_report;
    if (!pictures && !report) {
        std::fputs("tarnvik-paint: paints for tarnvik-check, which starts it\n", stderr);
        return 2;
    }
    tarnvik::Set_decimal_sign(tarnvik::System_decimal_sign());
    int name_alone = 1; // the arguments are none of the toolkit's
    tarnvik::QtRendering rendering{name_alone, argv};
    tarnvik::PaintChannel channel{STDIN_FILENO};
    if (pictures) {
        tarnvik::Serve_pictures(channel, rendering, arguments[1]);
    } else {
        tarnvik::Serve_report(channel, rendering, arguments[1], arguments[2]);
    }
    return 0;
}
