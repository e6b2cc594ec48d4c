#pragma once

#include "engine/cue_output.h"
#include "sound/sound_output.h"

#include <functional>
#include <string>
#include <string_view>

namespace quillet
{

// The cues of the game: files below the program's folder, played if the player wants sounds.
class GameCues : public CueOutput
{
public:
    GameCues(std::function<bool()> wantsSound, std::string programFolder, SoundOutput& output);

    void play(Cue cue) override;
    [[nodiscard]] std::string pathOf(Cue cue) const;
    // Missing and empty files play nothing.
    void playSoundCue(std::string_view fileName);
    // Opens the device for a cue that follows soon, which is then not late.
    void prepare();

private:
    [[nodiscard]] std::string inProgramFolder(std::string_view fileName) const;

    std::function<bool()> m_wantsSound;
    std::string m_programFolder;
    SoundOutput& m_output;
};

} // namespace quillet
