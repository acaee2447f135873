#pragma once

#include "api/ApiCall.h"
#include "api/SignInLimiter.h"

namespace orvane::cloud {

class DeviceFleet;
class Router;
struct ServiceData;

// /apiv1/user/: signing in and out, and whether a sign-in is still good. Handlers run on the server's worker
// threads. Owned by ApiService.
class UserApi
{
public:
    UserApi(ServiceData &data, DeviceFleet &fleet);

    void addRoutes(Router &router);

private:
    ApiAnswer signIn(const ApiCall &call);
    ApiAnswer signOut(const ApiCall &call);
    ApiAnswer session(const ApiCall &call) const;

    ServiceData &m_data;
    DeviceFleet &m_fleet;
    SignInLimiter m_limiter;
};

} // namespace orvane::cloud
