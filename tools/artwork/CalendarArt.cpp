// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/artwork/Artwork.h"

#include "screens/calendar/DayFrame.h"

#include <QLinearGradient>
#include <QPainter>

namespace kavenda::artwork {

namespace {

constexpr int cellWidth = DayFrame::width;
constexpr int cellHeight = DayFrame::height;
constexpr double cellRadius = 6;

QImage transparentImage(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QRectF cellFrame()
{
    return QRectF(1.5, 1.5, cellWidth - 3, cellHeight - 3);
}

// A small star in the upper corner says that the day has occasions.
void paintOccasionMark(QPainter& painter, const QColor& colour)
{
    drawStar(painter, QPointF(cellWidth - 9, 9), 5, 2.4, colour);
}

void paintSelection(QPainter& painter)
{
    const QRectF frame = cellFrame();
    QLinearGradient fill(frame.topLeft(), frame.bottomLeft());
    fill.setColorAt(0.0, QColor(0x4a, 0x7d, 0xc4));
    fill.setColorAt(1.0, QColor(0x1f, 0x4c, 0x8f));
    painter.setPen(QPen(QColor(0x15, 0x36, 0x68), 1.0));
    painter.setBrush(fill);
    painter.drawRoundedRect(frame, cellRadius, cellRadius);
}

}  // namespace

QImage calendarBackground()
{
    QImage image(320, 221, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient paper(0, 0, 0, image.height());
    paper.setColorAt(0.0, QColor(0xf4, 0xf1, 0xe8));
    paper.setColorAt(1.0, QColor(0xe2, 0xdd, 0xcf));
    painter.fillRect(image.rect(), paper);
    for (int row = 0; row < 5; ++row)
        for (int column = 0; column < 7; ++column) {
            const QRectF frame(DayFrame::x(column) + 1.5, DayFrame::y(row) + 1.5, cellWidth - 3, cellHeight - 3);
            // Fridays stand on a warmer ground.
            painter.setBrush(column == 6 ? QColor(0xf6, 0xe3, 0xdc) : QColor(0xfb, 0xfa, 0xf6));
            painter.setPen(QPen(QColor(0xc9, 0xc2, 0xb0), 1.0));
            painter.drawRoundedRect(frame, cellRadius, cellRadius);
        }
    return image;
}

QImage dayHasEvent()
{
    QImage image = transparentImage(cellWidth, cellHeight);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0xd0, 0xa2, 0x4c), 1.0));
    painter.setBrush(QColor(0xfb, 0xef, 0xd2));
    painter.drawRoundedRect(cellFrame(), cellRadius, cellRadius);
    paintOccasionMark(painter, QColor(0xc8, 0x8a, 0x1e));
    return image;
}

QImage daySelected(bool withEvent)
{
    QImage image = transparentImage(cellWidth, cellHeight);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paintSelection(painter);
    if (withEvent)
        paintOccasionMark(painter, QColor(0xf6, 0xd3, 0x7a));
    return image;
}

QImage dayToday()
{
    QImage image = transparentImage(cellWidth, cellHeight);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0xc8, 0x3a, 0x32), 2.5));
    painter.setBrush(QColor(0xfd, 0xf6, 0xf2));
    painter.drawRoundedRect(cellFrame().adjusted(0.5, 0.5, -0.5, -0.5), cellRadius, cellRadius);
    return image;
}

}  // namespace kavenda::artwork
