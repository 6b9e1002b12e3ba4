// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/RowSet.h"

#include <QPixmap>
#include <QWidget>

#include <filesystem>

class QLabel;

namespace kavenda {

class DateTimePersian;

// One city's day over the page artwork: name, first occasion, date and eight times. Built
// once; the main screen throws it away on its next rebuild, or keeps it when nothing changed.
// A screen reader hears the page by its city and date, and each time with its caption.
class CustomUIImageView : public QWidget {
    Q_OBJECT

public:
    static constexpr int pageHeight = 460;

    // A tall screen puts the artwork lower on the page.
    CustomUIImageView(const Row& row, int index, DateTimePersian& date, bool tallScreen,
                      const std::filesystem::path& resourceFolder, QWidget* parent = nullptr);

    // Starts reading the page's background, so that the first page does not wait for it.
    static void prefetchBackground(const std::filesystem::path& resourceFolder);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* addLabel(const QRect& frame, Qt::Alignment alignment, int fontSize, int shadowDown,
                     const std::string& text);

    QPixmap background_;
    int top_ = 0;
};

}  // namespace kavenda
