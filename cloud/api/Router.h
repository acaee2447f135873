#pragma once

#include "api/ApiCall.h"
#include "api/ApiError.h"
#include "api/HttpMessages.h"

#include <boost/beast/http/verb.hpp>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::cloud {

class SignInStore;

// Who may call a route.
enum class Access {
    Everybody,
    SignedIn, // the identity headers name a sign-in that is in force
    Tests, // programs on this machine, but no web pages
};

// Leads HTTP requests to handlers: path and method, access, body and query on the way in; envelope, picture
// or HTTP error on the way out. Routes are added before the server starts; handle() may be called from any
// thread. Owned by ApiService.
class Router
{
public:
    using Verb = boost::beast::http::verb;
    // Throws ApiError to refuse. Any other exception is logged and answered with ServiceFault.
    using Handler = std::function<ApiAnswer(const ApiCall &)>;

    explicit Router(SignInStore &signIns);

    // `pattern` is a path; a segment {pad} takes any value and reaches the handler as ApiCall::pad.
    void add(Verb method, std::string_view pattern, Access access, Handler handler);

    // Gives the file of that name, or none.
    using FileHandler = std::function<std::optional<FileDelivery>(const std::string &name)>;
    // GET for everybody of the files that a pattern with a segment {file} stands for. One that is not there
    // is an HTTP error.
    void addFiles(std::string_view pattern, FileHandler handler);

    HttpReply handle(const HttpRequest &request) const;

private:
    struct Route
    {
        Verb method;
        std::vector<std::string> segments;
        Access access;
        Handler handler;
        FileHandler fileHandler; // in place of the other
    };
    struct Match
    {
        const Route *route = nullptr; // none when no route has the method
        std::vector<Verb> methods; // of the path; empty = there is no such path
        std::string parameter; // value of the segment that takes any
    };

    Match match(Verb method, const std::vector<std::string> &segments, bool mayTest) const;
    HttpReply answer(const HttpRequest &request, const Match &match) const;
    SignIn signInOf(const HttpRequest &request) const;

    SignInStore &m_signIns;
    std::vector<Route> m_routes; // unchanged once the server runs
};

} // namespace orvane::cloud
