#pragma once

// The streaming SDK's code for a key of the toolkit (a value of Qt::Key), or 0 when the device has no such
// key. Any thread.
int deviceKeyCode(int toolkitKey);
