// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAccessibleWidget>
#include <QHash>

class QAbstractItemView;

namespace kavenda {

// A one-column list for screen readers whose rows do what a tap does: a row's action activates
// it (the view's `activated`), where Qt's own rows only offer to toggle a selection these lists
// never keep. A row whose `chosenRole` is true reads as checked and selected.
class ListRowsAccessible : public QAccessibleWidget {
public:
    static constexpr int chosenRole = Qt::UserRole + 0x100;

    explicit ListRowsAccessible(QAbstractItemView* view);
    ~ListRowsAccessible() override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    QAbstractItemView* view() const;

    // Row interfaces live in Qt's registry, which hands them to the screen reader by id.
    mutable QHash<int, QAccessible::Id> rows_;
};

}  // namespace kavenda
