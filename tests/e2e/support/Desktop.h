#pragma once

#include <QImage>
#include <QRect>
#include <QString>
#include <QStringList>

namespace e2e {

// The display as a person uses it: real pointer and keyboard events through xdotool, pictures of the screen.
// Positions are screen pixels.
class Desktop
{
public:
    // Geometry of the visible window with this exact title; an empty rectangle while there is none.
    static QRect window(const QString &title);
    static void activate(const QString &title);
    static void moveTo(const QPoint &pos);
    static void mouseDown();
    static void mouseUp();
    static void click(const QPoint &pos);
    static void doubleClick(const QPoint &pos);
    // Presses at the first point, moves along the rest in small steps and releases.
    static void drag(const QVector<QPoint> &path);
    // Notches of the wheel: negative = down. With `ctrl`, Control is held meanwhile.
    static void wheel(const QPoint &pos, int notches, bool ctrl = false);
    static void type(const QString &text);
    // A key by its X name, such as "Return" or "ctrl+v".
    static void key(const QString &name);
    // The same while another key is held, which comes up last.
    static void key(const QString &name, const QString &held);
    // Press and release of a key, which repeats meanwhile as keys do.
    static void keyDown(const QString &name);
    static void keyUp(const QString &name);
    // Whether keys that are held repeat; they do at first. On a busy machine the toolkit may take the half of
    // a repeat for the key's release, when the other half has not arrived yet.
    static void setKeyRepeat(bool repeats);
    static QImage screenshot(const QRect &area = {});

private:
    // The X id of that window.
    static QString find(const QString &title);
    static QString xdotool(const QStringList &arguments);
};

} // namespace e2e
