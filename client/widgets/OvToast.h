#pragma once

#include <QString>
#include <QTimer>
#include <QWidget>

#include <chrono>

class QLabel;
class QPainterPath;
class QPropertyAnimation;

// A short message over the upper part of a window: it fades in, stays, fades out, closes and deletes itself.
// It takes neither focus nor activation.
//
//     (new OvToast(window))->show(text, 3);
//
// It appears in the middle over its parent, 50 pixels below its upper edge, but never off the screen. GUI
// thread; child of the window it appears over, or without one over the primary screen.
class OvToast : public QWidget
{
    Q_OBJECT

public:
    // How long each fade takes.
    static constexpr std::chrono::milliseconds fadeTime{1000};

    explicit OvToast(QWidget *parent = nullptr);
    ~OvToast() override;

    // Shows a plain text for a number of seconds between the two fades; less than 0 counts as 0. A toast that
    // is already there starts over with the new text.
    void show(const QString &text, int seconds);
    QString text() const { return m_text; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    using QWidget::show; // only with a text

    void setText(const QString &text);
    void moveOverParent();
    void moveOnScreen(const QPoint &wanted);
    QPainterPath shape() const;
    void fadeOut();

    QString m_text;
    QLabel *m_label; // children
    QPropertyAnimation *m_fadeIn;
    QPropertyAnimation *m_fadeOut;
    QTimer *m_stay; // runs between the fades
};
