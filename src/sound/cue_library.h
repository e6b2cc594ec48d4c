#pragma once

#include "sound/cue_mixer.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <unordered_map>

namespace quillet
{

// Reads wave files and keeps the decoded sounds, because a cue may be played ten times in one hand.
// A file that has changed is read again.
class CueLibrary
{
public:
    // Null if the file is missing, broken, too large or too long for a cue.
    [[nodiscard]] std::shared_ptr<const SoundCue> find(const std::string& path);

private:
    struct Entry {
        std::filesystem::file_time_type written;
        std::uintmax_t size;
        std::shared_ptr<const SoundCue> cue;
    };

    std::unordered_map<std::string, Entry> m_entries;
    std::size_t m_keptBytes = 0;
};

} // namespace quillet
