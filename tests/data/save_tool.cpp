// save_tool: one save, or one mending, in a process of its own, for the tests that stop it on its way (stops.py).
//
//   save_tool save PATH CONTENT [drop] [keep]   saves the content of a file; prints the paths of the copies it has kept
//   save_tool mend PATH                         prints where a half-written content lies now
//   save_tool repeat PATH CONTENT CONTENT       saves the contents in turn until it is killed
//
// Exit status 1 with the fault's text. The call access("/save_tool/begin") tells a tracer where the save begins.
#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include <unistd.h>

#include "calc/RuntimeFault.h"
#include "data/SafeWrite.h"
#include "platform/Path.h"

namespace {

using tarnvik::OldTail;
using tarnvik::SaveRequest;

std::string Content(const std::string& path) {
    std::ifstream file{path, std::ios::binary};
    return {std::istreambuf_iterator<char>{file}, {}};
}

void Mark(const char* name) {
    [[maybe_unused]] const int missing = access(name, F_OK);
}

void Save(const std::vector<std::string>& arguments) {
    const auto asks = [&](const char* word) {
        return std::find(arguments.begin() + 3, arguments.end(), word) != arguments.end();
    };
    const std::string content = Content(arguments[2]);
    const SaveRequest request{asks("drop") ? OldTail::drop : OldTail::keep, asks("keep"), {}};
    Mark("/save_tool/begin");
    const auto report = tarnvik::Safe_write(tarnvik::Path_of(arguments[1]), content, request, "save_tool");
    Mark("/save_tool/end");
    for (const auto& kept : report.kept) {
        std::cout << kept.string() << "\n";
    }
}

void Mend(const std::string& path) {
    Mark("/save_tool/begin");
    const auto found = tarnvik::Mend_file(path, "save_tool");
    Mark("/save_tool/end");
    if (found) {
        std::cout << found->string() << "\n";
    }
}

[[noreturn]] void Repeat(const std::string& path, const std::string& one, const std::string& other) {
    for (;;) {
        tarnvik::Safe_write(path, one, {OldTail::drop}, "save_tool");
        tarnvik::Safe_write(path, other, {OldTail::drop}, "save_tool");
    }
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    try {
        if (arguments.size() >= 3 && arguments[0] == "save") {
            Save(arguments);
        } else if (arguments.size() == 2 && arguments[0] == "mend") {
            Mend(arguments[1]);
        } else if (arguments.size() == 4 && arguments[0] == "repeat") {
            Repeat(arguments[1], Content(arguments[2]), Content(arguments[3]));
        } else {
            return 2;
        }
    } catch (const tarnvik::RuntimeFault& fault) {
        std::cerr << tarnvik::Fault_text(fault) << "\n";
        return 1;
    }
    return 0;
}
