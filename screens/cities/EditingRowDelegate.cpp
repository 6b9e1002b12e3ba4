// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/cities/EditingRowDelegate.h"

#include "screens/cities/CitiesTexts.h"
#include "screens/cities/EditableCityList.h"
#include "widgets/FocusRingStyle.h"

#include <QPainter>
#include <QStyle>

namespace kavenda {

namespace {

constexpr int controlSize = 22;
constexpr int edgeMargin = 10;
constexpr int confirmWidth = 64;

// A rectangle given for left-to-right, placed for the row's direction.
QRect placed(Qt::LayoutDirection direction, const QRect& row, const QRect& logical)
{
    return QStyle::visualRect(direction, row, logical);
}

}  // namespace

EditingRowDelegate::EditingRowDelegate(EditableCityList* list) : QStyledItemDelegate(list), list_(list)
{
}

QRect EditingRowDelegate::deleteControlRect(const QRect& row, Qt::LayoutDirection direction)
{
    const QRect logical(row.left() + edgeMargin, row.center().y() - controlSize / 2 + 1, controlSize, controlSize);
    return placed(direction, row, logical);
}

QRect EditingRowDelegate::gripRect(const QRect& row, Qt::LayoutDirection direction)
{
    const QRect logical(row.right() - edgeMargin - controlSize + 1, row.top(), controlSize, row.height());
    return placed(direction, row, logical);
}

QRect EditingRowDelegate::confirmRect(const QRect& row, Qt::LayoutDirection direction)
{
    const QRect logical(row.right() - edgeMargin - confirmWidth + 1, row.top() + 7, confirmWidth, row.height() - 14);
    return placed(direction, row, logical);
}

void EditingRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const Qt::LayoutDirection direction = option.direction;
    const QRect row = option.rect;
    const bool focused = option.state & QStyle::State_HasFocus;
    const bool confirming = list_->confirmingRow() == index.row();
    const bool dragged = list_->draggedRow() == index.row();

    painter->save();
    painter->fillRect(row, dragged ? QColor(0xe8, 0xee, 0xf6) : option.palette.base().color());
    painter->setPen(QColor(0xd8, 0xd8, 0xd8));
    painter->drawLine(row.bottomLeft(), row.bottomRight());

    // The text sits between the two controls.
    QStyleOptionViewItem text(option);
    const int trailing = confirming ? confirmWidth : controlSize;
    text.rect = placed(direction, row, row.adjusted(2 * edgeMargin + controlSize, 0, -(2 * edgeMargin + trailing), 0));
    text.state &= ~(QStyle::State_Selected | QStyle::State_HasFocus | QStyle::State_MouseOver);
    QStyledItemDelegate::paint(painter, text, index);

    painter->setRenderHint(QPainter::Antialiasing);
    const QRect control = deleteControlRect(row, direction);
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor(0xe0, 0x2b, 0x2b));
    painter->drawEllipse(control);
    painter->setBrush(Qt::white);
    // The minus turns upright while the row waits for the confirmation.
    if (!confirming)
        painter->drawRect(QRect(control.left() + 5, control.center().y() - 1, control.width() - 10, 3));
    else
        painter->drawRect(QRect(control.center().x() - 1, control.top() + 5, 3, control.height() - 10));

    if (confirming) {
        const QRect button = confirmRect(row, direction);
        painter->setBrush(QColor(0xd0, 0x20, 0x20));
        painter->drawRoundedRect(button, 5, 5);
        painter->setPen(Qt::white);
        painter->drawText(button, Qt::AlignCenter, texts::cities::remove);
    } else {
        const QRect grip = gripRect(row, direction);
        painter->setPen(QPen(QColor(0xa8, 0xa8, 0xa8), 2));
        for (int line = -1; line <= 1; ++line) {
            const int y = grip.center().y() + 5 * line;
            painter->drawLine(grip.left() + 3, y, grip.right() - 3, y);
        }
    }
    if (focused)
        FocusRingStyle::drawFocusRing(painter, row, option.palette);
    painter->restore();
}

QSize EditingRowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return {QStyledItemDelegate::sizeHint(option, index).width(), EditableCityList::rowHeight};
}

}  // namespace kavenda
