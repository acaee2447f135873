#pragma once

#include <QJsonDocument>
#include <QJsonObject>
#include <QMutex>
#include <QStringList>
#include <QTest>
#include <QVector>
#include <QWebEnginePage>

// Helpers of the web shell's tests.
namespace webtest {

// One message of the log.
struct LogMessage
{
    QtMsgType type;
    QString text;
};

// Collects everything that is logged while it lives.
class LogCapture
{
public:
    LogCapture()
    {
        collected().clear();
        m_previous
            = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
                  const QMutexLocker lock(&mutex());
                  collected().append({type, text});
              });
    }
    ~LogCapture() { qInstallMessageHandler(m_previous); }
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    static QVector<LogMessage> messages()
    {
        const QMutexLocker lock(&mutex());
        return collected();
    }
    static QStringList text()
    {
        QStringList lines;
        for (const LogMessage &message : messages())
            lines << message.text;
        return lines;
    }

private:
    static QVector<LogMessage> &collected()
    {
        static QVector<LogMessage> messages;
        return messages;
    }
    static QMutex &mutex()
    {
        static QMutex lock;
        return lock;
    }

    QtMessageHandler m_previous;
};

// The value of a JavaScript expression in the page.
inline QVariant evaluate(QWebEnginePage *page, const QString &expression)
{
    QVariant result;
    bool done = false;
    page->runJavaScript(expression, [&](const QVariant &value) {
        result = value;
        done = true;
    });
    if (!QTest::qWaitFor([&] { return done; }, 10000))
        qWarning() << "the page did not answer:" << expression;
    return result;
}

inline QString callText(const QString &name, QJsonObject members = {})
{
    members.insert(QStringLiteral("jsApiName"), name);
    return QString::fromUtf8(QJsonDocument(members).toJson(QJsonDocument::Compact));
}

} // namespace webtest
