#include "api/UserApi.h"

#include "api/Router.h"
#include "api/ServiceData.h"
#include "core/DeviceFleet.h"

#include <algorithm>

namespace orvane::cloud {

namespace {

[[noreturn]] void refuseForAWhile()
{
    throw ApiError(ApiCode::TooManyFailures, "Too many failed sign-ins. Please try again in a minute.");
}

} // namespace

UserApi::UserApi(ServiceData &data, DeviceFleet &fleet)
    : m_data(data)
    , m_fleet(fleet)
    , m_limiter(data.clocks)
{ }

void UserApi::addRoutes(Router &router)
{
    using Verb = Router::Verb;
    router.add(Verb::post, "/apiv1/user/login", Access::Everybody,
        [this](const ApiCall &call) { return signIn(call); });
    router.add(Verb::post, "/apiv1/user/logout", Access::SignedIn,
        [this](const ApiCall &call) { return signOut(call); });
    router.add(Verb::get, "/apiv1/user/session", Access::SignedIn,
        [this](const ApiCall &call) { return session(call); });
}

ApiAnswer UserApi::signIn(const ApiCall &call)
{
    const std::string account = call.body.text("account");
    const std::string password = call.body.secret("password");
    if (!m_limiter.allows(account))
        refuseForAWhile();
    const std::optional<User> user = m_data.users.authenticate(account, password);
    if (!m_limiter.settle(account, user.has_value()))
        refuseForAWhile();
    if (!user)
        throw ApiError(ApiCode::WrongPassword, "The account or the password is wrong.");

    const SignInGrant grant = m_data.signIns.create(user->id);
    return {{{QStringLiteral("access_token"), QString::fromStdString(grant.accessToken)},
                {QStringLiteral("login_id"), QString::fromStdString(grant.loginId)},
                {QStringLiteral("user_name"), QString::fromStdString(user->name)},
                {QStringLiteral("expires_in"), static_cast<qint64>(signInLifetime.count())}},
        {}};
}

ApiAnswer UserApi::signOut(const ApiCall &call)
{
    for (const std::string &sessionId : m_data.signIns.remove(call.signIn.id))
        m_fleet.endSession(sessionId, false);
    return {};
}

ApiAnswer UserApi::session(const ApiCall &call) const
{
    const std::optional<User> user = m_data.users.findById(call.signIn.userId);
    if (!user)
        throw ApiError(ApiCode::NotSignedIn, "Please sign in.");
    const auto left
        = std::chrono::duration_cast<std::chrono::seconds>(call.signIn.expiresAt - m_data.clocks.wall());
    return {{{QStringLiteral("user_name"), QString::fromStdString(user->name)},
                {QStringLiteral("login_id"), QString::fromStdString(call.signIn.loginId)},
                {QStringLiteral("expires_in"), std::max<qint64>(0, left.count())}},
        {}};
}

} // namespace orvane::cloud
