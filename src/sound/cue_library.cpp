#include "sound/cue_library.h"

#include "sound/sdl.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <utility>
#include <vector>

namespace quillet
{

namespace
{

constexpr std::uintmax_t maxFileBytes = 10'000'000;
constexpr std::uint64_t maxSeconds = 20;
constexpr std::size_t maxKeptBytes = 16'000'000;

// The file as SDL decodes it.
struct Recording {
    SDL_AudioSpec format{};
    std::unique_ptr<Uint8, decltype(Sdl::freeWAV)> data{nullptr, nullptr};
    Uint32 bytes = 0;
};

std::vector<char> contentsOf(const std::string& path, std::uintmax_t size)
{
    std::vector<char> contents(size);
    std::ifstream file(path, std::ios::binary);
    file.read(contents.data(), static_cast<std::streamsize>(contents.size()));
    contents.resize(static_cast<std::size_t>(file.gcount()));
    return contents;
}

// Whether every chunk up to the samples is within the file. SDL would play the rest of a file that
// was cut short, and allocate 4 GB if a chunk claims to be that large.
bool isWhole(const std::vector<char>& contents)
{
    constexpr std::size_t riffHeader = 12;
    constexpr std::size_t chunkHeader = 8;
    std::size_t chunk = riffHeader;
    while (chunk + chunkHeader <= contents.size()) {
        Uint32 length = 0;
        std::memcpy(&length, &contents[chunk + 4], sizeof length);
        length = SDL_SwapLE32(length);
        if (length > contents.size() - chunk - chunkHeader)
            return false;
        if (std::memcmp(&contents[chunk], "data", 4) == 0)
            return true;
        chunk += chunkHeader + length + length % 2;
    }
    return false;
}

Recording decode(const Sdl& sdl, const std::vector<char>& contents)
{
    Recording recording;
    if (!isWhole(contents))
        return recording;
    Uint8* data = nullptr;
    SDL_RWops* reader = sdl.rwFromConstMem(contents.data(), static_cast<int>(contents.size()));
    if (sdl.loadWAV_RW(reader, 1, &recording.format, &data, &recording.bytes))
        recording.data = {data, sdl.freeWAV};
    return recording;
}

bool isPlayable(const Recording& recording)
{
    const SDL_AudioSpec& format = recording.format;
    if (!recording.data || format.freq < 4000 || format.freq > 192'000)
        return false;
    const auto bytesPerSample = static_cast<std::uint64_t>(SDL_AUDIO_BITSIZE(format.format)) / 8;
    const std::uint64_t bytesPerSecond =
        bytesPerSample * format.channels * static_cast<std::uint64_t>(format.freq);
    return recording.bytes <= maxSeconds * bytesPerSecond;
}

std::shared_ptr<const SoundCue> converted(const Sdl& sdl, const Recording& recording)
{
    const SDL_AudioSpec& format = recording.format;
    SDL_AudioCVT conversion{};
    if (sdl.buildAudioCVT(&conversion, format.format, format.channels, format.freq, AUDIO_S16SYS,
                          soundChannels, soundRate) < 0)
        return nullptr;

    // SDL converts in place; len_mult says how many times larger the sound may become meanwhile.
    std::vector<Uint8> work(std::size_t{recording.bytes} *
                            static_cast<unsigned>(conversion.len_mult));
    std::copy_n(recording.data.get(), recording.bytes, work.begin());
    conversion.buf = work.data();
    conversion.len = static_cast<int>(recording.bytes);
    if (conversion.needed && sdl.convertAudio(&conversion) != 0)
        return nullptr;

    const int bytes = conversion.needed ? conversion.len_cvt : conversion.len;
    auto cue = std::make_shared<SoundCue>();
    cue->samples.resize(static_cast<std::size_t>(bytes) / sizeof(std::int16_t));
    std::copy_n(work.begin(), cue->samples.size() * sizeof(std::int16_t),
                reinterpret_cast<Uint8*>(cue->samples.data()));
    return cue;
}

std::shared_ptr<const SoundCue> loaded(const std::string& path, std::uintmax_t size)
{
    const Sdl* sdl = Sdl::load();
    if (!sdl)
        return nullptr;
    const Recording recording = decode(*sdl, contentsOf(path, size));
    return isPlayable(recording) ? converted(*sdl, recording) : nullptr;
}

} // namespace

std::shared_ptr<const SoundCue> CueLibrary::find(const std::string& path)
{
    // Only regular files have a size; reading a pipe would block forever.
    std::error_code error;
    const auto written = std::filesystem::last_write_time(path, error);
    const auto size = std::filesystem::file_size(path, error);
    if (error || size > maxFileBytes)
        return nullptr;

    const auto kept = m_entries.find(path);
    if (kept != m_entries.end() && kept->second.written == written && kept->second.size == size)
        return kept->second.cue;

    auto cue = loaded(path, size);
    const std::size_t bytes = cue ? cue->samples.size() * sizeof(std::int16_t) : 0;
    if (m_keptBytes + bytes > maxKeptBytes) {
        m_entries.clear();
        m_keptBytes = 0;
    }
    m_keptBytes += bytes;
    m_entries.insert_or_assign(path, Entry{written, size, cue});
    return cue;
}

} // namespace quillet
