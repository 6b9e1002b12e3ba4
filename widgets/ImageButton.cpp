// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ImageButton.h"

#include "widgets/FocusRingStyle.h"

#include <QPainter>

namespace kavenda {

ImageButton::ImageButton(const QPixmap& image, double cornerRadius, bool ringed, QWidget* parent)
    : QAbstractButton(parent), image_(image), cornerRadius_(cornerRadius), ringed_(ringed)
{
    // As a tool button: the keyboard reaches it, a click does not take the focus.
    setFocusPolicy(Qt::TabFocus);
}

void ImageButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isDown()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(255, 255, 255, 90));
        painter.drawRoundedRect(rect(), cornerRadius_, cornerRadius_);
    }
    const QRect imageArea(QPoint(), image_.deviceIndependentSize().toSize());
    painter.drawPixmap(imageArea.translated(rect().center() - imageArea.center()), image_);
    if (FocusRingStyle::showsFocus(this))
        FocusRingStyle::drawFocusRing(&painter, rect(), palette(), cornerRadius_);
    else if (ringed_)
        FocusRingStyle::drawRing(&painter, rect(), Qt::white, cornerRadius_);
}

}  // namespace kavenda
