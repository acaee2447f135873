#include "keymap/KeyName.h"

#include <QKeySequence>

QString keyName(int key)
{
    switch (key) {
    case Qt::Key_Shift:
        return QStringLiteral("Shift");
    case Qt::Key_Control:
        return QStringLiteral("Ctrl");
    case Qt::Key_Alt:
        return QStringLiteral("Alt");
    case Qt::Key_Meta:
        return QStringLiteral("Meta");
    default:
        break;
    }
    const QString name = QKeySequence(key).toString(QKeySequence::PortableText);
    // For a key that it does not know the toolkit gives broken text, which no scheme could hold.
    return name.isValidUtf16() ? name : QString();
}
