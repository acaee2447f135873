#pragma once

#include <QString>

#include <atomic>

// SHA-512 of a file in standard Base64, as the release's description has it. Empty, which never stands for a
// file, when the file cannot be read (logged) or `cancelled` becomes true meanwhile. Takes as long as reading
// the file takes, and 4 KiB of memory: for a worker thread.
QString sha512Of(const QString &filePath, const std::atomic_bool &cancelled);
