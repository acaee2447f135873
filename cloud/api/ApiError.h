#pragma once

#include <stdexcept>
#include <string>

namespace orvane::cloud {

// The envelope's "code"; docs/api.md says when each is used.
enum class ApiCode {
    Done = 200,
    BadField = 400,
    NotSignedIn = 401,
    WrongPassword = 403,
    NotFound = 404,
    NotNow = 409,
    TimeOver = 410,
    TooManyFailures = 429,
    ServiceFault = 500,
};

// A request that the service refuses. Thrown by the handlers, turned into an envelope by Router; what()
// becomes "msg" and is written for people.
class ApiError : public std::runtime_error
{
public:
    ApiError(ApiCode code, const std::string &message)
        : std::runtime_error(message)
        , m_code(code)
    { }

    ApiCode code() const { return m_code; }

private:
    ApiCode m_code;
};

} // namespace orvane::cloud
