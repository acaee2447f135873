#pragma once

#include "api/AdminApi.h"
#include "api/ClientApi.h"
#include "api/DeviceApi.h"
#include "api/DeviceGroupApi.h"
#include "api/ExpiryWatch.h"
#include "api/HttpServer.h"
#include "api/KeyMapApi.h"
#include "api/ReleaseApi.h"
#include "api/Router.h"
#include "api/UserApi.h"

namespace orvane::cloud {

// The whole HTTP API over the service's data and the fleet of devices. Owned by the program, and used by its
// main thread.
class ApiService
{
public:
    // `data` and `fleet` outlive it.
    ApiService(ServiceData &data, DeviceFleet &fleet, const HttpServerOptions &options);

    // Throws std::runtime_error when the address cannot be listened on.
    void start();
    // Requests that are being handled finish first.
    void stop() { m_server.stop(); }

    std::uint16_t port() const { return m_server.port(); }
    ExpiryWatch &expiryWatch() { return m_expiryWatch; }

private:
    Router m_router;
    ExpiryWatch m_expiryWatch;
    UserApi m_userApi;
    DeviceApi m_deviceApi;
    DeviceGroupApi m_deviceGroupApi;
    ClientApi m_clientApi;
    KeyMapApi m_keyMapApi;
    AdminApi m_adminApi;
    ReleaseApi m_releaseApi;
    HttpServer m_server;
};

} // namespace orvane::cloud
