#include "device/TextBuffer.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <utility>

namespace orvane::cloud {

namespace {

constexpr ushort ZeroWidthJoiner = 0x200D;
// How far around a position boundaries are looked for, so that editing a long text stays quick; a multiple of
// a flag's four units, as flags are told apart by counting.
constexpr int Window = 64;

// Code point that starts at `position`, or 0.
uint codePointAt(const QString &text, int position)
{
    if (position >= text.size()) {
        return 0;
    }
    const QChar first = text[position];
    if (first.isHighSurrogate() && position + 1 < text.size() && text[position + 1].isLowSurrogate()) {
        return QChar::surrogateToUcs4(first, text[position + 1]);
    }
    return first.unicode();
}

bool isPictograph(uint codePoint)
{
    return (codePoint >= 0x1F000 && codePoint <= 0x1FAFF) || (codePoint >= 0x2190 && codePoint <= 0x2BFF);
}

bool isEmojiModifier(uint codePoint)
{
    return (codePoint >= 0x1F3FB && codePoint <= 0x1F3FF) // skin tones
        || codePoint == 0xFE0F || codePoint == 0x20E3 // emoji presentation, key cap
        || (codePoint >= 0xE0020 && codePoint <= 0xE007F); // tags of regional flags
}

// Whether the two letters of a flag are before and after `position`: they pair up from the start of their
// run.
bool isInsideFlag(const QString &text, int position)
{
    const auto isLetter = [&text](int at) {
        const uint codePoint = codePointAt(text, at);
        return codePoint >= 0x1F1E6 && codePoint <= 0x1F1FF;
    };
    int lettersBefore = 0;
    for (int at = position - 2; at >= 0 && isLetter(at); at -= 2) {
        ++lettersBefore;
    }
    return isLetter(position) && lettersBefore % 2 == 1;
}

// Whether a boundary that Qt reports lies inside an emoji: Qt 5 knows combining marks, but not the newer
// rules that join emoji to one picture, and it takes flags apart that follow another emoji.
bool isInsideEmoji(const QString &text, int position)
{
    const uint next = codePointAt(text, position);
    return isEmojiModifier(next) || next == ZeroWidthJoiner || isInsideFlag(text, position)
        || (text[position - 1].unicode() == ZeroWidthJoiner && isPictograph(next));
}

} // namespace

TextBuffer::TextBuffer(int maxLength)
    : m_maxLength(maxLength)
{ }

int TextBuffer::boundaryBefore(int position) const
{
    const int start = std::max(0, position - Window);
    const QString part = m_text.mid(start, 2 * Window);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, part);
    finder.setPosition(position - start);
    int boundary = finder.toPreviousBoundary();
    while (boundary > 0 && isInsideEmoji(part, boundary)) {
        boundary = finder.toPreviousBoundary();
    }
    return start + std::max(boundary, 0);
}

int TextBuffer::boundaryAfter(int position) const
{
    const QString part = m_text.mid(position, Window);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, part);
    int boundary = finder.toNextBoundary();
    while (boundary > 0 && boundary < part.size() && isInsideEmoji(part, boundary)) {
        boundary = finder.toNextBoundary();
    }
    return position + (boundary < 0 ? part.size() : boundary);
}

void TextBuffer::setCursor(int position)
{
    const int wanted = std::clamp(position, 0, m_text.size());
    m_cursor = wanted == m_text.size() ? wanted : boundaryBefore(wanted + 1);
}

bool TextBuffer::insert(const QString &text)
{
    const int room = m_maxLength - m_text.size();
    const bool fits = text.size() <= room;
    if (fits) {
        m_text.insert(m_cursor, text);
        m_cursor += text.size();
        return true;
    }
    TextBuffer cut(text.size());
    cut.m_text = text;
    cut.setCursor(room);
    m_text.insert(m_cursor, text.left(cut.m_cursor));
    m_cursor += cut.m_cursor;
    return false;
}

bool TextBuffer::removeBefore()
{
    const int start = boundaryBefore(m_cursor);
    m_text.remove(start, m_cursor - start);
    return std::exchange(m_cursor, start) != start;
}

bool TextBuffer::removeAfter()
{
    const int end = boundaryAfter(m_cursor);
    m_text.remove(m_cursor, end - m_cursor);
    return end != m_cursor;
}

void TextBuffer::moveBack()
{
    m_cursor = boundaryBefore(m_cursor);
}

void TextBuffer::moveForward()
{
    m_cursor = boundaryAfter(m_cursor);
}

void TextBuffer::clear()
{
    m_text.clear();
    m_cursor = 0;
}

} // namespace orvane::cloud
