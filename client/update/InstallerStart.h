#pragma once

#include <QString>

// Starts an installer as a process of its own that outlives the client. The whole path is the command, blanks
// in it included; there are no arguments. False, with a log line, if it did not start. Any thread.
bool startInstaller(const QString &filePath);
