// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/PageIndicatorAccessible.h"

#include "widgets/PageIndicator.h"

#include <algorithm>

namespace kavenda {

PageIndicatorAccessible::PageIndicatorAccessible(PageIndicator* indicator)
    : QAccessibleWidget(indicator, QAccessible::Slider)
{
}

void* PageIndicatorAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString PageIndicatorAccessible::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Name && kind != QAccessible::Value)
        return QAccessibleWidget::text(kind);
    return indicator()->pageText();
}

// Without pages there is nothing to read.
QAccessible::State PageIndicatorAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    if (indicator()->numberOfPages() == 0)
        state.invisible = true;
    return state;
}

QVariant PageIndicatorAccessible::currentValue() const
{
    return indicator()->currentPage();
}

void PageIndicatorAccessible::setCurrentValue(const QVariant& value)
{
    indicator()->choosePage(value.toInt());
}

QVariant PageIndicatorAccessible::maximumValue() const
{
    return std::max(0, indicator()->numberOfPages() - 1);
}

QVariant PageIndicatorAccessible::minimumValue() const
{
    return 0;
}

QVariant PageIndicatorAccessible::minimumStepSize() const
{
    return 1;
}

QStringList PageIndicatorAccessible::actionNames() const
{
    return QAccessibleWidget::actionNames() << increaseAction() << decreaseAction();
}

void PageIndicatorAccessible::doAction(const QString& action)
{
    if (action == increaseAction())
        indicator()->choosePage(indicator()->currentPage() + 1);
    else if (action == decreaseAction())
        indicator()->choosePage(indicator()->currentPage() - 1);
    else
        QAccessibleWidget::doAction(action);
}

QStringList PageIndicatorAccessible::keyBindingsForAction(const QString& action) const
{
    if (action == increaseAction())
        return {QStringLiteral("Right")};
    if (action == decreaseAction())
        return {QStringLiteral("Left")};
    return QAccessibleWidget::keyBindingsForAction(action);
}

PageIndicator* PageIndicatorAccessible::indicator() const
{
    return static_cast<PageIndicator*>(widget());
}

}  // namespace kavenda
