#include "api/ClientApi.h"

#include "api/Router.h"
#include "api/ServiceData.h"

#include <QJsonArray>

#include <array>

namespace orvane::cloud {

namespace {

// Minutes before the end of a device's time at which the page warns, descending.
constexpr std::array expireNoticeMinutes{30, 10, 5};

// Where this service has the files of its own release, as the client reaches it.
QString ownUpdatePath(const std::string &host)
{
    return QStringLiteral("http://%1/release").arg(QString::fromStdString(host));
}

QJsonObject describe(const Release &release, const std::string &host)
{
    const QString updatePath
        = release.updatePath.empty() ? ownUpdatePath(host) : QString::fromStdString(release.updatePath);
    QJsonArray files;
    for (const Release::File &file : release.files)
        files.append(QJsonObject{{QStringLiteral("file_name"), QString::fromStdString(file.name)},
            {QStringLiteral("size"), static_cast<qint64>(file.bytes)}});
    return {{QStringLiteral("has_update"), true},
        {QStringLiteral("version"), QString::fromStdString(release.version)},
        {QStringLiteral("version_code"), QString::number(release.versionCode)},
        {QStringLiteral("notes"), QString::fromStdString(release.notes)},
        {QStringLiteral("pc_update_info"),
            QJsonObject{{QStringLiteral("update_path"), updatePath}, {QStringLiteral("file_info"), files}}}};
}

} // namespace

ClientApi::ClientApi(ServiceData &data)
    : m_data(data)
{ }

void ClientApi::addRoutes(Router &router)
{
    using Verb = Router::Verb;
    router.add(Verb::get, "/apiv1/client/config", Access::SignedIn, &ClientApi::config);
    router.add(Verb::get, "/apiv1/client/update", Access::SignedIn,
        [this](const ApiCall &call) { return update(call); });
}

ApiAnswer ClientApi::config(const ApiCall &)
{
    QJsonArray minutes;
    for (const int threshold : expireNoticeMinutes)
        minutes.append(threshold);
    return {{{QStringLiteral("expire_notice_minutes"), minutes}}, {}};
}

ApiAnswer ClientApi::update(const ApiCall &call) const
{
    const std::optional<Release> release = m_data.releases.newest();
    if (!release || release->versionCode <= call.clientVersionCode)
        return {{{QStringLiteral("has_update"), false}}, {}};
    return {describe(*release, call.host), {}};
}

} // namespace orvane::cloud
