// main() of the headless tool.
#include <filesystem>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

#include "calc/Text.h"
#include "check/Check.h"
#include "session/SystemClock.h"
#ifdef TARNVIK_WITH_FRONTEND
#include "frontend/services/QtRendering.h"
#endif

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    tarnvik::Set_decimal_sign(tarnvik::System_decimal_sign());
    std::error_code error;
    std::filesystem::path program = std::filesystem::canonical("/proc/self/exe", error);
    if (error) {
        program = std::filesystem::absolute(argv[0], error);
    }
#ifdef TARNVIK_WITH_FRONTEND
    tarnvik::QtRendering painter{argc, argv};
    tarnvik::QtRendering* rendering = &painter;
#else
    tarnvik::Rendering* rendering = nullptr;
#endif
    return tarnvik::Run_check(std::vector<std::string>(argv + 1, argv + argc), program.parent_path(), std::cin,
                              std::cout, std::cerr, rendering);
}
