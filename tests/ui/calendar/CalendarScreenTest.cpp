// The month calendar driven through its buttons, opened from the main screen on the generated
// database (1392 is the official calendar of that year).
#include "app/PersianFont.h"
#include "calendar/DateTimePersian.h"
#include "desktop/SystemClock.h"
#include "screens/calendar/CalendarViewController.h"
#include "screens/calendar/DayButton.h"
#include "screens/main/MainViewController.h"
#include "tests/support/TehranTime.h"
#include "tests/ui/main/MainScreenFixture.h"
#include "widgets/Animations.h"
#include "widgets/PresentationStack.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QtTest>

#include <algorithm>

namespace kavenda {
namespace {

using test::MainScreenFixture;

// 20 Farvardin 1392 and 10 Tir 1392, at noon.
const Instant farvardin20 = test::tehran(2013, 4, 9, 12, 0);
const Instant tir10 = test::tehran(2013, 7, 1, 12, 0);

// True when the row's text is drawn in the right half of the list, where Persian lines start.
bool inkStartsRight(QListWidget* list, int row)
{
    const QImage image = list->viewport()->grab(list->visualItemRect(list->item(row))).toImage();
    const QRgb background = image.pixel(image.width() / 2, 0);
    int leftmostInk = image.width();
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qGray(image.pixel(x, y)) < qGray(background) - 96)
                leftmostInk = std::min(leftmostInk, x);
    return leftmostInk > image.width() / 2 && leftmostInk < image.width();
}

// The main screen on the generated database with Tehran chosen and the calendar's artwork.
struct CalendarFixture {
    explicit CalendarFixture(Instant now) : f(now, 480, MainScreenFixture::Data::shippedWhereBuilt)
    {
        for (const char* image :
             {"calendarBG.png", "hasEvent.png", "selectedWithEvent.png", "selected.png", "today.png"})
            std::filesystem::copy_file(std::filesystem::path(KAVENDA_RESOURCE_DIR) / image,
                                       f.paths.resourceFolder() / image);
        f.choose({f.centreNamed("تهران")});
    }

    // Shows the main screen and taps its calendar button.
    CalendarViewController& open()
    {
        MainViewController& main = f.show();
        QTest::mouseClick(main.findChild<QAbstractButton*>(QStringLiteral("calendarButton")), Qt::LeftButton);
        auto* calendar = qobject_cast<CalendarViewController*>(f.presentation().top());
        if (!calendar)
            qFatal("the calendar button opened no calendar");
        return *calendar;
    }

    static void tap(CalendarViewController& calendar, const char* name)
    {
        QTest::mouseClick(calendar.findChild<QAbstractButton*>(QLatin1String(name)), Qt::LeftButton);
    }

    static void tapDay(CalendarViewController& calendar, int day)
    {
        QTest::mouseClick(calendar.dayButtons().at(day), Qt::LeftButton);
    }

    static QStringList rows(const CalendarViewController& calendar)
    {
        QStringList texts;
        for (int i = 0; i < calendar.tblEvents()->count(); ++i)
            texts << calendar.tblEvents()->item(i)->text();
        return texts;
    }

    static QList<int> checkedDays(const CalendarViewController& calendar)
    {
        QList<int> days;
        for (const auto& [day, button] : calendar.dayButtons())
            if (button->isChecked())
                days << day;
        return days;
    }

    MainScreenFixture f;
};

const QString noOccasion = QStringLiteral("بدون رویداد");

}  // namespace

class CalendarScreenTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        setAnimationsEnabled(false);
        usePersianFont();
        if (!std::filesystem::exists(std::filesystem::path(KAVENDA_RESOURCE_DIR) / "Icons"))
            QSKIP("the generated database is not built");
    }

    void opensFromTheMainScreenOnFarvardin1392()
    {
        CalendarFixture c(farvardin20);
        CalendarViewController& calendar = c.open();
        QCOMPARE(c.f.presentation().depth(), 2);
        QCOMPARE(calendar.monthLbl()->text(), QStringLiteral("فروردین"));
        const auto buttons = calendar.dayButtons();
        QCOMPARE(buttons.size(), std::size_t(31));
        QCOMPARE(buttons.at(1)->geometry(), QRect(46, 1, 45, 43));
        QCOMPARE(buttons.at(31)->geometry(), QRect(276, 1, 45, 43));
        QCOMPARE(buttons.at(30)->geometry(), QRect(0, 177, 45, 43));
        QCOMPARE(buttons.at(1)->text(), QStringLiteral("١"));
        QCOMPARE(buttons.at(1)->accessibleName(), QStringLiteral("١، آغاز نوروز"));
        QCOMPARE(buttons.at(5)->accessibleName(), QStringLiteral("٥"));
        QCOMPARE(buttons.at(25)->accessibleName(),
                 QStringLiteral("٢٥، شهادت حضرت فاطمه زهرا (س)، روز بزرگداشت عطار نیشابوری"));
        const QColor holiday(195, 56, 61);
        QCOMPARE(buttons.at(9)->titleColour(), holiday);  // a Friday
        QCOMPARE(buttons.at(13)->titleColour(), holiday);
        QCOMPARE(buttons.at(14)->titleColour(), QColor(Qt::black));
        // Opened on today, 20 Farvardin: selected, its occasion listed.
        QCOMPARE(c.checkedDays(calendar), QList<int>{20});
        QAccessibleInterface* selected = QAccessible::queryAccessibleInterface(buttons.at(20));
        QVERIFY(selected->state().checked);
        QVERIFY(!QAccessible::queryAccessibleInterface(buttons.at(19))->state().checked);
        QCOMPARE(QAccessible::queryAccessibleInterface(calendar.monthLbl())->text(QAccessible::Name),
                 QStringLiteral("فروردین"));
        QCOMPARE(c.rows(calendar),
                 QStringList{QStringLiteral(
                     "روز ملی فناوری هسته‌ای؛ روز هنر انقلاب اسلامی")});
        for (const char* name : {"previousButton", "nextButton", "todayButton", "detailsButton"})
            QVERIFY(calendar.findChild<QAbstractButton*>(QLatin1String(name))->isVisible());
        QCOMPARE(calendar.findChild<QAbstractButton*>(QStringLiteral("previousButton"))->accessibleName(),
                 QStringLiteral("ماه قبل"));
        QCOMPARE(calendar.findChild<QAbstractButton*>(QStringLiteral("nextButton"))->accessibleName(),
                 QStringLiteral("ماه بعد"));
        QCOMPARE(calendar.findChild<QAbstractButton*>(QStringLiteral("todayButton"))->accessibleName(),
                 QStringLiteral("امروز"));
        QCOMPARE(calendar.findChild<QAbstractButton*>(QStringLiteral("detailsButton"))->accessibleName(),
                 QStringLiteral("انتخاب"));
        c.f.saveScreenshot(QStringLiteral("calendar-1392-01.png"));

        // A step back from Farvardin does nothing.
        c.tap(calendar, "previousButton");
        QCOMPARE(calendar.grid().month(), 0);
        QCOMPARE(c.checkedDays(calendar), QList<int>{20});
    }

    void aStepSlidesAndRefusesASecondStepUntilItEnds()
    {
        CalendarFixture c(tir10);
        CalendarViewController& calendar = c.open();
        setAnimationsEnabled(true);
        c.tap(calendar, "nextButton");
        QVERIFY(!calendar.canChange());
        QCOMPARE(calendar.monthLbl()->text(), QStringLiteral("مرداد"));
        c.tap(calendar, "nextButton");
        QCOMPARE(calendar.grid().month(), 4);
        QCOMPARE(calendar.findChildren<QLabel*>(QStringLiteral("monthPage")).size(), 2);
        QTRY_VERIFY(calendar.canChange());
        setAnimationsEnabled(false);
        QTRY_COMPARE(calendar.findChildren<QLabel*>(QStringLiteral("monthPage")).size(), 1);
        QCOMPARE(calendar.findChild<QLabel*>(QStringLiteral("monthPage"))->geometry(), QRect(0, 221, 320, 221));
        QCOMPARE(calendar.dayButtons().size(), std::size_t(31));
        QCOMPARE(calendar.grid().month(), 4);
        QCOMPARE(c.checkedDays(calendar), QList<int>{});
        QCOMPARE(c.rows(calendar), QStringList{noOccasion});

        // After the slide the next step is taken again.
        c.tap(calendar, "nextButton");
        QCOMPARE(calendar.grid().month(), 5);
        QCOMPARE(calendar.monthLbl()->text(), QStringLiteral("شهریور"));
        QCOMPARE(calendar.dayButtons().at(30)->geometry(), QRect(276, 1, 45, 43));
    }

    void aDayWithThreeOccasionsListsThreeRows()
    {
        CalendarFixture c(tir10);
        QVERIFY(c.f.db->ExecuteNonQuery("UPDATE tEvents SET Description = 'یکم@دوم@سوم' WHERE Date = 920418"));
        CalendarViewController& calendar = c.open();
        c.tapDay(calendar, 18);
        QCOMPARE(c.rows(calendar), (QStringList{QStringLiteral("یکم"), QStringLiteral("دوم"), QStringLiteral("سوم")}));
        QCOMPARE(calendar.tblEvents()->visualItemRect(calendar.tblEvents()->item(1)).height(), 17);
        QVERIFY2(inkStartsRight(calendar.tblEvents(), 0), "occasions read from the right edge");
        QCOMPARE(c.checkedDays(calendar), QList<int>{18});
        QCOMPARE(calendar.dayButtons().at(18)->accessibleName(), QStringLiteral("١٨، یکم، دوم، سوم"));
        // the days and occasions in the program's own face, whose digits have the Persian shapes
        const QString face = QFontInfo(QApplication::font()).family();
        QCOMPARE(QFontInfo(calendar.dayButtons().at(18)->font()).family(), face);
        QCOMPARE(QFontInfo(calendar.tblEvents()->item(0)->font()).family(), face);

        // a screen reader's toggle picks the day as a tap does
        QAccessibleInterface* day14 = QAccessible::queryAccessibleInterface(calendar.dayButtons().at(14));
        QCOMPARE(day14->role(), QAccessible::CheckBox);
        day14->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(c.checkedDays(calendar), QList<int>{14});
        QVERIFY(day14->state().checked);
        QCOMPARE(c.rows(calendar), QStringList{QStringLiteral("روز قلم")});
        // 3 Tir 1392 is a holiday and 7 Tir a Friday; 4 Tir is neither
        for (const auto& [day, said] : {std::pair{3, "تعطیل"}, std::pair{7, "تعطیل"}, std::pair{4, ""}})
            QCOMPARE(
                QAccessible::queryAccessibleInterface(calendar.dayButtons().at(day))->text(QAccessible::Description),
                QString::fromUtf8(said));
        c.f.saveScreenshot(QStringLiteral("calendar-1392-04-three-occasions.png"));
    }

    void todayComesBackFromAnotherMonth()
    {
        CalendarFixture c(tir10);
        CalendarViewController& calendar = c.open();
        c.tap(calendar, "nextButton");
        c.tap(calendar, "nextButton");
        QCOMPARE(calendar.monthLbl()->text(), QStringLiteral("شهریور"));
        c.tap(calendar, "todayButton");
        QCOMPARE(calendar.monthLbl()->text(), QStringLiteral("تیر"));
        QCOMPARE(c.checkedDays(calendar), QList<int>{10});
        QCOMPARE(calendar.grid().today(), 10);
        // Already on today's month: today's button is selected again.
        c.tapDay(calendar, 3);
        QCOMPARE(c.checkedDays(calendar), QList<int>{3});
        c.tap(calendar, "todayButton");
        QCOMPARE(c.checkedDays(calendar), QList<int>{10});
    }

    void detailsHandTheDayToTheMainScreen()
    {
        CalendarFixture c(tir10);
        CalendarViewController& calendar = c.open();
        c.tap(calendar, "nextButton");
        c.tapDay(calendar, 25);
        c.tap(calendar, "detailsButton");
        MainViewController& main = c.f.main();
        QCOMPARE(c.f.presentation().top(), &main);
        QCOMPARE(main.localDtp().getPersianDate(), std::string("920525"));
        QCOMPARE(MainScreenFixture::texts(c.f.pages().first())[2], QStringLiteral("٢٥ مرداد"));

        // The calendar opens again on the day shown.
        QTest::mouseClick(main.findChild<QAbstractButton*>(QStringLiteral("calendarButton")), Qt::LeftButton);
        auto* again = qobject_cast<CalendarViewController*>(c.f.presentation().top());
        QVERIFY(again);
        QCOMPARE(again->monthLbl()->text(), QStringLiteral("مرداد"));
        QCOMPARE(c.checkedDays(*again), QList<int>{25});

        main.refresh();
        QCOMPARE(main.localDtp().getPersianDate(), std::string("920410"));
    }

    void todaysMonth()
    {
        SystemClock system;
        CalendarFixture c(system.now());
        CalendarViewController& calendar = c.open();
        const DateTimePersian today = DateTimePersian::init(c.f.clock, c.f.calendar);
        QCOMPARE(calendar.monthLbl()->text(), QString::fromStdString(DateTimePersian::getMonthName(today.month() - 1)));
        QCOMPARE(calendar.grid().year(), today.fullYear());
        QCOMPARE(c.checkedDays(calendar), QList<int>{today.day()});
        QCOMPARE(calendar.grid().todayBtn()->day, today.day());
        c.f.saveScreenshot(QStringLiteral("calendar-today.png"));
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::CalendarScreenTest)
#include "CalendarScreenTest.moc"
