// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "almanac/Sun.h"

#include <unordered_map>

namespace kavenda::almanac {

// The sun for any moment, from libnova's at 0h UT of each day, computed once a day and
// interpolated between: a year of times for every centre asks for it some two hundred thousand
// times, and over a day the place and the equation of time bend from the straight line by less
// than a thousandth of a degree and a tenth of a second. A moment always gives the same answer,
// whatever was asked before.
class SunTable {
public:
    EquatorialPlace place(double julianDay);
    SunPosition position(double julianDay);

private:
    struct Midnight {
        EquatorialPlace place;
        double equationOfTime;
    };
    struct Between {
        const Midnight& from;
        const Midnight& to;
        double fraction;
    };
    Between around(double julianDay);
    const Midnight& atMidnight(long day);

    std::unordered_map<long, Midnight> days_;  // by the Julian day number of the civil day
};

}  // namespace kavenda::almanac
