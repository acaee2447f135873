#pragma once

#include "device/AppCatalog.h"
#include "device/PushButton.h"

#include <QImage>

#include <functional>
#include <optional>
#include <vector>

namespace orvane::cloud {

// The overview of the apps that are open: a card with a picture for each, made when it is first drawn: to
// show it costs nothing, and nobody may be watching. Covers the whole screen while it is shown. Used by the
// device's thread, part of the shell, which invalidates the screen after every touch.
class RecentApps
{
public:
    // What an app looks like, in a size. The apps do not change while the overview is shown.
    using PictureSource = std::function<QImage(AppKind, QSize)>;
    enum class Choice {
        Nothing,
        Close, // go back to where the user was
        Open, // the chosen app
        CloseAll,
    };

    RecentApps();

    bool isShown() const { return m_shown; }
    // Size of a card's picture for that screen when there are so many cards. Up to eight fit.
    static QSize pictureSize(QSize screen, std::size_t cardCount);
    // `apps`: of the cards, in their order.
    void show(const std::vector<AppKind> &apps, QSize screen);
    void hide();

    void touchDown(const Pointer &pointer);
    void touchCancel(int pointerId);
    // What the finger that leaves the screen chose.
    Choice touchUp(const Pointer &pointer);
    AppKind chosen() const { return m_chosen; } // after Choice::Open

    void draw(QPainter &painter, QSize screen, const QRect &clip, const PictureSource &source);

private:
    struct Card
    {
        AppKind kind;
        QImage picture; // none until it is drawn
    };

    QRect pictureRect(std::size_t index) const;
    std::optional<std::size_t> cardAt(QPoint position) const;

    bool m_shown = false;
    std::vector<Card> m_cards;
    QSize m_screen;
    PushButton m_closeAll;
    int m_pointer = 0; // 0 = none
    std::optional<std::size_t> m_pressed; // card under that finger when it came down
    AppKind m_chosen = AppKind::Home;
};

} // namespace orvane::cloud
