// main() of the headless tool.
#include <filesystem>
#include <iostream>

#include "calc/Text.h"
#include "check/Check.h"
#include "check/Paint_program.h"
#include "platform/Machine.h"
#include "session/SystemClock.h"

int main(int argc, char** argv) {
    tarnvik::Prepare_streams();
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr); // a batch says itself when its answers go out
    tarnvik::Set_decimal_sign(tarnvik::System_decimal_sign());
    const std::filesystem::path program = tarnvik::Program_path(argv[0]);
    tarnvik::PaintProgram painter{tarnvik::Paint_program_beside(program)};
    return tarnvik::Run_check(tarnvik::Arguments(argc, argv), program.parent_path(), std::cin, std::cout, std::cerr,
                              painter.Found() ? &painter : nullptr);
}
