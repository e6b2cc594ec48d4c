#include "table/picture_integrity.h"

#include <algorithm>
#include <cstdlib>

namespace quillet
{

namespace
{

// Walks through a file from part to part. Whatever lies beyond the end reads as 0, and stays there.
class Walk
{
public:
    explicit Walk(const QByteArray& file, qsizetype start = 0) : m_file(file), m_at(start) {}

    [[nodiscard]] bool atEnd() const { return m_at >= m_file.size(); }
    void skip(qsizetype bytes) { m_at += bytes; }
    quint8 byte() { return atEnd() ? quint8{0} : static_cast<quint8>(m_file[m_at++]); }
    quint16 bigEndian16()
    {
        const quint16 high = byte();
        return static_cast<quint16>(high << 8 | byte());
    }

private:
    const QByteArray& m_file;
    qsizetype m_at;
};

bool jpegHasItsEnd(const QByteArray& file)
{
    constexpr quint8 endOfImage = 0xd9;
    Walk walk(file, 2);
    while (!walk.atEnd()) {
        // Between segments, and in the coded picture, only a marker has a byte other than 0 behind
        // 0xff.
        if (walk.byte() != 0xff)
            continue;
        quint8 marker = walk.byte();
        while (marker == 0xff)
            marker = walk.byte();
        if (marker == endOfImage)
            return true;
        const bool standsAlone = marker == 0 || marker == 1 || (marker >= 0xd0 && marker <= 0xd8);
        // A segment's length counts its own two bytes. One that says less, as where the file ends
        // in it, must not lead back.
        if (!standsAlone)
            walk.skip(std::max(walk.bigEndian16() - 2, 0));
    }
    return false;
}

void skipGifBlocks(Walk& walk)
{
    for (quint8 size = walk.byte(); size != 0; size = walk.byte())
        walk.skip(size);
}

qsizetype gifColours(quint8 flags)
{
    return (flags & 0x80) != 0 ? 3 * (qsizetype{2} << (flags & 7)) : 0;
}

bool gifHasItsEnd(const QByteArray& file)
{
    Walk walk(file, 10);
    const quint8 flags = walk.byte();
    walk.skip(2 + gifColours(flags));
    while (!walk.atEnd()) {
        switch (walk.byte()) {
        case ';':
            return true;
        case ',':
            walk.skip(8);
            walk.skip(gifColours(walk.byte()) + 1);
            skipGifBlocks(walk);
            break;
        case '!':
            walk.skip(1);
            skipGifBlocks(walk);
            break;
        default:
            return false;
        }
    }
    return false;
}

template <typename Number>
qint64 littleEndian(const QByteArray& file, qsizetype at)
{
    Walk walk(file, at);
    quint32 value = 0;
    for (unsigned shift = 0; shift < 8 * sizeof(Number); shift += 8)
        value |= quint32{walk.byte()} << shift;
    return static_cast<Number>(value);
}

bool bitmapHasItsPixels(const QByteArray& file)
{
    constexpr qint64 oldHeader = 12;
    constexpr qint64 longestSide = 1 << 20; // keeps the products small
    const qint64 start = littleEndian<quint32>(file, 10);
    const bool old = littleEndian<quint32>(file, 14) == oldHeader;
    const qint64 width = old ? littleEndian<quint16>(file, 18) : littleEndian<qint32>(file, 18);
    const qint64 height =
        std::abs(old ? littleEndian<qint16>(file, 20) : littleEndian<qint32>(file, 22));
    const qint64 bits = littleEndian<quint16>(file, old ? 24 : 28);
    const qint64 compression = old ? 0 : littleEndian<quint32>(file, 30);
    if (width <= 0 || width > longestSide || height > longestSide)
        return false;
    const bool runLengths = compression == 1 || compression == 2;
    const qint64 pixels =
        runLengths ? littleEndian<quint32>(file, 34) : (bits * width + 31) / 32 * 4 * height;
    return start + pixels <= file.size();
}

} // namespace

bool goesOnToItsEnd(const QByteArray& file)
{
    if (file.startsWith("\xff\xd8"))
        return jpegHasItsEnd(file);
    if (file.startsWith("GIF8"))
        return gifHasItsEnd(file);
    return !file.startsWith("BM") || bitmapHasItsPixels(file);
}

} // namespace quillet
