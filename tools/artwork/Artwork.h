// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QRectF>
#include <QString>

class QPainter;

namespace kavenda::artwork {

// The page background of the main screen, 320 x 460: captions of the eight time rows beside
// their frames, and a panel for the name, the date and the occasion.
QImage mainView();
// The calendar button, the size of its frame on the main screen.
QImage calendarButton();
// The information button's "i", white, the size of the inside of its 18 x 19 ring.
QImage informationMark();
// The application icon.
QImage appIcon(int size);
// The month calendar's page, 320 x 221, and the backgrounds of its day buttons, 45 x 43.
QImage calendarBackground();
QImage dayHasEvent();
QImage daySelected(bool withEvent);
QImage dayToday();
// The frame over the occasions' time picker, the size of the picker.
QImage pickerRound();

// The first installed Persian face, else DejaVu Sans.
QFont persianFont(int pixelSize, bool bold = false);
// Persian text laid out right to left in the rectangle.
void drawPersian(QPainter& painter, const QRectF& rect, const QString& text, Qt::Alignment alignment);
// An eight-pointed star, the figure of Persian tilework.
void drawStar(QPainter& painter, QPointF centre, double outer, double inner, const QColor& colour);

}  // namespace kavenda::artwork
