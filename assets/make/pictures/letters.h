#pragma once

namespace quillet::artwork
{

// The pen strokes of a capital or figure in a box one unit high (see shapes/path_text.h). Throws
// std::out_of_range for any other sign.
[[nodiscard]] const char* letterStrokes(char sign);

} // namespace quillet::artwork
