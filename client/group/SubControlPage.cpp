#include "group/SubControlPage.h"

#include "group/BatchProcessThread.h"
#include "group/RemoveDeviceDialog.h"
#include "group/SubController.h"
#include "group/TileGrid.h"
#include "net/HttpHelper.h"
#include "widgets/OvToast.h"

#include <QComboBox>
#include <QDebug>
#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QResizeEvent>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int SuccessCode = 200;
constexpr int FewestTiles = 2; // of a group from which a device can be removed
constexpr int ToastSeconds = 3;
constexpr int ClockIntervalMs = 1000;

// Sizes in device-independent pixels.
namespace Look {
constexpr int MinimumWidth = 775;
constexpr int MinimumHeight = 660;
constexpr int TilesWidthRest = 90; // of the page's width: margins, and spaces between four tiles
constexpr int TilesHeightRest = 70; // of its height: margins, and the space between two rows
constexpr float TileWidthPart = 0.25F;
constexpr float TileHeightPart = 0.5F;
constexpr int BarHeight = 35;
constexpr int BarSpacing = 8;
constexpr int BarExtent = 25; // of what stands in the bar
constexpr int PerPageWidth = 100;
} // namespace Look

// One style sheet for the whole bar. "current" marks the button of the page that is shown.
QString barStyle()
{
    return QStringLiteral(
        "QLabel { color: rgba(217, 108, 108, 1); font-size: 13px; }"
        "QPushButton { color: #C0C4CC; background: rgba(68, 68, 68, 1); border: 1px solid rgba(89, 89, 89, "
        "1);"
        " border-radius: 3px; padding: 0; font-size: 12px; }"
        "QPushButton:hover, QPushButton:focus { border-color: rgba(255, 155, 122, 1); }"
        "QPushButton[current=\"true\"] { color: white; background: rgba(255, 155, 122, 1);"
        " border-color: rgba(255, 155, 122, 1); }"
        "QComboBox { color: #C0C4CC; background: rgba(68, 68, 68, 1); border: 1px solid rgba(89, 89, 89, 1);"
        " border-radius: 3px; padding-left: 8px; font-size: 12px; }"
        "QComboBox::drop-down { border: none; width: 20px; }"
        "QComboBox::down-arrow { image: url(:/icon/svg/arrowDown.svg); width: 10px; height: 10px; }"
        "QComboBox QAbstractItemView { color: #C0C4CC; background: rgba(68, 68, 68, 1);"
        " selection-background-color: rgba(255, 155, 122, 1); }");
}

} // namespace

SubControlPage::SubControlPage(QWidget *parent)
    : QWidget(parent)
    , m_grid(new TileGrid(this))
    , m_clockTimer(new QTimer(this))
    , m_clock(&QDateTime::currentDateTime)
{
    setMinimumSize(Look::MinimumWidth, Look::MinimumHeight);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_grid, 1);
    createBar();
    createPageButtons();
    updateBar();
    showTexts();
    m_clockTimer->setInterval(ClockIntervalMs);
    connect(m_clockTimer, &QTimer::timeout, this, &SubControlPage::updateRemainingTimes);
}

// The thread ends before the tiles do.
SubControlPage::~SubControlPage()
{
    delete m_batchThread;
}

void SubControlPage::setClock(Clock clock)
{
    m_clock = std::move(clock);
}

// ---- Devices ----

void SubControlPage::setDevices(const QList<group::GroupDevice> &devices)
{
    removeTiles();
    for (const group::GroupDevice &device : devices)
        addTile(device);
    if (!m_batchThread)
        m_batchThread = new BatchProcessThread(this);
    m_batchThread->setControllers(m_controllers);
    m_batchThread->start();
    m_pageCount = pagesFor(m_controllers.size());
    m_currentPage = qMin(m_currentPage, m_pageCount);
    m_shownPage = 0;
    createPageButtons();
    updateBar();
    showPage();
}

void SubControlPage::addTile(const group::GroupDevice &device)
{
    const int index = m_controllers.size();
    auto *tile = new SubController(this);
    tile->hide();
    tile->onResizeSubController(tileSize(size()));
    m_controllers.append(tile);
    connect(this, &SubControlPage::sigResizeSubContoller, tile, &SubController::onResizeSubController);
    connect(tile, &SubController::setAsMainController, this, &SubControlPage::onSetAsMainController);
    connect(tile, &SubController::restartController, this, &SubControlPage::onRestartController);
    connect(tile, &SubController::removeController, this, &SubControlPage::onRemoveController);
    connect(tile, &SubController::openSingleController, this, &SubControlPage::onOpenSingleController);
    tile->setLive(m_onScreen && index / tilesPerPage == m_currentPage - 1);
    tile->setDevice(device);
}

// Those of an earlier group.
void SubControlPage::removeTiles()
{
    const QList<QPointer<SubController>> tiles = m_controllers;
    m_controllers.clear();
    for (const QPointer<SubController> &tile : tiles) {
        if (!tile)
            continue;
        disconnect(tile, nullptr, this, nullptr);
        m_grid->takeTile(tile);
        m_batchThread->removeController(tile);
    }
}

SubController *SubControlPage::controllerAt(int index) const
{
    return index >= 0 && index < m_controllers.size() ? m_controllers.at(index).data() : nullptr;
}

SubController *SubControlPage::findController(const QString &serviceId) const
{
    for (const QPointer<SubController> &tile : m_controllers) {
        if (tile && tile->serviceId() == serviceId)
            return tile;
    }
    return nullptr;
}

void SubControlPage::restartDevice(const QString &serviceId)
{
    if (SubController *tile = findController(serviceId))
        tile->restartStream();
}

// ---- The tiles' menus ----

void SubControlPage::onSetAsMainController()
{
    if (auto *tile = qobject_cast<SubController *>(sender()))
        emit setAsMainController(tile);
}

void SubControlPage::onRestartController()
{
    const auto *tile = qobject_cast<SubController *>(sender());
    if (!tile)
        return;
    const QJsonObject body{{QStringLiteral("service_id"), tile->serviceId()},
        {QStringLiteral("action_type"), QStringLiteral("reboot")}};
    const auto onError = [](const QString &error) {
        qWarning().noquote() << "restart controller failed, error msg --->" << error;
    };
    const auto onAnswer = [onError](const ResponseData &response) {
        if (response.code == SuccessCode)
            qDebug() << "restart controller success!";
        else
            onError(response.msg);
    };
    httpHelper().post(HttpHelper::apiBaseUrl() + QStringLiteral("/apiv1/device/actionDevice"),
        QString::fromUtf8(QJsonDocument(body).toJson()), onAnswer, onError);
}

void SubControlPage::onOpenSingleController()
{
    if (const auto *tile = qobject_cast<SubController *>(sender()))
        emit openSingleController(tile->serviceId(), tile->device().aliasName);
}

void SubControlPage::onRemoveController(bool slient)
{
    auto *tile = qobject_cast<SubController *>(sender());
    if (!tile || !m_controllers.contains(tile))
        return;
    if (slient) {
        removeTile(tile);
        return;
    }
    auto *dialog = new RemoveDeviceDialog(window());
    connect(dialog, &QDialog::accepted, this,
        [this, serviceId = tile->serviceId()] { removeConfirmed(serviceId); });
    dialog->open();
}

// The device may have left the group or become its master in the meantime.
void SubControlPage::removeConfirmed(const QString &serviceId)
{
    SubController *tile = findController(serviceId);
    if (!tile)
        return;
    if (m_controllers.size() < FewestTiles) {
        (new OvToast(window()))->show(tr("Group control need to be more than 2 devices"), ToastSeconds);
        return;
    }
    removeTile(tile);
}

void SubControlPage::removeTile(SubController *tile)
{
    m_grid->takeTile(tile);
    m_controllers.removeAll(tile);
    emit removeController(tile->serviceId());
    m_batchThread->removeController(tile);
    const int pages = pagesFor(m_controllers.size());
    if (pages < m_pageCount) {
        while (m_pageButtons.size() > pages)
            delete m_pageButtons.takeLast();
        m_pageCount = m_currentPage = pages;
        m_pageButtons.last()->click();
    }
    showPage();
}

HttpHelper &SubControlPage::httpHelper()
{
    if (!m_httpHelper)
        m_httpHelper = new HttpHelper(this);
    return *m_httpHelper;
}

// ---- Input ----

void SubControlPage::onSubControlTouchEvent(int action, float percentX, float percentY)
{
    addEvent(group::InputEvent::touch(action, percentX, percentY));
}

void SubControlPage::onInputEvent(const QString &text)
{
    addEvent(group::InputEvent::typed(text));
}

void SubControlPage::onFunctionBtnClicked(int keyType)
{
    addEvent(group::InputEvent::key(keyType, group::InputEvent::FunctionButton));
}

void SubControlPage::onKeyPressEvent(int key)
{
    addEvent(group::InputEvent::key(key, group::InputEvent::KeyPress));
}

void SubControlPage::onKeyReleaseEvent(int key)
{
    addEvent(group::InputEvent::key(key, group::InputEvent::KeyRelease));
}

// Without devices there is nobody to replay it on.
void SubControlPage::addEvent(const group::InputEvent &event)
{
    if (m_batchThread)
        m_batchThread->addEvent(event);
}

// ---- Pages ----

int SubControlPage::pagesFor(int tiles)
{
    return qMax(1, (tiles + tilesPerPage - 1) / tilesPerPage);
}

QList<SubController *> SubControlPage::tilesOfPage(int page) const
{
    QList<SubController *> tiles;
    const QList<QPointer<SubController>> part = m_controllers.mid((page - 1) * tilesPerPage, tilesPerPage);
    for (const QPointer<SubController> &tile : part) {
        if (tile)
            tiles.append(tile);
    }
    return tiles;
}

// Another page begins at its top; one that has only lost a tile stays where it is scrolled to.
void SubControlPage::showPage()
{
    QList<QWidget *> widgets;
    const QList<SubController *> tiles = tilesOfPage(m_currentPage);
    for (SubController *tile : tiles)
        widgets.append(tile);
    m_grid->setTiles(widgets);
    if (m_currentPage != m_shownPage)
        m_grid->scrollToTop();
    m_shownPage = m_currentPage;
    showTexts();
    updateLiveTiles();
    updateRemainingTimes();
}

// Those to be seen come first: their pictures are waited for.
void SubControlPage::updateLiveTiles()
{
    const QList<SubController *> shown = m_onScreen ? tilesOfPage(m_currentPage) : QList<SubController *>();
    for (SubController *tile : shown)
        tile->setLive(true);
    for (const QPointer<SubController> &tile : qAsConst(m_controllers)) {
        if (tile && tile->isLive() && !shown.contains(tile))
            tile->setLive(false);
    }
}

void SubControlPage::updateRemainingTimes()
{
    const QDateTime now = m_clock();
    const QList<SubController *> tiles = tilesOfPage(m_currentPage);
    for (SubController *tile : tiles)
        tile->showRemainingTime(now);
}

void SubControlPage::setOnScreen(bool onScreen)
{
    if (onScreen == m_onScreen)
        return;
    m_onScreen = onScreen;
    updateLiveTiles();
    if (!onScreen) {
        m_clockTimer->stop();
        return;
    }
    updateRemainingTimes();
    m_clockTimer->start();
}

// Both come as well when the window is minimised and restored.
void SubControlPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    setOnScreen(true);
}

void SubControlPage::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    setOnScreen(false);
}

QSize SubControlPage::tileSize(const QSize &pageSize)
{
    const int width = qMax(0, pageSize.width() - Look::TilesWidthRest);
    const int height = qMax(0, pageSize.height() - Look::TilesHeightRest);
    return {static_cast<int>(static_cast<float>(width) * Look::TileWidthPart),
        static_cast<int>(static_cast<float>(height) * Look::TileHeightPart)};
}

void SubControlPage::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    emit sigResizeSubContoller(tileSize(event->size()));
}

void SubControlPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        showTexts();
    QWidget::changeEvent(event);
}

// ---- Page bar ----

void SubControlPage::createBar()
{
    auto *bar = new QWidget(this);
    bar->setFixedHeight(Look::BarHeight);
    bar->setStyleSheet(barStyle());
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Look::BarSpacing);
    layout->addStretch();
    m_totalLabel = new QLabel(bar);
    m_totalLabel->setObjectName(QStringLiteral("totalLabel"));
    layout->addWidget(m_totalLabel);
    m_perPageBox = new QComboBox(bar);
    m_perPageBox->setObjectName(QStringLiteral("perPageBox"));
    m_perPageBox->addItem(QString());
    m_perPageBox->setFixedSize(Look::PerPageWidth, Look::BarExtent);
    m_perPageBox->setFocusPolicy(Qt::TabFocus);
    layout->addWidget(m_perPageBox);
    m_prevButton = createBarButton("prevButton");
    layout->addWidget(m_prevButton);
    m_buttonLayout = new QHBoxLayout;
    m_buttonLayout->setSpacing(Look::BarSpacing);
    layout->addLayout(m_buttonLayout);
    m_nextButton = createBarButton("nextButton");
    layout->addWidget(m_nextButton);
    layout->addStretch();
    connect(m_prevButton, &QPushButton::clicked, this, &SubControlPage::onPrePageBtnClicked);
    connect(m_nextButton, &QPushButton::clicked, this, &SubControlPage::onNextPageBtnClicked);
    this->layout()->addWidget(bar);
}

// A click leaves the keyboard with the master.
QPushButton *SubControlPage::createBarButton(const char *objectName)
{
    auto *button = new QPushButton(m_totalLabel->parentWidget());
    button->setObjectName(QLatin1String(objectName));
    button->setFixedSize(Look::BarExtent, Look::BarExtent);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

// As many as there are pages.
void SubControlPage::createPageButtons()
{
    while (m_pageButtons.size() > m_pageCount)
        delete m_pageButtons.takeLast();
    while (m_pageButtons.size() < m_pageCount) {
        QPushButton *button = createBarButton("pageButton");
        button->setText(QString::number(m_pageButtons.size() + 1));
        connect(button, &QPushButton::clicked, this, &SubControlPage::onUpdatePageBtn);
        m_buttonLayout->addWidget(button);
        m_pageButtons.append(button);
    }
}

void SubControlPage::updateBar()
{
    for (int i = 0; i < m_pageButtons.size(); ++i) {
        QPushButton *button = m_pageButtons.at(i);
        const bool current = i == m_currentPage - 1;
        button->setCursor(current ? Qt::ForbiddenCursor : Qt::PointingHandCursor);
        button->setProperty("current", current);
        button->style()->unpolish(button); // makes the style sheet look at the property again
        button->style()->polish(button);
    }
    const bool first = m_currentPage == 1;
    m_prevButton->setIcon(QIcon(
        first ? QStringLiteral(":/icon/svg/left_disabled.svg") : QStringLiteral(":/icon/svg/left.svg")));
    m_prevButton->setCursor(first ? Qt::ForbiddenCursor : Qt::PointingHandCursor);
    const bool last = m_currentPage == m_pageCount;
    m_nextButton->setIcon(QIcon(
        last ? QStringLiteral(":/icon/svg/right_disabled.svg") : QStringLiteral(":/icon/svg/right.svg")));
    m_nextButton->setCursor(last ? Qt::ForbiddenCursor : Qt::PointingHandCursor);
}

void SubControlPage::showTexts()
{
    //: How many devices a group has.
    m_totalLabel->setText(tr("Total %1").arg(m_controllers.size() + 1));
    //: How many devices of a group a page shows.
    m_perPageBox->setItemText(0, tr("50/page"));
    m_prevButton->setAccessibleName(tr("Previous page"));
    m_nextButton->setAccessibleName(tr("Next page"));
}

void SubControlPage::onUpdatePageBtn()
{
    const int index = m_pageButtons.indexOf(qobject_cast<QPushButton *>(sender()));
    if (index < 0)
        return;
    m_currentPage = index + 1;
    updateBar();
    showPage();
}

void SubControlPage::onNextPageBtnClicked()
{
    if (m_currentPage != m_pageCount)
        m_pageButtons.at(m_currentPage)->click();
}

void SubControlPage::onPrePageBtnClicked()
{
    if (m_currentPage != 1)
        m_pageButtons.at(m_currentPage - 2)->click();
}
