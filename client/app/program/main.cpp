// Orvane, the desktop client: the order in which it starts and ends.

#include "app/CrashHandler.h"
#include "web/OvMainWindow.h"
#include "web/WebEngineArguments.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, true);
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);

    WebEngineArguments arguments(argc, argv);
    QApplication application(arguments.count(), arguments.vector());
    OvMainWindow mainWindow;
    mainWindow.show();
    installCrashHandler();
    return QApplication::exec();
}
