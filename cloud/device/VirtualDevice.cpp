#include "device/VirtualDevice.h"

#include "device/CameraPicture.h"
#include "device/DeviceLog.h"
#include "device/FingerTracker.h"
#include "device/InputLog.h"
#include "device/Shell.h"
#include "device/Surface.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <linux/input-event-codes.h>

#include <algorithm>
#include <map>
#include <set>

namespace orvane::cloud {

namespace {

constexpr std::size_t MaxHeldKeys = 64; // of one session; more are not remembered
constexpr QChar Delete = QChar(0x7F);

enum KeyAction {
    KeyDown = 1,
    KeyUp = 2,
    KeyClick = 3,
};

// What typing `text` means to an app: line breaks as '\n', only the control characters that edit.
QString typed(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        const bool pairEnds = character == QLatin1Char('\n') && i > 0 && text[i - 1] == QLatin1Char('\r');
        if (pairEnds) {
            continue;
        }
        if (character == QLatin1Char('\r') || character == QChar(QChar::LineSeparator)
            || character == QChar(QChar::ParagraphSeparator)) {
            result += QLatin1Char('\n');
        } else if (character == QLatin1Char('\n') || character == QLatin1Char('\t')
            || character == QLatin1Char('\b') || character == Delete
            || character.category() != QChar::Other_Control) {
            result += character;
        }
    }
    return result;
}

// Between 60 and 99, always the same for a device.
int batteryPercent(const std::string &padCode)
{
    unsigned sum = 0;
    for (const char character : padCode) {
        sum = sum * 31 + static_cast<unsigned char>(character);
    }
    return static_cast<int>(60 + sum % 40);
}

QJsonObject event(const char *type)
{
    return {{QStringLiteral("type"), QString::fromLatin1(type)}};
}

std::string jsonText(const QJsonObject &event)
{
    return QJsonDocument(event).toJson(QJsonDocument::Compact).toStdString();
}

// Touches and keys come by the thousand, to hundreds of devices at once: their texts are put together here,
// in a fraction of the time that taking them through objects needs.

std::string touchText(int action, const std::vector<TouchPoint> &points)
{
    std::string text = R"({"action":)" + std::to_string(action) + R"(,"points":[)";
    const std::size_t count = std::min(points.size(), FingerTracker::MaxFingers);
    for (std::size_t i = 0; i < count; ++i) {
        text += i == 0 ? "[" : ",[";
        text += std::to_string(points[i].x);
        text += ',';
        text += std::to_string(points[i].y);
        text += ']';
    }
    return text + R"(],"type":"touch"})";
}

std::string keyText(int action, int code, bool shift)
{
    return R"({"action":)" + std::to_string(action) + R"(,"code":)" + std::to_string(code) + R"(,"shift":)"
        + (shift ? "true" : "false") + R"(,"type":"key"})";
}

} // namespace

struct VirtualDevice::Impl
{
    Impl(VirtualDevice &owner, std::string code, const std::string &name, WallClock wallClock, QSize screen)
        : padCode(std::move(code))
        , surface(screen)
        , fingers(screen)
        , shell(surface,
              {QString::fromStdString(name), batteryPercent(padCode), std::move(wallClock),
                  [&owner](const QString &text) {
                      if (owner.onClipboard) {
                          owner.onClipboard(text.toStdString());
                      }
                  },
                  QString::fromStdString(padCode), [this] { return rotation; },
                  [&owner](int turns) { owner.setRotation(turns); }})
    { }

    void paint()
    {
        surface.paint([this](QPainter &painter, const QRect &clip) { shell.draw(painter, clip); });
    }

    const std::string padCode;
    Surface surface;
    FingerTracker fingers;
    Shell shell;
    InputLog log;
    std::map<std::string, std::set<int>> heldKeys; // by session; only sessions that hold keys
    int rotation = 0;
    std::optional<QSize> appCamera; // what the app in front wanted last
    std::optional<QSize> camera; // what the clients were asked for last
};

VirtualDevice::VirtualDevice(std::string padCode, const std::string &name, WallClock wallClock, QSize screen)
    : m_impl(std::make_unique<Impl>(*this, std::move(padCode), name, std::move(wallClock), screen))
{ }

VirtualDevice::~VirtualDevice() = default;

// --- Screen ---

QSize VirtualDevice::screenSize() const
{
    return m_impl->surface.portraitSize();
}

int VirtualDevice::rotation() const
{
    return m_impl->rotation;
}

void VirtualDevice::setRotation(int rotation)
{
    if (rotation < 0 || rotation > 3) {
        qCWarning(deviceLog, "%s: there is no rotation %d", m_impl->padCode.c_str(), rotation);
        return;
    }
    if (rotation == m_impl->rotation) {
        return;
    }
    m_impl->rotation = rotation;
    m_impl->surface.setLandscape(rotation % 2 != 0);
    m_impl->shell.resized();
    if (onRotation) {
        onRotation(rotation);
    }
    followCamera(); // in the screen's new shape
}

const QImage &VirtualDevice::frame()
{
    m_impl->paint();
    return m_impl->surface.frame();
}

void VirtualDevice::releaseFrame()
{
    m_impl->surface.releaseFrame();
}

void VirtualDevice::drawScaled(QImage &image)
{
    m_impl->surface.drawScaled(
        image, [this](QPainter &painter, const QRect &clip) { m_impl->shell.draw(painter, clip); });
}

QRect VirtualDevice::takeDirty()
{
    m_impl->paint();
    return m_impl->surface.takeDirty();
}

std::uint64_t VirtualDevice::pictureVersion() const
{
    return m_impl->surface.version();
}

// --- Input ---

void VirtualDevice::touch(
    const std::string &sessionKey, int action, const std::vector<TouchPoint> &points, TimePoint time)
{
    Impl &d = *m_impl;
    d.log.add(time, sessionKey, touchText(action, points));

    d.shell.advance(time);
    for (FingerEvent change : d.fingers.frame(sessionKey, action, points)) {
        change.position = d.surface.toContent(change.position);
        d.shell.touch(change, time);
    }
    followCamera();
}

void VirtualDevice::key(const std::string &sessionKey, int action, int code, bool shift, TimePoint time)
{
    Impl &d = *m_impl;
    d.log.add(time, sessionKey, keyText(action, code, shift));

    d.shell.advance(time);
    if (code == KEY_RESERVED) {
        return; // only says that the user is there
    }
    if (action < KeyDown || action > KeyClick || code < 0 || code > KEY_MAX) {
        qCWarning(deviceLog, "%s: key action %d of code %d is unknown", d.padCode.c_str(), action, code);
        return;
    }
    std::set<int> &held = d.heldKeys[sessionKey];
    if (action != KeyUp) {
        const bool shiftHeld = held.count(KEY_LEFTSHIFT) + held.count(KEY_RIGHTSHIFT) > 0;
        const bool controlHeld = held.count(KEY_LEFTCTRL) + held.count(KEY_RIGHTCTRL) > 0;
        d.shell.keyPressed({code, shift || shiftHeld, controlHeld});
    }
    if (action == KeyDown && held.size() < MaxHeldKeys) {
        held.insert(code);
    } else {
        held.erase(code);
    }
    if (held.empty()) {
        d.heldKeys.erase(sessionKey);
    }
    followCamera();
}

void VirtualDevice::text(const std::string &sessionKey, const std::string &utf8, TimePoint time)
{
    const QString text = QString::fromStdString(utf8);
    QJsonObject record = event("text");
    record.insert(QStringLiteral("text"), text);
    m_impl->log.add(time, sessionKey, jsonText(record));
    m_impl->shell.advance(time);
    m_impl->shell.textTyped(typed(text));
}

void VirtualDevice::picture(const std::string &sessionKey, const std::string &jpeg, TimePoint time)
{
    Impl &d = *m_impl;
    const CameraPicture picture(jpeg);
    const QSize size = picture.size();
    QJsonObject record = event("picture");
    record.insert(QStringLiteral("bytes"), static_cast<qint64>(jpeg.size()));
    record.insert(QStringLiteral("width"), size.width());
    record.insert(QStringLiteral("height"), size.height());
    d.log.add(time, sessionKey, jsonText(record));
    d.shell.advance(time);

    const char *code = d.padCode.c_str();
    if (size.isEmpty()) {
        qCWarning(deviceLog, "%s: a camera picture of %zu bytes is no JPEG", code, jpeg.size());
    } else if (picture.isTooLarge()) {
        qCWarning(deviceLog, "%s: a camera picture of %d x %d pixels is too large", code, size.width(),
            size.height());
    } else if (d.shell.wantedCamera()) {
        const QImage decoded = picture.decoded(d.surface.contentSize());
        if (decoded.isNull()) {
            qCWarning(deviceLog, "%s: a camera picture of %zu bytes is damaged", code, jpeg.size());
        } else {
            d.shell.cameraPicture(decoded, size);
        }
    }
}

void VirtualDevice::audio(const std::string &sessionKey, int format, const std::string &data, TimePoint time)
{
    QJsonObject record = event("audio");
    record.insert(QStringLiteral("format"), format);
    record.insert(QStringLiteral("bytes"), static_cast<qint64>(data.size()));
    m_impl->log.add(time, sessionKey, jsonText(record));
    m_impl->shell.advance(time);
}

void VirtualDevice::sessionGone(const std::string &sessionKey, TimePoint time)
{
    Impl &d = *m_impl;
    d.shell.advance(time);
    for (const FingerEvent &change : d.fingers.lift(sessionKey)) {
        d.shell.cancelTouch(change.id);
    }
    d.heldKeys.erase(sessionKey);
}

std::vector<InputRecord> VirtualDevice::inputsSince(std::uint64_t sequence) const
{
    return m_impl->log.since(sequence);
}

// --- Time and state ---

std::optional<VirtualDevice::TimePoint> VirtualDevice::nextTick() const
{
    return m_impl->shell.nextTick();
}

void VirtualDevice::tick(TimePoint now)
{
    m_impl->shell.advance(now);
}

void VirtualDevice::reboot(TimePoint time)
{
    Impl &d = *m_impl;
    d.shell.reboot(time);
    d.fingers.clear();
    d.heldKeys.clear();
    d.appCamera.reset();
    if (d.camera) {
        askForCamera(std::nullopt);
    }
}

bool VirtualDevice::isBooting() const
{
    return m_impl->shell.isBooting();
}

bool VirtualDevice::openApp(const std::string &name)
{
    const auto kind = appByName(QString::fromStdString(name));
    const bool opened = kind && m_impl->shell.open(*kind);
    followCamera();
    return opened;
}

void VirtualDevice::setFilmRate(int picturesPerSecond)
{
    m_impl->shell.setFilmRate(picturesPerSecond);
}

std::string VirtualDevice::appStateJson() const
{
    QJsonObject state = m_impl->shell.describe();
    state.insert(QStringLiteral("rotation"), m_impl->rotation);
    return QJsonDocument(state).toJson(QJsonDocument::Compact).toStdString();
}

void VirtualDevice::requestCamera(bool on)
{
    askForCamera(on ? std::optional(QSize(0, 0)) : std::nullopt);
}

std::optional<QSize> VirtualDevice::wantedCamera() const
{
    return m_impl->camera;
}

// Asks for what the app in front wants, if that has changed. Another size is asked for as an app does that is
// started anew: the camera is given back first.
void VirtualDevice::followCamera()
{
    Impl &d = *m_impl;
    const std::optional<QSize> wanted = d.shell.wantedCamera();
    if (wanted == d.appCamera) {
        return;
    }
    if (d.appCamera) {
        askForCamera(std::nullopt);
    }
    d.appCamera = wanted;
    if (wanted) {
        askForCamera(wanted);
    }
}

void VirtualDevice::askForCamera(std::optional<QSize> size)
{
    m_impl->camera = size;
    if (onSensorRequest) {
        const QSize told = size.value_or(QSize(0, 0));
        onSensorRequest(CameraInput, size ? 1 : 0, told.width(), told.height());
    }
}

} // namespace orvane::cloud
