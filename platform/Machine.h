// What the program asks of the machine and of the user's surroundings.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tarnvik {

std::string Host_name(); // empty where the machine has none
long Process_number();
bool Is_running(long process);

// The arguments of main() in UTF-8, without the name of the call.
std::vector<std::string> Arguments(int argc, char** argv);

// The program itself, links followed; that of the call where the system does not tell.
std::filesystem::path Program_path(const char* call);

// The folder of this program's data among the user's own, and of what a run keeps for the next one. Empty where the
// user has no such place.
std::filesystem::path User_data_folder();
std::filesystem::path User_state_folder();

// The standard streams pass every byte on as it is.
void Prepare_streams();

// A person sits at the standard stream of that number (0, 1, 2).
bool Is_terminal(int stream);

// A program with a window may say something on the terminal that it was started from.
void Attach_terminal();

} // namespace tarnvik
