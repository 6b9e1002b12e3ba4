#include "widgets/TapButtonAccessible.h"

#include <QAbstractButton>

namespace kavenda {

TapButtonAccessible::TapButtonAccessible(QAbstractButton* button) : QAccessibleWidget(button, QAccessible::Button)
{
}

QAccessible::Role TapButtonAccessible::role() const
{
    return button()->isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
}

QString TapButtonAccessible::text(QAccessible::Text kind) const
{
    const QString text = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && text.isEmpty() ? button()->text() : text;
}

QAccessible::State TapButtonAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = button()->isCheckable();
    state.checked = button()->isChecked();
    state.pressed = button()->isDown();
    return state;
}

QStringList TapButtonAccessible::actionNames() const
{
    if (!button()->isEnabled())
        return QAccessibleWidget::actionNames();
    QStringList names{pressAction()};
    if (button()->isCheckable())
        names.append(toggleAction());
    return names + QAccessibleWidget::actionNames();
}

void TapButtonAccessible::doAction(const QString& action)
{
    if (action == pressAction() || action == toggleAction())
        button()->click();
    else
        QAccessibleWidget::doAction(action);
}

QAbstractButton* TapButtonAccessible::button() const
{
    return static_cast<QAbstractButton*>(widget());
}

}  // namespace kavenda
