#pragma once

#include "device/App.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace orvane::cloud {

enum class AppKind {
    Home,
    Paint,
    Notes,
    List,
    Video,
    Latency,
    Camera,
    Arena,
    Settings,
};

// The apps that the home screen offers, in its order.
const std::vector<AppKind> &installedApps();
// Name as shown and as used by the admin API, such as "Paint".
QString appName(AppKind kind);
// The app of that name, upper and lower case as given.
std::optional<AppKind> appByName(const QString &name);
// A fresh instance of an installed app; Home is made by the shell.
std::unique_ptr<App> makeApp(AppKind kind, App::Host host);

} // namespace orvane::cloud
