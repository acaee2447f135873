#pragma once

#include "GroupDevices.h"

#include "group/SubController.h"
#include "stream/VideoView.h"

#include <Recorder.h>

#include <QImage>
#include <QMetaMethod>
#include <QStringList>

// What the tests of a group's tiles share.
namespace grouptest {

// The signatures of the class's own signals or slots, in the order in which they are declared.
inline QStringList ownMethods(const QMetaObject &meta, QMetaMethod::MethodType type)
{
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == type)
            names << QString::fromLatin1(meta.method(i).methodSignature());
    }
    return names;
}

// What the SDK was asked to do so far and not taken yet; not what it was only asked for.
inline QStringList recordedCalls(std::vector<std::string> calls)
{
    QStringList list;
    for (const std::string &call : calls) {
        if (call.find("getVideoLevelResult") == std::string::npos)
            list.append(QString::fromStdString(call));
    }
    return list;
}

inline QStringList takeCalls()
{
    return recordedCalls(Recorder::instance().takeCalls());
}

// The input among the calls so far, which stay.
inline QStringList sentInput()
{
    return recordedCalls(Recorder::instance().calls()).filter(QStringLiteral("SWDataSource::send"));
}

inline QString touchCall(int action, int x, int y)
{
    return QStringLiteral("SWDataSource::sendTouchEvent(%1, 1, [%2], [%3], [0])").arg(action).arg(x).arg(y);
}

inline QString keyCall(int action, int key)
{
    return QStringLiteral("SWDataSource::sendKeyEvent(%1, %2)").arg(action).arg(key);
}

inline QString textCall(const QString &text)
{
    return QStringLiteral("SWDataSource::sendInputString(\"%1\", %2)").arg(text).arg(text.length() + 1);
}

inline QString castCall(int mode)
{
    return QStringLiteral("SWDataSource::screenCast(%1)").arg(mode);
}

// Leaves a picture of one colour in the tile's view as the SDK does.
inline void showDevicePicture(const SubController &tile, const QColor &colour)
{
    VideoView &view = *tile.videoView();
    QImage image(view.size() * view.devicePixelRatioF(), QImage::Format_RGB32);
    image.fill(colour);
    showPicture(
        view, reinterpret_cast<const std::uint32_t *>(image.constBits()), image.width(), image.height());
}

} // namespace grouptest
