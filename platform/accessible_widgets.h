#pragma once

namespace quillet
{

// Makes picture boxes known to screen readers: a check box where the picture can be checked, a
// button otherwise. Once per process, before the first box is asked for.
void installAccessiblePictures();

} // namespace quillet
