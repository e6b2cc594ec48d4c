#include "platform/browser_opener.h"

#include <QProcess>
#include <QUrl>

namespace quillet
{

namespace
{

bool isWebAddress(const QUrl& address)
{
    return address.isValid() && !address.host().isEmpty() &&
           (address.scheme() == "http" || address.scheme() == "https");
}

} // namespace

void BrowserOpener::open(const std::string& verb, const std::string& file,
                         const std::string& /*parameters*/, const std::string& directory,
                         int /*showCommand*/)
{
    const QUrl address(QString::fromStdString(file), QUrl::StrictMode);
    if (verb != "open" || !isWebAddress(address))
        return;

    QProcess opener;
    opener.setProgram("xdg-open");
    opener.setArguments({QString::fromLatin1(address.toEncoded())});
    opener.setWorkingDirectory(QString::fromStdString(directory));
    opener.setStandardInputFile(QProcess::nullDevice());
    opener.setStandardOutputFile(QProcess::nullDevice());
    opener.setStandardErrorFile(QProcess::nullDevice());
    opener.startDetached();
}

} // namespace quillet
