// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/main/ShadowedLabel.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace kavenda {

ShadowedLabel::ShadowedLabel(const QString& text, const QRect& frame, QPoint offset, QWidget* parent)
    : QLabel(text, parent), offset_(offset)
{
    const int left = std::max(0, -offset.x());
    const int top = std::max(0, -offset.y());
    const int right = std::max(0, offset.x());
    const int bottom = std::max(0, offset.y());
    setGeometry(frame.adjusted(-left, -top, right, bottom));
    setContentsMargins(left, top, right, bottom);
}

void ShadowedLabel::paintEvent(QPaintEvent* event)
{
    {
        // The text's own direction, as the label lays it out, so both passes cover each other.
        const Qt::Alignment alignment = QStyle::visualAlignment(layoutDirection(), this->alignment());
        const int direction = text().isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
        QPainter painter(this);
        painter.setPen(Qt::black);
        style()->drawItemText(&painter, contentsRect().translated(offset_), int(alignment) | direction, palette(),
                              isEnabled(), text(), QPalette::NoRole);
    }
    QLabel::paintEvent(event);
}

}  // namespace kavenda
