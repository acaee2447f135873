#pragma once

#include "api/HttpConnection.h"

#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/steady_timer.hpp>

#include <string>
#include <thread>

namespace orvane::cloud {

// An HTTP/1.1 server: one network thread for all sockets and a few worker threads that handle requests, so
// that a slow handler holds up no other client. Owned by ApiService; start() and stop() are called by its
// thread.
class HttpServer
{
public:
    // `handler` is called on the worker threads, several at once, until stop() has returned.
    HttpServer(const HttpServerOptions &options, HttpHandler handler);
    ~HttpServer();
    HttpServer(const HttpServer &) = delete;
    HttpServer &operator=(const HttpServer &) = delete;

    // Listens and serves. Throws std::runtime_error when the address cannot be listened on. Once only.
    void start();
    // Closes all connections; requests that are being handled are answered first. May be called more than
    // once.
    void stop();

    // The port that is listened on; valid after start().
    std::uint16_t port() const { return m_port; }

private:
    void listen();
    void accept();
    void onAccepted(const boost::beast::error_code &error, boost::asio::ip::tcp::socket socket);

    HttpConnectionContext m_context;
    boost::asio::io_context m_network{1};
    boost::asio::ip::tcp::acceptor m_acceptor; // network thread, once that runs
    boost::asio::steady_timer m_acceptAgain; // network thread
    boost::asio::executor_work_guard<boost::asio::io_context::executor_type> m_work{m_network.get_executor()};
    std::uint16_t m_port = 0;
    std::thread m_thread;
};

} // namespace orvane::cloud
