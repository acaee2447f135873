#pragma once

#include "device/App.h"
#include "device/PushButton.h"
#include "device/TextBuffer.h"

#include <QStringList>
#include <QTextLayout>
#include <QThread>

#include <functional>
#include <optional>

namespace orvane::cloud {

// A sheet for text: shows what is typed, by key or as text, with its cursor, and a line with the last keys. A
// touch places the cursor, a drag scrolls.
class NotesApp : public App
{
public:
    // Longest text, UTF-16 units; what is typed beyond it is dropped with a log line.
    static constexpr int MaxLength = 10'000;

    explicit NotesApp(Host host);

    void draw(QPainter &painter, const QRect &clip) override;
    void describe(QJsonObject &state) const override;
    void touchDown(const Pointer &pointer) override;
    void touchMove(const Pointer &pointer) override;
    void touchUp(const Pointer &pointer) override;
    void touchCancel(int id) override;
    void keyPressed(const KeyPress &key) override;
    void textTyped(const QString &text) override;

protected:
    void layout() override;

private:
    struct Drag
    {
        int pointer = 0;
        QPoint from; // where the finger came down
        int scrollFrom = 0; // m_scroll then
        bool scrolls = false; // moved far enough for a drag
    };

    QRect sheet() const;
    QRect textArea() const;
    QRect keyLine() const;
    // Changes the text or the cursor and invalidates the lines that this changes.
    void edit(const std::function<void()> &change);
    void breakLines();
    void useFontHere();
    int lineOf(int position) const;
    int lineTop(int line) const; // content coordinates
    int textHeight() const;
    void setScroll(int scroll);
    void showCursor();
    void moveToLine(int line);
    bool moveCursor(int code);
    void typeCharacter(QChar character);
    void insert(const QString &text);
    void noteKey(const KeyPress &key);
    void clickButton(PushButton &button, const Pointer &pointer);
    void drawText(QPainter &painter, const QRect &clip);
    void drawKeyLine(QPainter &painter);

    TextBuffer m_buffer;
    QTextLayout m_lines;
    Qt::HANDLE m_linesThread = nullptr; // whose font m_lines has
    int m_scroll = 0; // pixels that the text is moved up
    QStringList m_keys; // newest last
    PushButton m_copyButton;
    PushButton m_clearButton;
    std::optional<Drag> m_drag;
};

} // namespace orvane::cloud
