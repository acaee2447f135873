#include "ApiFixture.h"

#include "api/DemoData.h"

#include <QJsonArray>

#include <filesystem>

namespace orvane::cloud::test {

namespace {

constexpr std::int64_t startMs = 1'795'253'400'000; // 2026-11-21 09:30:00 UTC

// Hashing the seeded passwords takes long on purpose, so it is done once: the data folder of a new service.
const QTemporaryDir &newServiceFolder()
{
    static const QTemporaryDir folder;
    static const bool prepared = [] {
        ManualClocks time;
        ServiceData data(folder.path().toStdString(), time.clocks());
        prepareDemoData(data, std::nullopt);
        return true;
    }();
    EXPECT_TRUE(prepared);
    return folder;
}

} // namespace

Clocks ManualClocks::clocks()
{
    return Clocks{[this] { return WallTime(std::chrono::milliseconds(startMs + m_elapsedMs)); },
        [this] { return SteadyTime(std::chrono::milliseconds(1'000'000 + m_elapsedMs)); }};
}

void ApiFixture::SetUp()
{
    std::filesystem::copy(newServiceFolder().path().toStdString(), m_folder.path().toStdString());
    startService(m_time.clocks());
}

void ApiFixture::TearDown()
{
    stopService();
}

void ApiFixture::startService(Clocks clocks)
{
    m_data = std::make_unique<ServiceData>(m_folder.path().toStdString(), std::move(clocks));
    prepareDemoData(*m_data, std::nullopt);
    std::vector<std::string> padCodes;
    for (const Device &device : m_data->devices.all())
        padCodes.push_back(device.padCode);
    m_fleet = std::make_unique<FakeFleet>(padCodes);
    m_api = std::make_unique<ApiService>(*m_data, *m_fleet, m_httpOptions);
    m_api->start();
}

void ApiFixture::stopService()
{
    m_api.reset();
    m_fleet.reset();
    m_data.reset();
}

Reply ApiFixture::signIn(const std::string &account, const std::string &password) const
{
    return post("/apiv1/user/login",
        {{QStringLiteral("account"), QString::fromStdString(account)},
            {QStringLiteral("password"), QString::fromStdString(password)}});
}

Headers ApiFixture::signedIn(const std::string &account) const
{
    const QJsonObject data = signIn(account, "orvane-" + account).data();
    const Headers headers{
        {"access-token", data.value(QStringLiteral("access_token")).toString().toStdString()},
        {"login-id", data.value(QStringLiteral("login_id")).toString().toStdString()}};
    EXPECT_FALSE(headers.at("access-token").empty());
    return headers;
}

Reply ApiFixture::act(const Headers &headers, const std::string &serviceId, const std::string &action) const
{
    return post("/apiv1/device/actionDevice",
        {{QStringLiteral("service_id"), QString::fromStdString(serviceId)},
            {QStringLiteral("action_type"), QString::fromStdString(action)}},
        headers);
}

Reply ApiFixture::actOnMany(
    const Headers &headers, const std::vector<std::string> &serviceIds, const std::string &action) const
{
    QJsonArray ids;
    for (const std::string &serviceId : serviceIds)
        ids.append(QString::fromStdString(serviceId));
    return post("/apiv1/device/batchActionDevice",
        {{QStringLiteral("service_ids"), ids},
            {QStringLiteral("action_type"), QString::fromStdString(action)}},
        headers);
}

std::string ApiFixture::apply(const Headers &headers, const std::string &serviceId) const
{
    const Reply reply = act(headers, serviceId, "device_apply");
    EXPECT_EQ(reply.code(), 200) << reply.body;
    return reply.data()
        .value(QStringLiteral("resultInfo"))
        .toObject()
        .value(QStringLiteral("sessionId"))
        .toString()
        .toStdString();
}

SessionState ApiFixture::stateOf(const std::string &sessionId, const std::string &padCode, int userId)
{
    return m_data->sessions.check({sessionId, padCode, userId});
}

} // namespace orvane::cloud::test
