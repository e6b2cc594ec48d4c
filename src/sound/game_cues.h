#pragma once

#include "engine/cue_output.h"
#include "sound/sound_output.h"

#include <string>

namespace quillet
{

// The cues of the game: files below the program's folder, heard while the player wants sounds.
class GameCues : public CueOutput
{
public:
    // The player may change prfSound at any time. What is referenced outlives the cues.
    GameCues(const bool& prfSound, std::string programFolder, SoundOutput& output);

    // A file that is missing or empty is silent.
    void playSoundCue(std::string_view fileName) override;
    // For cues that are about to come. The first after a rest is then not late, even where the
    // device takes a second to open.
    void prepare();

private:
    const bool& m_prfSound;
    std::string m_programFolder;
    SoundOutput& m_output;
};

} // namespace quillet
