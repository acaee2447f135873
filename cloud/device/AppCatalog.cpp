#include "device/AppCatalog.h"

#include "device/ArenaApp.h"
#include "device/CameraApp.h"
#include "device/LatencyApp.h"
#include "device/ListApp.h"
#include "device/NotesApp.h"
#include "device/PaintApp.h"
#include "device/SettingsApp.h"
#include "device/VideoApp.h"

namespace orvane::cloud {

const std::vector<AppKind> &installedApps()
{
    static const std::vector<AppKind> apps{AppKind::Paint, AppKind::Notes, AppKind::List, AppKind::Video,
        AppKind::Latency, AppKind::Camera, AppKind::Arena, AppKind::Settings};
    return apps;
}

QString appName(AppKind kind)
{
    switch (kind) {
    case AppKind::Home:
        return QStringLiteral("Home");
    case AppKind::Paint:
        return QStringLiteral("Paint");
    case AppKind::Notes:
        return QStringLiteral("Notes");
    case AppKind::List:
        return QStringLiteral("List");
    case AppKind::Video:
        return QStringLiteral("Video");
    case AppKind::Latency:
        return QStringLiteral("Latency");
    case AppKind::Camera:
        return QStringLiteral("Camera");
    case AppKind::Arena:
        return QStringLiteral("Arena");
    case AppKind::Settings:
        return QStringLiteral("Settings");
    }
    return {};
}

std::optional<AppKind> appByName(const QString &name)
{
    if (name == appName(AppKind::Home)) {
        return AppKind::Home;
    }
    for (const AppKind kind : installedApps()) {
        if (name == appName(kind)) {
            return kind;
        }
    }
    return std::nullopt;
}

std::unique_ptr<App> makeApp(AppKind kind, App::Host host)
{
    switch (kind) {
    case AppKind::Paint:
        return std::make_unique<PaintApp>(std::move(host));
    case AppKind::Notes:
        return std::make_unique<NotesApp>(std::move(host));
    case AppKind::List:
        return std::make_unique<ListApp>(std::move(host));
    case AppKind::Video:
        return std::make_unique<VideoApp>(std::move(host));
    case AppKind::Latency:
        return std::make_unique<LatencyApp>(std::move(host));
    case AppKind::Camera:
        return std::make_unique<CameraApp>(std::move(host));
    case AppKind::Arena:
        return std::make_unique<ArenaApp>(std::move(host));
    case AppKind::Settings:
        return std::make_unique<SettingsApp>(std::move(host));
    case AppKind::Home:
        break;
    }
    return nullptr;
}

} // namespace orvane::cloud
