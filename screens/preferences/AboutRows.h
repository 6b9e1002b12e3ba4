// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace kavenda {

class UrlOpener;

// The about screen's five fixed rows and where a tap on each leads.
class AboutRows {
public:
    static constexpr int rowCount = 5;
    static constexpr int webRow = 4;
    // Rows from here on show a highlight when tapped.
    static constexpr int firstLinkRow = 3;

    AboutRows(std::string homepage, std::string supportEmail);
    // With the addresses the program was built with.
    static AboutRows shipped();

    std::string text(int row) const;
    static bool isCentred(int row) { return row < 2; }
    static bool highlightsOnTap(int row) { return row >= firstLinkRow; }
    // The web site for its row, the support mail for every other.
    std::string address(int row) const;
    void didSelectRow(int row, UrlOpener& urls) const;

private:
    std::string homepage_;
    std::string supportEmail_;
};

}  // namespace kavenda
