#pragma once

#include <QString>

class QJsonArray;

// The installer among a release's files, objects with "file_name": the last name that starts with
// "Orvane_Setup" and ends with ".exe", or empty. A name is the name of a file and nothing else: one that
// could lead out of the folder it is put into (path separators, a drive, "..") is logged and not considered.
// Any thread.
QString installerNameIn(const QJsonArray &fileInfo);
