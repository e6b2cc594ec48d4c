#pragma once

#include "charts/chart.h"
#include "odds/command_line.h"

#include <iosfwd>

namespace quillet
{

// Works out and prints what was asked for. Throws BadUsage, BadHand, BadPays or BadChart for what
// makes no sense, and other errors for what cannot be done.
void answer(const Request& request, std::istream& in, std::ostream& out);

} // namespace quillet
