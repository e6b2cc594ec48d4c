#pragma once

#include <iosfwd>

namespace quillet::odds_program
{

// Compares what the tables give with what follows from the rules in another way, and prints a line
// for each comparison. Throws a std::runtime_error if one fails. Takes some seconds.
void selfTest(std::ostream& out);

} // namespace quillet::odds_program
