// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace kavenda {

// The screen to tell when the user is done with the options: it reloads and dismisses them.
class SelectionControllerDelegate {
public:
    virtual ~SelectionControllerDelegate() = default;
    virtual void closeForm() = 0;
};

}  // namespace kavenda
