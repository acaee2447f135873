#pragma once

#include <QFont>
#include <QSize>

class QString;

// Finds a font in which a text has room, since many layouts are given in pixels and some
// languages need more of them. Pure functions; GUI thread.
namespace FittedText {

// The font with the largest height, from `pixels` down to `smallestPixels`, in which the text fits into
// `room` device-independent pixels of width on one line; the smallest if none does.
QFont onOneLine(const QFont &font, const QString &text, int room, int pixels, int smallestPixels);
// The same for a text that is wrapped between words into a room.
QFont wrapped(const QFont &font, const QString &text, const QSize &room, int pixels, int smallestPixels);

} // namespace FittedText
