// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ListRowsAccessible.h"

#include <QAbstractItemView>
#include <QPersistentModelIndex>
#include <QPointer>

namespace kavenda {

namespace {

class ListRowAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    ListRowAccessible(QAbstractItemView* view, const QModelIndex& index) : view_(view), index_(index) {}

    bool isValid() const override { return view_ && index_.isValid(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return view_ ? view_->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(view_.data()); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    void setText(QAccessible::Text, const QString&) override {}

    QString text(QAccessible::Text kind) const override
    {
        if (!isValid())
            return {};
        if (kind == QAccessible::Description)
            return index_.data(Qt::AccessibleDescriptionRole).toString();
        if (kind != QAccessible::Name)
            return {};
        const QString name = index_.data(Qt::AccessibleTextRole).toString();
        return name.isEmpty() ? index_.data(Qt::DisplayRole).toString() : name;
    }

    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect area = view_->visualRect(index_);
        return {view_->viewport()->mapToGlobal(area.topLeft()), area.size()};
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const bool chosen = index_.data(ListRowsAccessible::chosenRole).toBool();
        state.focusable = true;
        state.focused = view_->hasFocus() && view_->currentIndex() == index_;
        state.selectable = true;
        state.selected = chosen || (view_->selectionModel() && view_->selectionModel()->isSelected(index_));
        state.checkable = index_.data(ListRowsAccessible::chosenRole).isValid();
        state.checked = chosen;
        state.disabled = !(index_.flags() & Qt::ItemIsEnabled);
        state.invisible = !view_->isVisible() || !view_->viewport()->rect().intersects(view_->visualRect(index_));
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }

    QStringList actionNames() const override { return {pressAction()}; }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

    // What a tap does: the row becomes current and is activated.
    void doAction(const QString& action) override
    {
        if (action != pressAction() || !isValid())
            return;
        view_->setCurrentIndex(index_);
        emit view_->activated(index_);
    }

    bool shows(const QModelIndex& index) const { return index_ == index; }

private:
    QPointer<QAbstractItemView> view_;
    QPersistentModelIndex index_;
};

}  // namespace

ListRowsAccessible::ListRowsAccessible(QAbstractItemView* view) : QAccessibleWidget(view, QAccessible::List)
{
}

ListRowsAccessible::~ListRowsAccessible()
{
    for (const QAccessible::Id id : std::as_const(rows_))
        QAccessible::deleteAccessibleInterface(id);
}

QAbstractItemView* ListRowsAccessible::view() const
{
    return static_cast<QAbstractItemView*>(widget());
}

int ListRowsAccessible::childCount() const
{
    return view()->model() ? view()->model()->rowCount(view()->rootIndex()) : 0;
}

QAccessibleInterface* ListRowsAccessible::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    const QModelIndex row = view()->model()->index(index, 0, view()->rootIndex());
    // A list that was refilled holds other rows at the same places.
    if (const QAccessible::Id id = rows_.value(index)) {
        auto* known = static_cast<ListRowAccessible*>(QAccessible::accessibleInterface(id));
        if (known && known->isValid() && known->shows(row))
            return known;
        QAccessible::deleteAccessibleInterface(id);
    }
    auto* fresh = new ListRowAccessible(view(), row);
    rows_.insert(index, QAccessible::registerAccessibleInterface(fresh));
    return fresh;
}

int ListRowsAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    for (int row = 0; row < childCount(); ++row)
        if (this->child(row) == child)
            return row;
    return -1;
}

QAccessibleInterface* ListRowsAccessible::childAt(int x, int y) const
{
    const QModelIndex index = view()->indexAt(view()->viewport()->mapFromGlobal(QPoint(x, y)));
    return index.isValid() ? child(index.row()) : nullptr;
}

QAccessibleInterface* ListRowsAccessible::focusChild() const
{
    const QModelIndex current = view()->currentIndex();
    return view()->hasFocus() && current.isValid() ? child(current.row()) : nullptr;
}

}  // namespace kavenda
