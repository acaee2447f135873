#include "device/DeviceKeyboard.h"

#include "stream/DeviceKey.h"
#include "stream/StreamController.h"

#include <QKeyEvent>

namespace {

// Whether a key travels as a key and not as text: its text must be the character of its own code. The code is
// taken as a signed byte, so that letters outside ASCII, which a device keyboard has no key for, are text.
bool travelsAsKey(const QKeyEvent &event)
{
    const auto code = static_cast<signed char>(event.key() & 0xFF);
    return event.text() == QString(QChar(static_cast<ushort>(code)));
}

} // namespace

DeviceKeyboard::DeviceKeyboard(std::shared_ptr<StreamController> stream)
    : m_stream(std::move(stream))
{ }

DeviceKeyboard::~DeviceKeyboard() = default;

void DeviceKeyboard::press(const QKeyEvent &event)
{
    if (travelsAsKey(event)) {
        const int code = deviceKeyCode(event.key());
        m_heldKeys.press(event.nativeScanCode(), code);
        m_stream->onKeyPressEvent(code);
    } else {
        m_stream->onInputEvent(event.text());
    }
}

void DeviceKeyboard::release(const QKeyEvent &event)
{
    const int code = deviceKeyCode(event.key());
    m_stream->onKeyReleaseEvent(code);
    const QVector<int> others = m_heldKeys.release(event.nativeScanCode(), code);
    for (const int other : others)
        m_stream->onKeyReleaseEvent(other);
}

void DeviceKeyboard::releaseAll()
{
    const QVector<int> codes = m_heldKeys.releaseAll();
    for (const int code : codes)
        m_stream->onKeyReleaseEvent(code);
}
