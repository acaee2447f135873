#include "widgets/DpiScaling.h"

#include <QApplication>
#include <QProcess>
#include <QScreen>
#include <QTest>
#include <QWidget>

#include <cstdio>

namespace {

constexpr auto printScaled = "--print-scaled";

// Set up as a program that wants, or does not want, the toolkit to scale; says what 100 pixels are to it.
int runAsProgram(int argc, char **argv, bool scaledByToolkit)
{
    QApplication::setAttribute(
        scaledByToolkit ? Qt::AA_EnableHighDpiScaling : Qt::AA_DisableHighDpiScaling, true);
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const QApplication application(argc, argv);
    const QWidget widget;
    std::printf("%d %d %d %g\n", scaled(100), scaled(100, &widget), scaled(100, widget.screen()),
        widget.devicePixelRatioF());
    return 0;
}

} // namespace

// Lengths in device-independent pixels.
class TestDpiScaling : public QObject
{
    Q_OBJECT

private slots:
    void lengths_data();
    void lengths();
    void neverScaledTwice_data();
    void neverScaledTwice();
};

void TestDpiScaling::lengths_data()
{
    QTest::addColumn<int>("pixels");
    QTest::addColumn<double>("dpi");
    QTest::addColumn<int>("expected");
    QTest::newRow("100 %") << 340 << 96.0 << 340;
    QTest::newRow("125 %") << 340 << 120.0 << 425;
    QTest::newRow("150 %") << 85 << 144.0 << 128;
    QTest::newRow("200 %") << 1300 << 192.0 << 2600;
    QTest::newRow("rounded down") << 10 << 98.0 << 10;
    QTest::newRow("negative") << -20 << 144.0 << -30;
    QTest::newRow("nothing") << 0 << 144.0 << 0;
    QTest::newRow("never nothing") << 1 << 24.0 << 1;
    QTest::newRow("never nothing, negative") << -1 << 24.0 << -1;
    QTest::newRow("screen without a density") << 340 << 0.0 << 340;
    QTest::newRow("screen with nonsense") << 340 << qQNaN() << 340;
}

void TestDpiScaling::lengths()
{
    QFETCH(int, pixels);
    QFETCH(double, dpi);
    QTEST(scaledForDpi(pixels, dpi), "expected");
}

void TestDpiScaling::neverScaledTwice_data()
{
    QTest::addColumn<QString>("scaler");
    QTest::addColumn<QString>("dotsPerInch");
    QTest::addColumn<QString>("factor");
    QTest::addColumn<QByteArray>("printed");
    QTest::newRow("toolkit, 100 %") << "toolkit"
                                    << "96"
                                    << "" << QByteArray("100 100 100 1\n");
    QTest::newRow("toolkit, 125 %") << "toolkit"
                                    << "120"
                                    << "" << QByteArray("100 100 100 1.25\n");
    QTest::newRow("toolkit, 150 % by hand") << "toolkit"
                                            << "96"
                                            << "1.5" << QByteArray("100 100 100 1.5\n");
    QTest::newRow("toolkit, 125 % by 2") << "toolkit"
                                         << "120"
                                         << "2" << QByteArray("100 100 100 2.5\n");
    QTest::newRow("program, 100 %") << "program"
                                    << "96"
                                    << "" << QByteArray("100 100 100 1\n");
    QTest::newRow("program, 125 %") << "program"
                                    << "120"
                                    << "" << QByteArray("125 125 125 1\n");
}

void TestDpiScaling::neverScaledTwice()
{
    QFETCH(QString, scaler);
    QFETCH(QString, dotsPerInch);
    QFETCH(QString, factor);
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_FONT_DPI"), dotsPerInch);
    environment.remove(QStringLiteral("QT_SCALE_FACTOR"));
    environment.remove(QStringLiteral("QT_AUTO_SCREEN_SCALE_FACTOR"));
    if (!factor.isEmpty())
        environment.insert(QStringLiteral("QT_SCALE_FACTOR"), factor);
    program.setProcessEnvironment(environment);
    program.start(QCoreApplication::applicationFilePath(), {QLatin1String(printScaled), scaler});
    QVERIFY2(program.waitForFinished(), qPrintable(program.errorString()));
    QTEST(program.readAllStandardOutput(), "printed");
}

int main(int argc, char **argv)
{
    if (argc == 3 && qstrcmp(argv[1], printScaled) == 0)
        return runAsProgram(argc, argv, qstrcmp(argv[2], "toolkit") == 0);
    QApplication application(argc, argv);
    TestDpiScaling test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_dpiscaling.moc"
