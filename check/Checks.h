// The verdict on a connection as the tool tells it: what the window shows (session/Standing.h), with figures and
// clauses.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "check/Table.h"
#include "session/Judge.h"

namespace tarnvik {

// A check as the JSON and the summary call it; i is its place in Check.
std::string_view Check_name(std::size_t i);

// The verdict in words, or why there is none.
std::string Judgement_text(const Judgement& judgement, bool english);

// The members of the group `checks`.
void Append_checks(std::string& json, const Judgement& judgement, bool english);

// The same as cells of a table: a column for each check, with its limit where that is a height, then the mode that
// governs, the verdict and its text. Nothing stands where a value is not known. The utilisation of the bolts is called
// so, since `bolts` is their number among the inputs.
void Append_check_headings(TableRow& row);
void Append_check_cells(TableRow& row, const Judgement& judgement);

// The section of the summary: a line for each check, the mode that governs, the verdict. Empty without results.
std::string Checks_summary(const Judgement& judgement);

// The status of --strict: exit_fails also for what does not fit or has not been checked. `plain` is that of Status.
int Strict_status(int plain, const Judgement& judgement);

} // namespace tarnvik
