#pragma once

#include <QtGlobal>

// The streaming SDK's code for a key of the toolkit (a value of Qt::Key), or 0 when the device has no such
// key. Any thread.
int deviceKeyCode(int toolkitKey);

// The same for a key that is known by the keyboard's own code of it (QKeyEvent::nativeScanCode): which key it
// is, whatever the layout makes of it. Any thread.
int deviceKeyCodeOfScanCode(quint32 scanCode);
