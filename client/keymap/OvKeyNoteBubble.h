#pragma once

#include <QWidget>

class QLabel;

// The note of an auxiliary key, as it is shown under the key in play. As wide as it is made, as high as its
// text needs; the mouse goes through it.
//
// GUI thread; a child of the video view.
class OvKeyNoteBubble : public QWidget
{
    Q_OBJECT

public:
    explicit OvKeyNoteBubble(QWidget *videoView);
    ~OvKeyNoteBubble() override;

    // A plain text.
    void setText(const QString &text);
    QString text() const;
    // Hangs it under a key, in the middle.
    void placeUnder(const QRect &key);

private:
    QLabel *m_label; // child
};
