// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAccessible>
#include <QLineEdit>
#include <QList>
#include <QScrollBar>
#include <QStringList>
#include <QWidget>

namespace kavenda::test {

// Letters or digits of the Arabic script, which Persian is written in.
inline bool isPersian(const QString& text)
{
    for (const QChar c : text) {
        if (c.isLetterOrNumber() && c.script() == QChar::Script_Arabic)
            return true;
    }
    return false;
}

// The roles a control of each kind may be announced with; an empty list for any role but none.
inline QList<QAccessible::Role> rolesFor(const QWidget* widget)
{
    if (qobject_cast<const QAbstractButton*>(widget))
        return {QAccessible::Button, QAccessible::CheckBox, QAccessible::RadioButton, QAccessible::PageTab,
                QAccessible::Link};
    if (qobject_cast<const QAbstractSlider*>(widget))
        return {QAccessible::Slider, QAccessible::Dial, QAccessible::SpinBox};
    if (qobject_cast<const QLineEdit*>(widget))
        return {QAccessible::EditableText};
    if (qobject_cast<const QAbstractItemView*>(widget))
        return {QAccessible::List, QAccessible::Table, QAccessible::Tree};
    return {};
}

// Scroll bars are left out: Qt's own, unnamed, announced by their role, never a focus stop.
inline bool isInteractive(const QWidget* widget)
{
    if (qobject_cast<const QScrollBar*>(widget))
        return false;
    return widget->focusPolicy() != Qt::NoFocus || !rolesFor(widget).isEmpty();
}

// Every shown control a person can reach under root that a screen reader could not name in
// Persian or would announce with a role that does not say what it does.
inline QStringList unnamedControls(QWidget* root)
{
    QStringList faults;
    for (QWidget* widget : root->findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(root) || !isInteractive(widget))
            continue;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
        const QString what = QStringLiteral("%1 \"%2\"").arg(widget->metaObject()->className(), widget->objectName());
        if (!face) {
            faults << what + QStringLiteral(": no accessible interface");
            continue;
        }
        const QString name = face->text(QAccessible::Name);
        if (!isPersian(name))
            faults << what + QStringLiteral(": name \"%1\"").arg(name);
        const QList<QAccessible::Role> roles = rolesFor(widget);
        if (face->role() == QAccessible::NoRole || (!roles.isEmpty() && !roles.contains(face->role())))
            faults << what + QStringLiteral(": role %1").arg(int(face->role()));
    }
    return faults;
}

}  // namespace kavenda::test
