#include "device/PaintApp.h"

#include "device/Theme.h"

#include <QLineF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>

namespace orvane::cloud {

namespace {

constexpr qreal ThinnestWidth = 6; // pixels, at no pressure
constexpr qreal ThickestWidth = 14; // at full pressure
constexpr int TipRadius = 34; // ring around a finger
constexpr std::size_t MaxKeptSamples = 50'000; // of finished strokes

constexpr std::array<QRgb, 10> FingerColours{theme::CyanDeep, theme::Coral, 0xFF6C5CE7, 0xFF00A878,
    0xFFE84A8A, 0xFFF2A516, 0xFF2D7DD2, 0xFF8D6B53, 0xFF9BC53D, 0xFF34495E};

// A stroke runs through the middles between samples, with the samples as control points, which keeps it
// smooth however far apart they are.
QPointF middle(QPointF a, QPointF b)
{
    return (a + b) / 2;
}

QPen pen(const QColor &colour, qreal width)
{
    return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

QRect around(const QRectF &box, qreal margin)
{
    return box.adjusted(-margin, -margin, margin, margin).toAlignedRect();
}

} // namespace

PaintApp::PaintApp(Host host)
    : App(std::move(host))
    , m_clearButton(QStringLiteral("Clear"))
{ }

QRect PaintApp::paper() const
{
    const int top = theme::StatusBarHeight + theme::HeaderHeight;
    return {0, top, screen().width(), screen().height() - top};
}

QRect PaintApp::counter() const
{
    return {screen().width() - theme::Margin - 330, theme::StatusBarHeight + 22, 180, 52};
}

void PaintApp::layout()
{
    m_clearButton.setRect({screen().width() - theme::Margin - 130, theme::StatusBarHeight + 22, 130, 52});
    m_bitmap = QImage();
}

void PaintApp::inkAnew()
{
    m_bitmap = QImage(screen(), QImage::Format_RGB32);
    m_bitmap.fill(theme::Paper);
    QPainter painter(&m_bitmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto inkPieces = [&](const Stroke &stroke) {
        for (std::size_t i = 0; i < stroke.samples.size(); ++i) {
            inkPiece(painter, stroke, i);
        }
    };
    for (const Stroke &stroke : m_strokes) {
        inkPieces(stroke);
        inkEnd(painter, stroke);
    }
    for (const auto &[id, finger] : m_fingers) {
        inkPieces(finger.stroke);
    }
}

void PaintApp::draw(QPainter &painter, const QRect &clip)
{
    const QRect part = clip & paper();
    if (!part.isEmpty()) {
        if (m_bitmap.isNull()) {
            inkAnew();
        }
        painter.drawImage(part.topLeft(), m_bitmap, part);
        painter.setRenderHint(QPainter::Antialiasing);
        for (const auto &[id, finger] : m_fingers) {
            if (tip(finger).intersects(clip)) {
                drawTip(painter, finger);
            }
        }
    }
    if (clip.top() < paper().top()) {
        painter.save();
        painter.setClipRect(QRect(0, 0, screen().width(), paper().top()), Qt::IntersectClip);
        drawHeader(painter);
        painter.restore();
    }
    const QRect hint(0, screen().height() / 2 - 30, screen().width(), 60);
    if (m_strokeCount == 0 && part.intersects(hint)) {
        theme::drawLine(painter, hint, Qt::AlignHCenter, theme::font(28), QColor(theme::Slate),
            QStringLiteral("Draw with one or more fingers"));
    }
}

void PaintApp::drawHeader(QPainter &painter)
{
    painter.fillRect(QRect(0, 0, screen().width(), paper().top()), QColor(theme::Mist));
    painter.fillRect(QRect(0, paper().top() - 2, screen().width(), 2), QColor(theme::Line));
    theme::drawTitle(painter, QStringLiteral("Paint"), QColor(theme::Ink));
    const auto count = static_cast<int>(m_fingers.size());
    const QColor background(count > 0 ? theme::Cyan : theme::Line);
    theme::drawPill(painter, counter(), background, QColor(count > 0 ? theme::Night : theme::Slate),
        count == 1 ? QStringLiteral("1 finger") : QStringLiteral("%1 fingers").arg(count));
    m_clearButton.draw(painter, QColor(theme::Ink));
}

void PaintApp::describe(QJsonObject &state) const
{
    state.insert(QStringLiteral("strokes"), m_strokeCount);
    state.insert(QStringLiteral("points"), m_pointCount);
    state.insert(QStringLiteral("fingers"), static_cast<int>(m_fingers.size()));
}

int PaintApp::freeSlot() const
{
    int slot = 0;
    const auto taken = [&](const auto &entry) { return entry.second.slot == slot; };
    while (std::any_of(m_fingers.begin(), m_fingers.end(), taken)) {
        ++slot;
    }
    return slot;
}

void PaintApp::touchDown(const Pointer &pointer)
{
    if (m_clearButton.touchDown(pointer)) {
        invalidate(m_clearButton.rect());
        return;
    }
    if (!paper().contains(pointer.position)) {
        return;
    }
    if (m_strokeCount++ == 0) {
        invalidate(paper()); // the hint goes
    }
    Finger finger;
    finger.slot = freeSlot();
    finger.stroke.colour
        = QColor(FingerColours.at(static_cast<std::size_t>(finger.slot) % FingerColours.size()));
    m_fingers.emplace(pointer.id, std::move(finger));
    touchMove(pointer);
    invalidate(counter());
}

void PaintApp::touchMove(const Pointer &pointer)
{
    const auto found = m_fingers.find(pointer.id);
    if (found == m_fingers.end()) {
        return;
    }
    Finger &finger = found->second;
    Stroke &stroke = finger.stroke;
    if (!stroke.samples.empty()) {
        invalidate(tip(finger));
    }
    stroke.samples.push_back({pointer.position,
        ThinnestWidth + (ThickestWidth - ThinnestWidth) * static_cast<qreal>(pointer.pressure)});
    ++m_pointCount;
    if (m_bitmap.isNull()) {
        return invalidate(tip(finger)); // and the paper, since the turn
    }
    QPainter painter(&m_bitmap);
    painter.setRenderHint(QPainter::Antialiasing);
    invalidate(inkPiece(painter, stroke, stroke.samples.size() - 1) | tip(finger));
}

void PaintApp::touchUp(const Pointer &pointer)
{
    if (m_clearButton.owns(pointer.id)) {
        invalidate(m_clearButton.rect());
        if (m_clearButton.touchUp(pointer)) {
            clear();
        }
        return;
    }
    finish(pointer.id);
}

void PaintApp::touchCancel(int id)
{
    m_clearButton.touchCancel(id);
    invalidate(m_clearButton.rect());
    finish(id);
}

void PaintApp::finish(int id)
{
    const auto found = m_fingers.find(id);
    if (found == m_fingers.end()) {
        return;
    }
    invalidate(tip(found->second) | counter());
    if (!m_bitmap.isNull()) {
        QPainter painter(&m_bitmap);
        painter.setRenderHint(QPainter::Antialiasing);
        invalidate(inkEnd(painter, found->second.stroke));
    }
    m_strokes.push_back(std::move(found->second.stroke));
    m_fingers.erase(found);
    forgetOldest();
}

void PaintApp::forgetOldest()
{
    std::size_t samples = 0;
    auto keep = m_strokes.end();
    while (keep != m_strokes.begin() && samples <= MaxKeptSamples) {
        samples += (--keep)->samples.size();
    }
    m_strokes.erase(m_strokes.begin(), keep);
}

void PaintApp::clear()
{
    m_strokes.clear();
    m_strokeCount = static_cast<int>(m_fingers.size());
    m_pointCount = 0;
    for (auto &[id, finger] : m_fingers) { // strokes under way go on from where their fingers are
        finger.stroke.samples.erase(finger.stroke.samples.begin(), finger.stroke.samples.end() - 1);
        ++m_pointCount;
    }
    if (!m_bitmap.isNull()) {
        m_bitmap.fill(theme::Paper);
    }
    invalidateAll();
}

QRect PaintApp::inkPiece(QPainter &painter, const Stroke &stroke, std::size_t index)
{
    const Sample &sample = stroke.samples[index];
    if (index == 0) {
        painter.setPen(pen(stroke.colour, sample.width));
        painter.drawPoint(sample.position);
        return around(QRectF(sample.position, QSizeF(1, 1)), sample.width);
    }
    const Sample &previous = stroke.samples[index - 1];
    const QPointF start
        = index == 1 ? previous.position : middle(stroke.samples[index - 2].position, previous.position);
    QPainterPath path(start);
    path.quadTo(previous.position, middle(previous.position, sample.position));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen(stroke.colour, sample.width));
    painter.drawPath(path);
    return around(path.controlPointRect(), sample.width);
}

QRect PaintApp::inkEnd(QPainter &painter, const Stroke &stroke)
{
    const std::size_t count = stroke.samples.size();
    if (count < 2) {
        return {};
    }
    const Sample &last = stroke.samples[count - 1];
    const QLineF line(middle(stroke.samples[count - 2].position, last.position), last.position);
    painter.setPen(pen(stroke.colour, last.width));
    painter.drawLine(line);
    return around(QRectF(line.p1(), line.p2()).normalized(), last.width);
}

QRect PaintApp::tip(const Finger &finger)
{
    const std::vector<Sample> &samples = finger.stroke.samples;
    const QPointF last = samples.back().position;
    const QPointF from = samples.size() < 2 ? last : middle(samples[samples.size() - 2].position, last);
    return around(QRectF(from, last).normalized(), TipRadius + 3);
}

// The ring around a finger, and the line to it from where the ink ends so far.
void PaintApp::drawTip(QPainter &painter, const Finger &finger)
{
    const std::vector<Sample> &samples = finger.stroke.samples;
    const Sample &last = samples.back();
    if (samples.size() > 1) {
        painter.setPen(pen(finger.stroke.colour, last.width));
        painter.drawLine(middle(samples[samples.size() - 2].position, last.position), last.position);
    }
    QColor ring = finger.stroke.colour;
    ring.setAlpha(150);
    painter.setPen(QPen(ring, 3));
    ring.setAlpha(36);
    painter.setBrush(ring);
    painter.drawEllipse(last.position, TipRadius, TipRadius);
}

} // namespace orvane::cloud
