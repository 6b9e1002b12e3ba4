// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/artwork/Artwork.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace kavenda::artwork {

QImage informationMark()
{
    QImage image(14, 15, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QFont font = persianFont(12, true);
    font.setItalic(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRectF(image.rect()), Qt::AlignCenter, QStringLiteral("i"));
    return image;
}

QImage calendarButton()
{
    QImage image(34, 32, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF body(4.5, 6.5, 25, 22);
    QLinearGradient paper(body.topLeft(), body.bottomLeft());
    paper.setColorAt(0.0, QColor(0xfb, 0xfb, 0xf8));
    paper.setColorAt(1.0, QColor(0xd8, 0xdc, 0xe2));
    painter.setPen(QPen(QColor(0x20, 0x2a, 0x36), 1.0));
    painter.setBrush(paper);
    painter.drawRoundedRect(body, 4, 4);
    // The red band of the month across the top.
    QPainterPath band;
    band.addRoundedRect(body, 4, 4);
    QPainterPath top;
    top.addRect(QRectF(body.left(), body.top(), body.width(), 7));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xc8, 0x3a, 0x32));
    painter.drawPath(band.intersected(top));
    painter.setBrush(QColor(0x2a, 0x33, 0x40));
    for (double x : {11.0, 23.0})
        painter.drawRoundedRect(QRectF(x - 1.5, 3, 3, 7), 1.5, 1.5);
    painter.setBrush(QColor(0x5a, 0x66, 0x75));
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 4; ++column)
            painter.drawRect(QRectF(8.5 + column * 5, 16 + row * 4, 3, 2.5));
    painter.setBrush(QColor(0xc8, 0x3a, 0x32));
    painter.drawRect(QRectF(8.5 + 2 * 5, 16 + 4, 3, 2.5));
    return image;
}

QImage appIcon(int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 256.0, size / 256.0);
    const QRectF tile(8, 8, 240, 240);
    QLinearGradient sky(tile.topLeft(), tile.bottomRight());
    sky.setColorAt(0.0, QColor(0x2c, 0x5f, 0x86));
    sky.setColorAt(1.0, QColor(0x0c, 0x1a, 0x2e));
    painter.setPen(Qt::NoPen);
    painter.setBrush(sky);
    painter.drawRoundedRect(tile, 52, 52);
    // A crescent: one disc with another taken out of it.
    QPainterPath moon;
    moon.addEllipse(QPointF(118, 126), 72, 72);
    QPainterPath shadow;
    shadow.addEllipse(QPointF(150, 108), 62, 62);
    QLinearGradient gold(QPointF(46, 54), QPointF(190, 198));
    gold.setColorAt(0.0, QColor(0xfa, 0xdf, 0x9c));
    gold.setColorAt(1.0, QColor(0xd9, 0x9a, 0x3c));
    painter.setBrush(gold);
    painter.drawPath(moon.subtracted(shadow));
    drawStar(painter, QPointF(176, 96), 30, 15, QColor(0xfa, 0xe6, 0xb4));
    return image;
}

}  // namespace kavenda::artwork
