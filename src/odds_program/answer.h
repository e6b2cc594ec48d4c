#pragma once

#include "odds_program/command_line.h"

#include <iosfwd>

namespace quillet::odds_program
{

// Computes and prints the answer. Throws BadInput for invalid input, other exceptions on failure.
void answer(const Request& request, std::ostream& out);

} // namespace quillet::odds_program
