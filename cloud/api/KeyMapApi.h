#pragma once

#include "api/ApiCall.h"
#include "api/KeyMapStore.h"

namespace orvane::cloud {

class Router;
struct ServiceData;

// /apiv1/keyboard_map/: the user's key-map schemes, and the tutorial. Handlers run on the server's worker
// threads. Owned by ApiService.
class KeyMapApi
{
public:
    // Throws std::runtime_error when the tutorial that is built into the program is damaged.
    explicit KeyMapApi(ServiceData &data);

    void addRoutes(Router &router);

private:
    ApiAnswer list(const ApiCall &call) const;
    ApiAnswer create(const ApiCall &call);
    ApiAnswer act(const ApiCall &call);
    ApiAnswer update(const ApiCall &call);
    ApiAnswer copy(const ApiCall &call);
    ApiAnswer remove(const ApiCall &call);
    ApiAnswer share(const ApiCall &call);

    // The answer that names the new scheme.
    ApiAnswer save(std::int32_t userId, const KeyMapScheme &scheme);
    std::string freshName(std::int32_t userId) const;

    ServiceData &m_data;
    const QJsonObject m_guide;
};

} // namespace orvane::cloud
