#pragma once

#include "api/FileDelivery.h"

#include <boost/beast/http/message.hpp>
#include <boost/beast/http/string_body.hpp>

#include <functional>
#include <optional>
#include <utility>

namespace orvane::cloud {

// One HTTP request as it was received, with what the server knows about its sender.
struct HttpRequest
{
    boost::beast::http::request<boost::beast::http::string_body> message;
    bool fromLoopback = false; // the peer is on this machine
};

using HttpResponse = boost::beast::http::response<boost::beast::http::string_body>;

// What a request is answered with: a message or, if there is a file, the head of one whose body is the file.
struct HttpReply
{
    HttpReply(HttpResponse response) // NOLINT(google-explicit-constructor): most replies are just that
        : message(std::move(response))
    { }
    HttpReply(HttpResponse head, FileDelivery body)
        : message(std::move(head))
        , file(std::move(body))
    { }

    HttpResponse message;
    std::optional<FileDelivery> file;
};

// Answers a request. Called on the server's worker threads, several at once; must not throw.
using HttpHandler = std::function<HttpReply(const HttpRequest &)>;

} // namespace orvane::cloud
