// main() of the program that paints for the headless tool.
#include <cstdio>
#include <string>
#include <vector>

#include "calc/Text.h"
#include "check/Paint_channel.h"
#include "check/Paint_program.h"
#include "frontend/services/QtRendering.h"
#include "platform/Machine.h"
#include "platform/Partner.h"
#include "platform/Path.h"
#include "session/SystemClock.h"

int main(int argc, char** argv) {
    const std::vector<std::string> arguments = tarnvik::Arguments(argc, argv);
    const bool pictures = arguments.size() == 2 && arguments[0] == tarnvik::paint_pictures;
    const bool report = arguments.size() == 3 && arguments[0] == tarnvik::paint_report;
    if (!pictures && !report) {
        std::fputs("tarnvik-paint: paints for tarnvik-check, which starts it\n", stderr);
        return 2;
    }
    tarnvik::Set_decimal_sign(tarnvik::System_decimal_sign());
    int name_alone = 1; // the arguments are none of the toolkit's
    tarnvik::QtRendering rendering{name_alone, argv};
    tarnvik::PaintChannel channel{tarnvik::partner_channel};
    if (pictures) {
        tarnvik::Serve_pictures(channel, rendering, tarnvik::Path_of(arguments[1]));
    } else {
        tarnvik::Serve_report(channel, rendering, tarnvik::Path_of(arguments[1]), arguments[2]);
    }
    return 0;
}
