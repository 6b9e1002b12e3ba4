#include "widgets/PresentationStack.h"

#include "widgets/Animations.h"
#include "widgets/FlipTransition.h"

namespace kavenda {

PresentationStack::PresentationStack(QWidget* parent) : QWidget(parent)
{
}

void PresentationStack::setRoot(QWidget* screen)
{
    while (!screens_.isEmpty())
        release(screens_.takeLast())->deleteLater();
    adopt(screen);
    screen->show();
    emit topChanged();
}

void PresentationStack::present(QWidget* screen, bool animated)
{
    QWidget* below = top();
    adopt(screen);
    flip(below, screen, true, animated);
    emit topChanged();
}

void PresentationStack::dismiss(bool animated)
{
    if (screens_.size() < 2)
        return;
    QWidget* gone = release(screens_.takeLast());
    flip(gone, top(), false, animated);
    gone->deleteLater();
    emit topChanged();
}

// The screens outlive the members that track them: they are deleted with the base widget.
PresentationStack::~PresentationStack()
{
    for (QWidget* screen : screens_)
        disconnect(screen, nullptr, this, nullptr);
}

QWidget* PresentationStack::top() const
{
    return screens_.isEmpty() ? nullptr : screens_.last();
}

int PresentationStack::depth() const
{
    return static_cast<int>(screens_.size());
}

void PresentationStack::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    for (QWidget* screen : screens_)
        screen->setGeometry(rect());
}

// A screen on its way out may outlive the stack's own members, so it stops reporting.
QWidget* PresentationStack::release(QWidget* screen)
{
    disconnect(screen, nullptr, this, nullptr);
    return screen;
}

void PresentationStack::adopt(QWidget* screen)
{
    screen->setParent(this);
    screen->setGeometry(rect());
    screens_.append(screen);
    connect(screen, &QObject::destroyed, this, [this, screen] {
        if (screens_.removeAll(screen) > 0)
            emit topChanged();
    });
}

void PresentationStack::flip(QWidget* from, QWidget* to, bool forward, bool animated)
{
    if (transition_)
        transition_->deleteLater();
    const bool canAnimate = animated && animationsEnabled() && from && isVisible();
    QPixmap before = canAnimate ? from->grab() : QPixmap();
    if (from)
        from->hide();
    to->show();
    to->raise();
    if (!canAnimate)
        return;
    QPixmap after = to->grab();
    transition_ = new FlipTransition(this, before, after, forward);
}

}  // namespace kavenda
