#pragma once

#include <QList>
#include <QPointer>
#include <QScrollArea>

class QScrollBar;
class QVBoxLayout;

// The tiles of one page of a group, four to a row; more rows than fit are scrolled to. The scroll bar lies
// over the right margin, so that it takes no room from the tiles.
//
// GUI thread; child of the page. The tiles become children of its content.
class TileGrid : public QScrollArea
{
    Q_OBJECT

public:
    static constexpr int tilesPerRow = 4;

    explicit TileGrid(QWidget *parent = nullptr);
    ~TileGrid() override;

    // Lays these tiles out, in this order, and shows them; those laid out before and not among them are
    // hidden.
    void setTiles(const QList<QWidget *> &tiles);
    void scrollToTop();
    // Hides the tile, if it is laid out; the others move up at the next setTiles.
    void takeTile(QWidget *tile);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void removeRows();
    void placeScrollBar();

    QWidget *m_content; // child
    QVBoxLayout *m_rows;
    QScrollBar *m_scrollBar; // child; follows the area's own, which stays hidden
    QList<QPointer<QWidget>> m_tiles; // those laid out
    bool m_rowsStale = false; // one of the tiles in the rows was taken
};
