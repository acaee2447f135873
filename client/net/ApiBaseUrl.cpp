#include "net/ApiBaseUrl.h"

#include <QDebug>
#include <QHostAddress>
#include <QUrl>

namespace ApiBaseUrl {

const char environmentVariable[] = "ORVANE_API_BASE_URL";

namespace {

bool isLoopback(const QString &host)
{
    return host.compare(QLatin1String("localhost"), Qt::CaseInsensitive) == 0
        || QHostAddress(host).isLoopback();
}

} // namespace

bool isAcceptable(const QString &url)
{
    const QUrl parsed(url, QUrl::StrictMode);
    if (!parsed.isValid() || parsed.host().isEmpty() || url.endsWith(QLatin1Char('/')))
        return false;
    if (parsed.hasQuery() || parsed.hasFragment() || !parsed.userInfo().isEmpty())
        return false;
    return parsed.scheme() == QLatin1String("https")
        || (parsed.scheme() == QLatin1String("http") && isLoopback(parsed.host()));
}

QString choose(const QString &override, const QString &buildSetting)
{
    if (override.isEmpty())
        return buildSetting;
    if (isAcceptable(override))
        return override;
    qWarning().noquote()
        << environmentVariable
        << "is ignored: it must be an https URL without a trailing slash (http for a loopback "
           "host only), but is:"
        << override;
    return buildSetting;
}

} // namespace ApiBaseUrl
