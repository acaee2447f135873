#pragma once

#include <QImage>
#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace e2e {

// The real local service in a process of its own, with a data directory of its own and free ports. The ports
// stay the same over kill() and start(), as they do for a service that is restarted.
class Service
{
public:
    // `program`: path of orvane-cloud; `options`: more of its command line.
    explicit Service(const QString &program, int devices = 12, const QStringList &options = {});
    ~Service();

    // Starts it and waits until it is ready. Throws StepFailed.
    void start();
    // Ends it without a chance to say goodbye.
    void kill();
    bool isRunning() const { return m_process.state() == QProcess::Running; }
    qint64 pid() const { return m_process.processId(); }

    QString apiBaseUrl() const { return m_apiBaseUrl; }
    quint16 gatewayPort() const { return m_gatewayPort; }
    // Signs in as the demo user and returns the answer's data.
    QJsonObject signIn();
    // One call of the API; returns the whole envelope. Throws StepFailed when there is no answer.
    QJsonObject call(const QString &method, const QString &path, const QJsonObject &body = {},
        const QJsonObject &headers = {}) const;
    // One call under /admin/; returns "data". Throws StepFailed unless the code is 200.
    QJsonObject admin(const QString &method, const QString &path, const QJsonObject &body = {}) const;

    // Every device, by service id: objects with "pad_code", "service_id", "alias_name", …
    QJsonArray devices() const;
    // What a device received after a sequence number, oldest first, each with "sequence" and "time_us".
    QJsonArray inputRecords(const QString &pad, qint64 since = 0) const;
    // The same without them: the "event" objects.
    QJsonArray inputEvents(const QString &pad, qint64 since = 0) const;
    QJsonObject appState(const QString &pad) const;
    // The device's screen as its panel shows it, 720 x 1280 however it is turned.
    QImage screen(const QString &pad) const;
    void openApp(const QString &pad, const QString &app) const;
    // How many pictures a second the device's Video app shows, 1 to 25.
    void setFilmRate(const QString &pad, int picturesPerSecond) const;
    // Turns the device's screen; in quarter turns, 0 to 3.
    void rotate(const QString &pad, int rotation) const;
    // What GET /admin/stats tells of the connected session with a device; empty while there is none.
    QJsonObject sessionStats(const QString &pad) const;
    QString output() const { return QString::fromUtf8(m_output); }

private:
    // One request; returns the answer's body. Throws StepFailed when there is no answer.
    QByteArray request(const QString &method, const QString &path, const QJsonObject &body = {},
        const QJsonObject &headers = {}) const;

    QString m_program;
    int m_devices;
    QStringList m_options;
    QTemporaryDir m_data;
    QProcess m_process;
    QString m_apiBaseUrl;
    quint16 m_httpPort = 0;
    quint16 m_gatewayPort = 0;
    QByteArray m_output; // what it wrote to stderr
};

} // namespace e2e
