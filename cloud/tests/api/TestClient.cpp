#include "TestClient.h"

#include <QJsonDocument>

#include <boost/asio/read.hpp>
#include <boost/asio/write.hpp>
#include <boost/beast/http/read.hpp>
#include <boost/beast/http/write.hpp>

#include <optional>
#include <stdexcept>

namespace orvane::cloud::test {

namespace asio = boost::asio;
namespace http = boost::beast::http;

QJsonObject Reply::envelope() const
{
    return QJsonDocument::fromJson(QByteArray::fromStdString(body)).object();
}

TestClient::TestClient(std::uint16_t port, const std::string &address)
    : m_socket(m_context)
{
    m_socket.connect({asio::ip::make_address(address), port});
}

boost::system::error_code TestClient::finish(const Begin &begin)
{
    std::optional<boost::system::error_code> result;
    begin([&result](boost::system::error_code error, std::size_t) { result = error; });
    m_context.restart();
    m_context.run_for(std::chrono::seconds(10));
    if (!result)
        throw std::runtime_error("no answer from the service within 10 s");
    return *result;
}

Reply TestClient::request(
    const std::string &method, const std::string &target, const std::string &body, const Headers &headers)
{
    http::request<http::string_body> request;
    request.method_string(method);
    request.target(target);
    request.version(11);
    request.set(http::field::host, "127.0.0.1");
    for (const auto &[name, value] : headers)
        request.set(name, value);
    request.body() = body;
    request.prepare_payload();
    http::write(m_socket, request);
    return readReply();
}

Reply TestClient::post(const std::string &target, const QJsonObject &body, const Headers &headers)
{
    // Indented, as the client sends it.
    return request("POST", target, QJsonDocument(body).toJson().toStdString(), headers);
}

void TestClient::send(const std::string &bytes)
{
    boost::system::error_code ignored; // the service may have closed already; what it said can still be read
    asio::write(m_socket, asio::buffer(bytes), ignored);
}

Reply TestClient::readReply()
{
    http::response<http::string_body> response;
    const auto error
        = finish([&](Done done) { http::async_read(m_socket, m_buffer, response, std::move(done)); });
    if (error)
        throw boost::system::system_error(error, "reading a reply");
    return Reply{static_cast<int>(response.result_int()), response.base(), response.body()};
}

std::string TestClient::readToEnd()
{
    std::string received;
    const auto error = finish(
        [&](Done done) { asio::async_read(m_socket, asio::dynamic_buffer(received), std::move(done)); });
    if (error != asio::error::eof && error != asio::error::connection_reset)
        throw boost::system::system_error(error, "waiting for the end of the connection");
    return received;
}

void TestClient::shutdownSend()
{
    m_socket.shutdown(asio::ip::tcp::socket::shutdown_send);
}

} // namespace orvane::cloud::test
