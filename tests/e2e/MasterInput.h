#pragma once

#include <QObject>
#include <QSize>
#include <QStringList>
#include <QVector>

#include <functional>

class GroupController;
class QJsonObject;
class QRandomGenerator;

namespace e2e {

// Works the master of a group at random, as a person does: with the mouse on its picture, the keyboard, the
// buttons under it and the clipboard. Keeps what every other device is to receive, event by event.
class MasterInput : public QObject
{
public:
    // Both outlive it.
    MasterInput(GroupController &window, QRandomGenerator &random);

    // One gesture, key, button or text.
    void step();
    // A text that says that nothing follows.
    void end();

    int count() const { return m_expected.size(); }
    // What a device with this screen (pixels, portrait) is to receive, as texts.
    QStringList expectedOn(QSize screen) const;
    // The same for an event of the device's log.
    static QString asText(const QJsonObject &event);

private:
    using Expected = std::function<QString(QSize)>;

    void gesture();
    void key();
    void button();
    void paste(const QString &text);
    void expect(const QString &text);
    void onTouch(int action, float percentX, float percentY);

    GroupController &m_window;
    QRandomGenerator &m_random;
    QVector<Expected> m_expected;
};

} // namespace e2e
