#pragma once

#include "api/ApiCall.h"
#include "api/DeviceStore.h"
#include "api/PictureLinks.h"
#include "core/SessionStore.h"

#include <string>
#include <vector>

namespace orvane::cloud {

class DeviceFleet;
class Router;
struct ServiceData;

// /apiv1/device/: the user's devices and what can be done with them. Handlers run on the server's worker
// threads. Owned by ApiService.
class DeviceApi
{
public:
    DeviceApi(ServiceData &data, DeviceFleet &fleet);

    void addRoutes(Router &router);

private:
    enum class Action { Apply, Unbind, Reboot };

    ApiAnswer list(const ApiCall &call) const;
    ApiAnswer picture(const ApiCall &call) const;
    ApiAnswer actOnOne(const ApiCall &call);
    ApiAnswer actOnMany(const ApiCall &call);

    static Action actionOf(const ApiCall &call);
    QJsonObject describe(const Device &device, const SignIn &signIn) const;
    bool isOver(const Device &device) const;
    bool canAct(const Device &device, Action action) const;
    void demandThatItCanAct(const Device &device, Action action) const;
    std::vector<Device> devicesOf(const ApiCall &call, Action action) const;
    std::vector<StreamSession> grant(const SignIn &signIn, const std::vector<Device> &devices);
    void unbind(const SignIn &signIn, const std::vector<Device> &devices);
    QJsonObject connectionOf(const StreamSession &session) const;

    ServiceData &m_data;
    DeviceFleet &m_fleet;
    PictureLinks m_pictureLinks;
};

} // namespace orvane::cloud
