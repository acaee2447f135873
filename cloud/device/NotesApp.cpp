#include "device/NotesApp.h"

#include "device/DeviceLog.h"
#include "device/Theme.h"
#include "device/UsKeyboard.h"

#include <QFontMetricsF>
#include <QJsonArray>
#include <QPainter>

#include <linux/input-event-codes.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvane::cloud {

namespace {

constexpr int FontSize = 32; // pixels
constexpr int KeyLineHeight = 84;
constexpr int KeysShown = 8;
constexpr int TapDistance = 14; // pixels; a finger that moves further scrolls
constexpr int CursorWidth = 3;
constexpr QChar Backspace = QLatin1Char('\b');
constexpr QChar Delete = QChar(0x7F);

} // namespace

NotesApp::NotesApp(Host host)
    : App(std::move(host))
    , m_buffer(MaxLength)
    , m_copyButton(QStringLiteral("Copy"))
    , m_clearButton(QStringLiteral("Clear"))
{
    m_lines.setCacheEnabled(true);
}

QRect NotesApp::sheet() const
{
    return body().adjusted(20, theme::HeaderHeight, -20, -KeyLineHeight);
}

QRect NotesApp::textArea() const
{
    return sheet().adjusted(28, 24, -28, -24);
}

QRect NotesApp::keyLine() const
{
    const QRect body = this->body();
    return {body.left(), body.bottom() + 1 - KeyLineHeight, body.width(), KeyLineHeight};
}

void NotesApp::layout()
{
    const int top = theme::StatusBarHeight + 22;
    m_clearButton.setRect({screen().width() - theme::Margin - 130, top, 130, 52});
    m_copyButton.setRect({screen().width() - theme::Margin - 276, top, 130, 52});
    breakLines();
    setScroll(m_scroll);
    showCursor();
}

void NotesApp::breakLines()
{
    QString text = m_buffer.text();
    text.replace(QLatin1Char('\n'), QChar(QChar::LineSeparator));
    text += QLatin1Char(' '); // gives the cursor a line after a last line break
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(FontSize * 3);
    m_lines.setTextOption(option);
    useFontHere();
    m_lines.setText(text);
    m_lines.beginLayout();
    qreal height = 0;
    const qreal spacing = FontSize * 0.25;
    for (QTextLine line = m_lines.createLine(); line.isValid(); line = m_lines.createLine()) {
        line.setLineWidth(textArea().width());
        line.setPosition({0, height});
        height += std::ceil(line.height() + spacing);
    }
    m_lines.endLayout();
}

// Keys and touches come in other threads than pictures are drawn in, one at a time. A layout keeps the glyphs
// of the thread that used it last, and Qt shares them with every other text of that thread: they must not be
// touched from here.
void NotesApp::useFontHere()
{
    if (std::exchange(m_linesThread, QThread::currentThreadId()) != QThread::currentThreadId()) {
        m_lines.setFont(theme::font(FontSize));
    }
}

int NotesApp::lineOf(int position) const
{
    const QTextLine line = m_lines.lineForTextPosition(position);
    return line.isValid() ? line.lineNumber() : 0;
}

int NotesApp::lineTop(int line) const
{
    return textArea().top() - m_scroll + static_cast<int>(m_lines.lineAt(line).y());
}

int NotesApp::textHeight() const
{
    const QTextLine last = m_lines.lineAt(m_lines.lineCount() - 1);
    return static_cast<int>(std::ceil(last.y() + last.height()));
}

void NotesApp::setScroll(int scroll)
{
    const int wanted = std::clamp(scroll, 0, std::max(0, textHeight() - textArea().height()));
    if (wanted != m_scroll) {
        m_scroll = wanted;
        invalidate(sheet());
    }
}

void NotesApp::showCursor()
{
    const QTextLine line = m_lines.lineForTextPosition(m_buffer.cursor());
    const int top = static_cast<int>(line.y());
    const int bottom = static_cast<int>(std::ceil(line.y() + line.height()));
    setScroll(
        std::clamp(m_scroll, bottom - textArea().height(), std::max(top, bottom - textArea().height())));
}

void NotesApp::edit(const std::function<void()> &change)
{
    useFontHere();
    const QString textBefore = m_buffer.text();
    const int cursorBefore = m_buffer.cursor();
    const int bottomBefore = lineTop(0) + textHeight();
    const auto firstLine = [&] {
        return lineOf(std::min({cursorBefore, m_buffer.cursor(), m_buffer.text().size()}));
    };
    change();
    const QRect area = sheet();
    if (m_buffer.text() == textBefore) {
        for (const int position : {cursorBefore, m_buffer.cursor()}) {
            const int line = lineOf(position);
            const int height = static_cast<int>(std::ceil(m_lines.lineAt(line).height())) + 2;
            invalidate(QRect(area.left(), lineTop(line) - 1, area.width(), height) & area);
        }
    } else {
        const int lineBefore = firstLine();
        breakLines();
        // A change may pull a word up to the line before; lines above that stay.
        const int top = lineTop(std::max(0, std::min(lineBefore, firstLine()) - 1)) - 1;
        const int bottom = std::max(bottomBefore, lineTop(0) + textHeight()) + FontSize / 2;
        invalidate(QRect(QPoint(area.left(), top), QPoint(area.right(), bottom)) & area);
    }
    setScroll(m_scroll);
    showCursor();
}

void NotesApp::describe(QJsonObject &state) const
{
    state.insert(QStringLiteral("text"), m_buffer.text());
    state.insert(QStringLiteral("cursor"), m_buffer.cursor());
    state.insert(QStringLiteral("keys"), QJsonArray::fromStringList(m_keys));
}

// --- Keys and text ---

void NotesApp::keyPressed(const KeyPress &key)
{
    noteKey(key);
    if (key.control) {
        if (key.code == KEY_C) {
            copyText(m_buffer.text());
        }
        return;
    }
    edit([&] {
        if (const auto character = usKeyboard::character(key.code, key.shift)) {
            insert(*character);
        } else if (!moveCursor(key.code)) {
            switch (key.code) {
            case KEY_ENTER:
            case KEY_KPENTER:
                typeCharacter(QLatin1Char('\n'));
                break;
            case KEY_TAB:
                typeCharacter(QLatin1Char('\t'));
                break;
            case KEY_BACKSPACE:
                typeCharacter(Backspace);
                break;
            case KEY_DELETE:
                typeCharacter(Delete);
                break;
            default:
                break; // shown in the line of keys, means nothing else here
            }
        }
    });
}

bool NotesApp::moveCursor(int code)
{
    const QTextLine line = m_lines.lineForTextPosition(m_buffer.cursor());
    switch (code) {
    case KEY_LEFT:
        m_buffer.moveBack();
        return true;
    case KEY_RIGHT:
        m_buffer.moveForward();
        return true;
    case KEY_UP:
        moveToLine(line.lineNumber() - 1);
        return true;
    case KEY_DOWN:
        moveToLine(line.lineNumber() + 1);
        return true;
    case KEY_HOME:
        m_buffer.setCursor(line.textStart());
        return true;
    case KEY_END:
        m_buffer.setCursor(std::min(line.textStart() + line.textLength() - 1, m_buffer.text().size()));
        return true;
    default:
        return false;
    }
}

void NotesApp::moveToLine(int line)
{
    if (line < 0 || line >= m_lines.lineCount()) {
        return;
    }
    const qreal x = m_lines.lineForTextPosition(m_buffer.cursor()).cursorToX(m_buffer.cursor());
    m_buffer.setCursor(m_lines.lineAt(line).xToCursor(x));
}

void NotesApp::textTyped(const QString &text)
{
    edit([&] {
        QString run; // printable characters are inserted together
        for (const QChar character : text) {
            if (character == Backspace || character == Delete) {
                insert(std::exchange(run, QString()));
                typeCharacter(character);
            } else {
                run += character;
            }
        }
        insert(run);
    });
}

void NotesApp::typeCharacter(QChar character)
{
    if (character == Backspace) {
        m_buffer.removeBefore();
    } else if (character == Delete) {
        m_buffer.removeAfter();
    } else {
        insert(character);
    }
}

void NotesApp::insert(const QString &text)
{
    if (!m_buffer.insert(text)) {
        qCInfo(deviceLog, "the note is full: some of %d typed characters are dropped", text.size());
    }
}

void NotesApp::noteKey(const KeyPress &key)
{
    const auto printed = usKeyboard::character(key.code, key.shift);
    QString name
        = printed && !printed->isSpace() && !key.control ? QString(*printed) : usKeyboard::name(key.code);
    if (key.control) {
        name.prepend(QStringLiteral("Ctrl+"));
    }
    m_keys.append(name);
    while (m_keys.size() > KeysShown) {
        m_keys.removeFirst();
    }
    invalidate(keyLine());
}

// --- Touches ---

void NotesApp::touchDown(const Pointer &pointer)
{
    for (PushButton *button : {&m_copyButton, &m_clearButton}) {
        if (button->touchDown(pointer)) {
            invalidate(button->rect());
            return;
        }
    }
    if (!m_drag && sheet().contains(pointer.position)) {
        m_drag = Drag{pointer.id, pointer.position, m_scroll, false};
    }
}

void NotesApp::touchMove(const Pointer &pointer)
{
    if (!m_drag || m_drag->pointer != pointer.id) {
        return;
    }
    const int way = pointer.position.y() - m_drag->from.y();
    m_drag->scrolls = m_drag->scrolls || std::abs(way) > TapDistance;
    if (m_drag->scrolls) {
        setScroll(m_drag->scrollFrom - way);
    }
}

void NotesApp::touchUp(const Pointer &pointer)
{
    for (PushButton *button : {&m_copyButton, &m_clearButton}) {
        if (button->owns(pointer.id)) {
            clickButton(*button, pointer);
            return;
        }
    }
    if (!m_drag || m_drag->pointer != pointer.id) {
        return;
    }
    if (!std::exchange(m_drag, std::nullopt)->scrolls) {
        int line = 0;
        while (line + 1 < m_lines.lineCount() && lineTop(line + 1) <= pointer.position.y()) {
            ++line;
        }
        const qreal x = pointer.position.x() - textArea().left();
        edit([&] { m_buffer.setCursor(m_lines.lineAt(line).xToCursor(x)); });
    }
}

void NotesApp::touchCancel(int id)
{
    for (PushButton *button : {&m_copyButton, &m_clearButton}) {
        button->touchCancel(id);
        invalidate(button->rect());
    }
    if (m_drag && m_drag->pointer == id) {
        m_drag.reset();
    }
}

void NotesApp::clickButton(PushButton &button, const Pointer &pointer)
{
    invalidate(button.rect());
    if (!button.touchUp(pointer)) {
        return;
    }
    if (&button == &m_copyButton) {
        copyText(m_buffer.text());
    } else {
        edit([this] { m_buffer.clear(); });
    }
}

// --- Drawing ---

void NotesApp::draw(QPainter &painter, const QRect &clip)
{
    painter.fillRect(clip, QColor(theme::Mist));
    painter.setRenderHint(QPainter::Antialiasing);
    if (clip.intersects(sheet())) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(theme::Paper));
        painter.drawRoundedRect(sheet(), 22, 22);
        drawText(painter, clip);
    }
    if (clip.top() < sheet().top()) {
        theme::drawTitle(painter, QStringLiteral("Notes"), QColor(theme::Ink));
        m_copyButton.draw(painter, QColor(theme::CyanDeep));
        m_clearButton.draw(painter, QColor(theme::Ink));
    }
    if (clip.intersects(keyLine())) {
        drawKeyLine(painter);
    }
}

void NotesApp::drawText(QPainter &painter, const QRect &clip)
{
    useFontHere();
    const QRect area = textArea();
    painter.save();
    painter.setClipRect(area.adjusted(-CursorWidth, 0, CursorWidth, 0), Qt::IntersectClip);
    if (m_buffer.text().isEmpty()) {
        painter.setFont(theme::font(FontSize));
        painter.setPen(QColor(theme::Slate));
        painter.drawText(
            area.adjusted(8, 0, 0, 0), Qt::AlignLeft | Qt::AlignTop, QStringLiteral("Type something"));
    }
    painter.setPen(QColor(theme::Ink));
    m_lines.draw(&painter, QPointF(area.left(), area.top() - m_scroll), {}, clip);
    const QTextLine line = m_lines.lineForTextPosition(m_buffer.cursor());
    const qreal x = area.left() + line.cursorToX(m_buffer.cursor());
    painter.fillRect(QRectF(std::round(x) - 1, lineTop(line.lineNumber()), CursorWidth, line.height()),
        QColor(theme::Coral));
    painter.restore();
}

void NotesApp::drawKeyLine(QPainter &painter)
{
    const QRect line = keyLine();
    const QFont font = theme::font(24);
    theme::drawLine(painter, QRectF(theme::Margin, line.top(), 60, line.height()), Qt::AlignLeft, font,
        QColor(theme::Slate), QStringLiteral("Keys"));
    const QFontMetricsF metrics(font);
    qreal right = line.right() - theme::Margin;
    for (auto key = m_keys.crbegin(); key != m_keys.crend(); ++key) {
        const qreal width = std::max(48.0, metrics.horizontalAdvance(*key) + 30);
        if (right - width < theme::Margin + 80) {
            break;
        }
        const QRectF chip(right - width, line.top() + 17, width, 50);
        const bool newest = key == m_keys.crbegin();
        theme::drawPill(painter, chip, QColor(newest ? theme::Cyan : theme::Line), QColor(theme::Ink), *key);
        right -= width + 10;
    }
}

} // namespace orvane::cloud
