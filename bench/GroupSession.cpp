#include "GroupSession.h"

#include "Waiting.h"

#include "group/BatchProcessThread.h"
#include "group/SubControlPage.h"
#include "group/SubController.h"
#include "net/HttpHelper.h"
#include "stream/VideoView.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QScrollArea>

#include <algorithm>
#include <unistd.h>

namespace bench {

namespace {

constexpr int filmRate = 5; // pictures a second
constexpr int openTimeoutMs = 60000;

bool hasPicture(VideoView &view)
{
    const bool has = view.lockFrameBuffer() != nullptr;
    if (has)
        view.unlockFrameBuffer();
    return has;
}

} // namespace

GroupSession::GroupSession(int devices)
    : m_service(QCoreApplication::applicationDirPath() + QStringLiteral("/orvane-cloud"), devices)
{
    m_service.start();
    qputenv("ORVANE_API_BASE_URL", m_service.apiBaseUrl().toUtf8());
    signIn();
    showFilms();
}

GroupSession::~GroupSession()
{
    delete m_window;
}

void GroupSession::signIn()
{
    const QJsonObject user = m_service.signIn();
    const QString token = user.value(QLatin1String("access_token")).toString();
    const QString login = user.value(QLatin1String("login_id")).toString();
    HttpHelper::setLoginParams(token, login);
    const QJsonObject headers{{QStringLiteral("access-token"), token}, {QStringLiteral("login-id"), login}};
    const QJsonObject list
        = m_service.call(QStringLiteral("GET"), QStringLiteral("/apiv1/device/list"), {}, headers);
    const QJsonArray devices
        = list.value(QLatin1String("data")).toObject().value(QLatin1String("devices")).toArray();
    m_devices = group::groupDevicesOf({{QStringLiteral("children"), devices}});
    for (const QJsonValue &device : devices)
        m_pads.append(device.toObject().value(QLatin1String("device_id")).toString());
    m_tilePads = m_pads.mid(1);
}

void GroupSession::showFilms()
{
    for (const QString &pad : qAsConst(m_pads)) {
        m_service.setFilmRate(pad, filmRate);
        m_service.openApp(pad, QStringLiteral("Video"));
    }
}

double GroupSession::open()
{
    QElapsedTimer timer;
    timer.start();
    m_window = new GroupController;
    m_window->show();
    m_window->setDevices(m_devices);
    const auto shown = [this] {
        const std::vector<SubController *> tiles = shownTiles();
        return !tiles.empty() && std::all_of(tiles.begin(), tiles.end(), [](const SubController *tile) {
            return tile->videoView() && hasPicture(*tile->videoView());
        });
    };
    QEventLoop loop;
    while (!shown()) {
        loop.processEvents(QEventLoop::WaitForMoreEvents);
        if (timer.elapsed() > openTimeoutMs)
            throw e2e::StepFailed(QStringLiteral("the tiles have no pictures"));
    }
    m_window->repaint();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

SubControlPage &GroupSession::page() const
{
    return *m_window->subControlPage();
}

BatchProcessThread &GroupSession::batchThread() const
{
    return *page().findChild<BatchProcessThread *>();
}

std::vector<SubController *> GroupSession::shownTiles() const
{
    std::vector<SubController *> tiles;
    const int first = (page().currentPage() - 1) * SubControlPage::tilesPerPage;
    for (int i = first; i < first + SubControlPage::tilesPerPage; ++i) {
        if (SubController *tile = page().controllerAt(i))
            tiles.push_back(tile);
    }
    return tiles;
}

int GroupSession::visibleTiles() const
{
    const auto *grid = page().findChild<QScrollArea *>();
    const QRect shown = grid->viewport()->rect();
    const std::vector<SubController *> tiles = shownTiles();
    return static_cast<int>(std::count_if(tiles.begin(), tiles.end(), [&](const SubController *tile) {
        return shown.intersects(QRect(tile->mapTo(grid->viewport(), {}), tile->size()));
    }));
}

double GroupSession::tilePicturesSent() const
{
    double sent = 0;
    const QJsonArray sessions = m_service.admin(QStringLiteral("GET"), QStringLiteral("/admin/stats"))
                                    .value(QLatin1String("sessions"))
                                    .toArray();
    for (const QJsonValue &value : sessions) {
        const QJsonObject session = value.toObject();
        if (session.value(QLatin1String("pad_code")).toString() != m_pads.first())
            sent += session.value(QLatin1String("frames_sent")).toDouble();
    }
    return sent;
}

double GroupSession::serviceCpuMs() const
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(m_service.pid()));
    if (!file.open(QIODevice::ReadOnly))
        throw e2e::StepFailed(QStringLiteral("the service's CPU time cannot be read"));
    // The second field, the program's name in brackets, may hold blanks.
    const QByteArray text = file.readAll();
    const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
    constexpr int userTime = 11; // counted from the third field
    const double ticks = fields.value(userTime).toDouble() + fields.value(userTime + 1).toDouble();
    return ticks * 1000 / static_cast<double>(::sysconf(_SC_CLK_TCK));
}

} // namespace bench
