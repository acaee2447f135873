#pragma once

#include <QJsonDocument>
#include <QJsonObject>
#include <QMutex>
#include <QStringList>
#include <QTest>
#include <QWebEnginePage>

// Helpers of the web shell's tests.
namespace webtest {

// Collects everything that is logged while it lives.
class LogCapture
{
public:
    LogCapture()
    {
        lines().clear();
        m_previous = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) {
            const QMutexLocker lock(&mutex());
            lines() << text;
        });
    }
    ~LogCapture() { qInstallMessageHandler(m_previous); }
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    static QStringList text()
    {
        const QMutexLocker lock(&mutex());
        return lines();
    }

private:
    static QStringList &lines()
    {
        static QStringList collected;
        return collected;
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
