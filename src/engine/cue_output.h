#pragma once

namespace quillet
{

// The sounds of a game. The wrong cues depend on the number of cards held: one, two, any other.
enum class Cue { deal, wrong, wrongOne, wrongTwo, smallWin, mediumWin, bigWin };

// The sound output of a game.
class CueOutput
{
public:
    virtual ~CueOutput() = default;

    // Returns at once, even if there is nothing to hear. Cuts off the cue that is playing.
    virtual void play(Cue cue) = 0;
};

} // namespace quillet
