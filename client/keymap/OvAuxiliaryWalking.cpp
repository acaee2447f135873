#include "keymap/OvAuxiliaryWalking.h"

#include <QKeyEvent>
#include <QLabel>
#include <QTimer>

namespace {

constexpr int LetterW = 1;
constexpr int LetterA = 2;
constexpr int LetterS = 4;
constexpr int LetterD = 8;
constexpr int AllLetters = LetterW | LetterA | LetterS | LetterD;

// The finger's way, in pixels of the device.
constexpr double Reach = 100.0;
constexpr double Step = 5.0;
constexpr std::chrono::milliseconds StepInterval{10};

// Pixels of the view.
constexpr int Side = 80;
constexpr int LetterSide = 16;
constexpr int LetterPixels = 12;

// The keyboard's own codes of the keys that have the letters in the Latin layouts of most countries.
namespace ScanCode {
#ifdef Q_OS_WIN
constexpr quint32 W = 0x11;
constexpr quint32 A = 0x1E;
constexpr quint32 S = 0x1F;
constexpr quint32 D = 0x20;
#else // X11: 8 more than linux/input-event-codes.h has
constexpr quint32 W = 25;
constexpr quint32 A = 38;
constexpr quint32 S = 39;
constexpr quint32 D = 40;
#endif
} // namespace ScanCode

int letterAt(quint32 scanCode)
{
    switch (scanCode) {
    case ScanCode::W:
        return LetterW;
    case ScanCode::A:
        return LetterA;
    case ScanCode::S:
        return LetterS;
    case ScanCode::D:
        return LetterD;
    default:
        return 0;
    }
}

// Whether a key is of a layout that has no Latin letters, such as a Russian one.
bool isOfAnotherScript(int key)
{
    constexpr int FirstBeyondLatin1 = 0x100;
    constexpr int FirstWithoutCharacter = 0x01000000;
    if (key < FirstBeyondLatin1 || key >= FirstWithoutCharacter)
        return false;
    const QChar::Script script = QChar::script(static_cast<uint>(key));
    return script != QChar::Script_Latin && script != QChar::Script_Common;
}

// By its letter; where the layout has no such letters, by its place on the keyboard.
int letterOf(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_W:
        return LetterW;
    case Qt::Key_A:
        return LetterA;
    case Qt::Key_S:
        return LetterS;
    case Qt::Key_D:
        return LetterD;
    default:
        return isOfAnotherScript(event.key()) ? letterAt(event.nativeScanCode()) : 0;
    }
}

double stepTowards(double from, double to)
{
    return from < to ? from + Step : from - Step;
}

} // namespace

OvAuxiliaryWalking::OvAuxiliaryWalking(KeyboardMapMgr *manager, QWidget *videoView)
    : OvAuxiliaryKey(
        keymap::WalkingKey, QStringLiteral(":/icon/svg/auxiliary_walking.svg"), manager, videoView)
{
    const int middle = (Side - LetterSide) / 2;
    const int end = Side - LetterSide;
    createLetter(0, "W", {middle, 0});
    createLetter(1, "S", {middle, end});
    createLetter(2, "A", {0, middle});
    createLetter(3, "D", {end, middle});
    keyLabel()->hide();
    setFixedSize(Side, Side);
    createNoteEditor(false);
    OvAuxiliaryWalking::styleLabels();
    OvAuxiliaryWalking::setLabelsVisible(isSeen());
    OvAuxiliaryWalking::relayout();
}

void OvAuxiliaryWalking::createLetter(int index, const char *text, const QPoint &place)
{
    auto *letter = new QLabel(QLatin1String(text), this);
    letter->setObjectName(QStringLiteral("letter") + QLatin1String(text));
    letter->setFixedSize(LetterSide, LetterSide);
    letter->move(place);
    letter->setAlignment(Qt::AlignCenter);
    letter->setAttribute(Qt::WA_TransparentForMouseEvents);
    QFont font = letter->font();
    font.setPixelSize(LetterPixels);
    letter->setFont(font);
    m_letters[index] = letter;
}

OvAuxiliaryWalking::~OvAuxiliaryWalking()
{
    OvAuxiliaryWalking::liftFinger();
}

void OvAuxiliaryWalking::setKeyText(const QString &)
{ }

void OvAuxiliaryWalking::bindKey(int)
{ }

void OvAuxiliaryWalking::applySize(int)
{
    relayout();
}

void OvAuxiliaryWalking::styleLabels()
{
    const QString style
        = QStringLiteral("background-color: rgba(255, 255, 255, %1); color: rgba(96, 98, 102, %2)")
              .arg(alpha() / 100.0)
              .arg(alpha() / 100.0);
    for (QLabel *letter : m_letters)
        letter->setStyleSheet(style);
}

void OvAuxiliaryWalking::setLabelsVisible(bool areVisible)
{
    for (QLabel *letter : m_letters)
        letter->setVisible(areVisible);
}

QPointF OvAuxiliaryWalking::touchPoint(QSize deviceSize)
{
    const QPointF middle = OvAuxiliaryKey::touchPoint(deviceSize);
    return isPressed() ? middle + m_offset : middle;
}

bool OvAuxiliaryWalking::playEvent(QEvent *event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return false;
    const auto &key = *static_cast<QKeyEvent *>(event);
    if (key.isAutoRepeat())
        return true;
    if (event->type() == QEvent::KeyPress)
        press(key);
    else
        release(key);
    return false;
}

void OvAuxiliaryWalking::press(const QKeyEvent &event)
{
    const int letter = letterOf(event);
    if (letter != 0) {
        m_heldMask |= letter;
        m_ignoredReleases &= ~letter;
        if (event.nativeScanCode() != 0)
            m_letterOfScanCode.insert(event.nativeScanCode(), letter);
    }
    aim();
    if (m_heldMask == 0)
        return;
    setPressed(true);
    if (m_offset.isNull())
        emitAction(keymap::Press);
    startSteps();
}

void OvAuxiliaryWalking::release(const QKeyEvent &event)
{
    m_heldMask ^= takeReleasedLetter(event);
    aim();
    if (m_heldMask != 0) {
        startSteps();
    } else if (isPressed()) {
        m_stepTimer->stop();
        m_offset = QPointF();
        setPressed(false);
        emitAction(keymap::Release);
    }
}

// A letter may come up as another key than it went down as, since the layout changed meanwhile. 0: not a
// letter, or one whose press was ended by liftFinger.
int OvAuxiliaryWalking::takeReleasedLetter(const QKeyEvent &event)
{
    const int pressed = m_letterOfScanCode.take(event.nativeScanCode());
    const int letter = pressed != 0 ? pressed : letterOf(event);
    const int ignored = letter & m_ignoredReleases;
    m_ignoredReleases &= ~ignored;
    return letter & ~ignored;
}

// Where the held letters lead: down before up, right before left, and turned with the picture.
void OvAuxiliaryWalking::aim()
{
    double x = 0;
    double y = 0;
    if ((m_heldMask & LetterW) != 0)
        y = -Reach;
    if ((m_heldMask & LetterA) != 0)
        x = -Reach;
    if ((m_heldMask & LetterS) != 0)
        y = Reach;
    if ((m_heldMask & LetterD) != 0)
        x = Reach;
    if (screenOrientation() == ScreenOrientation::Landscape)
        m_target = QPointF(static_cast<int>(-y), static_cast<int>(x));
    else
        m_target = QPointF(x, y);
}

void OvAuxiliaryWalking::startSteps()
{
    if (!m_stepTimer) {
        m_stepTimer = new QTimer(this);
        m_stepTimer->setTimerType(Qt::PreciseTimer);
        m_stepTimer->setInterval(StepInterval);
        connect(m_stepTimer, &QTimer::timeout, this, &OvAuxiliaryWalking::step);
    }
    if (!m_stepTimer->isActive())
        m_stepTimer->start();
}

// Places are whole steps, so that they can be compared.
void OvAuxiliaryWalking::step()
{
    if (m_offset == m_target)
        m_stepTimer->stop();
    if (m_offset.y() != m_target.y())
        m_offset.setY(stepTowards(m_offset.y(), m_target.y()));
    if (m_offset.x() != m_target.x())
        m_offset.setX(stepTowards(m_offset.x(), m_target.x()));
    emitAction(keymap::Move);
}

void OvAuxiliaryWalking::onScreenRotation(ScreenOrientation screenOrientation)
{
    const bool isTurned = screenOrientation != this->screenOrientation();
    OvAuxiliaryKey::onScreenRotation(screenOrientation);
    if (!isTurned || m_heldMask == 0)
        return;
    aim();
    startSteps();
}

void OvAuxiliaryWalking::liftFinger()
{
    m_heldMask = 0;
    m_ignoredReleases = AllLetters; // an exclusive or would set what is no longer held
    m_letterOfScanCode.clear();
    m_target = QPointF();
    m_offset = QPointF();
    if (m_stepTimer)
        m_stepTimer->stop();
    OvAuxiliaryKey::liftFinger();
}
