#pragma once

#include <QColor>
#include <QPainterPath>
#include <QWidget>

#include <optional>

class QVBoxLayout;

// A speech bubble around one widget, with an arrow on the side that faces what the bubble is about. A window
// of its own that takes neither focus nor activation and is always as large as its content asks for.
//
//     bubble->setArrowDirection(OvBubble::ArrowRight);
//     bubble->setContentWidget(new QLabel(text));
//     bubble->pointAt(QRect(button->mapToGlobal(QPoint()), button->size()));
//     bubble->show();
//
// GUI thread; a child of the widget that shows it, or owned by whoever made it.
class OvBubble : public QWidget
{
    Q_OBJECT

public:
    // Where the arrow points to, which is also the side of the bubble that carries it.
    enum ArrowDirection { ArrowUp = 0, ArrowRight = 1, ArrowDown = 2, ArrowLeft = 3 };

    explicit OvBubble(QWidget *parent = nullptr);
    ~OvBubble() override;

    // What the bubble shows; the bubble owns it and deletes the former one.
    void setContentWidget(QWidget *content);
    QWidget *contentWidget() const { return m_content; }

    // The body's colour.
    void setColor(const QColor &color);
    QColor color() const { return m_color; }

    void setArrowDirection(ArrowDirection direction);
    ArrowDirection arrowDirection() const { return m_wantedDirection; }
    // The side that carries the arrow now; another than asked for only while there is no room on that side of
    // what the bubble points at.
    ArrowDirection shownArrowDirection() const { return m_shownDirection; }

    // How far the arrow stands out from the body, and half of its width there; pixels, less than 0 counts as
    // 0.
    void setArrowSize(int size, int halfWidth);
    int arrowSize() const { return m_arrowSize; }
    int arrowHalfWidth() const { return m_arrowHalfWidth; }

    // Where on its side the arrow's tip is, in pixels from the side's left or upper end; nothing: in the
    // middle. Kept off the round corners when painted.
    void setArrowPosition(std::optional<int> position);
    std::optional<int> arrowPosition() const { return m_arrowPosition; }

    // Takes the size of the content and moves the bubble to a rectangle in screen coordinates: the arrow's
    // tip touches the middle of the rectangle's facing edge. The bubble stays on the screen that holds the
    // rectangle: it goes to the opposite side where only that has room, and is moved along the edge while the
    // arrow keeps pointing. Until the next call an arrow position that was set gives way to this.
    void pointAt(const QRect &target);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    bool arrowIsHorizontal() const;
    void showArrowOn(ArrowDirection direction);
    void updateMargins();
    QPoint placeBeside(const QRect &target) const;
    QRectF body() const;
    QPainterPath shape() const;
    void updateShape();

    QVBoxLayout *m_layout; // child
    QWidget *m_content = nullptr; // child
    QColor m_color;
    ArrowDirection m_wantedDirection = ArrowDown;
    ArrowDirection m_shownDirection = ArrowDown;
    int m_arrowSize;
    int m_arrowHalfWidth;
    std::optional<int> m_arrowPosition;
    std::optional<int> m_pointedPosition; // where pointAt needs the arrow
};
