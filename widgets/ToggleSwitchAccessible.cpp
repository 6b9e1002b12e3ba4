#include "widgets/ToggleSwitchAccessible.h"

#include "widgets/ToggleSwitch.h"

#include <QLabel>

namespace kavenda {

ToggleSwitchAccessible::ToggleSwitchAccessible(ToggleSwitch* toggle) : QAccessibleWidget(toggle, QAccessible::CheckBox)
{
}

QString ToggleSwitchAccessible::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Name || !toggle()->accessibleName().isEmpty())
        return QAccessibleWidget::text(kind);
    if (QWidget* row = toggle()->parentWidget()) {
        for (const QLabel* label : row->findChildren<QLabel*>())
            if (label->buddy() == toggle())
                return label->text();
    }
    return toggle()->text();
}

QAccessible::State ToggleSwitchAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = toggle()->isChecked();
    return state;
}

QStringList ToggleSwitchAccessible::actionNames() const
{
    return QStringList{toggleAction(), pressAction()} + QAccessibleWidget::actionNames();
}

// A screen reader's toggle is a click: the switch slides and tells whoever listens.
void ToggleSwitchAccessible::doAction(const QString& action)
{
    if (action == toggleAction() || action == pressAction())
        toggle()->click();
    else
        QAccessibleWidget::doAction(action);
}

ToggleSwitch* ToggleSwitchAccessible::toggle() const
{
    return static_cast<ToggleSwitch*>(widget());
}

}  // namespace kavenda
