#pragma once

#include <boost/beast/http/message.hpp>
#include <boost/beast/http/string_body.hpp>

#include <functional>

namespace orvane::cloud {

// One HTTP request as it was received, with what the server knows about its sender.
struct HttpRequest
{
    boost::beast::http::request<boost::beast::http::string_body> message;
    bool fromLoopback = false; // the peer is on this machine
};

using HttpResponse = boost::beast::http::response<boost::beast::http::string_body>;

// Answers a request. Called on the server's worker threads, several at once; must not throw.
using HttpHandler = std::function<HttpResponse(const HttpRequest &)>;

} // namespace orvane::cloud
