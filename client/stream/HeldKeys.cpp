#include "stream/HeldKeys.h"

#include <algorithm>

void HeldKeys::press(quint32 scanCode, int deviceCode)
{
    const bool known = std::any_of(m_keys.cbegin(), m_keys.cend(),
        [&](const Key &key) { return key.scanCode == scanCode && key.deviceCode == deviceCode; });
    if (!known)
        m_keys.append({scanCode, deviceCode});
}

QVector<int> HeldKeys::release(quint32 scanCode, int deviceCode)
{
    QVector<int> others;
    QVector<Key> held;
    for (const Key &key : qAsConst(m_keys)) {
        if (key.deviceCode == deviceCode)
            continue;
        if (scanCode != 0 && key.scanCode == scanCode)
            others.append(key.deviceCode);
        else
            held.append(key);
    }
    m_keys = held;
    return others;
}

QVector<int> HeldKeys::releaseAll()
{
    QVector<int> codes;
    for (const Key &key : qAsConst(m_keys))
        codes.append(key.deviceCode);
    m_keys.clear();
    return codes;
}
