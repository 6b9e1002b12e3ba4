// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractScrollArea>
#include <QList>
#include <QPointer>

class QVariantAnimation;

namespace kavenda {

// Horizontal paging over pages one screen wide: page i starts at x = 320 * i. A drag moves the
// content with the pointer; on release it settles on the nearest page.
class Pager : public QAbstractScrollArea {
    Q_OBJECT

public:
    static constexpr int pageWidth = 320;

    explicit Pager(QWidget* parent = nullptr);

    // Replaces (and deletes) the pages shown before.
    void setPages(const QList<QWidget*>& pages);
    QList<QWidget*> pages() const;
    void setContentOffset(double x, bool animated);
    double contentOffset() const;
    int contentWidth() const;
    // The page nearest to the offset.
    int currentPage() const;

signals:
    // Every change of the offset, the ones made by code included.
    void didScroll(double offset);
    // A drag, a wheel turn or an animated move has come to rest on a page.
    void didEndScrolling(int page);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void moveTo(double x);
    void snapTo(int page);
    double draggedOffset(const QMouseEvent& event) const;
    double clamped(double x) const;
    void layoutPages();

    QWidget* content_;
    QList<QWidget*> pages_;
    double offset_ = 0.0;
    bool dragging_ = false;
    double dragStartX_ = 0.0;
    double dragStartOffset_ = 0.0;
    QPointer<QVariantAnimation> animation_;
};

}  // namespace kavenda
