// The folders of a run of the program.
#pragma once

#include <filesystem>

namespace tarnvik {

struct Folders {
    std::filesystem::path data;    // the tables and the setup file
    std::filesystem::path program; // the program itself; the manual lies below it
    std::filesystem::path state;   // what a run keeps for the next one; empty where there is no place for it
};

// The folder "tarnvik" in the user's state folder, by the rules of the XDG base directories: $XDG_STATE_HOME where that
// is an absolute path, else ~/.local/state. Empty without a home.
std::filesystem::path User_state_folder();

} // namespace tarnvik
