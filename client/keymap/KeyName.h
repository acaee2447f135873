#pragma once

#include <QString>

// The name by which a key of the keyboard is bound, shown and stored in schemes, such as "Q", "Space" or
// "F5": the toolkit's portable name. The modifier keys, for which the toolkit has none, are called as in
// portable key combinations ("Shift", "Ctrl", "Alt", "Meta"). Empty for a key without a name. Any thread.
//
// `key`: a Qt::Key, without modifiers.
QString keyName(int key);
