// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

// The month calendar driven through its buttons and keys, opened from the main screen on the
// generated database (1392 is the official calendar of that year).
#include "calendar/DateTimePersian.h"
#include "desktop/SystemClock.h"
#include "screens/calendar/CalendarViewController.h"
#include "screens/calendar/DayButton.h"
#include "tests/ui/screens/ScreenFixture.h"
#include "widgets/Animations.h"

#include <QtTest>
#include <QtWidgets>

#include <cstdlib>

namespace kavenda {
namespace {

// 20 Farvardin 1392 and 10 Tir 1392 at noon, and 11 Esfand 1410, the last month the data holds.
const Instant farvardin20 = test::tehran(2013, 4, 9, 12, 0);
const Instant tir10 = test::tehran(2013, 7, 1, 12, 0);
const Instant esfand1410 = test::tehran(2032, 3, 1, 12, 0);

// The main screen on the generated database with Tehran chosen, its calendar opened by its button.
struct Calendar : test::ScreenFixture {
    explicit Calendar(Instant now) : ScreenFixture(now, Data::generated)
    {
        choose({39});  // تهران
        show();
        open();
    }

    void open()
    {
        click(QStringLiteral("calendarButton"));
        view = qobject_cast<CalendarViewController*>(top());
        if (!view)
            qFatal("the calendar button opened no calendar");
    }

    DayButton* day(int number) const { return view->dayButtons().at(number); }
    QAbstractButton* button(const char* name) const { return view->findChild<QAbstractButton*>(QLatin1String(name)); }
    QString month() const { return view->findChild<QLabel*>(QStringLiteral("monthLbl"))->text(); }
    QStringList occasions() const { return texts(view->findChild<QListWidget*>(QStringLiteral("tblEvents"))); }

    QList<int> checkedDays() const
    {
        QList<int> days;
        for (const auto& [number, button] : view->dayButtons())
            if (button->isChecked())
                days << number;
        return days;
    }

    // A key as a person presses it: to whatever has the focus.
    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    static int focusedDay()
    {
        auto* focused = qobject_cast<DayButton*>(QApplication::focusWidget());
        return focused ? focused->tag() : 0;
    }

    CalendarViewController* view = nullptr;
};

// Pixels of a widget's face within a colour distance of a colour.
int pixelsNear(QWidget* widget, const QColor& colour, int distance = 48)
{
    const QImage image = widget->grab().toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            count += std::abs(c.red() - colour.red()) + std::abs(c.green() - colour.green())
                    + std::abs(c.blue() - colour.blue())
                < distance;
        }
    return count;
}

}  // namespace

class CalendarScreenTest : public QObject {
    Q_OBJECT

private slots:
    void opensOnTodayAndAPickedHolidayTurnsWhiteAndOtherDaysOnOthers()
    {
        Calendar c(farvardin20);
        QCOMPARE(c.month(), QStringLiteral("فروردین ١٣٩٢"));
        // Right to left: Thursday the 1st stands left of the wrapped 31st, on the same row.
        QVERIFY(c.day(1)->x() < c.day(31)->x());
        QCOMPARE(c.day(1)->y(), c.day(31)->y());
        QVERIFY(c.day(2)->x() < c.day(1)->x());
        QCOMPARE(c.day(25)->accessibleName(),
                 QStringLiteral("٢٥، شهادت حضرت فاطمه زهرا (س)، روز بزرگداشت عطار نیشابوری"));
        // Opened on today, 20 Farvardin: selected, its occasion listed.
        QCOMPARE(c.checkedDays(), QList<int>{20});
        QCOMPARE(c.occasions(),
                 QStringList{QStringLiteral(
                     "روز ملی فناوری هسته‌ای؛ روز هنر انقلاب اسلامی")});
        c.saveScreenshot(QStringLiteral("calendar-1392-01.png"));
        // Nothing is held before Farvardin 1392: the arrow back is off, and a tap does nothing.
        QVERIFY(!c.button("previousButton")->isEnabled());
        QTest::mouseClick(c.button("previousButton"), Qt::LeftButton);
        QCOMPARE(c.month(), QStringLiteral("فروردین ١٣٩٢"));
        const QColor holidayRed(195, 56, 61);
        DayButton* holiday = c.day(13);
        QVERIFY(pixelsNear(holiday, holidayRed) > 10);
        c.click(c.day(13));
        QCOMPARE(pixelsNear(holiday, holidayRed), 0);
        QVERIFY(pixelsNear(holiday, Qt::white) > 10);
        c.saveScreenshot(QStringLiteral("calendar-1392-01-picked-holiday.png"));
        // Today has an occasion: picked, its star still shows on the selection.
        const QColor star(0xf6, 0xd3, 0x7a);
        QCOMPARE(pixelsNear(c.day(20), star), 0);
        c.click(QStringLiteral("todayButton"));
        QCOMPARE(c.checkedDays(), QList<int>{20});
        QVERIFY(pixelsNear(c.day(20), star) > 5);
        // Other days on the clock: the last month held has its next arrow off; today's month opens
        // on today.
        const auto reopenOn = [&c](Instant now) {
            QTest::keyClick(c.view, Qt::Key_Escape);
            c.clock.set(now);
            c.main->refresh();
            c.open();
        };
        reopenOn(esfand1410);
        QCOMPARE(c.month(), QStringLiteral("اسفند ١٤١٠"));
        QVERIFY(!c.button("nextButton")->isEnabled());
        const QList<int> picked = c.checkedDays();
        QTest::mouseClick(c.button("nextButton"), Qt::LeftButton);
        c.press(Qt::Key_PageDown);
        QCOMPARE(c.month(), QStringLiteral("اسفند ١٤١٠"));
        QCOMPARE(c.checkedDays(), picked);
        c.saveScreenshot(QStringLiteral("calendar-1410-12-last-month.png"));
        c.press(Qt::Key_PageUp);
        QVERIFY(c.button("nextButton")->isEnabled());
        reopenOn(SystemClock().now());
        const DateTimePersian today = DateTimePersian::init(c.clock, c.calendar);
        QVERIFY(c.month().startsWith(QString::fromStdString(DateTimePersian::getMonthName(today.month() - 1))));
        QCOMPARE(c.checkedDays(), QList<int>{today.day()});
        c.saveScreenshot(QStringLiteral("calendar-today.png"));
    }

    // The grid from the keyboard, the focus ring, Enter on the buttons, Escape without a pick,
    // the picked day handed to the main screen, and the slide of a step.
    void theKeyboardMovesPicksAndHandsTheDayToTheMainScreen()
    {
        Calendar c(tir10);
        // It opens with the focus on the day it shows. Right to left: Left is the next day, Right
        // the previous one, Up and Down a week; moving is not picking, Enter and Space pick; Page
        // Down and Up step the month and keep the day, shortened to the month's end; Home is
        // today, picked and focused.
        struct Step {
            Qt::Key key;
            int times, focused;
            const char* month;
            int picked;
        };
        const auto run = [&c](std::initializer_list<Step> steps) {
            for (const Step& s : steps) {
                for (int i = 0; i < s.times; ++i)
                    c.press(s.key);
                QCOMPARE(c.focusedDay(), s.focused);
                QCOMPARE(c.month(), QString::fromUtf8(s.month) + QStringLiteral(" ١٣٩٢"));
                QCOMPARE(c.checkedDays(), s.picked ? QList<int>{s.picked} : QList<int>{});
            }
        };
        // clang-format off
        run({{Qt::Key_Left, 1, 11, "تیر", 10}, {Qt::Key_Left, 1, 12, "تیر", 10}, {Qt::Key_Right, 1, 11, "تیر", 10},
             {Qt::Key_Up, 2, 4, "تیر", 10}, {Qt::Key_Down, 1, 11, "تیر", 10}, {Qt::Key_Down, 3, 25, "تیر", 10}});
        // clang-format on
        // Only the focused day shows a ring.
        const QColor highlight = c.view->palette().color(QPalette::Highlight);
        for (int number : {18, 25}) {
            const QImage face = c.day(number)->grab().toImage();
            QCOMPARE(face.pixelColor(1, face.height() / 2) == highlight, number == 25);
        }
        // clang-format off
        run({{Qt::Key_Return, 1, 25, "تیر", 25}, {Qt::Key_Up, 1, 18, "تیر", 25}, {Qt::Key_Space, 1, 18, "تیر", 18},
             {Qt::Key_PageDown, 1, 18, "مرداد", 0}, {Qt::Key_Left, 13, 31, "مرداد", 0},
             {Qt::Key_PageDown, 2, 30, "مهر", 0}, {Qt::Key_PageUp, 1, 30, "شهریور", 0}, {Qt::Key_Home, 1, 10, "تیر", 10}});
        // clang-format on
        // The grid is one stop of the focus chain, between the arrows and the buttons below, which
        // take Enter.
        c.press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), c.button("todayButton"));
        c.press(Qt::Key_Backtab);
        QCOMPARE(c.focusedDay(), 10);
        c.press(Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), c.button("nextButton"));
        c.press(Qt::Key_Return);
        QCOMPARE(c.month(), QStringLiteral("مرداد ١٣٩٢"));
        c.click(c.day(25));
        c.press(Qt::Key_Escape);
        QCOMPARE(c.pages().first()[2], QStringLiteral("١٠ تیر"));
        // Details hand the picked day to the main screen until its next refresh; the calendar opens
        // again on the day shown.
        c.open();
        c.click(QStringLiteral("nextButton"));
        c.click(c.day(25));
        c.button("detailsButton")->setFocus();
        c.press(Qt::Key_Enter);
        QCOMPARE(c.pages().first()[2], QStringLiteral("٢٥ مرداد"));
        c.open();
        QCOMPARE(c.month(), QStringLiteral("مرداد ١٣٩٢"));
        QCOMPARE(c.checkedDays(), QList<int>{25});
        c.press(Qt::Key_Escape);
        c.main->refresh();
        QCOMPARE(c.pages().first()[2], QStringLiteral("١٠ تیر"));
        // A step slides, and a second step waits until the slide ends.
        c.open();
        setAnimationsEnabled(true);
        c.click(QStringLiteral("nextButton"));
        c.click(QStringLiteral("nextButton"));
        QCOMPARE(c.month(), QStringLiteral("مرداد ١٣٩٢"));
        QCOMPARE(c.view->findChildren<QLabel*>(QStringLiteral("monthPage")).size(), 2);
        QTRY_VERIFY(c.view->canChange());
        setAnimationsEnabled(false);
        QTRY_COMPARE(c.view->findChildren<QLabel*>(QStringLiteral("monthPage")).size(), 1);
        // The page kept sits where the view shows it.
        const QLabel* page = c.view->findChild<QLabel*>(QStringLiteral("monthPage"));
        auto* view = c.view->findChild<QWidget*>(QStringLiteral("scrl"));
        QCOMPARE(page->mapTo(view, QPoint(0, 0)), QPoint(0, 0));
        QCOMPARE(page->size(), view->size());
        QCOMPARE(c.checkedDays(), QList<int>{});
        QCOMPARE(c.occasions(), QStringList{QStringLiteral("بدون رویداد")});
        c.click(QStringLiteral("nextButton"));
        QCOMPARE(c.month(), QStringLiteral("شهریور ١٣٩٢"));
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::CalendarScreenTest)
#include "CalendarScreenTest.moc"
