#include "MasterInput.h"

#include "group/FunctionBar.h"
#include "group/FunctionButton.h"
#include "group/GroupController.h"
#include "group/MainController.h"
#include "stream/VideoView.h"

#include <QApplication>
#include <QClipboard>
#include <QJsonArray>
#include <QJsonObject>
#include <QKeyEvent>
#include <QRandomGenerator>
#include <QTest>

#include <array>

namespace e2e {

namespace {

constexpr int moveMs = 60; // moves come no faster than every 50 ms
constexpr int stepMs = 20;
constexpr int longestGesture = 4; // moves
constexpr int scanCodeOffset = 8; // of the X server's codes to those of the device
constexpr std::array letters{16, 17, 18, 19, 20, 30, 31, 32, 33, 44, 45, 46}; // device codes: q, w, e …
// Under the master's picture, from the left, without the third, which restarts the devices.
constexpr std::array<std::pair<int, int>, 5> buttons{{{0, 115}, {1, 114}, {3, 158}, {4, 172}, {5, 139}}};

QString touchText(int action, int x, int y)
{
    static const std::array<const char *, 3> names{"down", "up", "move"};
    return QStringLiteral("%1 %2 %3")
        .arg(QLatin1String(names.at(static_cast<std::size_t>(action))))
        .arg(x)
        .arg(y);
}

QString keyText(int action, int code)
{
    return QStringLiteral("key %1 %2").arg(action).arg(code);
}

} // namespace

MasterInput::MasterInput(GroupController &window, QRandomGenerator &random)
    : m_window(window)
    , m_random(random)
{
    const VideoView *view = window.mainController()->videoView();
    connect(view, &VideoView::subControlTouchEvent, this, &MasterInput::onTouch);
    connect(view, &VideoView::inputEvent, this,
        [this](const QString &text) { expect(QStringLiteral("text ") + text); });
}

void MasterInput::step()
{
    switch (m_random.bounded(5)) {
    case 0:
    case 1:
        gesture();
        break;
    case 2:
        key();
        break;
    case 3:
        button();
        break;
    default:
        paste(QStringLiteral("text %1 – 你好 😀").arg(m_random.generate()));
        break;
    }
    QTest::qWait(stepMs);
}

void MasterInput::end()
{
    paste(QStringLiteral("that was all"));
}

void MasterInput::gesture()
{
    VideoView *view = m_window.mainController()->videoView();
    const auto place
        = [&] { return QPoint(m_random.bounded(1, view->width()), m_random.bounded(1, view->height())); };
    QTest::mousePress(view, Qt::LeftButton, {}, place());
    const int moves = m_random.bounded(longestGesture);
    QPoint last = place();
    for (int i = 0; i < moves; ++i) {
        QTest::qWait(moveMs);
        last = place();
        QMouseEvent move(QEvent::MouseMove, last, view->mapToGlobal(last), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(view, &move);
    }
    QTest::mouseRelease(view, Qt::LeftButton, {}, last);
}

void MasterInput::onTouch(int action, float percentX, float percentY)
{
    m_expected.append([=](QSize screen) {
        constexpr int up = 1;
        if (action == up)
            return touchText(action, -1, -1);
        return touchText(action, static_cast<int>(static_cast<float>(screen.width()) * percentX),
            static_cast<int>(static_cast<float>(screen.height()) * percentY));
    });
}

// As the toolkit tells it of a key whose text an input method takes: the window gets it.
void MasterInput::key()
{
    const int code = letters.at(static_cast<std::size_t>(m_random.bounded(int(letters.size()))));
    for (const auto &[type, action] : {std::pair(QEvent::KeyPress, 1), std::pair(QEvent::KeyRelease, 2)}) {
        QKeyEvent event(type, Qt::Key_unknown, {}, static_cast<quint32>(code + scanCodeOffset), 0, 0);
        QApplication::sendEvent(&m_window, &event);
        expect(keyText(action, code));
    }
}

void MasterInput::button()
{
    const auto [index, code] = buttons.at(static_cast<std::size_t>(m_random.bounded(int(buttons.size()))));
    const auto *bar = m_window.mainController()->findChild<FunctionBar *>();
    QTest::mouseClick(bar->buttons().at(index), Qt::LeftButton);
    expect(keyText(3, code));
}

void MasterInput::paste(const QString &text)
{
    QApplication::clipboard()->setText(text);
    m_window.onPasteText();
    expect(QStringLiteral("text ") + text);
}

void MasterInput::expect(const QString &text)
{
    m_expected.append([text](QSize) { return text; });
}

QStringList MasterInput::expectedOn(QSize screen) const
{
    QStringList events;
    for (const Expected &expected : m_expected)
        events.append(expected(screen));
    return events;
}

QString MasterInput::asText(const QJsonObject &event)
{
    const QString type = event.value(QLatin1String("type")).toString();
    const int action = event.value(QLatin1String("action")).toInt();
    if (type == QLatin1String("text"))
        return QStringLiteral("text ") + event.value(QLatin1String("text")).toString();
    if (type == QLatin1String("key"))
        return keyText(action, event.value(QLatin1String("code")).toInt());
    const QJsonArray points = event.value(QLatin1String("points")).toArray();
    if (type != QLatin1String("touch") || points.size() > 1 || action < 0 || action > 2)
        return QStringLiteral("something else");
    if (points.isEmpty()) // no finger is left, which is sent as (-1, -1)
        return touchText(action, -1, -1);
    const QJsonArray point = points.at(0).toArray();
    return touchText(action, point.at(0).toInt(), point.at(1).toInt());
}

} // namespace e2e
