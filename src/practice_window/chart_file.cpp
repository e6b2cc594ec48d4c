#include "practice_window/chart_file.h"

#include "odds/bad_input.h"

#include <QFile>
#include <QFileInfo>

namespace quillet::practice_window
{

ChartFile readChartFile(const QString& path)
{
    constexpr qint64 sizeLimit = 1'000'000;
    const auto problem = [&path](const QString& reason) {
        return ChartFile{{}, "The chart " + (path.isEmpty() ? "file" : path) + ' ' + reason};
    };
    if (path.isEmpty())
        return problem("has no name yet; choose one in the preferences.");
    QFile file(path);
    if (!QFileInfo(path).isFile())
        return problem(file.exists() ? "is not a regular file." : "does not exist.");
    if (!file.open(QIODevice::ReadOnly))
        return problem("cannot be read: " + file.errorString() + '.');
    const QByteArray text = file.read(sizeLimit + 1);
    if (text.size() > sizeLimit)
        return problem("is too large (more than 1 MB).");
    try {
        return {charts::parseChart({text.constData(), static_cast<std::size_t>(text.size())}), {}};
    } catch (const odds::BadInput& bad) {
        return problem(QString("makes no sense: ") + bad.what());
    }
}

} // namespace quillet::practice_window
