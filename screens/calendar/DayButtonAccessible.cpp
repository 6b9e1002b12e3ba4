#include "screens/calendar/DayButtonAccessible.h"

#include "screens/calendar/DayButton.h"

namespace kavenda {

DayButtonAccessible::DayButtonAccessible(DayButton* button) : QAccessibleWidget(button, QAccessible::CheckBox)
{
}

QAccessible::State DayButtonAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = button()->isChecked();
    return state;
}

QStringList DayButtonAccessible::actionNames() const
{
    return QStringList{toggleAction(), pressAction()} + QAccessibleWidget::actionNames();
}

void DayButtonAccessible::doAction(const QString& action)
{
    if (action == toggleAction() || action == pressAction())
        button()->click();
    else
        QAccessibleWidget::doAction(action);
}

DayButton* DayButtonAccessible::button() const
{
    return static_cast<DayButton*>(widget());
}

}  // namespace kavenda
