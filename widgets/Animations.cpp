// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/Animations.h"

namespace kavenda {

namespace {

bool enabled = true;

}  // namespace

void setAnimationsEnabled(bool on)
{
    enabled = on;
}

bool animationsEnabled()
{
    return enabled;
}

}  // namespace kavenda
