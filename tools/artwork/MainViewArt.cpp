// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/artwork/Artwork.h"

#include "screens/main/TimeCaptions.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

namespace kavenda::artwork {

namespace {

// Where the page's labels stand: the time values from x 35, a row every 38 points from y 108.
constexpr int firstRowY = 108;
constexpr int rowStep = 38;
constexpr int rowHeight = 40;

QString caption(int row)
{
    return QString::fromUtf8(timeCaptions[static_cast<std::size_t>(row)]);
}

void paintSky(QPainter& painter, const QRectF& page)
{
    QLinearGradient sky(0, 0, 0, page.height());
    sky.setColorAt(0.0, QColor(0x2c, 0x55, 0x78));
    sky.setColorAt(0.45, QColor(0x19, 0x33, 0x50));
    sky.setColorAt(1.0, QColor(0x0a, 0x14, 0x22));
    painter.fillRect(page, sky);
    QRadialGradient glow(QPointF(page.width() * 0.85, 10), 210);
    glow.setColorAt(0.0, QColor(0xf2, 0xc2, 0x7a, 70));
    glow.setColorAt(1.0, QColor(0xf2, 0xc2, 0x7a, 0));
    painter.fillRect(page, glow);
    drawStar(painter, QPointF(30, 22), 15, 8, QColor(0xf3, 0xe0, 0xb8, 60));
    drawStar(painter, QPointF(290, 22), 15, 8, QColor(0xf3, 0xe0, 0xb8, 60));
}

void paintTitle(QPainter& painter)
{
    painter.setFont(persianFont(17, true));
    painter.setPen(QColor(0xf3, 0xe0, 0xb8));
    drawPersian(painter, QRectF(50, 2, 220, 40), QStringLiteral("اوقات شرعی"), Qt::AlignCenter);
}

// The panel behind the name and date (y 45..85) and the occasion (y 70..110).
void paintInfoPanel(QPainter& painter)
{
    painter.setPen(QPen(QColor(255, 255, 255, 70), 1.0));
    painter.setBrush(QColor(255, 255, 255, 26));
    painter.drawRoundedRect(QRectF(12.5, 47.5, 295, 57), 10, 10);
    painter.setPen(QPen(QColor(255, 255, 255, 45), 1.0));
    painter.drawLine(QPointF(30, 80.5), QPointF(290, 80.5));
}

void paintRow(QPainter& painter, int row)
{
    const double top = firstRowY + rowStep * row;
    const bool tomorrow = row >= 6;
    const QRectF frame(12.5, top + 4.5, 295, rowHeight - 9);
    QLinearGradient fill(frame.topLeft(), frame.bottomLeft());
    const QColor tint = tomorrow ? QColor(0xe8, 0xb8, 0x6a) : QColor(255, 255, 255);
    fill.setColorAt(0.0, QColor(tint.red(), tint.green(), tint.blue(), 40));
    fill.setColorAt(1.0, QColor(tint.red(), tint.green(), tint.blue(), 16));
    painter.setPen(QPen(QColor(tint.red(), tint.green(), tint.blue(), 80), 1.0));
    painter.setBrush(fill);
    painter.drawRoundedRect(frame, 9, 9);
    // A darker well for the value the page writes at x 35..135.
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 55));
    painter.drawRoundedRect(QRectF(22, top + 8, 118, rowHeight - 16), 7, 7);
    painter.setFont(persianFont(17, true));
    painter.setPen(QColor(0, 0, 0, 140));
    drawPersian(painter, QRectF(146, top + 1, 146, rowHeight), caption(row), Qt::AlignRight | Qt::AlignVCenter);
    painter.setPen(tomorrow ? QColor(0xf6, 0xdc, 0xae) : QColor(0xf4, 0xf1, 0xe8));
    drawPersian(painter, QRectF(146, top, 146, rowHeight), caption(row), Qt::AlignRight | Qt::AlignVCenter);
}

// The strip under the rows where the page indicator and the buttons sit.
void paintFooter(QPainter& painter, const QRectF& page)
{
    QLinearGradient shade(0, 418, 0, page.height());
    shade.setColorAt(0.0, QColor(0, 0, 0, 0));
    shade.setColorAt(1.0, QColor(0, 0, 0, 90));
    painter.fillRect(QRectF(0, 418, page.width(), page.height() - 418), shade);
}

}  // namespace

QImage mainView()
{
    QImage image(320, 460, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const QRectF page(0, 0, 320, 460);
    paintSky(painter, page);
    paintTitle(painter);
    paintInfoPanel(painter);
    for (int row = 0; row < static_cast<int>(timeCaptions.size()); ++row)
        paintRow(painter, row);
    paintFooter(painter, page);
    painter.end();
    // The page is opaque: stored without alpha it decodes faster at every start.
    return image.convertToFormat(QImage::Format_RGB32);
}

}  // namespace kavenda::artwork
