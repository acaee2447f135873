#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVector>

#include <functional>

class OvMaskTipsDialog;
class OvWindowBase;

namespace group {

// That a device is about to be given back.
struct ExpiryNotice
{
    QString serviceId;
    QString deviceName;
    int minutes = 0; // that are left
};

} // namespace group

// The questions over a group's window that nobody asked for: the notices about devices whose time runs out,
// and what becomes of one whose time is over. Devices that were bought together run out together, so notices
// come one by one; each waits until no question is open. No question is answered by a key that was meant for
// the devices.
//
// GUI thread; child of its window.
class ExpiryQuestions : public QObject
{
    Q_OBJECT

public:
    // What a notice asks as things are now; empty if its device is not in the group any more.
    using Wording = std::function<QString(const group::ExpiryNotice &)>;

    ExpiryQuestions(OvWindowBase *window, Wording wording);
    ~ExpiryQuestions() override;

    // Takes the place of an earlier notice about the same device, whether that one is open or waits. The
    // answer changes nothing.
    void notify(const group::ExpiryNotice &notice);
    // Opens at once, over all others.
    void ask(const QString &question, const std::function<void()> &onConfirmed);

private:
    OvMaskTipsDialog *open(const QString &question, const std::function<void()> &onConfirmed);
    void onAnswered(OvMaskTipsDialog *question);
    void showNextNotice();

    OvWindowBase *const m_window;
    const Wording m_wording;
    QVector<group::ExpiryNotice> m_waiting; // oldest first, one for each device
    QVector<QPointer<OvMaskTipsDialog>> m_open; // delete themselves
    QPointer<OvMaskTipsDialog> m_notice; // the open one that is a notice
    QString m_noticeId; // the device it is about
};
