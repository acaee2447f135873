#include "api/HttpServer.h"

#include "api/ApiLog.h"

#include <boost/asio/post.hpp>

#include <future>
#include <stdexcept>

namespace orvane::cloud {

namespace asio = boost::asio;

namespace {

// Accepting fails when file descriptors run out; there are some again when a client leaves.
constexpr auto acceptRetryDelay = std::chrono::milliseconds(200);

} // namespace

HttpServer::HttpServer(const HttpServerOptions &options, HttpHandler handler)
    : m_context(options, std::move(handler))
    , m_acceptor(m_network)
    , m_acceptAgain(m_network)
{ }

HttpServer::~HttpServer()
{
    stop();
}

void HttpServer::start()
{
    const HttpServerOptions &options = m_context.options;
    try {
        listen();
    } catch (const boost::system::system_error &error) {
        throw std::runtime_error("cannot listen on " + options.address + " port "
            + std::to_string(options.port) + ": " + error.code().message());
    }
    accept();
    m_thread = std::thread([this] { m_network.run(); });
}

void HttpServer::listen()
{
    const asio::ip::tcp::endpoint endpoint(
        asio::ip::make_address(m_context.options.address), m_context.options.port);
    m_acceptor.open(endpoint.protocol());
    m_acceptor.set_option(asio::socket_base::reuse_address(true));
    m_acceptor.bind(endpoint);
    m_acceptor.listen();
    m_port = m_acceptor.local_endpoint().port();
}

void HttpServer::stop()
{
    if (!m_thread.joinable())
        return;
    // First no more requests reach the workers, then the workers finish: they hand their replies to the
    // network thread, which ends when these are written.
    std::promise<void> closed;
    asio::post(m_network, [this, &closed] {
        m_acceptor.close();
        m_acceptAgain.cancel();
        for (HttpConnection *connection : m_context.connections)
            connection->end();
        closed.set_value();
    });
    closed.get_future().wait();
    m_context.workers.join();
    m_work.reset();
    m_thread.join();
}

void HttpServer::accept()
{
    m_acceptor.async_accept([this](const boost::beast::error_code &error, asio::ip::tcp::socket socket) {
        onAccepted(error, std::move(socket));
    });
}

void HttpServer::onAccepted(const boost::beast::error_code &error, asio::ip::tcp::socket socket)
{
    if (!m_acceptor.is_open())
        return;
    if (error) {
        qCWarning(apiLog, "accepting a connection: %s", error.message().c_str());
        m_acceptAgain.expires_after(acceptRetryDelay);
        m_acceptAgain.async_wait([this](const boost::beast::error_code &cancelled) {
            if (!cancelled)
                accept();
        });
        return;
    }
    if (m_context.connections.size() < m_context.options.maxConnections)
        std::make_shared<HttpConnection>(std::move(socket), m_context)->start();
    else
        qCWarning(apiLog, "refused a connection: %zu are open", m_context.connections.size());
    accept();
}

} // namespace orvane::cloud
