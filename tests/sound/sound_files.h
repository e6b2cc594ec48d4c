#pragma once

#include <QTemporaryDir>

#include <cstdint>
#include <fstream>
#include <string>

namespace quillet::test
{

// A temporary folder for one test.
class TemporaryFolder
{
public:
    [[nodiscard]] std::string file(const std::string& name) const
    {
        return m_folder.filePath(QString::fromStdString(name)).toStdString();
    }

    // The path of a new file with these contents.
    [[nodiscard]] std::string file(const std::string& name, const std::string& contents) const
    {
        std::ofstream(file(name), std::ios::binary) << contents;
        return file(name);
    }

private:
    QTemporaryDir m_folder;
};

inline std::string littleEndian(std::uint32_t value, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text += static_cast<char>(value >> (8 * i) & 0xff);
    return text;
}

struct WaveFormat {
    std::uint32_t rate = 48000, channels = 2, bytes = 2;
};

// A wave file with this value in every sample.
inline std::string flatWave(std::uint32_t value, std::uint32_t milliseconds, WaveFormat format = {})
{
    std::string data;
    for (std::uint32_t i = 0; i < format.rate * format.channels / 10 * milliseconds / 100; ++i)
        data += littleEndian(value, static_cast<int>(format.bytes));
    const auto size = static_cast<std::uint32_t>(data.size());
    const std::uint32_t frame = format.channels * format.bytes;
    return "RIFF" + littleEndian(36 + size, 4) + "WAVEfmt " + littleEndian(16, 4) +
           littleEndian(1, 2) + littleEndian(format.channels, 2) + littleEndian(format.rate, 4) +
           littleEndian(format.rate * frame, 4) + littleEndian(frame, 2) +
           littleEndian(8 * format.bytes, 2) + "data" + littleEndian(size, 4) + data;
}

} // namespace quillet::test
