#include "group/TileInput.h"

#include "group/InputEvent.h"
#include "stream/StreamController.h"

#include <QSize>
#include <QVector>

#include <cmath>

namespace group {

namespace {

constexpr int TouchUp = 1;
constexpr int NoFinger = -1;
constexpr float FarthestPixel = 1e6F; // no screen is larger; keeps the conversion to whole pixels defined

// In single precision, towards zero.
int pixelAt(int extent, float fraction)
{
    const float pixel = static_cast<float>(extent) * fraction;
    return std::abs(pixel) <= FarthestPixel ? static_cast<int>(pixel) : NoFinger;
}

} // namespace

TileInput::TileInput(StreamController &stream)
    : m_stream(&stream)
{ }

template <typename Call>
void TileInput::withStream(Call &&call)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stream)
        call(*m_stream);
}

void TileInput::touch(int action, float percentX, float percentY)
{
    withStream([&](StreamController &stream) {
        const QSize remote = stream.videoResolution();
        if (!remote.isValid())
            return;
        const bool up = action == TouchUp;
        QVector<int> xs{up ? NoFinger : pixelAt(remote.width(), percentX)};
        QVector<int> ys{up ? NoFinger : pixelAt(remote.height(), percentY)};
        stream.onTouchEvent(action, xs, ys);
    });
}

void TileInput::text(const QString &text)
{
    withStream([&](StreamController &stream) { stream.onInputEvent(text); });
}

void TileInput::functionButton(int keyType)
{
    withStream([&](StreamController &stream) { stream.onFunctionBtnClicked(keyType); });
}

void TileInput::keyPress(int key)
{
    withStream([&](StreamController &stream) { stream.onKeyPressEvent(key); });
}

void TileInput::keyRelease(int key)
{
    withStream([&](StreamController &stream) { stream.onKeyReleaseEvent(key); });
}

void TileInput::replay(const InputEvent &event)
{
    switch (event.type) {
    case InputEvent::Touch:
        touch(event.code, event.percentX, event.percentY);
        break;
    case InputEvent::Key:
        if (event.keyState == InputEvent::FunctionButton)
            functionButton(event.code);
        else if (event.keyState == InputEvent::KeyPress)
            keyPress(event.code);
        else if (event.keyState == InputEvent::KeyRelease)
            keyRelease(event.code);
        break;
    case InputEvent::Text:
        text(event.text);
        break;
    default:
        break;
    }
}

void TileInput::close()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_stream = nullptr;
}

} // namespace group
