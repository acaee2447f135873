#pragma once

#include "api/ApiCall.h"

#include <string>
#include <vector>

namespace orvane::cloud {

class Router;
struct ServiceData;

// /apiv1/device/ccGroupList and actionCcGroup: the user's saved groups of devices. Handlers run on the
// server's worker threads. Owned by ApiService.
class DeviceGroupApi
{
public:
    explicit DeviceGroupApi(ServiceData &data);

    void addRoutes(Router &router);

private:
    ApiAnswer list(const ApiCall &call) const;
    ApiAnswer act(const ApiCall &call);
    ApiAnswer create(const ApiCall &call);
    ApiAnswer rename(const ApiCall &call);
    ApiAnswer remove(const ApiCall &call);

    std::vector<std::string> ownDevicesOf(const ApiCall &call) const;

    ServiceData &m_data;
};

} // namespace orvane::cloud
