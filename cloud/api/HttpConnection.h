#pragma once

#include "api/FileSender.h"
#include "api/HttpMessages.h"
#include "api/HttpServerOptions.h"

#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/thread_pool.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/core/tcp_stream.hpp>
#include <boost/beast/http/empty_body.hpp>
#include <boost/beast/http/parser.hpp>

#include <array>
#include <memory>
#include <optional>
#include <set>

namespace orvane::cloud {

class HttpConnection;

// What the connections of one server share. Outlives them; owned by HttpServer.
struct HttpConnectionContext
{
    HttpServerOptions options;
    HttpHandler handler;
    boost::asio::thread_pool workers;
    std::set<HttpConnection *> connections; // open ones; network thread

    HttpConnectionContext(HttpServerOptions serverOptions, HttpHandler requestHandler)
        : options(std::move(serverOptions))
        , handler(std::move(requestHandler))
        , workers(static_cast<std::size_t>(options.workers))
    { }
};

// One client's connection: reads a request, has it handled on a worker thread, writes the reply, and so on
// for as long as both sides wish. Everything but the handler runs on the server's network thread. Owned by
// its own pending operations; it ends with the last of them.
class HttpConnection : public std::enable_shared_from_this<HttpConnection>
{
public:
    HttpConnection(boost::asio::ip::tcp::socket socket, HttpConnectionContext &context);
    ~HttpConnection();
    HttpConnection(const HttpConnection &) = delete;
    HttpConnection &operator=(const HttpConnection &) = delete;

    void start() { readHeader(); }
    // Closes it; if a request is being handled, once that is answered.
    void end();

private:
    using ErrorCode = boost::beast::error_code;
    using Parser = boost::beast::http::request_parser<boost::beast::http::string_body>;

    void readHeader();
    void onHeader(ErrorCode error);
    void sendContinue();
    void readBody();
    void onBody(ErrorCode error);
    void onReadFailed(ErrorCode error);
    void handle();
    void write(HttpReply reply, bool keepAlive);
    void onHeadWritten(ErrorCode error);
    void onWritten(ErrorCode error);
    // Says goodbye and waits until the client has read the reply; closing with data unread would destroy it.
    void linger();
    void drain();

    HttpConnectionContext &m_context;
    boost::beast::tcp_stream m_stream;
    boost::beast::flat_buffer m_buffer; // received, not yet parsed
    std::optional<Parser> m_parser;
    bool m_handling = false;
    bool m_ending = false;
    HttpRequest m_request; // the worker's while a request is handled
    boost::beast::http::response<boost::beast::http::empty_body> m_continue;
    HttpResponse m_response;
    std::unique_ptr<FileSender> m_file; // the body of m_response, if it is a file
    std::array<char, 4096> m_drained{};
};

} // namespace orvane::cloud
