// What a device receives of the keyboard: the real device window, the real runtime and the real service.

#include "Desktop.h"
#include "Service.h"
#include "UsKeys.h"
#include "Waiting.h"

#include "device/SingleController.h"
#include "net/HttpHelper.h"
#include "stream/VideoView.h"

#include <InputFocus.h>

#include <swplay/SWRuntime.h>

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QJsonArray>
#include <QKeyEvent>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using e2e::Desktop;
using e2e::Service;
using e2e::waitUntil;

namespace {

struct ModifierKey
{
    const char *xName;
    Qt::KeyboardModifier flag;
    int code; // linux/input-event-codes.h
};

// Indexed by uskeys::Modifier. The keypad's is not a key.
constexpr ModifierKey ModifierKeys[] = {{"", Qt::NoModifier, 0}, {"shift", Qt::ShiftModifier, 42},
    {"ctrl", Qt::ControlModifier, 29}, {"alt", Qt::AltModifier, 56}, {"", Qt::KeypadModifier, 0}};

QString textOf(const uskeys::Row &row)
{
    return row.text == uskeys::Nul ? QString(QChar(0)) : QString::fromLatin1(row.text);
}

QStringList wordsOf(const uskeys::Row &row)
{
    QStringList words{QStringLiteral("up %1").arg(row.up)};
    if (row.press)
        words.prepend(QString::fromLatin1(row.press));
    return words;
}

// An input event of the device in the words of the table.
QString asWords(const QJsonObject &event)
{
    const QString type = event.value(QLatin1String("type")).toString();
    if (type == QLatin1String("text"))
        return QStringLiteral("text ") + event.value(QLatin1String("text")).toString();
    if (type != QLatin1String("key"))
        return type;
    const int code = event.value(QLatin1String("code")).toInt();
    if (event.value(QLatin1String("action")).toInt() == 2)
        return QStringLiteral("up %1").arg(code); // whether with Shift or not, the key is up
    const bool shift = event.value(QLatin1String("shift")).toBool();
    return QStringLiteral("%1 %2%3")
        .arg(event.value(QLatin1String("action")).toInt() == 1 ? "down" : "click")
        .arg(code)
        .arg(shift ? QStringLiteral(" shift") : QString());
}

} // namespace

class TestInput : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();
    void pressedForReal_data();
    void pressedForReal();
    void sentToTheWindow_data();
    void sentToTheWindow();
    void texts_data();
    void pastedText_data() { texts_data(); }
    void pastedText();
    void committedText_data() { texts_data(); }
    void committedText();
    void nothingStaysDownAfterFocusLoss();
    void everythingThatWentDownCameUp();

private:
    void openWindow();
    // What the device has received since the last call, once there is as much as wanted.
    QStringList received(int count);
    QSet<int> keysDown() const;
    void sendKey(QEvent::Type type, const uskeys::Row &row);

    QTemporaryDir m_logDir;
    std::unique_ptr<Service> m_service;
    QString m_pad;
    std::unique_ptr<SingleController> m_window;
    int m_seen = 0; // input events of the device that a test has looked at
};

void TestInput::initTestCase()
{
    e2e::steps([&] {
        m_service = std::make_unique<Service>(
            QCoreApplication::applicationDirPath() + QStringLiteral("/orvane-cloud"), 1);
        m_service->start();
        qputenv("ORVANE_API_BASE_URL", m_service->apiBaseUrl().toUtf8());
        QCOMPARE(SWRuntime::getInstance()->init(1, qUtf8Printable(m_logDir.path())), 0);
        openWindow();
    });
    Desktop::setKeyRepeat(false); // a key that is held for long while the machine is busy
}

void TestInput::openWindow()
{
    const QJsonObject user = m_service->signIn();
    HttpHelper::setLoginParams(user.value(QLatin1String("access_token")).toString(),
        user.value(QLatin1String("login_id")).toVariant().toString());
    const QJsonObject device = m_service->admin(QStringLiteral("GET"), QStringLiteral("/admin/devices"))
                                   .value(QLatin1String("devices"))
                                   .toArray()
                                   .at(0)
                                   .toObject();
    m_pad = device.value(QLatin1String("pad_code")).toString();
    m_window = std::make_unique<SingleController>(
        device.value(QLatin1String("service_id")).toString(), QStringLiteral("Keyboard"));
    m_window->show();
    m_window->applyDevice();
    const auto *video = m_window->findChild<VideoView *>();
    waitUntil(QStringLiteral("the video"), [&] { return video->isVisible(); });
    const auto sessions = [this] {
        return m_service->admin(QStringLiteral("GET"), QStringLiteral("/admin/stats"))
            .value(QLatin1String("sessions"))
            .toArray()
            .size();
    };
    waitUntil(QStringLiteral("the session"), [&] { return sessions() == 1; });
}

void TestInput::init()
{
    e2e::steps([&] {
        if (!m_window->isActiveWindow()) {
            Desktop::activate(m_window->windowTitle());
            waitUntil(QStringLiteral("the window is active"), [&] { return m_window->isActiveWindow(); });
        }
        QVERIFY(waitForInputFocus(*m_window));
        m_seen += m_service->inputEvents(m_pad, m_seen).size(); // of a test that has failed
    });
}

void TestInput::cleanupTestCase()
{
    Desktop::setKeyRepeat(true);
    m_window.reset();
    SWRuntime::getInstance()->deinit();
    m_service.reset();
}

QStringList TestInput::received(int count)
{
    QJsonArray events;
    waitUntil(QStringLiteral("the device receives %1 events").arg(count), [&] {
        events = m_service->inputEvents(m_pad, m_seen);
        return events.size() >= count;
    });
    m_seen += events.size();
    QStringList words;
    for (const QJsonValue &event : qAsConst(events))
        words.append(asWords(event.toObject()));
    return words;
}

void TestInput::pressedForReal_data()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const uskeys::Row &row : uskeys::Rows) {
        if (row.xName) {
            const QByteArray held = ModifierKeys[row.modifier].xName;
            QTest::newRow((held.isEmpty() ? QByteArray(row.xName) : held + '+' + row.xName).constData())
                << index;
        }
        ++index;
    }
}

// By the display server: the client's toolkit makes key code and text of it.
void TestInput::pressedForReal()
{
    QFETCH(int, index);
    const uskeys::Row &row = uskeys::Rows[index];
    const ModifierKey &modifier = ModifierKeys[row.modifier];
    QStringList expected = wordsOf(row);
    if (modifier.code != 0) {
        expected.prepend(QStringLiteral("text "));
        expected.append(QStringLiteral("up %1").arg(modifier.code));
    }
    const QString key = QString::fromLatin1(row.xName);
    e2e::steps([&] {
        if (modifier.code == 0)
            Desktop::key(key);
        else
            Desktop::key(key, QString::fromLatin1(modifier.xName));
        QCOMPARE(received(expected.size()), expected);
    });
}

void TestInput::sentToTheWindow_data()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const uskeys::Row &row : uskeys::Rows)
        QTest::addRow("%d %x %s", row.modifier, row.key, qUtf8Printable(textOf(row).toHtmlEscaped()))
            << index++;
}

// As the toolkit brings it to the widget with the focus.
void TestInput::sentToTheWindow()
{
    QFETCH(int, index);
    const uskeys::Row &row = uskeys::Rows[index];
    const QStringList expected = wordsOf(row);
    e2e::steps([&] {
        sendKey(QEvent::KeyPress, row);
        sendKey(QEvent::KeyRelease, row);
        QCOMPARE(received(expected.size()), expected);
    });
}

void TestInput::sendKey(QEvent::Type type, const uskeys::Row &row)
{
    QKeyEvent event(type, row.key, ModifierKeys[row.modifier].flag, textOf(row));
    QVERIFY(QApplication::focusWidget());
    QApplication::sendEvent(QApplication::focusWidget(), &event);
}

void TestInput::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("Latin") << QStringLiteral("Plain text, 100 %: \"quoted\" \\ <b>");
    QTest::newRow("Chinese") << QStringLiteral("你好，世界。龘𠮷");
    QTest::newRow("Arabic") << QStringLiteral("مرحبا بالعالم ٢٠٢٦");
    QTest::newRow("Thai") << QStringLiteral("สวัสดีชาวโลก น้ำ");
    QTest::newRow("emoji") << QStringLiteral("☕ 😀 👩‍👩‍👧 🇩🇪 👍🏽");
    QTest::newRow("lines") << QStringLiteral("one\ntwo\r\n\tthree");
    QTest::newRow("all") << QStringLiteral("naïve 你好 مرحبا สวัสดี 😀").repeated(200);
}

void TestInput::pastedText()
{
    QFETCH(QString, text);
    e2e::steps([&] {
        QApplication::clipboard()->setText(text);
        Desktop::key(QStringLiteral("v"), QStringLiteral("ctrl"));
        QCOMPARE(received(4), (QStringList{"text ", "text " + text, "up 47", "up 29"}));
    });
}

void TestInput::committedText()
{
    QFETCH(QString, text);
    e2e::steps([&] {
        QInputMethodEvent composing(text.left(1), {});
        QApplication::sendEvent(QApplication::focusWidget(), &composing);
        QInputMethodEvent committed;
        committed.setCommitString(text);
        QApplication::sendEvent(QApplication::focusWidget(), &committed);
        QCOMPARE(received(1), QStringList("text " + text));
    });
}

// The keys that are down on the device, by all that it ever received.
QSet<int> TestInput::keysDown() const
{
    QSet<int> down;
    for (const QJsonValue &value : m_service->inputEvents(m_pad)) {
        const QStringList words = asWords(value.toObject()).split(QLatin1Char(' '));
        if (words.first() == QLatin1String("down"))
            down.insert(words.at(1).toInt());
        else if (words.first() == QLatin1String("up"))
            down.remove(words.at(1).toInt());
    }
    return down;
}

// Several keys are held for real when another window becomes active; their releases go there.
void TestInput::nothingStaysDownAfterFocusLoss()
{
    e2e::steps([&] {
        const QStringList keys{"1", "bracketleft", "space", "shift", "a", "5"};
        for (const QString &key : keys)
            Desktop::keyDown(key);
        waitUntil(QStringLiteral("the keys are down"), [&] {
            return keysDown() == QSet<int>{2, 26, 57, 30, 6};
        });

        QWidget other;
        other.setWindowTitle(QStringLiteral("Other"));
        other.show();
        waitUntil(QStringLiteral("the other window"),
            [] { return !Desktop::window(QStringLiteral("Other")).isEmpty(); });
        Desktop::activate(other.windowTitle());
        waitUntil(QStringLiteral("all keys are up"), [&] { return keysDown().isEmpty(); });
        for (const QString &key : keys)
            Desktop::keyUp(key);

        // And on return nothing of it is left: a small letter is one.
        Desktop::activate(m_window->windowTitle());
        waitUntil(QStringLiteral("the window is active"), [&] { return m_window->isActiveWindow(); });
        m_seen += m_service->inputEvents(m_pad, m_seen).size();
        Desktop::key(QStringLiteral("b"));
        QCOMPARE(received(2), (QStringList{"text b", "up 48"}));
    });
}

void TestInput::everythingThatWentDownCameUp()
{
    e2e::steps([&] { QCOMPARE(keysDown(), QSet<int>()); });
}

QTEST_MAIN(TestInput)
#include "tst_input.moc"
