#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>
#include <QVector>

// The tutorial of the key mapping as the service sends it: {"title": …, "pages": [{"title": …, "text": …,
// "picture": "data:image/svg+xml;base64,…"}]}. A plain value.
struct GuidePages
{
    struct Page
    {
        QString title;
        QString text; // plain; a line feed ends a paragraph
        QByteArray picture; // an SVG drawing; empty if there is none that can be read
    };

    QString title;
    QVector<Page> pages;

    // Reads the "data" of the service's answer. What is missing or of another type is empty; a page without
    // title and text is left out. At most 50 pages are read.
    static GuidePages fromJson(const QJsonValue &data);
};
