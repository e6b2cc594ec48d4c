#include "sound/game_cues.h"

#include "platform/file_exists.h"

#include <algorithm>
#include <utility>

namespace quillet
{

GameCues::GameCues(const bool& prfSound, std::string programFolder, SoundOutput& output)
    : m_prfSound(prfSound), m_programFolder(std::move(programFolder)), m_output(output)
{
}

void GameCues::playSoundCue(std::string_view fileName)
{
    if (!m_prfSound)
        return;
    std::string below(fileName);
    std::ranges::replace(below, '\\', '/');
    const std::string path = m_programFolder + below;
    if (FileExists(path))
        m_output.play(path);
}

void GameCues::prepare()
{
    if (m_prfSound)
        m_output.prepare();
}

} // namespace quillet
