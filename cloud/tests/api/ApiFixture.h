#pragma once

#include "FakeFleet.h"
#include "TestClient.h"

#include "api/ApiService.h"
#include "api/ServiceData.h"

#include <QJsonObject>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <memory>

namespace orvane::cloud::test {

// Clocks that stand still until the test moves them. Starts at 2026-11-21 09:30:00 UTC. Any thread.
class ManualClocks
{
public:
    Clocks clocks();
    void advance(std::chrono::milliseconds duration) { m_elapsedMs += duration.count(); }

private:
    std::atomic<std::int64_t> m_elapsedMs{0};
};

// The HTTP API of a newly set up service on a free port, over a fake fleet.
class ApiFixture : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    // Starts the service over the data folder, as it is.
    void startService(Clocks clocks);
    void stopService();

    TestClient client() const { return TestClient(m_api->port()); }
    Reply get(const std::string &target, const Headers &headers = {}) const
    {
        return client().get(target, headers);
    }
    Reply post(const std::string &target, const QJsonObject &body, const Headers &headers = {}) const
    {
        return client().post(target, body, headers);
    }
    Reply postText(const std::string &target, const std::string &body, const Headers &headers = {}) const
    {
        return client().request("POST", target, body, headers);
    }
    Reply signIn(const std::string &account, const std::string &password) const;
    // Identity headers after a sign-in that must succeed.
    Headers signedIn(const std::string &account = "demo") const;
    Reply act(const Headers &headers, const std::string &serviceId, const std::string &action) const;
    Reply actOnMany(
        const Headers &headers, const std::vector<std::string> &serviceIds, const std::string &action) const;
    // Session id of a device_apply that must succeed.
    std::string apply(const Headers &headers, const std::string &serviceId) const;
    SessionState stateOf(const std::string &sessionId, const std::string &padCode, int userId);

    HttpServerOptions m_httpOptions;
    QTemporaryDir m_folder;
    ManualClocks m_time;
    std::unique_ptr<ServiceData> m_data;
    std::unique_ptr<FakeFleet> m_fleet;
    std::unique_ptr<ApiService> m_api;
};

} // namespace orvane::cloud::test
