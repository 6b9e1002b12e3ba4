// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QProxyStyle>

class QPainter;

namespace kavenda {

// The desktop's style with one change: the control that has the keyboard focus is ringed in
// the highlight colour, 2 pixels wide, wherever the style draws a focus frame. Widgets that
// paint themselves draw the same ring with drawFocusRing.
class FocusRingStyle : public QProxyStyle {
    Q_OBJECT

public:
    static constexpr int ringWidth = 2;

    FocusRingStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;

    // Whether a widget shows its focus now: it has it, and the keyboard moved it there.
    static bool showsFocus(const QWidget* widget);
    static void drawFocusRing(QPainter* painter, const QRectF& area, const QPalette& palette, double radius = 3.0);
    // The same ring in another colour, inside the area.
    static void drawRing(QPainter* painter, const QRectF& area, const QColor& colour, double radius);
};

}  // namespace kavenda
