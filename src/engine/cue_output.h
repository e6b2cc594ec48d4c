#pragma once

#include <string_view>

namespace quillet
{

// The names of the cues, as playSoundCue takes them.
namespace cues
{

inline constexpr std::string_view deal = "\\wavs\\deal.wav";
inline constexpr std::string_view wrong = "\\wavs\\wrong.wav";
inline constexpr std::string_view wrongOne = "\\wavs\\wrong2.wav";
inline constexpr std::string_view wrongTwo = "\\wavs\\wrong3.wav";
inline constexpr std::string_view smallWin = "\\wavs\\pokerwin1.wav";
inline constexpr std::string_view middleWin = "\\wavs\\pokerwin2.wav";
inline constexpr std::string_view greatWin = "\\wavs\\pokerwin3.wav";

} // namespace cues

// What a player hears of a game.
class CueOutput
{
public:
    virtual ~CueOutput() = default;

    // Returns at once, whether there is anything to hear or not; a new cue cuts off the one before.
    virtual void playSoundCue(std::string_view fileName) = 0;
};

} // namespace quillet
