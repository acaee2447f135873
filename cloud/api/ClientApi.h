#pragma once

#include "api/ApiCall.h"

namespace orvane::cloud {

class Router;
struct ServiceData;

// /apiv1/client/: what the service tells a client about itself: settings of the page, newer versions.
// Handlers run on the server's worker threads. Owned by ApiService.
class ClientApi
{
public:
    explicit ClientApi(ServiceData &data);

    void addRoutes(Router &router);

private:
    static ApiAnswer config(const ApiCall &call);
    ApiAnswer update(const ApiCall &call) const;

    ServiceData &m_data;
};

} // namespace orvane::cloud
