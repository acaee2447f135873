#pragma once

#include "stream/ScreenOrientation.h"

#include <QWidget>

class QBoxLayout;
class QLabel;
class QPushButton;
class QSpacerItem;

// What lies over the video while the stream is paused because nobody has worked the device for a while: the
// user resumes or leaves. The last picture stays visible below, darkened, so that the white text can be read
// over every picture.
//
// GUI thread; child of its window, which gives it the video's geometry.
class StandbyWidget : public QWidget
{
    Q_OBJECT

public:
    explicit StandbyWidget(QWidget *parent = nullptr);
    ~StandbyWidget() override;

    // How the video stands below; takes effect with the next updateLayout().
    void setOrientation(ScreenOrientation orientation) { m_orientation = orientation; }
    ScreenOrientation orientation() const { return m_orientation; }
    // Lays the page out for its present size and orientation.
    void updateLayout();

signals:
    void sigResumeBtnClicked();
    void sigExitBtnClicked();

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void createLayout();
    void setTexts();
    void setPictureExtent(int extent);

    ScreenOrientation m_orientation = ScreenOrientation::Portrait;
    QLabel *m_picture; // children
    QLabel *m_titleText;
    QLabel *m_leavingText;
    QPushButton *m_resumeButton;
    QPushButton *m_exitButton;
    QBoxLayout *m_buttonLayout;
    QSpacerItem *m_upperSpacer; // in the layout
    QSpacerItem *m_lowerSpacer;
};
