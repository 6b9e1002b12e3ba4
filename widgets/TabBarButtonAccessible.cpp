#include "widgets/TabBarButtonAccessible.h"

#include "widgets/TabBarButton.h"

namespace kavenda {

TabBarButtonAccessible::TabBarButtonAccessible(TabBarButton* button) : QAccessibleWidget(button, QAccessible::PageTab)
{
}

QString TabBarButtonAccessible::text(QAccessible::Text kind) const
{
    const QString text = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && text.isEmpty() ? button()->text() : text;
}

QAccessible::State TabBarButtonAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.selectable = true;
    state.selected = button()->isChecked();
    return state;
}

QStringList TabBarButtonAccessible::actionNames() const
{
    return QStringList{pressAction()} + QAccessibleWidget::actionNames();
}

// A disabled tab stays refused, as it is to a click.
void TabBarButtonAccessible::doAction(const QString& action)
{
    if (action == pressAction())
        button()->click();
    else
        QAccessibleWidget::doAction(action);
}

TabBarButton* TabBarButtonAccessible::button() const
{
    return static_cast<TabBarButton*>(widget());
}

}  // namespace kavenda
