#include "Report.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSysInfo>
#include <QThread>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>

namespace bench {

namespace {

double cpuMs(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

QString processorName()
{
    QFile file(QStringLiteral("/proc/cpuinfo"));
    if (file.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : file.readAll().split('\n')) {
            if (line.startsWith("model name"))
                return QString::fromUtf8(line.mid(line.indexOf(':') + 1).trimmed());
        }
    }
    return QSysInfo::currentCpuArchitecture();
}

} // namespace

double percentile(std::vector<double> values, double share)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    const auto rank = static_cast<std::size_t>(std::ceil(share * static_cast<double>(values.size())));
    return values[std::clamp<std::size_t>(rank, 1, values.size()) - 1];
}

double processCpuMs()
{
    return cpuMs(CLOCK_PROCESS_CPUTIME_ID);
}

double threadCpuMs()
{
    return cpuMs(CLOCK_THREAD_CPUTIME_ID);
}

bool writeReport(const QString &file, QJsonObject figures)
{
    for (auto it = figures.begin(); it != figures.end(); ++it) {
        if (it.value().isDouble())
            it.value() = std::round(it.value().toDouble() * 1000) / 1000;
    }
    figures.insert(QStringLiteral("machine"),
        QStringLiteral("%1, %2 cores, %3")
            .arg(processorName())
            .arg(QThread::idealThreadCount())
            .arg(QSysInfo::prettyProductName()));
    figures.insert(
        QStringLiteral("commit"), qEnvironmentVariable("ORVANE_COMMIT", QStringLiteral("unknown")));
    const QByteArray text = QJsonDocument(figures).toJson();
    std::fputs(text.constData(), stdout);
    QDir().mkpath(QFileInfo(file).path());
    QFile out(file);
    if (!out.open(QIODevice::WriteOnly) || out.write(text) != text.size()) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(file), qPrintable(out.errorString()));
        return false;
    }
    return true;
}

QString outputFile()
{
    const QStringList arguments = QCoreApplication::arguments();
    const int index = arguments.indexOf(QStringLiteral("--output"));
    return index > 0 && index + 1 < arguments.size()
        ? arguments.at(index + 1)
        : QStringLiteral("build/bench/%1.json")
              .arg(QFileInfo(arguments.at(0)).fileName().remove(QStringLiteral("bench-")));
}

} // namespace bench
