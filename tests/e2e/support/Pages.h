#pragma once

#include "Screens.h"

#include <QColor>
#include <QPoint>

namespace e2e {

// A page of the client by a colour that it alone has at a position of the main window at its working size.
struct Page
{
    const char *name;
    QPoint position;
    QRgb colour;
};

constexpr Page DevicesPage{
    "the device list", {340, 280}, qRgb(0xFF, 0xF0, 0xEA)}; // "Open" of the first device
constexpr Page GroupsPage{
    "the groups", {988, 167}, qRgb(0xFF, 0x9B, 0x7A)}; // "Open group" of the first group
constexpr Page SettingsPage{"the settings", {235, 469}, qRgb(0xE3, 0xF8, 0xFE)}; // the moon's box
constexpr Page MirroredSettingsPage{"the mirrored settings", {905, 469}, qRgb(0xE3, 0xF8, 0xFE)};

// Waits until the page is shown and has not changed for a moment; returns the window's picture. Throws
// StepFailed.
inline QImage settledPage(const Page &page, int timeoutMs = 15000)
{
    return settledPictureOf(
        QLatin1String(page.name), QStringLiteral("Orvane"), page.position, QColor(page.colour), timeoutMs);
}

} // namespace e2e
