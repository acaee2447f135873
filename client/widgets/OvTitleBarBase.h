#pragma once

#include <QColor>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QWidget>

class QHBoxLayout;
class QLabel;
class QPushButton;

// The title bar of a frameless window: icon, title, an area for extra widgets and the caption buttons.
// Dragging it moves its window. With Qt::WA_StyledBackground it also has the borders of its style sheet. It
// never resizes anything itself: the window acts on its signals.
//
// GUI thread; child of its window.
class OvTitleBarBase : public QWidget
{
    Q_OBJECT

public:
    // Sets of caption buttons. The restore button belongs to none: it stands in for the maximise button while
    // the window is maximised.
    enum ButtonType : int {
        NoButtons = 0,
        CloseButton = 1,
        MinCloseButtons = 2,
        MinMaxCloseButtons = 3,
    };

    explicit OvTitleBarBase(QWidget *parent = nullptr);
    ~OvTitleBarBase() override;

    // A ButtonType; any other value is stored and leaves the buttons as they are.
    void setButtonType(int buttonType);
    int buttonType() const { return m_buttonType; }
    // The title, in a font of that height in pixels.
    void setTitle(const QString &text, int pixelSize, bool bold, const QColor &color);
    QString title() const { return m_title; }
    // Shows an image (file or resource path) scaled to a size in device-independent pixels. One that cannot
    // be read is logged and shown as nothing.
    void setIcon(const QString &imagePath, const QSize &size);
    // Whether dragging the bar moves the window; it does at first.
    void setDraggable(bool draggable);
    // Whether the bar is being dragged now.
    bool isDragged() const { return m_pressed; }
    void setBackgroundColor(const QColor &color);
    // The window's position (screen coordinates) and content size before it was maximised.
    void setNormalGeometry(const QPoint &pos, const QSize &size);
    QRect normalGeometry() const;
    // Where subclasses and owners put extra widgets, between the title and the caption buttons.
    QHBoxLayout *buttonLayout() const { return m_buttonLayout; }

signals:
    void btnMinClicked();
    void btnMaxClicked();
    void btnRestoreClicked();
    void btnCloseClicked();
    void sigMaximizeShortcutActivated();

public slots:
    void onBtnMaxClicked();
    void onBtnRestoreClicked();
    // The F11 key: toggles between maximised and normal, if the bar has a maximise button.
    void onMaximizeShortcutActivated();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    // Deliberately nothing: there is no maximising by double-click.
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QPushButton *createButton(const QString &objectName, const QString &iconPath, const QString &styleSheet);
    void createLayout();
    void showRestoreButton(bool restorable);
    void restoreUnderPointer(int pointerX);

    QLabel *m_iconLabel; // children
    QLabel *m_titleLabel;
    QHBoxLayout *m_buttonLayout;
    QPushButton *m_minButton;
    QPushButton *m_maxButton;
    QPushButton *m_restoreButton;
    QPushButton *m_closeButton;
    QColor m_backgroundColor;
    QString m_title;
    int m_buttonType = MinMaxCloseButtons;
    QPoint m_normalPos;
    QSize m_normalSize; // invalid until set
    QPoint m_lastGlobalPos; // pointer at the last step of a drag
    bool m_pressed = false; // a drag is under way
    bool m_draggable = true;
};
