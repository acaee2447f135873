// Keys and text of the video view.

#include "stream/VideoView.h"

#include <InputFocus.h>

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QSignalSpy>
#include <QTest>

namespace {

// A window around the view that sees the keys which the view passes on.
class KeyWindow : public QWidget
{
public:
    QList<int> pressed;
    QList<int> released;

protected:
    void keyPressEvent(QKeyEvent *event) override { pressed.append(event->key()); }
    void keyReleaseEvent(QKeyEvent *event) override { released.append(event->key()); }
};

} // namespace

class tst_VideoViewKeys : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void keysGoOnToTheWindow();
    void committedText();

private:
    std::unique_ptr<KeyWindow> m_window;
    VideoView *m_view = nullptr;
};

void tst_VideoViewKeys::init()
{
    m_window = std::make_unique<KeyWindow>();
    m_view = new VideoView(m_window.get());
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(waitForInputFocus(*m_window));
}

void tst_VideoViewKeys::keysGoOnToTheWindow()
{
    const QList<int> keys = {Qt::Key_A, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Escape, Qt::Key_Space,
        Qt::Key_Return, Qt::Key_Left, Qt::Key_Control};
    m_view->setFocus();
    for (const int key : keys)
        QTest::keyClick(m_view, static_cast<Qt::Key>(key));
    QCOMPARE(m_window->pressed, keys);
    QCOMPARE(m_window->released, keys);
    QVERIFY(m_view->hasFocus());
}

void tst_VideoViewKeys::committedText()
{
    QSignalSpy texts(m_view, &VideoView::inputEvent);
    QInputMethodEvent composing(QStringLiteral("ni"), {});
    QApplication::sendEvent(m_view, &composing);
    QCOMPARE(texts.count(), 0);
    QInputMethodEvent committed;
    committed.setCommitString(QStringLiteral("\u4f60\u597d"));
    QApplication::sendEvent(m_view, &committed);
    QCOMPARE(texts.count(), 1);
    QCOMPARE(texts.first().first().toString(), QStringLiteral("\u4f60\u597d"));
}

QTEST_MAIN(tst_VideoViewKeys)

#include "tst_videoviewkeys.moc"
