#pragma once

#include <string>
#include <vector>

namespace quillet
{

struct Cue {
    std::string fileName;
    std::string bytes;
};

// Every cue of the trainer as a wave file, the same on every run and every machine.
[[nodiscard]] std::vector<Cue> makeCues();

} // namespace quillet
