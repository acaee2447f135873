#pragma once

#include "keymap/KeyMapTypes.h"
#include "stream/ScreenOrientation.h"

#include <QJsonObject>
#include <QPoint>
#include <QSize>
#include <QString>
#include <QVector>

#include <optional>

// A key-mapping scheme as it is read. Whatever the source holds, what is read is within its range; keys that
// cannot be read are logged and left out. A plain value.
struct KeyMapScheme
{
    struct Key
    {
        keymap::KeyType type = keymap::ClickKey;
        QString text; // of the key of the keyboard; empty for the walking key
        QPoint position; // left upper corner in the video view that the scheme was made in, in its pixels
        QString note;
        std::optional<double> sensitivity; // of the mouse, a factor; the crosshair's
    };

    // The ranges of the two sliders, which are those of a scheme.
    static constexpr int minimumOpacity = 0;
    static constexpr int maximumOpacity = 100;
    static constexpr int minimumSize = 20;
    static constexpr int maximumSize = 40;
    // The short side of the video view while the editor is open, in device-independent pixels.
    static constexpr int viewShortSide = 340;

    int opacity = minimumOpacity; // percent
    int size = minimumSize; // as the editor's slider counts
    ScreenOrientation orientation = ScreenOrientation::Portrait; // of the view it was made in
    bool showKeys = false; // in play
    bool showKeyNotes = false;
    QVector<Key> keys; // in the order of the scheme

    // A scheme of the service's list: "config" is Base64, switches are numbers, of which 1 is on (1 is
    // landscape for the orientation).
    static KeyMapScheme fromList(const QJsonObject &scheme);
    // The local copy of a scheme, which is what was sent to the service: "config" is plain JSON text and the
    // switches are booleans; numbers are understood as well.
    static KeyMapScheme fromLocalCopy(const QJsonObject &scheme);

    // Where a key of this scheme goes in a view of some orientation: where it was, or turned with the view.
    // `keySize`: of the key; `shortSide`: viewShortSide in the pixels of the view.
    QPoint placed(
        const QPoint &position, ScreenOrientation viewOrientation, const QSize &keySize, int shortSide) const;
};
