#pragma once

#include <Recorder.h>

#include <QStringList>

// The recording SDK's calls as Qt texts, which QCOMPARE shows when they differ.
inline QStringList asStringList(const std::vector<std::string> &texts)
{
    QStringList list;
    for (const std::string &text : texts)
        list.append(QString::fromStdString(text));
    return list;
}

inline QStringList takeCalls()
{
    return asStringList(Recorder::instance().takeCalls());
}
