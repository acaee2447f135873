#pragma once

#include <QString>

namespace orvane::cloud {

// A text with a cursor, edited by whole characters as people see them: an accent goes with its letter, an
// emoji with its modifiers. Positions are UTF-16 units. Thread-compatible, owned by the app that shows it.
class TextBuffer
{
public:
    // `maxLength`: most UTF-16 units.
    explicit TextBuffer(int maxLength);

    const QString &text() const { return m_text; }
    int cursor() const { return m_cursor; }
    // To the nearest character boundary at or before `position`; what is outside goes to the end.
    void setCursor(int position);

    // At the cursor. Returns false when the text was cut because there was no room for all of it.
    bool insert(const QString &text);
    // The character before or after the cursor. Returns whether there was one.
    bool removeBefore();
    bool removeAfter();
    void moveBack();
    void moveForward();
    void clear();

private:
    int boundaryBefore(int position) const;
    int boundaryAfter(int position) const;

    const int m_maxLength;
    QString m_text;
    int m_cursor = 0;
};

} // namespace orvane::cloud
