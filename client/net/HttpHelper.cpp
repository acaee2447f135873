#include "net/HttpHelper.h"

#include "net/ApiBaseUrl.h"

#include <QDebug>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

#include <algorithm>

namespace {

// What the service expects in every request.
namespace Contract {
const char contentType[] = "application/json";
const char accessTokenHeader[] = "access-token";
const char loginIdHeader[] = "login-id";
const char languageHeader[] = "lang";
const char terminalHeader[] = "terminal";
const char terminal[] = "cluster_control"; // the kind of client
const char versionHeader[] = "pc-version";
const char version[] = "1130"; // version code, not the version shown to the user
} // namespace Contract

// Who is signed in; GUI thread.
struct Session
{
    QString accessToken;
    QString loginId;
    QString language;
};

Session &session()
{
    static Session shared;
    return shared;
}

// An empty value is sent, not left out: a null byte array would remove the header. The values come from the
// page; one with a line break in it would end the header and start another.
QByteArray headerValue(const char *name, const QString &text)
{
    const auto isControl
        = [](QChar character) { return character.unicode() < 0x20 || character.unicode() == 0x7f; };
    if (std::any_of(text.begin(), text.end(), isControl)) {
        qWarning() << "control characters in the value of a request header, sent empty:" << name;
        return QByteArray("");
    }
    return text.isEmpty() ? QByteArray("") : text.toUtf8();
}

} // namespace

HttpHelper::HttpHelper(QObject *parent)
    : QObject(parent)
{ }

HttpHelper::~HttpHelper() = default;

QString HttpHelper::apiBaseUrl()
{
    static const QString chosen = ApiBaseUrl::choose(
        qEnvironmentVariable(ApiBaseUrl::environmentVariable), QStringLiteral(ORVANE_API_BASE_URL));
    return chosen;
}

QNetworkReply *HttpHelper::get(
    const QString &url, const SuccessCallback &onSuccess, const ErrorCallback &onError)
{
    QNetworkReply *reply = accessManager()->get(createRequest(url));
    connect(reply, &QNetworkReply::downloadProgress, this, &HttpHelper::sigDownloadProgress);
    callBackWhenFinished(reply, onSuccess, onError);
    return reply;
}

QNetworkReply *HttpHelper::post(
    const QString &url, const QString &body, const SuccessCallback &onSuccess, const ErrorCallback &onError)
{
    QNetworkReply *reply = accessManager()->post(createRequest(url), body.toUtf8());
    callBackWhenFinished(reply, onSuccess, onError);
    return reply;
}

QString HttpHelper::failureText(const QString &serviceMessage)
{
    if (!serviceMessage.trimmed().isEmpty())
        return serviceMessage;
    //: The service could not be reached, or gave no reason.
    return tr("The request failed. Please try again later.");
}

QNetworkAccessManager *HttpHelper::accessManager()
{
    if (!m_accessManager)
        m_accessManager = new QNetworkAccessManager(this);
    return m_accessManager;
}

QNetworkRequest HttpHelper::createRequest(const QString &url)
{
    QNetworkRequest request{QUrl(url)};
    request.setHeader(QNetworkRequest::ContentTypeHeader, QLatin1String(Contract::contentType));
    const auto setSessionHeader = [&request](const char *name, const QString &value) {
        request.setRawHeader(name, headerValue(name, value));
    };
    setSessionHeader(Contract::accessTokenHeader, session().accessToken);
    setSessionHeader(Contract::loginIdHeader, session().loginId);
    setSessionHeader(Contract::languageHeader, session().language);
    request.setRawHeader(Contract::terminalHeader, Contract::terminal);
    request.setRawHeader(Contract::versionHeader, Contract::version);
    return request;
}

// A callback may destroy the helper, so nothing of it is used afterwards, and the reply, which is still
// signalling, no longer belongs to it.
void HttpHelper::callBackWhenFinished(
    QNetworkReply *reply, const SuccessCallback &onSuccess, const ErrorCallback &onError)
{
    connect(reply, &QNetworkReply::finished, this, [reply, onSuccess, onError] {
        reply->setParent(nullptr);
        reply->deleteLater();
        if (reply->error() != QNetworkReply::NoError) {
            if (onError)
                onError(reply->errorString());
        } else if (onSuccess) {
            onSuccess(ResponseData::fromJson(QString::fromUtf8(reply->readAll())));
        }
    });
}

QString HttpHelper::accessToken()
{
    return session().accessToken;
}

QString HttpHelper::loginId()
{
    return session().loginId;
}

QString HttpHelper::language()
{
    return session().language;
}

void HttpHelper::setAccessToken(const QString &accessToken)
{
    session().accessToken = accessToken;
}

void HttpHelper::setLoginId(const QString &loginId)
{
    session().loginId = loginId;
}

void HttpHelper::setLanguage(const QString &language)
{
    session().language = language;
}

void HttpHelper::setLoginParams(const QString &accessToken, const QString &loginId)
{
    setAccessToken(accessToken);
    setLoginId(loginId);
}
