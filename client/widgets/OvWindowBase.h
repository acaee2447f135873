#pragma once

#include <QBasicTimer>
#include <QColor>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QWidget>

#include <functional>

class OvTitleBarBase;
class QVBoxLayout;

// The window that every top-level window of the client is: frameless and translucent, a rounded body inside a
// transparent shadow margin, under a title bar of its own. It is moved by the title bar and resized by
// dragging its margin. Subclasses add their content to mainLayout(), under the title bar.
//
// Sizes are in device-independent pixels: the content size is the body (title bar included), the widget's
// size is larger by the shadow margin on each side. Maximising covers the screen's available area with the
// body; the platform's own maximised state is never used.
//
// GUI thread; owned by whoever creates it.
class OvWindowBase : public QWidget
{
    Q_OBJECT

public:
    // The area of the screen at a position that windows may cover.
    using AvailableGeometry = std::function<QRect(const QPoint &pos)>;

    explicit OvWindowBase(QWidget *parent = nullptr);
    ~OvWindowBase() override;

    // Gives the widget its size: content and margins, but never less than its minimum size. Called whenever
    // either changes, and on every move.
    virtual void updateWindowSize();
    // Gives the content a size that the user cannot change.
    virtual void setFixedContentSize(const QSize &size);
    // The content's width / height to keep while resizing; 0 or less: free, as at first.
    virtual void setAspectRatio(double aspectRatio);
    // Whether the window's edges are dead.
    virtual void setResizeLocked(bool locked);

    // Width of the transparent margin and of the resize zone in it; 10 at first.
    void setShadowMargin(int margin);
    int shadowMargin() const { return m_shadowMargin; }
    // Whether dragging the left or top edge moves the window, so that the opposite edge stays; it does at
    // first.
    void setMoveWithEdge(bool moveWithEdge);
    OvTitleBarBase *titleBar() const { return m_titleBar; }

    // Takes effect with the next updateWindowSize(). 0 x 0 until it is set.
    void setContentSize(const QSize &size);
    QSize contentSize() const;
    void setBackgroundColor(const QColor &color);
    QVBoxLayout *mainLayout() const { return m_mainLayout; }
    bool isMaximizedToScreen() const { return m_maximized; }
    // Replaces the question to the screens, for windows that must be kept within less than a screen.
    void setAvailableGeometry(AvailableGeometry availableGeometry);

signals:
    // The close button was clicked; the window closes right after.
    void sigCloseBtnClicked();

public slots:
    void onBtnMinClicked();
    void onBtnMaxClicked();
    void onBtnRestoreClicked();
    void onBtnCloseClicked();

protected:
    // What windows may cover of the screen that holds this one.
    QRect availableGeometry() const { return m_availableGeometry(pos()); }
    // Forgets which edge is under the pointer: the pointer is elsewhere now.
    void leaveEdge();

    bool eventFilter(QObject *watched, QEvent *event) override;
    void childEvent(QChildEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    QSize wantedWindowSize() const;
    void followMove();
    QRect screenGeometryAt(const QPoint &pos) const;
    bool isRoundingOf(const QSize &target) const;
    void updateEdge(const QPoint &pointer);
    void resizeTo(const QPoint &globalPos);

    OvTitleBarBase *m_titleBar = nullptr; // child
    QVBoxLayout *m_mainLayout; // child
    QColor m_backgroundColor;
    QSize m_contentSize; // invalid until set
    bool m_maximized = false;
    bool m_resizing = false; // a resize drag is under way
    bool m_resizeLocked = false;
    bool m_followingMove = false; // in the middle of followMove
    QBasicTimer m_moveFollowed; // runs for a while after a move was followed
    bool m_followAgain = false; // the window has been moved since
    bool m_moveWithEdge = true;
    int m_edgeRegion = 0; // set of EdgeResize::Edge under the pointer
    int m_shadowMargin;
    double m_aspectRatio = -1.0;
    QPoint m_lastGlobalPos; // pointer at the last step of a resize drag
    QPoint m_newPos; // window position that the last step gave
    AvailableGeometry m_availableGeometry;
};
