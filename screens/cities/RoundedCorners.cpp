// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/cities/RoundedCorners.h"

#include <QPainterPath>
#include <QRegion>
#include <QWidget>

namespace kavenda {

void roundCorners(QWidget* widget, int radius)
{
    QPainterPath path;
    path.addRoundedRect(QRectF(widget->rect()), radius, radius);
    widget->setMask(QRegion(path.toFillPolygon().toPolygon()));
}

}  // namespace kavenda
