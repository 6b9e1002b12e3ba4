// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAccessibleWidget>

namespace kavenda {

class PageIndicator;

// The page indicator for screen readers: an adjustable control that reads "صفحه ٢ از ٣" and
// moves a page on increase and decrease, as a person's click does.
class PageIndicatorAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit PageIndicatorAccessible(PageIndicator* indicator);

    void* interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

    QStringList actionNames() const override;
    void doAction(const QString& action) override;
    QStringList keyBindingsForAction(const QString& action) const override;

private:
    PageIndicator* indicator() const;
};

}  // namespace kavenda
