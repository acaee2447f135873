#include "group/TileGrid.h"

#include <QHBoxLayout>
#include <QScrollBar>
#include <QVBoxLayout>

#include <memory>

namespace {

// Sizes in device-independent pixels.
namespace Look {
constexpr int RowSpacing = 22;
constexpr int TileSpacing = 20;
constexpr QMargins Margins(15, 24, 15, 24);
constexpr int ScrollBarWidth = 8;
constexpr int ScrollBarMargin = 3; // to the right edge
} // namespace Look

QString scrollBarStyle()
{
    return QStringLiteral(
        "QScrollBar:vertical { background: transparent; width: 8px; margin: 0; }"
        "QScrollBar::handle:vertical { background: rgba(255, 255, 255, 0.35); border-radius: 4px;"
        " min-height: 32px; }"
        "QScrollBar::handle:vertical:hover { background: rgba(255, 255, 255, 0.6); }"
        "QScrollBar::add-line, QScrollBar::sub-line { height: 0; }"
        "QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }");
}

} // namespace

TileGrid::TileGrid(QWidget *parent)
    : QScrollArea(parent)
    , m_content(new QWidget)
    , m_rows(new QVBoxLayout(m_content))
    , m_scrollBar(new QScrollBar(Qt::Vertical, this))
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    m_rows->setSpacing(Look::RowSpacing);
    m_rows->setContentsMargins(Look::Margins);
    setWidget(m_content);
    m_content->setAutoFillBackground(false); // which setWidget has turned on

    m_scrollBar->setStyleSheet(scrollBarStyle());
    m_scrollBar->setFocusPolicy(Qt::NoFocus);
    m_scrollBar->hide();
    QScrollBar *own = verticalScrollBar();
    connect(own, &QScrollBar::valueChanged, m_scrollBar, &QScrollBar::setValue);
    connect(m_scrollBar, &QScrollBar::valueChanged, own, &QScrollBar::setValue);
    connect(own, &QScrollBar::rangeChanged, this, &TileGrid::placeScrollBar);
}

TileGrid::~TileGrid() = default;

void TileGrid::setTiles(const QList<QWidget *> &tiles)
{
    QList<QPointer<QWidget>> guarded;
    for (QWidget *tile : tiles)
        guarded.append(tile);
    if (guarded == m_tiles && !m_rowsStale)
        return;
    m_rowsStale = false;
    removeRows();
    for (const QPointer<QWidget> &tile : qAsConst(m_tiles)) {
        if (tile && !tiles.contains(tile))
            tile->hide();
    }
    m_tiles = guarded;
    QHBoxLayout *row = nullptr;
    for (int i = 0; i < tiles.size(); ++i) {
        if (i % tilesPerRow == 0) {
            if (row)
                row->addStretch();
            row = new QHBoxLayout;
            row->setSpacing(Look::TileSpacing);
            row->setContentsMargins(0, 0, 0, 0);
            m_rows->addLayout(row);
        }
        row->addWidget(tiles.at(i));
        tiles.at(i)->show();
    }
    if (row)
        row->addStretch();
    m_rows->addStretch();
}

void TileGrid::scrollToTop()
{
    verticalScrollBar()->setValue(verticalScrollBar()->minimum());
}

void TileGrid::takeTile(QWidget *tile)
{
    if (m_tiles.removeAll(tile) == 0)
        return;
    m_rowsStale = true;
    tile->hide();
}

void TileGrid::removeRows()
{
    while (QLayoutItem *item = m_rows->takeAt(0)) {
        const std::unique_ptr<QLayoutItem> owned(item); // a row's layout or the stretch below
        if (QLayout *row = item->layout()) {
            while (QLayoutItem *cell = row->takeAt(0))
                delete cell;
        }
    }
}

void TileGrid::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    placeScrollBar();
}

void TileGrid::placeScrollBar()
{
    const QScrollBar *own = verticalScrollBar();
    m_scrollBar->setRange(own->minimum(), own->maximum());
    m_scrollBar->setPageStep(own->pageStep());
    m_scrollBar->setSingleStep(own->singleStep());
    m_scrollBar->setValue(own->value());
    m_scrollBar->setGeometry(
        width() - Look::ScrollBarWidth - Look::ScrollBarMargin, 0, Look::ScrollBarWidth, height());
    m_scrollBar->setVisible(own->maximum() > own->minimum());
    m_scrollBar->raise();
}
