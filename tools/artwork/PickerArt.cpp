// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/artwork/Artwork.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace kavenda::artwork {

QImage pickerRound()
{
    QImage image(280, 64, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF outer = QRectF(image.rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const QRectF inner = outer.adjusted(6, 6, -6, -6);
    // A dark rim whose window lets the picker show through.
    QPainterPath rim;
    rim.addRoundedRect(outer, 12, 12);
    QPainterPath window;
    window.addRoundedRect(inner, 7, 7);
    QLinearGradient metal(outer.topLeft(), outer.bottomLeft());
    metal.setColorAt(0.0, QColor(0x5c, 0x66, 0x74));
    metal.setColorAt(0.5, QColor(0x2e, 0x35, 0x40));
    metal.setColorAt(1.0, QColor(0x1c, 0x21, 0x29));
    painter.setPen(QPen(QColor(0x12, 0x16, 0x1c), 1.0));
    painter.setBrush(metal);
    painter.drawPath(rim.subtracted(window));
    // Shade at the window's top and bottom edges, as on a drum that turns.
    QLinearGradient shade(inner.topLeft(), inner.bottomLeft());
    shade.setColorAt(0.0, QColor(0, 0, 0, 110));
    shade.setColorAt(0.25, QColor(0, 0, 0, 0));
    shade.setColorAt(0.75, QColor(0, 0, 0, 0));
    shade.setColorAt(1.0, QColor(0, 0, 0, 110));
    painter.setPen(Qt::NoPen);
    painter.setBrush(shade);
    painter.drawPath(window);
    // The selection band across the middle.
    painter.setPen(QPen(QColor(0x8a, 0x96, 0xb4, 160), 1.0));
    painter.setBrush(QColor(0x9d, 0xb0, 0xd8, 40));
    painter.drawRect(QRectF(inner.left(), inner.center().y() - 15, inner.width(), 30));
    return image;
}

}  // namespace kavenda::artwork
