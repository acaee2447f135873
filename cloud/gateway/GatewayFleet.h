#pragma once

#include "core/DeviceFleet.h"
#include "core/SessionStore.h"
#include "gateway/ClientConnection.h"
#include "gateway/ConnectionRegistry.h"
#include "gateway/WorkerPool.h"

#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/io_context.hpp>

#include <QSize>

#include <map>
#include <memory>
#include <optional>
#include <thread>

namespace orvane::cloud {

class DeviceHost;

// The streaming gateway with its virtual devices. Owns the network thread, which accepts and serves every
// connection, and the worker pool, on which the devices draw and encode. The operations of DeviceFleet may be
// called from any thread between construction and destruction; start() and stop() belong to the owner.
//
// The process needs a QGuiApplication (the offscreen platform will do), since devices draw text.
class GatewayFleet : public DeviceFleet
{
public:
    struct Device
    {
        std::string padCode;
        std::string name;
        QSize screen{720, 1280}; // in portrait, pixels, even
    };

    struct Options
    {
        std::string listenAddress = "127.0.0.1"; // IPv4 or IPv6; also what controlIp() hands out
        std::uint16_t port = 8181; // 0 = any free port
        std::vector<Device> devices;
        unsigned workerThreads = 2; // at least 1
        ConnectionTimes times;
    };

    // `sessions` must outlive the fleet.
    GatewayFleet(Options options, SessionStore &sessions);
    ~GatewayFleet() override; // stops

    // Begins to listen. False when that is not possible (the address is taken or wrong); errorText() then
    // tells why.
    bool start();
    const std::string &errorText() const { return m_errorText; }
    // Tells every client that the gateway goes down, closes everything and waits for the threads. For good.
    void stop();

    std::string controlIp() const override;
    std::uint16_t controlPort() const override;
    bool contains(const std::string &padCode) const override;
    DeviceState state(const std::string &padCode) const override;
    bool reboot(const std::string &padCode) override;
    void endSession(const std::string &sessionId, bool expired) override;
    std::string screenPng(const std::string &padCode, int maxSide) override;
    std::uint64_t screenVersion(const std::string &padCode) const override;

    std::vector<InputRecord> inputsSince(const std::string &padCode, std::uint64_t sequence) const override;
    bool openApp(const std::string &padCode, const std::string &app) override;
    bool setFilmRate(const std::string &padCode, int picturesPerSecond) override;
    bool rotate(const std::string &padCode, int rotation) override;
    bool requestCamera(const std::string &padCode, bool on) override;
    std::string appStateJson(const std::string &padCode) const override;
    int cutConnections(const std::string &padCode) override;
    int stallConnections(const std::string &padCode, std::chrono::milliseconds duration) override;
    void limitBandwidth(const std::string &padCode, int kbitPerSec) override;
    int corruptVideo(const std::string &padCode, int count) override;
    std::vector<SessionStats> stats() const override;

private:
    using ErrorCode = boost::system::error_code;

    bool listen(ErrorCode &error);
    void accept();
    void onAccepted(const ErrorCode &error, boost::asio::ip::tcp::socket socket);
    void retryAccept();
    void checkLogin(client::Login login, std::function<void(ClientConnection::LoginAnswer)> answer);
    ClientConnection::LoginAnswer decide(const client::Login &login);
    DeviceHost *find(const std::string &padCode) const;

    const Options m_options;
    SessionStore &m_sessions;
    std::string m_errorText;

    // Destroyed from the last to the first: nothing may outlive the context that its operations run in.
    boost::asio::io_context m_network;
    WorkerPool m_workers;
    std::map<std::string, std::shared_ptr<DeviceHost>> m_devices; // constant after construction
    ConnectionRegistry m_registry;
    boost::asio::ip::tcp::acceptor m_acceptor; // network thread after start()
    boost::asio::steady_timer m_acceptTimer; // network thread
    std::uint64_t m_lastConnectionId = 0; // network thread
    std::atomic<std::uint16_t> m_port{0};
    std::optional<boost::asio::executor_work_guard<boost::asio::io_context::executor_type>> m_work;
    std::thread m_networkThread;
};

} // namespace orvane::cloud
