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

void openInBrowser(const std::string& address)
{
    const QUrl url(QString::fromStdString(address), QUrl::StrictMode);
    if (!isWebAddress(url))
        return;

    QProcess opener;
    opener.setProgram("xdg-open");
    opener.setArguments({QString::fromLatin1(url.toEncoded())});
    opener.setStandardInputFile(QProcess::nullDevice());
    opener.setStandardOutputFile(QProcess::nullDevice());
    opener.setStandardErrorFile(QProcess::nullDevice());
    opener.startDetached();
}

} // namespace quillet
