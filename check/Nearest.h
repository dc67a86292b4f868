// The names that somebody may have meant.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnvik {

// A name without regard to small and capital letters, blanks at its ends and the number of blanks inside.
std::string Plain_name(std::string_view name);

// Whether Plain_name of the name is `plain`; without taking memory, since whole tables are looked through.
bool Has_plain_name(std::string_view name, std::string_view plain);

// "; nearest: A, B, C": at most three of the names that take a few changes of a character to become `wanted`, one to
// every third of it; those with the fewest first. Empty where there is none.
std::string Nearest_names(std::string_view wanted, const std::vector<std::string_view>& names);

// A text as a message shows it, cut where it is long.
std::string Cut(std::string_view text);

// A text in quotes as a message shows it, cut likewise.
std::string Quoted(std::string_view text);

} // namespace tarnvik
