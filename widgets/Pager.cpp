// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/Pager.h"

#include "widgets/Animations.h"

#include <QMouseEvent>
#include <QVariantAnimation>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace kavenda {

namespace {

constexpr int settleMilliseconds = 250;

}  // namespace

Pager::Pager(QWidget* parent) : QAbstractScrollArea(parent), content_(new QWidget(viewport()))
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame);
    // Pages stand where their offsets say, whatever the direction of the text inside them.
    viewport()->setLayoutDirection(Qt::LeftToRight);
}

void Pager::setPages(const QList<QWidget*>& pages)
{
    if (animation_)
        animation_->stop();
    for (QWidget* old : pages_)
        if (!pages.contains(old))
            old->deleteLater();
    pages_ = pages;
    for (QWidget* page : pages_) {
        page->setParent(content_);
        page->show();
    }
    layoutPages();
}

QList<QWidget*> Pager::pages() const
{
    return pages_;
}

void Pager::setContentOffset(double x, bool animated)
{
    if (animation_)
        animation_->stop();
    if (!animated || !animationsEnabled()) {
        moveTo(x);
        return;
    }
    auto* animation = new QVariantAnimation(this);
    animation->setStartValue(offset_);
    animation->setEndValue(x);
    animation->setDuration(settleMilliseconds);
    animation->setEasingCurve(QEasingCurve::OutCubic);
    connect(animation, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& value) { moveTo(value.toDouble()); });
    connect(animation, &QAbstractAnimation::finished, this, [this] { emit didEndScrolling(currentPage()); });
    animation_ = animation;
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

double Pager::contentOffset() const
{
    return offset_;
}

int Pager::contentWidth() const
{
    return pageWidth * static_cast<int>(pages_.size());
}

int Pager::currentPage() const
{
    if (pages_.isEmpty())
        return 0;
    const int page = static_cast<int>(std::lround(offset_ / pageWidth));
    return std::clamp(page, 0, static_cast<int>(pages_.size()) - 1);
}

void Pager::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return QAbstractScrollArea::mousePressEvent(event);
    if (animation_)
        animation_->stop();
    dragging_ = true;
    dragStartX_ = event->globalPosition().x();
    dragStartOffset_ = offset_;
    event->accept();
}

void Pager::mouseMoveEvent(QMouseEvent* event)
{
    if (!dragging_)
        return QAbstractScrollArea::mouseMoveEvent(event);
    moveTo(draggedOffset(*event));
    event->accept();
}

void Pager::mouseReleaseEvent(QMouseEvent* event)
{
    if (!dragging_ || event->button() != Qt::LeftButton)
        return QAbstractScrollArea::mouseReleaseEvent(event);
    dragging_ = false;
    moveTo(draggedOffset(*event));
    snapTo(currentPage());
    event->accept();
}

void Pager::wheelEvent(QWheelEvent* event)
{
    const QPoint delta = event->angleDelta();
    const int step = delta.x() != 0 ? delta.x() : delta.y();
    if (step == 0 || pages_.isEmpty())
        return;
    snapTo(std::clamp(currentPage() + (step < 0 ? 1 : -1), 0, static_cast<int>(pages_.size()) - 1));
    event->accept();
}

void Pager::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    layoutPages();
}

// The offset is ours, not the scroll bars'.
void Pager::scrollContentsBy(int, int)
{
}

void Pager::moveTo(double x)
{
    offset_ = x;
    content_->move(static_cast<int>(-std::lround(x)), 0);
    emit didScroll(offset_);
}

void Pager::snapTo(int page)
{
    setContentOffset(static_cast<double>(page) * pageWidth, true);
    if (!animation_)
        emit didEndScrolling(page);
}

double Pager::draggedOffset(const QMouseEvent& event) const
{
    return clamped(dragStartOffset_ - (event.globalPosition().x() - dragStartX_));
}

double Pager::clamped(double x) const
{
    return std::clamp(x, 0.0, std::max(0.0, static_cast<double>(contentWidth() - viewport()->width())));
}

void Pager::layoutPages()
{
    const int height = viewport()->height();
    content_->setGeometry(static_cast<int>(-std::lround(offset_)), 0, std::max(contentWidth(), viewport()->width()),
                          height);
    for (int i = 0; i < pages_.size(); ++i)
        pages_[i]->setGeometry(pageWidth * i, 0, pageWidth, height);
}

}  // namespace kavenda
