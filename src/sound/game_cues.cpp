#include "sound/game_cues.h"

#include "platform/file_exists.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillet
{

namespace
{

// In the order of Cue.
constexpr std::array<std::string_view, 7> fileNames{
    "\\wavs\\deal.wav",      "\\wavs\\wrong.wav",     "\\wavs\\wrong2.wav",   "\\wavs\\wrong3.wav",
    "\\wavs\\pokerwin1.wav", "\\wavs\\pokerwin2.wav", "\\wavs\\pokerwin3.wav"};

} // namespace

GameCues::GameCues(std::function<bool()> wantsSound, std::string programFolder, SoundOutput& output)
    : m_wantsSound(std::move(wantsSound)), m_programFolder(std::move(programFolder)),
      m_output(output)
{
}

void GameCues::play(Cue cue)
{
    playSoundCue(fileNames[static_cast<std::size_t>(cue)]);
}

std::string GameCues::pathOf(Cue cue) const
{
    return inProgramFolder(fileNames[static_cast<std::size_t>(cue)]);
}

void GameCues::playSoundCue(std::string_view fileName)
{
    if (!m_wantsSound())
        return;
    const std::string path = inProgramFolder(fileName);
    if (FileExists(path))
        m_output.play(path);
}

std::string GameCues::inProgramFolder(std::string_view fileName) const
{
    std::string below(fileName);
    std::ranges::replace(below, '\\', '/');
    return m_programFolder + below;
}

void GameCues::prepare()
{
    if (m_wantsSound())
        m_output.prepare();
}

} // namespace quillet
