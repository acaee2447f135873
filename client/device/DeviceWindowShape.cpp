#include "device/DeviceWindowShape.h"

#include "device/MenuBar.h"

namespace DeviceWindowShape {

namespace {

constexpr QSize PortraitContent(390, 640);
constexpr QSize LandscapeContent(650, 380);
constexpr QSize PortraitEditingContent(640, 640); // the panel's height is 600
constexpr QSize LandscapeEditingContent(900, 380); // 340
constexpr QSize SmallestPortraitContent(365, 599);
constexpr QSize SmallestLandscapeContent(609, 355); // below the title bar, the seven buttons of the menu bar

} // namespace

QSize contentSize(ScreenOrientation orientation)
{
    return orientation == ScreenOrientation::Portrait ? PortraitContent : LandscapeContent;
}

QSize editingContentSize(ScreenOrientation orientation)
{
    return orientation == ScreenOrientation::Portrait ? PortraitEditingContent : LandscapeEditingContent;
}

QSize smallestContentSize(ScreenOrientation orientation)
{
    return orientation == ScreenOrientation::Portrait ? SmallestPortraitContent : SmallestLandscapeContent;
}

QSize turned(const QSize &content)
{
    const QSize video = content - QSize(MenuBar::barWidth, titleBarHeight);
    return video.transposed() + QSize(MenuBar::barWidth, titleBarHeight);
}

QSize fitted(const QSize &content, const QSize &area)
{
    if (content.width() <= area.width() && content.height() <= area.height())
        return content;
    return maximized(QRect(QPoint(0, 0), area), aspectRatio(content), 0).size();
}

double aspectRatio(const QSize &content)
{
    return content.isEmpty() ? 1.0 : static_cast<double>(content.width()) / content.height();
}

QRect maximized(const QRect &area, double aspectRatio, int widthLimit)
{
    int width = area.width();
    int height = area.height();
    if (height * aspectRatio > width)
        height = static_cast<int>(width / aspectRatio);
    else
        width = static_cast<int>(height * aspectRatio);
    if (widthLimit > 0 && width > widthLimit) {
        width = widthLimit;
        height = static_cast<int>(width / aspectRatio);
    }
    return {area.x() + (area.width() - width) / 2, area.y() + (area.height() - height) / 2, width, height};
}

QPoint positionWithin(const QRect &area, const QRect &body)
{
    const int lastX = area.x() + area.width() - body.width();
    const int lastY = area.y() + area.height() - body.height();
    return {qMax(area.x(), qMin(body.x(), lastX)), qMax(area.y(), qMin(body.y(), lastY))};
}

} // namespace DeviceWindowShape
