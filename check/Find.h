// The search for fasteners (session/Search.h) as the tool is asked for it and answers.
#pragma once

#include <string>
#include <vector>

#include "check/Named_inputs.h"
#include "session/Search.h"

namespace tarnvik {

struct Options;

// "bolt=M16x8.8,bolts=2" into names and values. Errors: throws UsageError for a name that is not searched.
NamedValues Parse_fixed(const std::string& text);

// Errors: throws UsageError, as Set_named_inputs.
SearchLimits Search_limits(const NamedValues& fixed, bool with_connectors);

// Errors: throws UsageError where an input that is searched is given beside --find, which would count for nothing.
void Refuse_searched_inputs(const Options& options);

// What was found, in columns, and how much of it there was; or why nothing was.
std::string Found_table(const SearchResult& result);

// A line for each, with a heading: the inputs by name, then what makes no difference, then capacities and checks.
std::string Found_csv(const SearchResult& result);

// One object in a line, with the warnings of the joint.
std::string Found_json(const SearchResult& result, const std::vector<std::string>& warnings);

// Why nothing was found: a line for each reason, and how many choices it has left out.
std::string Nothing_found_text(const SearchResult& result);

// exit_holds, exit_fails where nothing was found, exit_stopped where no choice could be calculated.
int Search_status(const SearchResult& result);

} // namespace tarnvik
