#pragma once

#include <QJsonObject>
#include <QString>

#include <vector>

namespace bench {

// The given share (0 to 1) of the values is at or below the result. The values need not be sorted; 0 for
// none.
double percentile(std::vector<double> values, double share);

// CPU time of this process so far, all threads, in milliseconds.
double processCpuMs();
// CPU time of the calling thread so far, in milliseconds.
double threadCpuMs();

// Adds the machine and the commit to the figures, writes them as one JSON object and prints them. False when
// the file cannot be written.
bool writeReport(const QString &file, QJsonObject figures);

// The value of "--output FILE" on the program's command line.
QString outputFile();

} // namespace bench
