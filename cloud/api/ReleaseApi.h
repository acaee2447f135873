#pragma once

#include "api/ApiCall.h"

namespace orvane::cloud {

class Router;
struct ServiceData;

// /release/: the files of the release that the service offers itself. /admin/release: lets tests on this
// machine publish a release and disturb its delivery. Handlers run on the server's worker threads. Owned by
// ApiService.
class ReleaseApi
{
public:
    explicit ReleaseApi(ServiceData &data);

    void addRoutes(Router &router);

private:
    ApiAnswer setRelease(const ApiCall &call);
    ApiAnswer setFaults(const ApiCall &call);
    ApiAnswer requests(const ApiCall &call);

    ServiceData &m_data;
};

} // namespace orvane::cloud
