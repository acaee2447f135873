#pragma once

#include "api/ApiCall.h"

#include <functional>

namespace orvane::cloud {

class DeviceFleet;
class ExpiryWatch;
class Router;
struct ServiceData;

// /admin/: lets tests on this machine see and disturb what goes on. Handlers run on the server's worker
// threads. Owned by ApiService.
class AdminApi
{
public:
    AdminApi(ServiceData &data, DeviceFleet &fleet, ExpiryWatch &expiry);

    void addRoutes(Router &router);

private:
    using Handler = ApiAnswer (AdminApi::*)(const ApiCall &);

    ApiAnswer devices(const ApiCall &call);
    ApiAnswer inputs(const ApiCall &call);
    ApiAnswer appState(const ApiCall &call);
    ApiAnswer openApp(const ApiCall &call);
    ApiAnswer setFilmRate(const ApiCall &call);
    ApiAnswer screen(const ApiCall &call);
    ApiAnswer rotate(const ApiCall &call);
    ApiAnswer camera(const ApiCall &call);
    ApiAnswer expire(const ApiCall &call);
    ApiAnswer setRemaining(const ApiCall &call);
    ApiAnswer cut(const ApiCall &call);
    ApiAnswer stall(const ApiCall &call);
    ApiAnswer limitBandwidth(const ApiCall &call);
    ApiAnswer corrupt(const ApiCall &call);
    ApiAnswer stats(const ApiCall &call);

    void demandDevice(const std::string &padCode) const;
    std::string padOfBody(const ApiCall &call) const;

    ServiceData &m_data;
    DeviceFleet &m_fleet;
    ExpiryWatch &m_expiry;
};

} // namespace orvane::cloud
