// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/NavigationStack.h"

#include "widgets/Animations.h"
#include "widgets/NavigationBar.h"

#include <QAbstractButton>
#include <QPropertyAnimation>
#include <QStackedWidget>

#include <utility>

namespace kavenda {

namespace {

constexpr int slideMilliseconds = 300;

}  // namespace

NavigationStack::NavigationStack(QWidget* parent)
    : QWidget(parent), bar_(new NavigationBar(this)), content_(new QStackedWidget(this)),
      barHeight_(NavigationBar::barHeight)
{
    connect(content_, &QStackedWidget::currentChanged, this, &NavigationStack::showTop);
}

// The screens go with the base widget; their going changes no title.
NavigationStack::~NavigationStack()
{
    disconnect(content_, nullptr, this, nullptr);
    for (auto slot = buttons_.keyBegin(); slot != buttons_.keyEnd(); ++slot)
        disconnect(*slot, nullptr, this, nullptr);
}

void NavigationStack::push(QWidget* screen, bool animated)
{
    QPointer<QWidget> covered = top();
    content_->addWidget(screen);
    connect(screen, &QWidget::windowTitleChanged, this, [this, screen] {
        if (screen == top())
            bar_->setTitle(screen->windowTitle());
    });
    connect(screen, &QObject::destroyed, this, [this, screen] { forget(screen); });
    buttons_.insert(screen, {});
    screen->setGeometry(content_->rect());
    content_->setCurrentWidget(screen);
    if (!covered || !animates(animated))
        return;
    // A pushed screen comes in from the side where reading starts, over the one it covers.
    covered->show();
    screen->raise();
    const int from = isRightToLeft() ? -content_->width() : content_->width();
    slide(screen, from, 0, [covered, this] {
        if (covered && covered != top())
            covered->hide();
    });
}

void NavigationStack::pop(bool animated)
{
    if (count() < 2)
        return;
    QWidget* gone = top();
    forget(gone);
    content_->removeWidget(gone);
    if (!animates(animated)) {
        gone->deleteLater();
        return;
    }
    gone->show();
    gone->raise();
    const int to = isRightToLeft() ? -content_->width() : content_->width();
    slide(gone, 0, to, [gone] { gone->deleteLater(); });
}

NavigationStack* NavigationStack::of(const QWidget* screen)
{
    for (QWidget* up = screen ? screen->parentWidget() : nullptr; up; up = up->parentWidget())
        if (auto* stack = qobject_cast<NavigationStack*>(up))
            return stack;
    return nullptr;
}

QWidget* NavigationStack::top() const
{
    return content_->currentWidget();
}

int NavigationStack::count() const
{
    return content_->count();
}

void NavigationStack::setNavigationBarHidden(bool hidden, bool animated)
{
    if (barAnimation_)
        barAnimation_->stop();
    barHidden_ = hidden;
    const int height = hidden ? 0 : NavigationBar::barHeight;
    if (!animates(animated)) {
        barHeight_ = height;
        layoutContent();
        return;
    }
    auto* animation = new QVariantAnimation(this);
    animation->setStartValue(barHeight_);
    animation->setEndValue(height);
    animation->setDuration(slideMilliseconds);
    connect(animation, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        barHeight_ = value.toInt();
        layoutContent();
    });
    barAnimation_ = animation;
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

bool NavigationStack::isNavigationBarHidden() const
{
    return barHidden_;
}

void NavigationStack::setBarButtons(QWidget* screen, QAbstractButton* left, QAbstractButton* right)
{
    BarButtons& slot = buttons_[screen];
    for (QAbstractButton* old : {slot.left.data(), slot.right.data()})
        if (old && old != left && old != right)
            old->deleteLater();
    slot = {left, right};
    for (QAbstractButton* button : {left, right}) {
        if (!button)
            continue;
        button->setParent(bar_);
        button->hide();
    }
    if (screen == top())
        showTop();
}

QString NavigationStack::title() const
{
    return bar_->title();
}

void NavigationStack::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layoutContent();
}

// A screen on its way out may outlive the stack's own members, so it stops reporting.
void NavigationStack::forget(QWidget* screen)
{
    disconnect(screen, nullptr, this, nullptr);
    const BarButtons slot = buttons_.take(screen);
    for (QAbstractButton* button : {slot.left.data(), slot.right.data()})
        if (button)
            button->deleteLater();
}

void NavigationStack::showTop()
{
    QWidget* screen = top();
    const BarButtons slot = buttons_.value(screen);
    bar_->setTitle(screen ? screen->windowTitle() : QString());
    bar_->showButtons(slot.left, slot.right);
    emit topChanged();
}

void NavigationStack::layoutContent()
{
    bar_->setVisible(barHeight_ > 0);
    bar_->setGeometry(0, barHeight_ - NavigationBar::barHeight, width(), NavigationBar::barHeight);
    content_->setGeometry(0, barHeight_, width(), height() - barHeight_);
}

void NavigationStack::slide(QWidget* screen, int fromX, int toX, std::function<void()> done)
{
    auto* animation = new QPropertyAnimation(screen, "pos", screen);
    animation->setStartValue(QPoint(fromX, 0));
    animation->setEndValue(QPoint(toX, 0));
    animation->setDuration(slideMilliseconds);
    animation->setEasingCurve(QEasingCurve::OutCubic);
    connect(animation, &QAbstractAnimation::finished, this, std::move(done));
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

bool NavigationStack::animates(bool animated) const
{
    return animated && animationsEnabled() && isVisible();
}

}  // namespace kavenda
