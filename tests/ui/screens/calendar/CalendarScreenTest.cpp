// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

// The month calendar driven through its buttons, opened from the main screen on the generated
// database (1392 is the official calendar of that year).
#include "app/PersianFont.h"
#include "calendar/DateTimePersian.h"
#include "desktop/SystemClock.h"
#include "screens/calendar/CalendarViewController.h"
#include "screens/calendar/DayButton.h"
#include "screens/main/MainViewController.h"
#include "tests/support/TehranTime.h"
#include "tests/ui/screens/main/MainScreenFixture.h"
#include "widgets/Animations.h"
#include "widgets/EnterPressesButtons.h"
#include "widgets/PresentationStack.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QtTest>

#include <algorithm>
#include <cstdlib>

namespace kavenda {
namespace {

using test::MainScreenFixture;

// 20 Farvardin 1392 and 10 Tir 1392, at noon.
const Instant farvardin20 = test::tehran(2013, 4, 9, 12, 0);
const Instant tir10 = test::tehran(2013, 7, 1, 12, 0);
// 10 Esfand 1405 and 11 Esfand 1410, the last month the generated data holds.
const Instant esfand1405 = test::tehran(2027, 3, 1, 12, 0);
const Instant esfand1410 = test::tehran(2032, 3, 1, 12, 0);

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
        f.window().activateWindow();
        if (!QTest::qWaitForWindowActive(&f.window()))
            qFatal("the window never became active");
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
        for (int i = 0; i < calendar.findChild<QListWidget*>(QStringLiteral("tblEvents"))->count(); ++i)
            texts << calendar.findChild<QListWidget*>(QStringLiteral("tblEvents"))->item(i)->text();
        return texts;
    }

    // A key as a person presses it: to whatever has the focus.
    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    static int focusedDay()
    {
        auto* day = qobject_cast<DayButton*>(QApplication::focusWidget());
        return day ? day->tag() : 0;
    }

    static QAbstractButton* button(CalendarViewController& calendar, const char* name)
    {
        return calendar.findChild<QAbstractButton*>(QLatin1String(name));
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
const QColor holidayRed(195, 56, 61);

// Pixels of a day button's face within a colour distance of a colour.
int pixelsNear(DayButton* button, const QColor& colour, int distance = 48)
{
    const QImage image = button->grab().toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            if (std::abs(c.red() - colour.red()) + std::abs(c.green() - colour.green())
                    + std::abs(c.blue() - colour.blue())
                < distance)
                ++count;
        }
    return count;
}

}  // namespace

class CalendarScreenTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // As the program does: Enter presses the focused button.
        qApp->installEventFilter(new EnterPressesButtons(qApp));
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
        QCOMPARE(calendar.findChild<QLabel*>(QStringLiteral("monthLbl"))->text(), QStringLiteral("فروردین ١٣٩٢"));
        const auto buttons = calendar.dayButtons();
        QCOMPARE(buttons.size(), std::size_t(31));
        // Right to left: Thursday the 1st stands left of the wrapped 31st, on the same row.
        QVERIFY(buttons.at(1)->x() < buttons.at(31)->x());
        QCOMPARE(buttons.at(1)->y(), buttons.at(31)->y());
        QVERIFY(buttons.at(2)->x() < buttons.at(1)->x());
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
        QCOMPARE(QAccessible::queryAccessibleInterface(calendar.findChild<QLabel*>(QStringLiteral("monthLbl")))
                     ->text(QAccessible::Name),
                 QStringLiteral("فروردین ١٣٩٢"));
        QCOMPARE(c.rows(calendar),
                 QStringList{QStringLiteral(
                     "روز ملی فناوری هسته‌ای؛ روز هنر انقلاب اسلامی")});
        for (const char* name : {"previousButton", "nextButton", "todayButton", "detailsButton"})
            QVERIFY(calendar.findChild<QAbstractButton*>(QLatin1String(name))->isVisible());
        c.f.saveScreenshot(QStringLiteral("calendar-1392-01.png"));

        // Nothing is held before Farvardin 1392: the arrow back is off, and a tap does nothing.
        QVERIFY(!c.button(calendar, "previousButton")->isEnabled());
        QVERIFY(QAccessible::queryAccessibleInterface(c.button(calendar, "previousButton"))->state().disabled);
        QVERIFY(c.button(calendar, "nextButton")->isEnabled());
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
        QCOMPARE(calendar.findChild<QLabel*>(QStringLiteral("monthLbl"))->text(), QStringLiteral("مرداد ١٣٩٢"));
        c.tap(calendar, "nextButton");
        QCOMPARE(calendar.grid().month(), 4);
        QCOMPARE(calendar.findChildren<QLabel*>(QStringLiteral("monthPage")).size(), 2);
        QTRY_VERIFY(calendar.canChange());
        setAnimationsEnabled(false);
        QTRY_COMPARE(calendar.findChildren<QLabel*>(QStringLiteral("monthPage")).size(), 1);
        // The page kept sits where the view shows it.
        const QLabel* page = calendar.findChild<QLabel*>(QStringLiteral("monthPage"));
        QCOMPARE(page->mapTo(calendar.findChild<QWidget*>(QStringLiteral("scrl")), QPoint(0, 0)), QPoint(0, 0));
        QCOMPARE(page->size(), calendar.findChild<QWidget*>(QStringLiteral("scrl"))->size());
        QCOMPARE(calendar.dayButtons().size(), std::size_t(31));
        QCOMPARE(calendar.grid().month(), 4);
        QCOMPARE(c.checkedDays(calendar), QList<int>{});
        QCOMPARE(c.rows(calendar), QStringList{noOccasion});

        // After the slide the next step is taken again.
        c.tap(calendar, "nextButton");
        QCOMPARE(calendar.grid().month(), 5);
        QCOMPARE(calendar.findChild<QLabel*>(QStringLiteral("monthLbl"))->text(), QStringLiteral("شهریور ١٣٩٢"));
        // Shahrivar starts on a Friday: its 30th wraps to the first row, rightmost.
        const auto shahrivar = calendar.dayButtons();
        QCOMPARE(shahrivar.at(30)->y(), shahrivar.at(1)->y());
        for (const auto& [day, button] : shahrivar)
            QVERIFY2(button->x() <= shahrivar.at(30)->x(), qPrintable(QString::number(day)));
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
        QCOMPARE(again->findChild<QLabel*>(QStringLiteral("monthLbl"))->text(), QStringLiteral("مرداد ١٣٩٢"));
        QCOMPARE(c.checkedDays(*again), QList<int>{25});

        main.refresh();
        QCOMPARE(main.localDtp().getPersianDate(), std::string("920410"));
    }

    void theGridFromTheKeyboard()
    {
        CalendarFixture c(tir10);
        CalendarViewController& calendar = c.open();
        // It opens with the focus on the day it shows, which reads its date and occasions.
        QCOMPARE(c.focusedDay(), 10);
        QAccessibleInterface* focused = QAccessible::queryAccessibleInterface(QApplication::focusWidget());
        QVERIFY(focused->state().focused);
        QCOMPARE(focused->text(QAccessible::Name), calendar.dayButtons().at(10)->accessibleName());

        // Right to left: Left is the next day, Right the previous one, Up and Down a week.
        struct Move {
            Qt::Key key;
            int to;
        };
        const Move moves[] = {{Qt::Key_Left, 11}, {Qt::Key_Left, 12}, {Qt::Key_Right, 11},
                              {Qt::Key_Up, 4},    {Qt::Key_Up, 4},    {Qt::Key_Down, 11},
                              {Qt::Key_Down, 18}, {Qt::Key_Down, 25}, {Qt::Key_Down, 25}};
        for (const Move& move : moves) {
            c.press(move.key);
            QCOMPARE(c.focusedDay(), move.to);
        }
        // Moving is not picking; Enter and Space pick.
        QCOMPARE(c.checkedDays(calendar), QList<int>{10});
        c.press(Qt::Key_Return);
        QCOMPARE(c.checkedDays(calendar), QList<int>{25});
        c.press(Qt::Key_Up);
        c.press(Qt::Key_Space);
        QCOMPARE(c.checkedDays(calendar), QList<int>{18});
        c.press(Qt::Key_Up);
        c.press(Qt::Key_Enter);
        QCOMPARE(c.checkedDays(calendar), QList<int>{11});

        // Page Down and Page Up step the month and keep the day, shortened to the month's end.
        c.press(Qt::Key_PageDown);
        QCOMPARE(calendar.grid().month(), 4);
        QCOMPARE(c.focusedDay(), 11);
        QCOMPARE(c.checkedDays(calendar), QList<int>{});
        for (int i = 0; i < 20; ++i)
            c.press(Qt::Key_Left);
        QCOMPARE(c.focusedDay(), 31);
        c.press(Qt::Key_PageDown);
        c.press(Qt::Key_PageDown);
        QCOMPARE(calendar.grid().month(), 6);
        QCOMPARE(c.focusedDay(), 30);
        c.press(Qt::Key_PageUp);
        QCOMPARE(calendar.grid().month(), 5);
        QCOMPARE(c.focusedDay(), 30);

        // Home is today, picked and focused.
        c.press(Qt::Key_Home);
        QCOMPARE(calendar.grid().month(), 3);
        QCOMPARE(c.focusedDay(), 10);
        QCOMPARE(c.checkedDays(calendar), QList<int>{10});

        // The grid is one stop of the focus chain, between the arrows and the buttons below.
        c.press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), c.button(calendar, "todayButton"));
        c.press(Qt::Key_Backtab);
        QCOMPARE(c.focusedDay(), 10);
        c.press(Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), c.button(calendar, "nextButton"));
    }

    void enterPressesTheFocusedButton()
    {
        CalendarFixture c(tir10);
        CalendarViewController& calendar = c.open();
        c.button(calendar, "nextButton")->setFocus();
        c.press(Qt::Key_Return);
        QCOMPARE(calendar.grid().month(), 4);
        c.button(calendar, "previousButton")->setFocus();
        c.press(Qt::Key_Enter);
        c.press(Qt::Key_Enter);
        QCOMPARE(calendar.grid().month(), 2);
        c.button(calendar, "todayButton")->setFocus();
        c.press(Qt::Key_Return);
        QCOMPARE(calendar.grid().month(), 3);
        QCOMPARE(c.checkedDays(calendar), QList<int>{10});
        c.tapDay(calendar, 14);
        c.button(calendar, "detailsButton")->setFocus();
        c.press(Qt::Key_Return);
        QCOMPARE(c.f.presentation().top(), &c.f.main());
        QCOMPARE(c.f.main().localDtp().getPersianDate(), std::string("920414"));
    }

    void escapeClosesWithoutAPick()
    {
        CalendarFixture c(tir10);
        CalendarViewController& calendar = c.open();
        c.tap(calendar, "nextButton");
        c.tapDay(calendar, 25);
        QPointer<CalendarViewController> alive(&calendar);
        c.press(Qt::Key_Escape);
        QCOMPARE(c.f.presentation().top(), &c.f.main());
        QCOMPARE(c.f.presentation().depth(), 1);
        QCOMPARE(c.f.main().localDtp().getPersianDate(), std::string("920410"));
        QTRY_VERIFY(!alive);
    }

    void aPickedHolidayIsWhiteAndTodayKeepsItsStar()
    {
        CalendarFixture c(farvardin20);
        CalendarViewController& calendar = c.open();
        DayButton* holiday = calendar.dayButtons().at(13);
        QVERIFY(pixelsNear(holiday, holidayRed) > 10);
        c.tapDay(calendar, 13);
        QVERIFY(holiday->isChecked());
        QCOMPARE(holiday->titleColour(), QColor(Qt::white));
        QCOMPARE(pixelsNear(holiday, holidayRed), 0);
        QVERIFY(pixelsNear(holiday, Qt::white) > 10);
        c.f.saveScreenshot(QStringLiteral("calendar-1392-01-picked-holiday.png"));

        // Today, 20 Farvardin, has an occasion: picked, its star still shows on the selection.
        const QColor star(0xf6, 0xd3, 0x7a);
        DayButton* today = calendar.dayButtons().at(20);
        QCOMPARE(pixelsNear(today, star), 0);
        c.tap(calendar, "todayButton");
        QVERIFY(today->isChecked());
        QVERIFY(pixelsNear(today, star) > 5);
    }

    void theFocusedDayShowsARing()
    {
        CalendarFixture c(tir10);
        CalendarViewController& calendar = c.open();
        c.press(Qt::Key_Left);
        const QColor highlight = calendar.palette().color(QPalette::Highlight);
        for (int day : {10, 11}) {
            DayButton* button = calendar.dayButtons().at(day);
            const QImage face = button->grab().toImage();
            QCOMPARE(face.pixelColor(1, face.height() / 2) == highlight, button->hasFocus());
        }
        // The push buttons show theirs too.
        for (const char* name : {"todayButton", "detailsButton"}) {
            QAbstractButton* button = c.button(calendar, name);
            button->setFocus();
            QImage face = button->grab().toImage();
            QCOMPARE(face.pixelColor(face.width() / 2, 1), highlight);
            c.press(Qt::Key_Tab);
            face = button->grab().toImage();
            QVERIFY(face.pixelColor(face.width() / 2, 1) != highlight);
        }
    }

    void theLastMonthHeldHasItsNextArrowOff()
    {
        CalendarFixture c(esfand1410);
        CalendarViewController& calendar = c.open();
        QCOMPARE(std::pair(calendar.grid().year(), calendar.grid().month()), std::pair(1410, 11));
        QCOMPARE(calendar.findChild<QLabel*>(QStringLiteral("monthLbl"))->text(), QStringLiteral("اسفند ١٤١٠"));
        QAbstractButton* next = c.button(calendar, "nextButton");
        QVERIFY(!next->isEnabled());
        QVERIFY(c.button(calendar, "previousButton")->isEnabled());
        const QList<int> picked = c.checkedDays(calendar);
        c.tap(calendar, "nextButton");
        c.press(Qt::Key_PageDown);
        QCOMPARE(calendar.grid().month(), 11);
        QCOMPARE(c.checkedDays(calendar), picked);
        c.f.saveScreenshot(QStringLiteral("calendar-1410-12-last-month.png"));
        // One step back and the arrow is live again.
        c.press(Qt::Key_PageUp);
        QVERIFY(next->isEnabled());
    }

    void todaysMonth()
    {
        SystemClock system;
        CalendarFixture c(system.now());
        CalendarViewController& calendar = c.open();
        const DateTimePersian today = DateTimePersian::init(c.f.clock, c.f.calendar);
        QVERIFY(calendar.findChild<QLabel*>(QStringLiteral("monthLbl"))
                    ->text()
                    .startsWith(QString::fromStdString(DateTimePersian::getMonthName(today.month() - 1))));
        QCOMPARE(calendar.grid().year(), today.fullYear());
        QCOMPARE(c.checkedDays(calendar), QList<int>{today.day()});
        QCOMPARE(calendar.grid().todayBtn()->day, today.day());
        c.f.saveScreenshot(QStringLiteral("calendar-today.png"));
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::CalendarScreenTest)
#include "CalendarScreenTest.moc"
