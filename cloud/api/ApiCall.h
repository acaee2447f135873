#pragma once

#include "api/Fields.h"
#include "api/SignInStore.h"

#include <QJsonArray>
#include <QJsonObject>

#include <cstdint>
#include <optional>
#include <string>

namespace orvane::cloud {

// What a handler gets of one request. Lives on the handling thread.
struct ApiCall
{
    Fields body; // members of the JSON body; empty for GET
    Fields query; // values of the query as texts
    std::string host; // how the client calls this service, with the port if it is not 80
    std::string pad; // the {pad} of the path, "" if its pattern has none
    std::int64_t clientVersionCode = 0; // "pc-version"; 0 if it is missing or no number
    SignIn signIn; // who calls; unset for routes that are open to everybody
};

// What a handler answers: the envelope's data or, instead of an envelope, a picture.
struct ApiAnswer
{
    QJsonObject data;
    std::string png; // not empty: PNG bytes
    std::optional<QJsonArray> list = std::nullopt; // set: the envelope's data is this list
};

} // namespace orvane::cloud
