#include "gateway/GatewayFleet.h"

#include "gateway/DeviceHost.h"
#include "gateway/GatewayLog.h"

#include <boost/asio/post.hpp>

#include <QBuffer>

#include <libyuv.h>

#include <algorithm>

namespace orvane::cloud {

using boost::asio::ip::tcp;

namespace {

constexpr std::size_t MaxConnections = 2048;
// After an accept failed (out of file descriptors, as a rule).
constexpr std::chrono::milliseconds AcceptRetry{200};
// For the farewells when the gateway goes down.
constexpr std::chrono::seconds StopTime{2};

// The image (32 bits per pixel) with its longest side at most `maxSide`; 0 = as it is. Not with
// QImage::scaled(), which would start threads of its own.
QImage scaledDown(const QImage &image, int maxSide)
{
    if (maxSide <= 0 || std::max(image.width(), image.height()) <= maxSide) {
        return image;
    }
    const QSize size = image.size().scaled(maxSide, maxSide, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    QImage scaled(size, image.format());
    libyuv::ARGBScale(image.constBits(), image.bytesPerLine(), image.width(), image.height(), scaled.bits(),
        scaled.bytesPerLine(), size.width(), size.height(), libyuv::kFilterBox);
    return scaled;
}

} // namespace

GatewayFleet::GatewayFleet(Options options, SessionStore &sessions)
    : m_options(std::move(options))
    , m_sessions(sessions)
    , m_workers(m_options.workerThreads)
    , m_acceptor(m_network)
    , m_acceptTimer(m_network)
    , m_port(m_options.port)
{
    for (const Device &device : m_options.devices) {
        m_devices[device.padCode]
            = std::make_shared<DeviceHost>(device.padCode, device.name, device.screen, m_workers.executor());
    }
}

GatewayFleet::~GatewayFleet()
{
    try {
        stop();
    } catch (const std::exception &error) {
        qCWarning(gatewayLog, "the gateway did not stop in order: %s", error.what());
    }
}

bool GatewayFleet::start()
{
    ErrorCode error;
    if (!listen(error)) {
        m_errorText = "cannot listen on " + m_options.listenAddress + " port "
            + std::to_string(m_options.port) + ": " + error.message();
        return false;
    }
    accept();
    m_work.emplace(boost::asio::make_work_guard(m_network));
    m_networkThread = std::thread([this] { m_network.run(); });
    qCInfo(gatewayLog, "listening on %s port %u with %zu devices", m_options.listenAddress.c_str(),
        unsigned(m_port.load()), m_devices.size());
    return true;
}

bool GatewayFleet::listen(ErrorCode &error)
{
    const auto address = boost::asio::ip::make_address(m_options.listenAddress, error);
    if (error) {
        return false;
    }
    const tcp::endpoint endpoint(address, m_options.port);
    m_acceptor.open(endpoint.protocol(), error);
    if (!error) {
        m_acceptor.set_option(tcp::acceptor::reuse_address(true), error);
    }
    if (!error) {
        m_acceptor.bind(endpoint, error);
    }
    if (!error) {
        m_acceptor.listen(boost::asio::socket_base::max_listen_connections, error);
    }
    if (!error) {
        const tcp::endpoint bound = m_acceptor.local_endpoint(error);
        m_port = bound.port();
    }
    return !error;
}

void GatewayFleet::stop()
{
    if (m_networkThread.joinable()) {
        boost::asio::post(m_network, [this] {
            m_acceptor.close();
            m_acceptTimer.cancel();
            for (const auto &connection : m_registry.withPad({})) {
                connection->end(EndCode::Shutdown, "the gateway goes down");
            }
        });
        if (!m_registry.waitUntilEmpty(Clock::now() + StopTime)) {
            qCWarning(gatewayLog, "%zu connections did not close in time", m_registry.size());
        }
        m_work.reset();
        m_network.stop();
        m_networkThread.join();
    }
    // Whatever is left ends here, in this thread: first the connections, then what the devices still do for
    // them, then what those answered. Afterwards no handler holds anything.
    for (const auto &connection : m_registry.withPad({})) {
        connection->cut();
    }
    m_network.restart();
    m_network.poll();
    m_workers.join();
    m_network.restart();
    m_network.poll();
}

// --- Accepting and logins ---

void GatewayFleet::accept()
{
    m_acceptor.async_accept(
        [this](const ErrorCode &error, tcp::socket socket) { onAccepted(error, std::move(socket)); });
}

void GatewayFleet::onAccepted(const ErrorCode &error, tcp::socket socket)
{
    if (!m_acceptor.is_open()) {
        return;
    }
    if (error) {
        qCWarning(gatewayLog, "a connection cannot be accepted: %s", error.message().c_str());
        return retryAccept();
    }
    if (m_registry.size() >= MaxConnections) {
        qCWarning(gatewayLog, "a connection is turned away: there are %zu already", MaxConnections);
    } else {
        const auto connection = std::make_shared<ClientConnection>(
            ++m_lastConnectionId, std::move(socket), m_registry,
            [this](client::Login login, std::function<void(ClientConnection::LoginAnswer)> answer) {
                checkLogin(std::move(login), std::move(answer));
            },
            m_options.times);
        m_registry.add(connection);
        connection->start();
    }
    accept();
}

void GatewayFleet::retryAccept()
{
    m_acceptTimer.expires_after(AcceptRetry);
    m_acceptTimer.async_wait([this](const ErrorCode &error) {
        if (!error && m_acceptor.is_open()) {
            accept();
        }
    });
}

void GatewayFleet::checkLogin(client::Login login, std::function<void(ClientConnection::LoginAnswer)> answer)
{
    // Looking the session up may wait for the disk.
    boost::asio::post(m_workers.executor(), [this, login = std::move(login), answer = std::move(answer)] {
        boost::asio::post(m_network, [answer, decision = decide(login)] { answer(decision); });
    });
}

ClientConnection::LoginAnswer GatewayFleet::decide(const client::Login &login)
{
    SessionState state = SessionState::Unknown;
    try {
        state = m_sessions.check({login.sessionId, login.padCode, login.userId});
    } catch (const std::exception &error) {
        qCWarning(gatewayLog, "a session cannot be looked up: %s", error.what());
        return {LoginCode::Busy, "the session cannot be looked up", nullptr};
    }
    if (state == SessionState::Expired) {
        return {LoginCode::Expired, "the device's time is over", nullptr};
    }
    const auto device = m_devices.find(login.padCode);
    if (state != SessionState::Valid || device == m_devices.end()) {
        return {LoginCode::UnknownSession, "the session is not known", nullptr};
    }
    return {LoginCode::Ok, {}, device->second};
}

// --- DeviceFleet ---

std::string GatewayFleet::controlIp() const
{
    return m_options.listenAddress;
}

std::uint16_t GatewayFleet::controlPort() const
{
    return m_port;
}

DeviceHost *GatewayFleet::find(const std::string &padCode) const
{
    const auto device = m_devices.find(padCode);
    return device == m_devices.end() ? nullptr : device->second.get();
}

bool GatewayFleet::contains(const std::string &padCode) const
{
    return find(padCode) != nullptr;
}

DeviceState GatewayFleet::state(const std::string &padCode) const
{
    DeviceHost *device = find(padCode);
    return device ? device->state() : DeviceState::Online;
}

bool GatewayFleet::reboot(const std::string &padCode)
{
    DeviceHost *device = find(padCode);
    if (device) {
        device->reboot();
    }
    return device != nullptr;
}

void GatewayFleet::endSession(const std::string &sessionId, bool expired)
{
    for (const auto &connection : m_registry.withSession(sessionId)) {
        connection->endSession(expired);
    }
}

std::string GatewayFleet::screenPng(const std::string &padCode, int maxSide)
{
    DeviceHost *device = find(padCode);
    if (!device) {
        return {};
    }
    const QImage image = scaledDown(device->screen(), maxSide);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG")) {
        qCWarning(gatewayLog, "%s: the screen cannot be saved as PNG", padCode.c_str());
        return {};
    }
    return png.toStdString();
}

std::uint64_t GatewayFleet::screenVersion(const std::string &padCode) const
{
    DeviceHost *device = find(padCode);
    return device ? device->screenVersion() : 0;
}

std::vector<InputRecord> GatewayFleet::inputsSince(const std::string &padCode, std::uint64_t sequence) const
{
    DeviceHost *device = find(padCode);
    return device ? device->inputsSince(sequence) : std::vector<InputRecord>();
}

bool GatewayFleet::openApp(const std::string &padCode, const std::string &app)
{
    DeviceHost *device = find(padCode);
    return device && device->openApp(app);
}

bool GatewayFleet::setFilmRate(const std::string &padCode, int picturesPerSecond)
{
    DeviceHost *device = find(padCode);
    if (device) {
        device->setFilmRate(picturesPerSecond);
    }
    return device != nullptr;
}

bool GatewayFleet::rotate(const std::string &padCode, int rotation)
{
    DeviceHost *device = find(padCode);
    return device && device->rotate(rotation);
}

bool GatewayFleet::requestCamera(const std::string &padCode, bool on)
{
    DeviceHost *device = find(padCode);
    if (device) {
        device->requestCamera(on);
    }
    return device != nullptr;
}

std::string GatewayFleet::appStateJson(const std::string &padCode) const
{
    DeviceHost *device = find(padCode);
    return device ? device->appStateJson() : std::string();
}

int GatewayFleet::cutConnections(const std::string &padCode)
{
    const auto connections = m_registry.withPad(padCode);
    for (const auto &connection : connections) {
        connection->cut();
    }
    return static_cast<int>(connections.size());
}

int GatewayFleet::stallConnections(const std::string &padCode, std::chrono::milliseconds duration)
{
    const auto connections = m_registry.withPad(padCode);
    for (const auto &connection : connections) {
        connection->stall(duration);
    }
    return static_cast<int>(connections.size());
}

void GatewayFleet::limitBandwidth(const std::string &padCode, int kbitPerSec)
{
    m_registry.limitBandwidth(padCode, std::max(0, kbitPerSec));
}

int GatewayFleet::corruptVideo(const std::string &padCode, int count)
{
    const auto connections = m_registry.withPad(padCode);
    for (const auto &connection : connections) {
        connection->counters()->corruptNext = std::max(0, count);
    }
    return static_cast<int>(connections.size());
}

std::vector<SessionStats> GatewayFleet::stats() const
{
    return m_registry.stats();
}

} // namespace orvane::cloud
