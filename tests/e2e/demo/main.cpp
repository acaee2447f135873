// The demo: drives the real client against the real service through its main job, as a person would, and
// saves a picture of every step.
//
//     orvane-demo [--output DIR]

#include "DemoRun.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Drives Orvane through its main job and saves pictures of it."));
    parser.addHelpOption();
    const QCommandLineOption output(QStringLiteral("output"), QStringLiteral("Where the pictures go."),
        QStringLiteral("DIR"), QStringLiteral("build/demo"));
    parser.addOption(output);
    parser.process(application);
    return DemoRun(parser.value(output)).run() ? 0 : 1;
}
