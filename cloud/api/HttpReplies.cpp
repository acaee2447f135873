#include "api/HttpReplies.h"

#include <QJsonDocument>

namespace orvane::cloud {

namespace http = boost::beast::http;

namespace {

// What a page may send and how long the browser may remember that.
constexpr const char *allowedHeaders = "access-token, login-id, lang, terminal, pc-version, content-type";
constexpr const char *allowedMethods = "GET, POST, OPTIONS";
constexpr const char *preflightMaxAgeSeconds = "600";

HttpResponse newReply(http::status status)
{
    HttpResponse reply;
    reply.result(status);
    reply.set(http::field::access_control_allow_origin, "*");
    reply.set(http::field::access_control_allow_headers, allowedHeaders);
    reply.set(http::field::access_control_allow_methods, allowedMethods);
    return reply;
}

HttpResponse jsonReply(http::status status, int code, const std::string &message, const QJsonValue &data)
{
    const QJsonObject envelope{{QStringLiteral("code"), code},
        {QStringLiteral("msg"), QString::fromStdString(message)}, {QStringLiteral("data"), data}};
    HttpResponse reply = newReply(status);
    reply.set(http::field::content_type, "application/json; charset=utf-8");
    reply.set(http::field::cache_control, "no-store");
    reply.body() = QJsonDocument(envelope).toJson(QJsonDocument::Compact).toStdString();
    return reply;
}

} // namespace

HttpResponse envelopeReply(ApiCode code, const std::string &message, const QJsonValue &data)
{
    return jsonReply(http::status::ok, static_cast<int>(code), message, data);
}

HttpResponse answerReply(const ApiAnswer &answer)
{
    if (answer.png.empty())
        return envelopeReply(
            ApiCode::Done, "success", answer.list ? QJsonValue(*answer.list) : QJsonValue(answer.data));
    HttpResponse reply = newReply(http::status::ok);
    reply.set(http::field::content_type, "image/png");
    // A link names one state of the screen, so the page need not fetch it again.
    reply.set(http::field::cache_control, "private, max-age=3600");
    reply.body() = answer.png;
    return reply;
}

HttpReply fileReply(FileDelivery file)
{
    HttpResponse reply = newReply(http::status::ok);
    reply.set(http::field::content_type, "application/octet-stream");
    reply.set(http::field::cache_control, "no-store");
    return {std::move(reply), std::move(file)};
}

HttpResponse errorReply(http::status status, const std::string &message)
{
    return jsonReply(status, static_cast<int>(status), message, QJsonObject());
}

HttpResponse optionsReply(const std::string &methods)
{
    HttpResponse reply = newReply(http::status::no_content);
    reply.set(http::field::allow, methods);
    reply.set(http::field::access_control_max_age, preflightMaxAgeSeconds);
    return reply;
}

} // namespace orvane::cloud
