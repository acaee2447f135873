#pragma once

#include "group/GroupDevice.h"
#include "widgets/OvWindowBase.h"

#include <QStringList>

// The window in which the user operates a group of devices, as its opener sees it: what it is given, what it
// is told and what it asks for. Closing it with its close button is told by OvWindowBase::sigCloseBtnClicked.
//
// GUI thread; a top-level window without a parent that deletes itself when it is closed.
class GroupWindow : public OvWindowBase
{
    Q_OBJECT

public:
    explicit GroupWindow(QWidget *parent = nullptr);

    // Starts the group with these devices, in place of earlier ones.
    virtual void setDevices(const group::GroupDevices &devices) = 0;
    virtual void setGroupName(const QString &name) = 0;
    // The device's time will be over in so many minutes. Nothing for a device that is not in the group.
    virtual void onDeviceExpireNotice(const QString &serviceId, const QString &deviceName, int minutes) = 0;
    // The device's time is over. Nothing for a device that is not in the group.
    virtual void onDeviceExpired(const QString &serviceId, const QString &deviceName) = 0;
    // The device's own window has been closed: the group shows the device again.
    virtual void resumeDevice(const QString &serviceId) = 0;
    virtual bool contains(const QString &serviceId) const = 0;
    // The group's devices, the master first.
    virtual QStringList serviceIds() const = 0;

signals:
    // The user wants a device of the group in a window of its own.
    void openSingleController(const QString &serviceId, const QString &deviceName);
    // The user's saved groups have changed.
    void updateGroup();
};
