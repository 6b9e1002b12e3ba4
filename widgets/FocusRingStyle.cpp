// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/FocusRingStyle.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QWidget>

namespace kavenda {

FocusRingStyle::FocusRingStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
}

void FocusRingStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                   const QWidget* widget) const
{
    if (element == PE_FrameFocusRect) {
        if (option->state & State_KeyboardFocusChange)
            drawFocusRing(painter, option->rect, option->palette);
    } else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

bool FocusRingStyle::showsFocus(const QWidget* widget)
{
    return widget->hasFocus() && widget->window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

void FocusRingStyle::drawFocusRing(QPainter* painter, const QRectF& area, const QPalette& palette, double radius)
{
    drawRing(painter, area, palette.color(QPalette::Active, QPalette::Highlight), radius);
}

void FocusRingStyle::drawRing(QPainter* painter, const QRectF& area, const QColor& colour, double radius)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(colour, ringWidth));
    painter->setBrush(Qt::NoBrush);
    const double inset = ringWidth / 2.0;
    painter->drawRoundedRect(area.adjusted(inset, inset, -inset, -inset), radius, radius);
    painter->restore();
}

}  // namespace kavenda
