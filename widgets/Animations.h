// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace kavenda {

// One switch for every transition of the phone-like widgets: tests and screenshots turn it
// off so that a change is complete as soon as the call returns.
void setAnimationsEnabled(bool enabled);
bool animationsEnabled();

}  // namespace kavenda
