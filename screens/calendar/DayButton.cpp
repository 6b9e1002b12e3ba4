// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/calendar/DayButton.h"

#include "screens/calendar/CalendarTexts.h"
#include "screens/calendar/DayFrame.h"
#include "text/Format.h"
#include "text/Utility.h"
#include "widgets/AccessibleFactory.h"
#include "widgets/FocusRingStyle.h"
#include "widgets/ResourcePixmap.h"
#include "widgets/TapButtonAccessible.h"

#include <QPainter>

namespace kavenda {

namespace {

constexpr int titlePixels = 20;
constexpr qreal focusRadius = 6;

QColor colourOf(DayCell::Ink ink)
{
    switch (ink) {
    case DayCell::Ink::holiday:
        return QColor(195, 56, 61);
    case DayCell::Ink::onSelection:
        return Qt::white;
    case DayCell::Ink::plain:
        break;
    }
    return Qt::black;
}

QPixmap image(const std::filesystem::path& folder, const char* name)
{
    if (!name)
        return {};
    return resourcePixmap(folder / name);
}

// Today's ring stands for the day until it is picked; a picked day keeps its occasion star.
const char* backgroundOf(const DayCell& cell, bool selected)
{
    if (selected)
        return cell.hasOccasion() ? "selectedWithEvent.png" : "selected.png";
    if (cell.today)
        return "today.png";
    return cell.hasOccasion() ? "hasEvent.png" : nullptr;
}

// The number, then the occasions, so a screen reader says what the grid shows.
QString accessibleNameOf(const DayCell& cell)
{
    QString name = QString::fromStdString(Utility::ConvertToPersian(format("%i", {cell.place.day})));
    if (cell.hasOccasion())
        for (const std::string& occasion : MonthGrid::occasions(cell.description))
            name += texts::calendar::listSeparator + QString::fromStdString(occasion);
    return name;
}

}  // namespace

DayButton::DayButton(const DayCell& cell, const std::filesystem::path& resourceFolder, QWidget* parent)
    : QAbstractButton(parent), cell_(cell), normalBackground_(image(resourceFolder, backgroundOf(cell, false))),
      selectedBackground_(image(resourceFolder, backgroundOf(cell, true)))
{
    installAccessibleInterface<DayButton, TapButtonAccessible>();
    setCheckable(true);
    setChecked(cell.selected);
    setText(QString::fromStdString(Utility::ConvertToPersian(format("%i", {cell.place.day}))));
    setAccessibleName(accessibleNameOf(cell));
    // A holiday is told by its colour alone; a screen reader says it in words.
    if (cell.holiday)
        setAccessibleDescription(texts::calendar::holiday);
    setGeometry(DayFrame::x(cell.place.column), DayFrame::y(cell.place.row), DayFrame::width, DayFrame::height);
    setCursor(Qt::PointingHandCursor);
    // The grid is one stop of the focus chain; the calendar moves the stop with the arrows.
    setFocusPolicy(Qt::NoFocus);
    // The program's Persian face, whose digits have the Persian shapes the main screen shows.
    QFont title = font();
    title.setPixelSize(titlePixels);
    setFont(title);
}

QColor DayButton::titleColour() const
{
    return colourOf(cell_.ink(isChecked()));
}

QSize DayButton::sizeHint() const
{
    return QSize(DayFrame::width, DayFrame::height);
}

void DayButton::nextCheckState()
{
}

void DayButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QPixmap& background = isChecked() ? selectedBackground_ : normalBackground_;
    if (!background.isNull())
        painter.drawPixmap(rect(), background);
    if (isDown())
        painter.fillRect(rect(), QColor(0, 0, 0, 40));
    painter.setPen(titleColour());
    painter.setFont(font());
    painter.drawText(rect(), Qt::AlignCenter, text());
    if (FocusRingStyle::showsFocus(this)) {
        FocusRingStyle::drawFocusRing(&painter, rect(), palette(), focusRadius);
        // A thin inner line keeps the ring clear on the dark ground of a picked day.
        const qreal inset = FocusRingStyle::ringWidth + 0.5;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::HighlightedText), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), focusRadius - inset,
                                focusRadius - inset);
    }
}

}  // namespace kavenda
