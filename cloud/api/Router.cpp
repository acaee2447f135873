#include "api/Router.h"

#include "api/ApiLog.h"
#include "api/HttpReplies.h"

#include <QJsonDocument>
#include <QUrl>
#include <QUrlQuery>

#include <algorithm>
#include <charconv>
#include <exception>
#include <limits>

namespace orvane::cloud {

namespace http = boost::beast::http;

namespace {

bool isParameter(std::string_view segment)
{
    return segment == "{pad}" || segment == "{file}";
}

std::string_view view(boost::beast::string_view text)
{
    return {text.data(), text.size()};
}

std::vector<std::string> segmentsOf(std::string_view path)
{
    std::vector<std::string> segments;
    std::size_t begin = path.empty() || path.front() != '/' ? 0 : 1;
    while (begin <= path.size()) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        segments.emplace_back(path.substr(begin, end - begin));
        begin = end + 1;
    }
    return segments;
}

std::string decoded(const std::string &text)
{
    return QUrl::fromPercentEncoding(QByteArray::fromStdString(text)).toStdString();
}

QJsonObject queryValues(std::string_view query)
{
    const QUrlQuery parsed(QString::fromUtf8(query.data(), static_cast<int>(query.size())));
    QJsonObject values;
    for (const auto &[name, value] : parsed.queryItems(QUrl::FullyDecoded))
        values.insert(name, value);
    return values;
}

std::string methodList(const std::vector<http::verb> &methods)
{
    std::string list;
    for (const http::verb method : methods)
        list += std::string(view(http::to_string(method))) + ", ";
    return list + "OPTIONS";
}

// The host that the client meant, without the port: "127.0.0.1", "[::1]", "localhost".
std::string_view hostOf(const HttpRequest &request)
{
    const std::string_view host = view(request.message[http::field::host]);
    const std::size_t colon = host.rfind(':');
    const bool hasPort = colon != std::string_view::npos && host.find(']', colon) == std::string_view::npos;
    return hasPort ? host.substr(0, colon) : host;
}

// A page of the web that runs in a browser on this machine can reach loopback too. It names its origin or, if
// it has pointed a host name of its own to loopback, that name as the host.
bool isTestProgram(const HttpRequest &request)
{
    const std::string_view host = hostOf(request);
    const bool loopbackHost = host == "localhost" || host == "[::1]" || host.substr(0, 4) == "127.";
    return request.fromLoopback && loopbackHost && request.message.count(http::field::origin) == 0;
}

// 0 for what is no whole number from 0 on.
std::int64_t versionCode(std::string_view text)
{
    const bool isNumber = !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
    std::int64_t code = 0;
    if (!isNumber)
        return code;
    const std::errc error = std::from_chars(text.data(), text.data() + text.size(), code).ec;
    // Newer than anything there is, rather than older.
    return error == std::errc::result_out_of_range ? std::numeric_limits<std::int64_t>::max() : code;
}

// Thrown by value within this file only.
struct BodyError
{ };

QJsonObject bodyObject(const HttpRequest &request)
{
    const std::string &body = request.message.body();
    if (request.message.method() != http::verb::post || body.empty())
        return {};
    const QJsonDocument document
        = QJsonDocument::fromJson(QByteArray::fromRawData(body.data(), static_cast<int>(body.size())));
    if (!document.isObject())
        throw BodyError{};
    return document.object();
}

} // namespace

Router::Router(SignInStore &signIns)
    : m_signIns(signIns)
{ }

void Router::add(Verb method, std::string_view pattern, Access access, Handler handler)
{
    m_routes.push_back({method, segmentsOf(pattern), access, std::move(handler), {}});
}

void Router::addFiles(std::string_view pattern, FileHandler handler)
{
    m_routes.push_back({Verb::get, segmentsOf(pattern), Access::Everybody, {}, std::move(handler)});
}

HttpReply Router::handle(const HttpRequest &request) const
{
    const std::string_view target = view(request.message.target());
    const std::string_view path = target.substr(0, target.find('?'));
    const Verb method = request.message.method();
    const Match match = this->match(method, segmentsOf(path), isTestProgram(request));
    if (match.methods.empty())
        return errorReply(http::status::not_found, "There is no such path.");
    if (method == Verb::options)
        return optionsReply(methodList(match.methods));
    if (!match.route) {
        HttpResponse reply
            = errorReply(http::status::method_not_allowed, "This path does not know that method.");
        reply.set(http::field::allow, methodList(match.methods));
        return reply;
    }
    try {
        return answer(request, match);
    } catch (const ApiError &error) {
        return envelopeReply(error.code(), error.what());
    } catch (const BodyError &) {
        return errorReply(http::status::bad_request, "The body is not a JSON object.");
    } catch (const std::exception &error) {
        qCCritical(apiLog, "%.*s failed: %s", static_cast<int>(path.size()), path.data(), error.what());
        return envelopeReply(ApiCode::ServiceFault, "The service cannot do that at the moment.");
    }
}

Router::Match Router::match(Verb method, const std::vector<std::string> &segments, bool mayTest) const
{
    Match match;
    for (const Route &route : m_routes) {
        if (route.access == Access::Tests && !mayTest)
            continue;
        const bool same = std::equal(route.segments.begin(), route.segments.end(), segments.begin(),
            segments.end(), [](const std::string &pattern, const std::string &segment) {
                return pattern == segment || (isParameter(pattern) && !segment.empty());
            });
        if (!same)
            continue;
        match.methods.push_back(route.method);
        if (route.method != method)
            continue;
        match.route = &route;
        const auto position = std::find_if(route.segments.begin(), route.segments.end(), isParameter);
        if (position != route.segments.end())
            match.parameter = decoded(segments[static_cast<std::size_t>(position - route.segments.begin())]);
    }
    return match;
}

HttpReply Router::answer(const HttpRequest &request, const Match &match) const
{
    if (match.route->fileHandler) {
        std::optional<FileDelivery> file = match.route->fileHandler(match.parameter);
        if (!file)
            return errorReply(http::status::not_found, "There is no such file.");
        return fileReply(std::move(*file));
    }
    const std::string_view target = view(request.message.target());
    const std::size_t queryBegin = target.find('?');
    ApiCall call;
    call.body = Fields(bodyObject(request));
    if (queryBegin != std::string_view::npos)
        call.query = Fields(queryValues(target.substr(queryBegin + 1)));
    call.pad = match.parameter;
    call.host = view(request.message[http::field::host]);
    call.clientVersionCode = versionCode(view(request.message["pc-version"]));
    if (match.route->access == Access::SignedIn)
        call.signIn = signInOf(request);
    return answerReply(match.route->handler(call));
}

SignIn Router::signInOf(const HttpRequest &request) const
{
    const std::string_view token = view(request.message["access-token"]);
    const std::string_view loginId = view(request.message["login-id"]);
    const std::optional<SignIn> signIn
        = token.empty() || loginId.empty() ? std::nullopt : m_signIns.find(token, loginId);
    if (!signIn)
        throw ApiError(ApiCode::NotSignedIn, "Please sign in.");
    return *signIn;
}

} // namespace orvane::cloud
