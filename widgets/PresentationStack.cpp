// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/PresentationStack.h"

#include "widgets/Animations.h"
#include "widgets/FlipTransition.h"

namespace kavenda {

PresentationStack::PresentationStack(QWidget* parent) : QStackedWidget(parent)
{
    connect(this, &QStackedWidget::currentChanged, this, &PresentationStack::topChanged);
}

// The screens go with the base widget, and their going is no change of screen.
PresentationStack::~PresentationStack()
{
    blockSignals(true);
}

void PresentationStack::setRoot(QWidget* screen)
{
    while (count() > 0) {
        QWidget* old = widget(0);
        removeWidget(old);
        old->deleteLater();
    }
    addWidget(screen);
}

void PresentationStack::present(QWidget* screen, bool animated)
{
    const QPixmap before = pictureOf(top(), animated);
    addWidget(screen);
    setCurrentWidget(screen);
    flip(before, true);
}

void PresentationStack::dismiss(bool animated)
{
    if (count() < 2)
        return;
    QWidget* gone = top();
    const QPixmap before = pictureOf(gone, animated);
    removeWidget(gone);
    gone->deleteLater();
    flip(before, false);
}

// Only a change a person sees is animated.
QPixmap PresentationStack::pictureOf(QWidget* screen, bool animated) const
{
    return animated && animationsEnabled() && screen && isVisible() ? screen->grab() : QPixmap();
}

void PresentationStack::flip(const QPixmap& before, bool forward)
{
    if (transition_)
        transition_->deleteLater();
    if (before.isNull())
        return;
    QWidget* shown = top();
    shown->setGeometry(contentsRect());
    transition_ = new FlipTransition(this, before, shown->grab(), forward);
}

}  // namespace kavenda
