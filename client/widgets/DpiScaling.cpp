#include "widgets/DpiScaling.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace {

constexpr double BaseDotsPerInch = 96.0;

} // namespace

int scaledForDpi(int pixels, double logicalDotsPerInch)
{
    if (pixels == 0 || !(logicalDotsPerInch > 0))
        return pixels;
    const int length = qRound(pixels * logicalDotsPerInch / BaseDotsPerInch);
    return length != 0 ? length : (pixels > 0 ? 1 : -1);
}

int scaled(int pixels, const QScreen *screen)
{
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return screen ? scaledForDpi(pixels, screen->logicalDotsPerInchX()) : pixels;
}

int scaled(int pixels, const QWidget *widget)
{
    return scaled(pixels, widget ? widget->screen() : nullptr);
}
