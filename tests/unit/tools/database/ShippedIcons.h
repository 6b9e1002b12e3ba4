// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/MyDB.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

namespace kavenda::test {

// The generated database as a first start sees it: copied from the build's resources into a
// fresh documents folder.
class ShippedIcons : public ::testing::Test {
protected:
    ShippedIcons() : paths(temp.path(), KAVENDA_RESOURCE_DIR), db("Icons", paths, log) {}

    std::string scalar(const std::string& sql) { return db.ExecuteScaler(sql).value_or("(none)"); }

    TempFolder temp;
    FixedPaths paths;
    RecordingLog log;
    MyDB db;
};

}  // namespace kavenda::test
