#pragma once

#include "api/Clocks.h"
#include "api/Database.h"
#include "api/DeviceGroupStore.h"
#include "api/DeviceStore.h"
#include "api/KeyMapStore.h"
#include "api/ReleaseFolder.h"
#include "api/ReleaseStore.h"
#include "api/SignInStore.h"
#include "api/StreamSessionStore.h"
#include "api/UserStore.h"

#include <string>

namespace orvane::cloud {

// Everything the service remembers: the database in its data folder with the stores over it. Created first
// and destroyed last by the program; its members may be used from any thread.
struct ServiceData
{
    // `folder` is created if need be. Throws DatabaseError.
    explicit ServiceData(const std::string &folder, Clocks serviceClocks = {});

    Clocks clocks;
    Database database;
    UserStore users;
    SignInStore signIns;
    DeviceStore devices;
    DeviceGroupStore groups;
    StreamSessionStore sessions;
    ReleaseStore releases;
    ReleaseFolder releaseFiles;
    KeyMapStore keyMaps;
};

} // namespace orvane::cloud
