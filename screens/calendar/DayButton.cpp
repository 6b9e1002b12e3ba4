#include "screens/calendar/DayButton.h"

#include "screens/calendar/DayButtonAccessible.h"
#include "text/Format.h"
#include "text/Utility.h"
#include "widgets/AccessibleFactory.h"

#include <QPainter>
#include <QPixmapCache>

namespace kavenda {

namespace {

constexpr int titlePixels = 20;

QColor colourOf(const Rgb& rgb)
{
    return QColor(rgb.red, rgb.green, rgb.blue);
}

QPixmap image(const std::filesystem::path& folder, const std::string& name)
{
    if (name.empty())
        return {};
    const QString path = QString::fromStdString((folder / name).string());
    QPixmap pixmap;
    if (!QPixmapCache::find(path, &pixmap) && pixmap.load(path))
        QPixmapCache::insert(path, pixmap);
    return pixmap;
}

// The number, then the occasions, so a screen reader says what the grid shows.
QString accessibleNameOf(const DayCell& cell)
{
    QString name = QString::fromStdString(Utility::ConvertToPersian(format("%i", {cell.place.day})));
    if (!cell.description.empty())
        for (const std::string& occasion : MonthGrid::occasions(cell.description))
            name += QStringLiteral("، ") + QString::fromStdString(occasion);
    return name;
}

}  // namespace

DayButton::DayButton(const DayCell& cell, const std::filesystem::path& resourceFolder, QWidget* parent)
    : QAbstractButton(parent), tag_(cell.place.day), normalTitle_(colourOf(cell.normalTitle)),
      selectedTitle_(colourOf(cell.selectedTitle)), normalBackground_(image(resourceFolder, cell.normalBackground)),
      selectedBackground_(image(resourceFolder, cell.selectedBackground))
{
    installAccessibleInterface<DayButton, DayButtonAccessible>();
    setCheckable(true);
    setChecked(cell.selected);
    setText(QString::fromStdString(Utility::ConvertToPersian(format("%i", {cell.place.day}))));
    setAccessibleName(accessibleNameOf(cell));
    // A holiday is told by its colour alone; a screen reader says it in words.
    if (cell.normalTitle == MonthGrid::holidayColour)
        setAccessibleDescription(tr("تعطیل"));
    setGeometry(cell.x(), cell.y(), MonthGrid::buttonWidth, MonthGrid::buttonHeight);
    setCursor(Qt::PointingHandCursor);
    // The program's Persian face, whose digits have the Persian shapes the main screen shows.
    QFont title = font();
    title.setPixelSize(titlePixels);
    setFont(title);
}

QColor DayButton::titleColour() const
{
    return isChecked() ? selectedTitle_ : normalTitle_;
}

QSize DayButton::sizeHint() const
{
    return QSize(MonthGrid::buttonWidth, MonthGrid::buttonHeight);
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
}

}  // namespace kavenda
