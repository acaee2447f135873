#include "device/SettingsApp.h"

#include "device/Theme.h"

#include <QJsonArray>
#include <QPainter>

#include <algorithm>
#include <array>

namespace orvane::cloud {

namespace {

constexpr int Gap = 24; // between cards and between tiles
constexpr int CardTitleHeight = 64;
constexpr int CardPadding = 24;
constexpr int StepButton = 84; // side
constexpr int AboutRowHeight = 72;
constexpr QSize PhoneSize(44, 74); // of the picture of a device, upright

struct Turn
{
    const char *name; // in the state
    const char *label;
};

// By rotation.
constexpr std::array<Turn, 4> Turns{{{"portrait", "Portrait"}, {"landscape", "Landscape"},
    {"portraitReversed", "Portrait, reversed"}, {"landscapeReversed", "Landscape, reversed"}}};

constexpr std::size_t QuieterIndex = Turns.size();
constexpr std::size_t LouderIndex = Turns.size() + 1;

QString sizeText(QSize size)
{
    return QStringLiteral("%1 × %2").arg(size.width()).arg(size.height());
}

// A device that is turned; the bar at its lower end shows which way.
void drawPhone(QPainter &painter, QPointF centre, qreal scale, int rotation, const QColor &colour)
{
    const QRectF body(
        -PhoneSize.width() / 2.0, -PhoneSize.height() / 2.0, PhoneSize.width(), PhoneSize.height());
    painter.save();
    painter.translate(centre);
    painter.scale(scale, scale);
    painter.rotate(-90.0 * rotation);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour, 4));
    painter.drawRoundedRect(body, 9, 9);
    painter.setPen(QPen(colour, 4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(-8, body.bottom() - 11), QPointF(8, body.bottom() - 11));
    painter.restore();
}

void drawSign(QPainter &painter, QPointF centre, bool plus, const QColor &colour)
{
    constexpr qreal Half = 13;
    painter.setPen(QPen(colour, 5, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(centre - QPointF(Half, 0), centre + QPointF(Half, 0));
    if (plus) {
        painter.drawLine(centre - QPointF(0, Half), centre + QPointF(0, Half));
    }
}

} // namespace

// One column in portrait; in landscape what can be touched on the left, the rest on the right.
void SettingsApp::layout()
{
    const bool landscape = screen().width() > screen().height();
    const int top = theme::StatusBarHeight + theme::HeaderHeight;
    const int whole = screen().width() - 2 * theme::Margin;
    const int soundHeight = CardTitleHeight + StepButton + CardPadding;
    const int aboutHeight = CardTitleHeight + 4 * AboutRowHeight + CardPadding;
    if (landscape) {
        const int left = (whole - Gap) * 3 / 5;
        const int right = whole - Gap - left;
        const int bottom = body().bottom() - 8;
        m_screenCard = QRect(theme::Margin, top, left, bottom - top - Gap - soundHeight);
        m_soundCard = QRect(theme::Margin, m_screenCard.bottom() + 1 + Gap, left, soundHeight);
        m_aboutCard = QRect(theme::Margin + left + Gap, top, right, aboutHeight);
    } else {
        m_screenCard = QRect(theme::Margin, top, whole, 400);
        m_soundCard = QRect(theme::Margin, m_screenCard.bottom() + 1 + Gap, whole, soundHeight);
        m_aboutCard = QRect(theme::Margin, m_soundCard.bottom() + 1 + Gap, whole, aboutHeight);
    }
    m_controls.clear();
    layoutScreenCard();
    layoutSoundCard();
}

void SettingsApp::layoutScreenCard()
{
    const QRect inside = m_screenCard.adjusted(CardPadding, CardTitleHeight, -CardPadding, -CardPadding);
    constexpr int columns = 2;
    constexpr int rows = 2;
    constexpr int gap = Gap / 2;
    const QSize tile(
        (inside.width() - (columns - 1) * gap) / columns, (inside.height() - (rows - 1) * gap) / rows);
    for (int rotation = 0; rotation < static_cast<int>(Turns.size()); ++rotation) {
        const QPoint place(
            rotation % columns * (tile.width() + gap), rotation / columns * (tile.height() + gap));
        m_controls.push_back({QString::fromLatin1(Turns.at(static_cast<std::size_t>(rotation)).name),
            QRect(inside.topLeft() + place, tile), [this, rotation] { turnScreen(rotation); }});
    }
}

void SettingsApp::layoutSoundCard()
{
    const QRect inside = m_soundCard.adjusted(CardPadding, CardTitleHeight, -CardPadding, -CardPadding);
    const QSize button(StepButton, StepButton);
    m_controls.push_back(
        {QStringLiteral("volumeDown"), QRect(inside.topLeft(), button), [this] { stepVolume(-1); }});
    m_controls.push_back({QStringLiteral("volumeUp"),
        QRect(inside.topRight() - QPoint(StepButton - 1, 0), button), [this] { stepVolume(1); }});
}

void SettingsApp::draw(QPainter &painter, const QRect &clip)
{
    painter.fillRect(clip, QColor(theme::Mist));
    painter.setRenderHint(QPainter::Antialiasing);
    theme::drawTitle(painter, QStringLiteral("Settings"), QColor(theme::Ink));
    drawCard(painter, m_screenCard, QStringLiteral("Screen"));
    for (int rotation = 0; rotation < static_cast<int>(Turns.size()); ++rotation) {
        drawTurnTile(painter, rotation);
    }
    drawCard(painter, m_soundCard, QStringLiteral("Volume"));
    drawSound(painter);
    drawCard(painter, m_aboutCard, QStringLiteral("About"));
    drawAbout(painter);
}

void SettingsApp::drawCard(QPainter &painter, const QRect &card, const QString &title) const
{
    painter.setPen(QPen(QColor(theme::Line), 2));
    painter.setBrush(QColor(theme::Paper));
    painter.drawRoundedRect(QRectF(card).adjusted(1, 1, -1, -1), 24, 24);
    theme::drawLine(painter, QRectF(card.left() + CardPadding, card.top(), 300, CardTitleHeight),
        Qt::AlignLeft, theme::font(26, true), QColor(theme::Slate), title);
}

void SettingsApp::drawTurnTile(QPainter &painter, int rotation) const
{
    const auto index = static_cast<std::size_t>(rotation);
    const Control &control = m_controls.at(index);
    const bool chosen = system().rotation == rotation;
    const QColor accent(chosen ? theme::CyanDeep : theme::Slate);
    QColor background(chosen ? theme::Cyan : theme::Slate);
    background.setAlpha((chosen ? 36 : 18) + (control.pointer != 0 ? 50 : 0));
    painter.setPen(chosen ? QPen(QColor(theme::Cyan), 3) : QPen(Qt::NoPen));
    painter.setBrush(background);
    painter.drawRoundedRect(QRectF(control.area).adjusted(1.5, 1.5, -1.5, -1.5), 18, 18);

    // The label stands below the picture, or beside it in a tile that is too low for that.
    const QRectF area(control.area);
    constexpr qreal LabelHeight = 44;
    const bool beside = area.height() < PhoneSize.height() + LabelHeight + 16;
    const QPointF picture = beside
        ? QPointF(area.left() + 58, area.center().y())
        : QPointF(area.center().x(), area.top() + (area.height() - LabelHeight) / 2 + 4);
    const QRectF label = beside
        ? area.adjusted(112, 0, -8, 0)
        : QRectF(area.left() + 6, area.bottom() - LabelHeight - 6, area.width() - 12, LabelHeight);
    drawPhone(painter, picture, beside ? 0.85 : 1, rotation, accent);
    theme::drawLine(painter, label, beside ? Qt::AlignLeft : Qt::AlignHCenter, theme::font(21),
        QColor(chosen ? theme::Ink : theme::Slate), QString::fromLatin1(Turns.at(index).label));
}

void SettingsApp::drawSound(QPainter &painter) const
{
    const SystemState state = system();
    for (const std::size_t index : {QuieterIndex, LouderIndex}) {
        const Control &control = m_controls.at(index);
        QColor background(theme::Slate);
        background.setAlpha(control.pointer != 0 ? 70 : 24);
        painter.setPen(Qt::NoPen);
        painter.setBrush(background);
        painter.drawRoundedRect(control.area, 20, 20);
        drawSign(painter, QRectF(control.area).center(), index == LouderIndex, QColor(theme::Ink));
    }
    constexpr qreal BarHeight = 14;
    constexpr qreal NumberWidth = 64;
    const QRectF quieter(m_controls.at(QuieterIndex).area);
    const QRectF louder(m_controls.at(LouderIndex).area);
    QRectF bar(quieter.right() + 28, quieter.center().y() - BarHeight / 2,
        louder.left() - quieter.right() - 56 - NumberWidth, BarHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(theme::Line));
    painter.drawRoundedRect(bar, BarHeight / 2, BarHeight / 2);
    theme::drawLine(painter, QRectF(bar.right() + 8, quieter.top(), NumberWidth, quieter.height()),
        Qt::AlignRight, theme::font(28, true), QColor(theme::Ink), QString::number(state.volume));
    if (state.volume > 0) {
        bar.setWidth(std::max(BarHeight, bar.width() * state.volume / state.loudest));
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(theme::Cyan));
        painter.drawRoundedRect(bar, BarHeight / 2, BarHeight / 2);
    }
}

void SettingsApp::drawAbout(QPainter &painter) const
{
    const SystemState state = system();
    const std::array<std::pair<const char *, QString>, 4> rows{{{"Device name", state.deviceName},
        {"Pad code", state.padCode}, {"Version", state.version}, {"Screen", sizeText(state.portraitScreen)}}};
    QRectF row(m_aboutCard.left() + CardPadding, m_aboutCard.top() + CardTitleHeight,
        m_aboutCard.width() - 2 * CardPadding, AboutRowHeight);
    constexpr qreal LabelWidth = 170;
    for (const auto &[label, value] : rows) {
        painter.fillRect(QRectF(row.left(), row.top(), row.width(), 2), QColor(theme::Line));
        theme::drawLine(
            painter, row, Qt::AlignLeft, theme::font(25), QColor(theme::Slate), QString::fromLatin1(label));
        theme::drawLine(painter, row.adjusted(LabelWidth, 0, 0, 0), Qt::AlignRight, theme::font(25),
            QColor(theme::Ink), value);
        row.translate(0, AboutRowHeight);
    }
}

void SettingsApp::describe(QJsonObject &state) const
{
    QJsonObject controls;
    for (const Control &control : m_controls) {
        const QPoint centre = control.area.center();
        controls.insert(control.name, QJsonArray{centre.x(), centre.y()});
    }
    const SystemState system = this->system();
    state.insert(QStringLiteral("controls"), controls);
    state.insert(QStringLiteral("deviceName"), system.deviceName);
    state.insert(QStringLiteral("padCode"), system.padCode);
    state.insert(QStringLiteral("version"), system.version);
    state.insert(
        QStringLiteral("screen"), QJsonArray{system.portraitScreen.width(), system.portraitScreen.height()});
}

SettingsApp::Control *SettingsApp::pressedBy(int pointerId)
{
    const auto found = std::find_if(m_controls.begin(), m_controls.end(),
        [pointerId](const Control &control) { return control.pointer == pointerId; });
    return found == m_controls.end() ? nullptr : &*found;
}

void SettingsApp::touchDown(const Pointer &pointer)
{
    for (Control &control : m_controls) {
        if (control.pointer == 0 && control.area.contains(pointer.position)) {
            control.pointer = pointer.id;
            invalidate(control.area);
        }
    }
}

void SettingsApp::touchUp(const Pointer &pointer)
{
    Control *control = pressedBy(pointer.id);
    if (!control) {
        return;
    }
    control->pointer = 0;
    invalidate(control->area);
    if (control->area.contains(pointer.position)) {
        // A copy, because turning the screen lays the controls out anew.
        const std::function<void()> act = control->act;
        act();
    }
}

void SettingsApp::touchCancel(int id)
{
    if (Control *control = pressedBy(id)) {
        control->pointer = 0;
        invalidate(control->area);
    }
}

} // namespace orvane::cloud
