#pragma once

#include "api/ApiCall.h"
#include "api/ApiError.h"
#include "api/HttpMessages.h"

#include <boost/beast/http/status.hpp>

#include <string>

namespace orvane::cloud {

// The replies of the API, complete but for what depends on the connection (keep-alive, version). Any thread.

// {"code", "msg", "data"} with HTTP status 200. `data`: an object or an array.
HttpResponse envelopeReply(ApiCode code, const std::string &message, const QJsonValue &data = QJsonObject());
// The handler's answer: an envelope, or the picture itself.
HttpResponse answerReply(const ApiAnswer &answer);
// A file, whose bytes are the body.
HttpReply fileReply(FileDelivery file);
// Something is wrong with the HTTP request itself. The body is an envelope whose code is the status.
HttpResponse errorReply(boost::beast::http::status status, const std::string &message);
// Answer to OPTIONS, for which a page asks before it calls from another origin. `methods`: "GET, OPTIONS".
HttpResponse optionsReply(const std::string &methods);

} // namespace orvane::cloud
