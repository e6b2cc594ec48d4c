#include "sound/game_cues.h"

#include "platform/file_exists.h"

#include <algorithm>
#include <utility>

namespace quillet
{

namespace
{

std::string_view fileNameOf(Cue cue)
{
    switch (cue) {
    case Cue::deal:
        return "\\wavs\\deal.wav";
    case Cue::wrong:
        return "\\wavs\\wrong.wav";
    case Cue::wrongOne:
        return "\\wavs\\wrong2.wav";
    case Cue::wrongTwo:
        return "\\wavs\\wrong3.wav";
    case Cue::smallWin:
        return "\\wavs\\pokerwin1.wav";
    case Cue::mediumWin:
        return "\\wavs\\pokerwin2.wav";
    case Cue::bigWin:
        return "\\wavs\\pokerwin3.wav";
    }
    return {};
}

} // namespace

GameCues::GameCues(std::function<bool()> wantsSound, std::string programFolder, SoundOutput& output)
    : m_wantsSound(std::move(wantsSound)), m_programFolder(std::move(programFolder)),
      m_output(output)
{
}

void GameCues::play(Cue cue)
{
    playSoundCue(fileNameOf(cue));
}

void GameCues::playSoundCue(std::string_view fileName)
{
    if (!m_wantsSound())
        return;
    std::string below(fileName);
    std::ranges::replace(below, '\\', '/');
    const std::string path = m_programFolder + below;
    if (FileExists(path))
        m_output.play(path);
}

void GameCues::prepare()
{
    if (m_wantsSound())
        m_output.prepare();
}

} // namespace quillet
