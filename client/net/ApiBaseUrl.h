#pragma once

#include <QString>

// Which root the service's HTTP API has: a build setting that the environment may override, so that one build
// can be pointed at a test service. Any thread.
namespace ApiBaseUrl {

// Name of the environment variable that overrides the build setting.
extern const char environmentVariable[];

// Whether a text can be the API root: an absolute https URL without a trailing slash, query, fragment or user
// part. Plain http is accepted for a loopback host only, since the access token travels in every request.
bool isAcceptable(const QString &url);

// The override if there is one and it is acceptable; otherwise the build setting. A refused override is
// logged.
QString choose(const QString &override, const QString &buildSetting);

} // namespace ApiBaseUrl
