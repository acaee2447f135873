#pragma once

#include "net/ResponseData.h"

#include <QObject>
#include <QString>

#include <functional>

class QNetworkAccessManager;
class QNetworkReply;
class QNetworkRequest;

// The one way to the service's HTTP API: sends requests with the headers that identify session and client,
// and hands the answer's envelope to a callback. Each window or manager owns a helper of its own, with itself
// as parent: destroying the helper drops its pending requests, and their callbacks are not called.
//
// GUI thread only; the callbacks run there as well. Who the session is, is shared by all helpers.
class HttpHelper : public QObject
{
    Q_OBJECT

public:
    using SuccessCallback = std::function<void(const ResponseData &)>;
    // Takes the network layer's error text.
    using ErrorCallback = std::function<void(const QString &)>;

    explicit HttpHelper(QObject *parent = nullptr);
    ~HttpHelper() override;

    // The root of the service's HTTP API, without a trailing slash; an endpoint's path is appended to it. It
    // is chosen on the first call and stays.
    static QString apiBaseUrl();

    // Sends a request to a full URL. After a transport without error (the service's own code in the envelope
    // is the caller's to look at) onSuccess is called once; after any other, HTTP error statuses included,
    // onError. Either may be empty. A GET also reports its progress by sigDownloadProgress. The reply belongs
    // to the helper and is deleted after completion.
    QNetworkReply *get(const QString &url, const SuccessCallback &onSuccess, const ErrorCallback &onError);
    // As get, with a JSON document as the body, sent as UTF-8.
    QNetworkReply *post(const QString &url, const QString &body, const SuccessCallback &onSuccess,
        const ErrorCallback &onError);

    // What the user is told of a request that failed: the service's own message, or, without one, a general
    // sentence in the user's language. A network layer's error text is for the log.
    static QString failureText(const QString &serviceMessage = QString());

    // The session's identity, empty until the web front end signs in. A change shows in the requests sent
    // from then on.
    static QString accessToken();
    static QString loginId();
    static QString language();
    static void setAccessToken(const QString &accessToken);
    static void setLoginId(const QString &loginId);
    // The front end's short language code, such as "en" or "cn".
    static void setLanguage(const QString &language);
    static void setLoginParams(const QString &accessToken, const QString &loginId);

signals:
    // A GET's progress in bytes; bytesTotal is -1 while it is unknown.
    void sigDownloadProgress(qint64 bytesReceived, qint64 bytesTotal);
    // Part of the interface; completion and failure reach the caller through the callbacks.
    void sigDownloadSuccess();
    void sigDownloadFailed(const QString &error);

private:
    QNetworkAccessManager *accessManager();
    static QNetworkRequest createRequest(const QString &url);
    void callBackWhenFinished(
        QNetworkReply *reply, const SuccessCallback &onSuccess, const ErrorCallback &onError);

    QNetworkAccessManager *m_accessManager = nullptr; // child, made by the first request
};
