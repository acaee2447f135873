#include "widgets/OvBubble.h"
#include "widgets/OvComboBox.h"
#include "widgets/OvComboBoxEditableItem.h"
#include "widgets/OvComboBoxListView.h"
#include "widgets/OvMaskTipsDialog.h"
#include "widgets/OvSlider.h"
#include "widgets/OvTitleBarBase.h"
#include "widgets/OvToast.h"
#include "widgets/OvWindowBase.h"

#include <InputFocus.h>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPropertyAnimation>
#include <QScreen>
#include <QTest>
#include <QVBoxLayout>

namespace {

// What is on the screen within a rectangle in screen coordinates.
QPixmap screenPicture(const QRect &rect)
{
    return QGuiApplication::primaryScreen()->grabWindow(0, rect.x(), rect.y(), rect.width(), rect.height());
}

// How many colours a picture shows: a widget that is there shows several.
int colorCount(const QPixmap &picture)
{
    const QImage image = picture.toImage();
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colors.insert(image.pixel(x, y));
    }
    return colors.size();
}

bool hasColor(const QPixmap &picture, const QColor &color)
{
    const QImage image = picture.toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color)
                return true;
        }
    }
    return false;
}

} // namespace

// The small widgets as they appear on the screen, at the scale that QT_SCALE_FACTOR says. With
// ORVANE_PICTURES set to a folder, a picture of each is left there.
class TestWidgetPictures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void bubbles();
    void slider();
    void comboBox();
    void toast();
    void maskDialog();

private:
    void check(const char *name, const QRect &rect);

    OvWindowBase m_window;
};

void TestWidgetPictures::initTestCase()
{
    m_window.setFixedContentSize(QSize(390, 300));
    m_window.mainLayout()->addWidget(new QWidget, 1);
    m_window.titleBar()->setTitle(QStringLiteral("Aurora"), 14, false, Qt::white);
    m_window.move(60, 60);
    m_window.show();
    m_window.activateWindow();
    QVERIFY(waitForInputFocus(m_window));
}

// Painting is asynchronous, up to the window system's: wait until something is there.
void TestWidgetPictures::check(const char *name, const QRect &rect)
{
    QTRY_VERIFY2(colorCount(screenPicture(rect)) > 8, name);
    for (QPixmap last; last.toImage() != screenPicture(rect).toImage();)
        last = screenPicture(rect);
    const QString folder = qEnvironmentVariable("ORVANE_PICTURES");
    if (!folder.isEmpty())
        QVERIFY(screenPicture(rect).save(QDir(folder).filePath(
            QStringLiteral("%1-%2.png").arg(QLatin1String(name)).arg(m_window.devicePixelRatioF()))));
}

void TestWidgetPictures::bubbles()
{
    const QRect target(220, 210, 20, 20);
    OvBubble bubbles[4];
    QRect all = target;
    for (int direction = 0; direction < 4; ++direction) {
        auto *label = new QLabel(QStringLiteral("Volume up"));
        label->setStyleSheet(QStringLiteral("color: white; padding: 4px 8px;"));
        bubbles[direction].setArrowDirection(static_cast<OvBubble::ArrowDirection>(direction));
        bubbles[direction].setContentWidget(label);
        bubbles[direction].pointAt(target);
        bubbles[direction].show();
        QVERIFY(QTest::qWaitForWindowExposed(&bubbles[direction]));
        all |= bubbles[direction].geometry();
    }
    check("bubble", all.adjusted(-5, -5, 5, 5));
}

void TestWidgetPictures::slider()
{
    OvSlider slider(&m_window);
    slider.setGeometry(40, 120, 200, 24);
    slider.setValue(42);
    slider.show();
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(&slider, &enter);
    const auto *bubble = slider.findChild<OvBubble *>();
    QVERIFY(bubble->isVisible());
    const QRect rect(slider.mapToGlobal(QPoint(0, 0)), slider.size());
    const QRect both = (rect | bubble->geometry()).adjusted(-10, -10, 10, 10);
    QTRY_VERIFY(hasColor(screenPicture(both), QColor(7, 204, 251))); // the handle
    QTRY_VERIFY(hasColor(screenPicture(both), QColor(48, 49, 51))); // the bubble
    check("slider", both);
}

void TestWidgetPictures::comboBox()
{
    OvComboBox box(&m_window);
    box.setGeometry(40, 80, 220, 32);
    for (const char *name : {"Arena", "Racing with friends", "A scheme whose name is too long for the row"})
        box.addItem(QString::fromLatin1(name));
    box.addItem(QStringLiteral("Not using the scheme"));
    box.show();
    box.showPopup();
    box.listView()->setCurrentRow(3);
    box.editableItem(1)->onWritableStateChanged(true);
    QVERIFY(QTest::qWaitForWindowExposed(box.listView()->window()));
    const QRect rect(box.mapToGlobal(QPoint(0, 0)), box.size());
    check("combobox", (rect | box.listView()->window()->geometry()).adjusted(-10, -10, 10, 10));
    box.hidePopup();
}

void TestWidgetPictures::toast()
{
    OvToast toast(&m_window);
    toast.show(
        QStringLiteral("The picture could not be saved. The file is open in another program; close it there "
                       "and try again."),
        30);
    auto *fadeIn = toast.findChild<QPropertyAnimation *>(QStringLiteral("fadeIn"));
    fadeIn->setCurrentTime(fadeIn->totalDuration());
    QVERIFY(QTest::qWaitForWindowExposed(&toast));
    check("toast", toast.geometry().adjusted(-10, -10, 10, 10));
}

void TestWidgetPictures::maskDialog()
{
    auto *dialog = new OvMaskTipsDialog(&m_window);
    dialog->setFixedSize(m_window.contentSize());
    dialog->move(10, 10);
    dialog->setText(
        QStringLiteral("The main control device Aurora will expire in 10 minutes, which will affect group "
                       "control operations. Do you want to renew?"));
    const QImage uncovered = screenPicture(m_window.geometry()).toImage();
    dialog->open();
    QTRY_VERIFY(screenPicture(m_window.geometry()).toImage() != uncovered);
    check("mask-dialog", m_window.geometry());
    dialog->close();
}

int main(int argc, char **argv)
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, true);
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    TestWidgetPictures test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_widgetpictures.moc"
