#pragma once

#include <string>
#include <vector>

namespace quillet
{

struct CueFile {
    std::string fileName;
    std::string bytes;
};

// All cues of the trainer as wave files, the same on every run and machine.
[[nodiscard]] std::vector<CueFile> makeCues();

} // namespace quillet
