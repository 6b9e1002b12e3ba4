// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStyledItemDelegate>

namespace kavenda {

class EditableCityList;

// Draws a row of the city list in editing mode: the delete control at the leading edge, the
// grip at the trailing one, or the confirming delete button once the control was pressed.
class EditingRowDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit EditingRowDelegate(EditableCityList* list);

    // Control frames within a row, mirrored for right-to-left.
    static QRect deleteControlRect(const QRect& row, Qt::LayoutDirection direction);
    static QRect gripRect(const QRect& row, Qt::LayoutDirection direction);
    static QRect confirmRect(const QRect& row, Qt::LayoutDirection direction);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    EditableCityList* list_;
};

}  // namespace kavenda
