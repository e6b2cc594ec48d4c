#pragma once

#include "odds_program/command_line.h"

#include <iosfwd>

namespace quillet::odds_program
{

// Works out and prints what was asked for. Throws BadInput for what makes no sense, and other
// errors for what cannot be done.
void answer(const Request& request, std::ostream& out);

} // namespace quillet::odds_program
