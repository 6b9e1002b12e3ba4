// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/cities/EditableCityList.h"

#include "screens/cities/ChosenCities.h"
#include "screens/cities/CitiesTexts.h"
#include "screens/cities/EditingRowDelegate.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace kavenda {

namespace {

bool isDeleteKey(int key)
{
    return key == Qt::Key_Delete || key == Qt::Key_Backspace;
}

bool isEnterKey(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

}  // namespace

EditableCityList::EditableCityList(QWidget* parent) : QListWidget(parent)
{
    setItemDelegate(new EditingRowDelegate(this));
    setSelectionMode(QAbstractItemView::NoSelection);
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame);
}

void EditableCityList::setCities(const ChosenCities& cities)
{
    clear();
    confirmingRow_ = -1;
    draggedRow_ = -1;
    for (int row = 0; row < cities.count(); ++row) {
        auto* item = new QListWidgetItem(QString::fromStdString(cities.nameAt(row)), this);
        item->setTextAlignment(Qt::AlignVCenter | Qt::AlignLeading);
        if (ChosenCities::isDimmed(row))
            item->setForeground(QColor(Qt::gray));
        item->setData(Qt::AccessibleDescriptionRole, texts::cities::rowKeys);
    }
}

QRect EditableCityList::deleteControlRect(int row) const
{
    return EditingRowDelegate::deleteControlRect(visualItemRect(item(row)), layoutDirection());
}

QRect EditableCityList::confirmRect(int row) const
{
    return EditingRowDelegate::confirmRect(visualItemRect(item(row)), layoutDirection());
}

QRect EditableCityList::gripRect(int row) const
{
    return EditingRowDelegate::gripRect(visualItemRect(item(row)), layoutDirection());
}

int EditableCityList::rowAt(const QPoint& position) const
{
    const QListWidgetItem* found = itemAt(position);
    return found ? row(found) : -1;
}

int EditableCityList::dropRowAt(int y) const
{
    return std::clamp(y / rowHeight, 0, std::max(count() - 1, 0));
}

void EditableCityList::setConfirmingRow(int row)
{
    confirmingRow_ = row;
    viewport()->update();
}

void EditableCityList::mousePressEvent(QMouseEvent* event)
{
    const QPoint at = event->position().toPoint();
    const int row = rowAt(at);
    if (row < 0) {
        setConfirmingRow(-1);
        return;
    }
    if (row == confirmingRow_ && confirmRect(row).contains(at)) {
        setConfirmingRow(-1);
        emit deleteRequested(row);
    } else if (deleteControlRect(row).contains(at)) {
        setConfirmingRow(row == confirmingRow_ ? -1 : row);
    } else if (confirmingRow_ < 0 && gripRect(row).contains(at)) {
        draggedRow_ = row;
        dropRow_ = row;
        viewport()->update();
    } else {
        setConfirmingRow(-1);
    }
}

void EditableCityList::mouseMoveEvent(QMouseEvent* event)
{
    if (draggedRow_ < 0)
        return;
    dropRow_ = dropRowAt(event->position().toPoint().y());
    viewport()->update();
}

void EditableCityList::mouseReleaseEvent(QMouseEvent* event)
{
    if (draggedRow_ < 0)
        return;
    const int from = draggedRow_;
    const int to = dropRowAt(event->position().toPoint().y());
    draggedRow_ = -1;
    dropRow_ = -1;
    viewport()->update();
    emit moveRequested(from, to);
}

// The keyboard does what the controls do: Delete asks, and Enter (or a second Delete) removes
// the row while Escape keeps it; Ctrl with Up or Down moves it. Arrows alone go from row to row.
void EditableCityList::keyPressEvent(QKeyEvent* event)
{
    const int row = currentRow();
    const bool moving = event->modifiers() & Qt::ControlModifier;
    if (row < 0) {
        QListWidget::keyPressEvent(event);
    } else if (isDeleteKey(event->key()) || (isEnterKey(event->key()) && row == confirmingRow_)) {
        if (row != confirmingRow_) {
            setConfirmingRow(row);
            return;
        }
        setConfirmingRow(-1);
        emit deleteRequested(row);
        setCurrentRow(std::min(row, count() - 1));
    } else if (event->key() == Qt::Key_Escape && confirmingRow_ >= 0) {
        setConfirmingRow(-1);
    } else if (moving && (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)) {
        const int to = std::clamp(row + (event->key() == Qt::Key_Up ? -1 : 1), 0, count() - 1);
        if (to != row)
            emit moveRequested(row, to);
        setCurrentRow(to);
    } else {
        setConfirmingRow(-1);
        QListWidget::keyPressEvent(event);
    }
}

void EditableCityList::mouseDoubleClickEvent(QMouseEvent* event)
{
    // A quick second press is another press: no editing of the item's text.
    mousePressEvent(event);
}

void EditableCityList::paintEvent(QPaintEvent* event)
{
    QListWidget::paintEvent(event);
    if (draggedRow_ < 0 || dropRow_ == draggedRow_)
        return;
    // Where the dragged row would go: a line at the edge of the row it would take.
    const QRect target = visualItemRect(item(dropRow_));
    const int y = dropRow_ > draggedRow_ ? target.bottom() : target.top();
    QPainter painter(viewport());
    painter.setPen(QPen(QColor(0x2a, 0x6f, 0xd6), 3));
    painter.drawLine(target.left(), y, target.right(), y);
}

}  // namespace kavenda
