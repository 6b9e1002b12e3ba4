// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/artwork/Artwork.h"

#include <QFontDatabase>
#include <QPainter>
#include <QPainterPath>
#include <QTextOption>

#include <cmath>
#include <numbers>

namespace kavenda::artwork {

QFont persianFont(int pixelSize, bool bold)
{
    const QStringList installed = QFontDatabase::families();
    QString family = QStringLiteral("DejaVu Sans");
    for (const QString& candidate : {QStringLiteral("Nazli"), QStringLiteral("Homa")})
        if (installed.contains(candidate)) {
            family = candidate;
            break;
        }
    QFont font(family);
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    font.setStyleStrategy(QFont::PreferAntialias);
    return font;
}

void drawPersian(QPainter& painter, const QRectF& rect, const QString& text, Qt::Alignment alignment)
{
    QTextOption option(alignment);
    option.setTextDirection(Qt::RightToLeft);
    painter.drawText(rect, text, option);
}

void drawStar(QPainter& painter, QPointF centre, double outer, double inner, const QColor& colour)
{
    QPainterPath star;
    for (int i = 0; i < 16; ++i) {
        const double angle = i * std::numbers::pi / 8.0 - std::numbers::pi / 2.0;
        const double radius = i % 2 == 0 ? outer : inner;
        const QPointF point(centre.x() + radius * std::cos(angle), centre.y() + radius * std::sin(angle));
        if (i == 0)
            star.moveTo(point);
        else
            star.lineTo(point);
    }
    star.closeSubpath();
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPath(star);
}

}  // namespace kavenda::artwork
