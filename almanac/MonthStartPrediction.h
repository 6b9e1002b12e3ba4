// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace kavenda::almanac {

class SunTable;

// The first day (Julian day number) of a Hijri month as Iran's calendar would set it: the day
// after the first evening after the new moon if the crescent can be seen from Tehran that
// evening (outside Yallop's zone F, q above -0.293), otherwise the day after.
long predictedFirstDay(SunTable& sun, int hijriYear, int hijriMonth);

}  // namespace kavenda::almanac
