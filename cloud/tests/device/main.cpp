#include <QGuiApplication>

#include <gtest/gtest.h>

// Devices draw text, which needs an application object and the fonts of a platform.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
