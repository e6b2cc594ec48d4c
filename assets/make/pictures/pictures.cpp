#include "assets/make/pictures/pictures.h"

#include "assets/make/pictures/frame.h"
#include "assets/make/pictures/icon.h"
#include "assets/make/pictures/pointer.h"
#include "assets/make/pictures/table.h"

#include <QDir>
#include <QSaveFile>

#include <stdexcept>

namespace quillet::artwork
{

namespace
{

// 192 dots per inch mark a picture that is stored at twice its size.
constexpr int dotsPerMetre = 7559;
constexpr int jpegQuality = 91;

[[noreturn]] void refuse(const QString& path)
{
    throw std::runtime_error("cannot write " + path.toStdString());
}

QString inFolder(const QString& folder, const QString& name)
{
    const QDir directory(folder);
    if (!directory.mkpath("."))
        refuse(folder);
    return directory.filePath(name);
}

void writeTable(const QString& path, const Canvas& canvas)
{
    QImage image = canvas.toImage().convertToFormat(QImage::Format_RGB32);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    if (!image.save(path, "jpg", jpegQuality))
        refuse(path);
}

void writePng(const QString& path, const QImage& image)
{
    if (!image.save(path, "png"))
        refuse(path);
}

void writeText(const QString& path, const QByteArray& text)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
        refuse(path);
}

void writeFrame(const QString& folder)
{
    for (const FramePiece piece : allFramePieces)
        writePng(
            inFolder(folder, QString("%1.png").arg(frameFiles[static_cast<std::size_t>(piece)])),
            framePiece(piece).toImage().convertToFormat(QImage::Format_RGB888));
}

void writeIcons(const QString& folder, const QString& name, Program program)
{
    for (const int size : iconSizes)
        writePng(inFolder(folder, QString("%1-%2.png").arg(name).arg(size)),
                 toPixels(iconDrawing(size, program), size).toImage());
    writeText(inFolder(folder, name + ".svg"), toSvg(iconDrawing(iconSizes.back(), program)));
}

} // namespace

void writePictures(const QString& folder)
{
    const QString pics = folder + "/pics";
    const auto write = [&pics](const char* name, Canvas (*draw)()) {
        const QString path = inFolder(pics, name);
        writeTable(path, draw());
    };
    write("vpokerwood.jpg", woodTable);
    write("vpokerfelt.jpg", feltTable);
    write("vpokernight.jpg", nightTable);
    writeFrame(folder + "/frame");
    writeIcons(folder + "/icons", "quillet", Program::trainer);
    writeIcons(folder + "/icons", "quillet-practice", Program::practice);
    writePng(inFolder(folder + "/pointer", "hand@2x.png"), pointingHand(2).toImage());
}

} // namespace quillet::artwork
