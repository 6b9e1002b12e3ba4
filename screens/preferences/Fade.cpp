// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/preferences/Fade.h"

#include "widgets/Animations.h"

#include <QGraphicsOpacityEffect>
#include <QPointer>
#include <QPropertyAnimation>
#include <QWidget>

namespace kavenda {

void fade(QWidget* widget, bool in, int milliseconds, QEasingCurve::Type curve)
{
    auto* effect = qobject_cast<QGraphicsOpacityEffect*>(widget->graphicsEffect());
    if (!effect) {
        effect = new QGraphicsOpacityEffect(widget);
        widget->setGraphicsEffect(effect);
    }
    // A fade still running towards the other end stops where it is.
    for (auto* running : effect->findChildren<QPropertyAnimation*>())
        running->stop();
    const double target = in ? 1.0 : 0.0;
    if (in && widget->isHidden()) {
        effect->setOpacity(0.0);
        widget->show();
    }
    if (!animationsEnabled() || !widget->isVisible()) {
        effect->setOpacity(target);
        widget->setVisible(in);
        return;
    }
    auto* animation = new QPropertyAnimation(effect, "opacity", effect);
    animation->setDuration(milliseconds);
    animation->setStartValue(effect->opacity());
    animation->setEndValue(target);
    animation->setEasingCurve(curve);
    QPointer<QWidget> faded = widget;
    QObject::connect(animation, &QPropertyAnimation::finished, widget, [faded, in] {
        if (faded && !in)
            faded->hide();
    });
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

}  // namespace kavenda
