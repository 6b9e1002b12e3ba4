#include "widgets/NavigationStack.h"

#include "widgets/Animations.h"
#include "widgets/NavigationBar.h"

#include <QAbstractButton>
#include <QPropertyAnimation>

#include <utility>

namespace kavenda {

namespace {

constexpr int slideMilliseconds = 300;

}  // namespace

NavigationStack::NavigationStack(QWidget* parent)
    : QWidget(parent), bar_(new NavigationBar(this)), content_(new QWidget(this)), barHeight_(NavigationBar::barHeight)
{
}

void NavigationStack::push(QWidget* screen, bool animated)
{
    QWidget* below = top();
    screen->setParent(content_);
    screen->setGeometry(content_->rect());
    screens_.append(screen);
    connect(screen, &QWidget::windowTitleChanged, this, [this, screen] {
        if (screen == top())
            bar_->setTitle(screen->windowTitle());
    });
    connect(screen, &QObject::destroyed, this, [this, screen] { forget(screen); });
    screen->show();
    screen->raise();
    // A pushed screen comes in from the side where reading starts.
    const int from = isRightToLeft() ? -content_->width() : content_->width();
    QPointer<QWidget> covered = below;
    if (animated && animationsEnabled() && below && isVisible())
        slide(screen, from, 0, [covered] {
            if (covered)
                covered->hide();
        });
    else if (below)
        below->hide();
    showTop();
}

void NavigationStack::pop(bool animated)
{
    if (screens_.size() < 2)
        return;
    QWidget* gone = top();
    forget(gone);
    top()->show();
    gone->raise();
    const int to = isRightToLeft() ? -content_->width() : content_->width();
    if (animated && animationsEnabled() && isVisible())
        slide(gone, 0, to, [gone] { gone->deleteLater(); });
    else
        gone->deleteLater();
}

// The screens outlive the members that track them: they are deleted with the base widget.
NavigationStack::~NavigationStack()
{
    for (QWidget* screen : screens_)
        disconnect(screen, nullptr, this, nullptr);
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
    return screens_.isEmpty() ? nullptr : screens_.last();
}

int NavigationStack::count() const
{
    return static_cast<int>(screens_.size());
}

void NavigationStack::setNavigationBarHidden(bool hidden, bool animated)
{
    if (barAnimation_)
        barAnimation_->stop();
    barHidden_ = hidden;
    const int height = hidden ? 0 : NavigationBar::barHeight;
    if (!animated || !animationsEnabled() || !isVisible()) {
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

void NavigationStack::forget(QWidget* screen)
{
    // A screen on its way out may outlive the stack's own members, so it stops reporting.
    disconnect(screen, nullptr, this, nullptr);
    const BarButtons slot = buttons_.take(screen);
    for (QAbstractButton* button : {slot.left.data(), slot.right.data()})
        if (button)
            button->deleteLater();
    if (screens_.removeAll(screen) > 0)
        showTop();
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
    for (QWidget* screen : screens_)
        screen->setGeometry(content_->rect());
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

}  // namespace kavenda
