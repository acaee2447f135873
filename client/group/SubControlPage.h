#pragma once

#include "group/GroupDevice.h"
#include "group/InputEvent.h"

#include <QDateTime>
#include <QList>
#include <QPointer>
#include <QSize>
#include <QString>
#include <QVector>
#include <QWidget>

#include <functional>

class BatchProcessThread;
class HttpHelper;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QTimer;
class SubController;
class TileGrid;

// The controlled devices of a group: a grid of live tiles in pages, with a bar to turn them. What is done to
// the master comes in through the slots and is replayed on every tile, of all pages, by a thread.
//
// Only the tiles of the page that is shown are live, and none while the page itself is not on the screen.
// GUI thread; child of the group's window.
class SubControlPage : public QWidget
{
    Q_OBJECT

public:
    static constexpr int perPage = 50; // as labelled; the master counts as one
    static constexpr int tilesPerPage = perPage - 1;

    using Clock = std::function<QDateTime()>; // local time

    explicit SubControlPage(QWidget *parent = nullptr);
    ~SubControlPage() override;

    // Shows these devices, in this order, in place of earlier ones, and connects to them.
    void setDevices(const QList<group::GroupDevice> &devices);

    // None for an index out of range, or for a device that has no tile.
    SubController *controllerAt(int index) const;
    SubController *findController(const QString &serviceId) const;
    int controllerCount() const { return m_controllers.size(); }
    // Starts the tile's session anew; nothing for a device that has no tile.
    void restartDevice(const QString &serviceId);

    // 1-based.
    int currentPage() const { return m_currentPage; }
    int pageCount() const { return m_pageCount; }
    // A tile's size on a page of that size, in device-independent pixels.
    static QSize tileSize(const QSize &pageSize);

    // For tests: replaces the clock of the remaining times.
    void setClock(Clock clock);

signals:
    // Declared for the input of a tile's own picture, which takes none: the page does not emit these two.
    void subControlTouchEvent(int action, float percentX, float percentY);
    void functionBtnClicked(int keyType);
    // The user wants the device in a window of its own.
    void openSingleController(const QString &serviceId, const QString &deviceName);
    // The user wants the tile's device to become the master.
    void setAsMainController(SubController *controller);
    // The tile of this device has left the group.
    void removeController(const QString &serviceId);
    void sigResizeSubContoller(const QSize &size);

public slots:
    void onPrePageBtnClicked();
    void onNextPageBtnClicked();
    // These four serve the tile that sends the signal.
    void onSetAsMainController();
    void onRestartController();
    // `slient`: without asking, and also if it is the last one.
    void onRemoveController(bool slient);
    void onOpenSingleController();
    // Input for every tile, see StreamController's slots; returns at once.
    void onSubControlTouchEvent(int action, float percentX, float percentY);
    void onInputEvent(const QString &text);
    void onFunctionBtnClicked(int keyType);
    void onKeyPressEvent(int key);
    void onKeyReleaseEvent(int key);
    // Shows the page of the numbered button that sends the signal.
    void onUpdatePageBtn();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void createBar();
    QPushButton *createBarButton(const char *objectName);
    void addTile(const group::GroupDevice &device);
    void removeTiles();
    void removeTile(SubController *tile);
    void removeConfirmed(const QString &serviceId);
    void addEvent(const group::InputEvent &event);
    void createPageButtons();
    void updateBar();
    void showTexts();
    void showPage();
    void updateLiveTiles();
    void updateRemainingTimes();
    void setOnScreen(bool onScreen);
    static int pagesFor(int tiles);
    QList<SubController *> tilesOfPage(int page) const;
    HttpHelper &httpHelper();

    int m_currentPage = 1; // 1-based
    int m_pageCount = 1;
    int m_shownPage = 0; // the one in the grid; 0 before the first tiles of a group
    bool m_onScreen = false;
    QList<QPointer<SubController>> m_controllers; // in the group's order; children of the grid
    QVector<QPushButton *> m_pageButtons; // children, one per page
    QPointer<BatchProcessThread> m_batchThread; // child; from the first setDevices on
    HttpHelper *m_httpHelper = nullptr; // child; from its first use on
    TileGrid *m_grid = nullptr; // children
    QHBoxLayout *m_buttonLayout = nullptr; // of m_pageButtons
    QLabel *m_totalLabel = nullptr;
    QComboBox *m_perPageBox = nullptr;
    QPushButton *m_prevButton = nullptr;
    QPushButton *m_nextButton = nullptr;
    QTimer *m_clockTimer = nullptr; // runs while the page is on the screen
    Clock m_clock;
};
