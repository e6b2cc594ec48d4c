#pragma once

#include <iosfwd>

namespace quillet::odds_program
{

// What the odds are, for six pay tables, as a page in Markdown. Takes some ten seconds.
void writeDocument(std::ostream& out);

} // namespace quillet::odds_program
