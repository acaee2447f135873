#pragma once

#include <QJsonObject>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http/message.hpp>
#include <boost/beast/http/string_body.hpp>

#include <functional>
#include <map>
#include <string>

namespace orvane::cloud::test {

using Headers = std::map<std::string, std::string>;

// One reply of the service.
struct Reply
{
    int status = 0;
    boost::beast::http::fields fields;
    std::string body;

    std::string field(const std::string &name) const { return std::string(fields[name]); }
    QJsonObject envelope() const; // empty if the body is none
    int code() const { return envelope().value(QStringLiteral("code")).toInt(); }
    std::string message() const { return envelope().value(QStringLiteral("msg")).toString().toStdString(); }
    QJsonObject data() const { return envelope().value(QStringLiteral("data")).toObject(); }
};

// One connection to the service: blocking, with nothing of the service's own HTTP code in the way of the
// bytes. Waits at most 10 s for an answer. One thread.
class TestClient
{
public:
    explicit TestClient(std::uint16_t port, const std::string &address = "127.0.0.1");

    Reply request(const std::string &method, const std::string &target, const std::string &body = {},
        const Headers &headers = {});
    Reply get(const std::string &target, const Headers &headers = {})
    {
        return request("GET", target, {}, headers);
    }
    Reply post(const std::string &target, const QJsonObject &body, const Headers &headers = {});

    // Bytes as they are.
    void send(const std::string &bytes);
    Reply readReply();
    // Reads until the service closes; throws when it does not within 10 s.
    std::string readToEnd();
    void shutdownSend();

private:
    using Done = std::function<void(boost::system::error_code, std::size_t)>;
    using Begin = std::function<void(Done)>;

    // Runs one asynchronous operation to its end and returns its result. Throws when that takes over 10 s.
    boost::system::error_code finish(const Begin &begin);

    boost::asio::io_context m_context;
    boost::asio::ip::tcp::socket m_socket;
    boost::beast::flat_buffer m_buffer;
};

} // namespace orvane::cloud::test
