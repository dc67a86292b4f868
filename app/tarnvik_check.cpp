// main() of the headless tool.
#include <filesystem>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

#include "calc/Text.h"
#include "check/Check.h"
#include "check/Paint_program.h"
#include "session/SystemClock.h"

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr); // a batch says itself when its answers go out
    tarnvik::Set_decimal_sign(tarnvik::System_decimal_sign());
    std::error_code error;
    std::filesystem::path program = std::filesystem::canonical("/proc/self/exe", error);
    if (error) {
        program = std::filesystem::absolute(argv[0], error);
    }
    tarnvik::PaintProgram painter{program.parent_path() / tarnvik::paint_program_name};
    return tarnvik::Run_check(std::vector<std::string>(argv + 1, argv + argc), program.parent_path(), std::cin,
                              std::cout, std::cerr, painter.Found() ? &painter : nullptr);
}
