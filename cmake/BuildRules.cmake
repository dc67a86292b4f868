# How everything of the project is compiled and linked; each target links this interface privately.
add_library(tarnvik_build_rules INTERFACE)

target_compile_options(tarnvik_build_rules INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  # The same results in every build and on every machine: no value-changing optimisation, no fused multiply-add.
  -ffp-contract=off -fno-fast-math)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 sees overlaps in std::string that cannot happen (GCC bug 105651).
  target_compile_options(tarnvik_build_rules INTERFACE -Wno-restrict)
endif()
if(TARNVIK_WERROR)
  target_compile_options(tarnvik_build_rules INTERFACE -Werror)
endif()
if(TARNVIK_SANITIZE)
  target_compile_options(tarnvik_build_rules INTERFACE
    -fsanitize=${TARNVIK_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tarnvik_build_rules INTERFACE -fsanitize=${TARNVIK_SANITIZE})
endif()
if(WIN32)
  # No narrow names of the system's calls: they lack letters.
  target_compile_definitions(tarnvik_build_rules INTERFACE UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0A00)
  if(NOT TARNVIK_FRONTEND)
    target_link_options(tarnvik_build_rules INTERFACE -static) # without the runtime's DLLs beside the programs
  endif()
endif()
