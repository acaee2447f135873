#include "Desktop.h"

#include "Waiting.h"

#include <QGuiApplication>
#include <QLibrary>
#include <QPixmap>
#include <QProcess>
#include <QRegularExpression>
#include <QScreen>
#include <QtMath>

namespace e2e {

namespace {
// Longer than the 50 ms between two touches that a device window sends.
constexpr int dragStepMs = 60;
constexpr int dragStepPixels = 24;

QString number(int value)
{
    return QString::number(value);
}
} // namespace

QString Desktop::xdotool(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral("xdotool"), arguments);
    if (!process.waitForStarted() || !process.waitForFinished(10000))
        throw StepFailed(QStringLiteral("xdotool %1 did not run").arg(arguments.join(QLatin1Char(' '))));
    return QString::fromUtf8(process.readAllStandardOutput());
}

// Empty when there is none. A search that meets a window in the moment of its end finds nothing at all.
QString Desktop::find(const QString &title)
{
    const QString pattern = QLatin1Char('^') + QRegularExpression::escape(title) + QLatin1Char('$');
    const QString found = xdotool(
        {QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"), pattern});
    return found.split(QLatin1Char('\n'), Qt::SkipEmptyParts).value(0);
}

QRect Desktop::window(const QString &title)
{
    const QString id = find(title);
    if (id.isEmpty())
        return {};
    const QString shell = xdotool({QStringLiteral("getwindowgeometry"), QStringLiteral("--shell"), id});
    const auto value = [&shell](const QString &name) {
        const auto match = QRegularExpression(name + QStringLiteral("=(-?\\d+)")).match(shell);
        return match.captured(1).toInt();
    };
    return {value(QStringLiteral("X")), value(QStringLiteral("Y")), value(QStringLiteral("WIDTH")),
        value(QStringLiteral("HEIGHT"))};
}

void Desktop::activate(const QString &title)
{
    QString id;
    waitUntil(QStringLiteral("there is a window '%1'").arg(title), [&] {
        id = find(title);
        return !id.isEmpty();
    });
    xdotool({QStringLiteral("windowactivate"), QStringLiteral("--sync"), id});
}

// By the library that the toolkit's platform has loaded anyway.
void Desktop::setKeyRepeat(bool repeats)
{
    QLibrary x11(QStringLiteral("X11"), 6);
    const auto open = reinterpret_cast<void *(*)(const char *)>(x11.resolve("XOpenDisplay"));
    const auto set
        = reinterpret_cast<int (*)(void *)>(x11.resolve(repeats ? "XAutoRepeatOn" : "XAutoRepeatOff"));
    const auto close = reinterpret_cast<int (*)(void *)>(x11.resolve("XCloseDisplay"));
    void *display = open ? open(nullptr) : nullptr;
    if (!display || !set || !close)
        throw StepFailed(QStringLiteral("the repeating of keys could not be set"));
    set(display);
    close(display);
}

void Desktop::moveTo(const QPoint &pos)
{
    xdotool({QStringLiteral("mousemove"), number(pos.x()), number(pos.y())});
}

void Desktop::mouseDown()
{
    xdotool({QStringLiteral("mousedown"), QStringLiteral("1")});
}

void Desktop::mouseUp()
{
    xdotool({QStringLiteral("mouseup"), QStringLiteral("1")});
}

void Desktop::click(const QPoint &pos)
{
    moveTo(pos);
    mouseDown();
    QTest::qWait(dragStepMs);
    mouseUp();
}

void Desktop::doubleClick(const QPoint &pos)
{
    moveTo(pos);
    xdotool({QStringLiteral("click"), QStringLiteral("--repeat"), QStringLiteral("2"),
        QStringLiteral("--delay"), QStringLiteral("60"), QStringLiteral("1")});
}

void Desktop::drag(const QVector<QPoint> &path)
{
    moveTo(path.value(0));
    mouseDown();
    for (int i = 1; i < path.size(); ++i) {
        const QPoint from = path[i - 1];
        const QPoint way = path[i] - from;
        const int steps = qMax(1, qRound(qSqrt(QPoint::dotProduct(way, way)) / dragStepPixels));
        for (int step = 1; step <= steps; ++step) {
            QTest::qWait(dragStepMs);
            moveTo(from + way * step / steps);
        }
    }
    QTest::qWait(dragStepMs);
    mouseUp();
}

void Desktop::wheel(const QPoint &pos, int notches, bool ctrl)
{
    moveTo(pos);
    if (ctrl)
        xdotool({QStringLiteral("keydown"), QStringLiteral("ctrl")});
    for (int i = 0; i < qAbs(notches); ++i)
        xdotool({QStringLiteral("click"), notches < 0 ? QStringLiteral("5") : QStringLiteral("4")});
    if (ctrl)
        xdotool({QStringLiteral("keyup"), QStringLiteral("ctrl")});
}

void Desktop::type(const QString &text)
{
    xdotool({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("30"), text});
}

void Desktop::key(const QString &name)
{
    xdotool({QStringLiteral("key"), name});
}

void Desktop::key(const QString &name, const QString &held)
{
    xdotool({QStringLiteral("keydown"), held, QStringLiteral("key"), name, QStringLiteral("keyup"), held});
}

void Desktop::keyDown(const QString &name)
{
    xdotool({QStringLiteral("keydown"), name});
}

void Desktop::keyUp(const QString &name)
{
    xdotool({QStringLiteral("keyup"), name});
}

QImage Desktop::screenshot(const QRect &area)
{
    QScreen *screen = QGuiApplication::primaryScreen();
    const QRect rect = area.isEmpty() ? screen->geometry() : area;
    return screen->grabWindow(0, rect.x(), rect.y(), rect.width(), rect.height()).toImage();
}

} // namespace e2e
