// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/main/CustomUIImageView.h"

#include "screens/main/CityPages.h"
#include "screens/main/CustomUIImageViewAccessible.h"
#include "screens/main/DayPage.h"
#include "screens/main/MainTexts.h"
#include "screens/main/ShadowedLabel.h"
#include "widgets/AccessibleFactory.h"
#include "widgets/ResourcePixmap.h"

#include <QPainter>
#include <QPalette>

namespace kavenda {

namespace {

constexpr int tallScreenTop = 44;
constexpr int timeRowTop = 108;
constexpr int timeRowStep = 38;
constexpr const char* backgroundFile = "MainView.ppm";

}  // namespace

CustomUIImageView::CustomUIImageView(const Row& row, int index, DateTimePersian& date, bool tallScreen,
                                     const std::filesystem::path& resourceFolder, QWidget* parent)
    : QWidget(parent)
{
    installAccessibleInterface<CustomUIImageView, CustomUIImageViewAccessible>();
    const DayPage page(row, date);
    // The pager gives every page its full height, so the page's own top is kept inside.
    top_ = tallScreen ? tallScreenTop : 0;
    setGeometry(CityPages::pageWidth * index, top_, CityPages::pageWidth, pageHeight);
    background_ = resourcePixmap(resourceFolder / backgroundFile);

    // Fixed frames: the alignment must not follow the right-to-left layout direction.
    const Qt::Alignment left = Qt::AlignAbsolute | Qt::AlignLeft | Qt::AlignVCenter;
    const Qt::Alignment right = Qt::AlignAbsolute | Qt::AlignRight | Qt::AlignVCenter;
    addLabel({180, 45, 100, 40}, right, 20, 3, page.name());
    addLabel({30, 70, 250, 40}, right, 16, 3, page.occasion());
    addLabel({30, 45, 160, 40}, left, 20, 3, page.date());
    for (int k = 1; k <= DayPage::timeCount; ++k)
        addLabel({35, timeRowTop + timeRowStep * (k - 1), 100, 40}, left, 25, 2, page.time(k))
            ->setAccessibleName(QString::fromStdString(page.timeReading(k)));
    setAccessibleName(QString::fromStdString(page.name()) + texts::main::listSeparator
                      + QString::fromStdString(page.date()));
}

void CustomUIImageView::prefetchBackground(const std::filesystem::path& resourceFolder)
{
    prefetchResourceImage(resourceFolder / backgroundFile);
}

void CustomUIImageView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    painter.drawPixmap(0, top_, background_);
}

QLabel* CustomUIImageView::addLabel(const QRect& frame, Qt::Alignment alignment, int fontSize, int shadowDown,
                                    const std::string& text)
{
    auto* label =
        new ShadowedLabel(QString::fromStdString(text), frame.translated(0, top_), QPoint(-1, shadowDown), this);
    label->setAlignment(alignment);
    QFont font = label->font();
    font.setPixelSize(fontSize);
    label->setFont(font);
    // Inside the pager a label inherits the scroll area's Text role, not WindowText.
    QPalette colours = label->palette();
    colours.setColor(QPalette::WindowText, Qt::white);
    colours.setColor(QPalette::Text, Qt::white);
    label->setPalette(colours);
    // Nothing to show is nothing for a screen reader to stop at either.
    label->setHidden(text.empty());
    return label;
}

}  // namespace kavenda
