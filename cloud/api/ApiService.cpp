#include "api/ApiService.h"

#include "api/ServiceData.h"

namespace orvane::cloud {

ApiService::ApiService(ServiceData &data, DeviceFleet &fleet, const HttpServerOptions &options)
    : m_router(data.signIns)
    , m_expiryWatch(data, fleet)
    , m_userApi(data, fleet)
    , m_deviceApi(data, fleet)
    , m_deviceGroupApi(data)
    , m_clientApi(data)
    , m_keyMapApi(data)
    , m_adminApi(data, fleet, m_expiryWatch)
    , m_releaseApi(data)
    , m_server(options, [this](const HttpRequest &request) { return m_router.handle(request); })
{
    m_userApi.addRoutes(m_router);
    m_deviceApi.addRoutes(m_router);
    m_deviceGroupApi.addRoutes(m_router);
    m_clientApi.addRoutes(m_router);
    m_keyMapApi.addRoutes(m_router);
    m_adminApi.addRoutes(m_router);
    m_releaseApi.addRoutes(m_router);
}

void ApiService::start()
{
    m_server.start();
    m_expiryWatch.start();
}

} // namespace orvane::cloud
