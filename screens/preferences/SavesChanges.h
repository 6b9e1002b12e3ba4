// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

namespace kavenda {

// A preference screen that keeps its changes until its Save.
class SavesChanges {
public:
    virtual ~SavesChanges() = default;

    virtual bool hasUnsavedChange() const = 0;
    virtual void save() = 0;
    // Shows the stored values again.
    virtual void discard() = 0;
};

// Before a screen with unsaved changes is left: asks once whether to store them, stores or
// drops them as answered, and says whether the person may go on.
bool mayLeave(SavesChanges& screen, QWidget* parent);

}  // namespace kavenda
