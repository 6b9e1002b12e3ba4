// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/ui/screens/main/MainScreenFixture.h"

#include "data/Statements.h"
#include "screens/main/CustomUIImageView.h"
#include "screens/main/MainViewController.h"
#include "tests/support/FixtureDatabase.h"
#include "text/Format.h"
#include "widgets/Pager.h"
#include "widgets/PresentationStack.h"

#include <QDir>
#include <QFontDatabase>
#include <QLabel>
#include <QVBoxLayout>

namespace kavenda::test {

MainScreenFixture::MainScreenFixture(Instant now, int screenHeight, Data data)
    : paths(temp.path() / "documents", temp.path() / "resources"), clock(now)
{
    screen.height = screenHeight;
    const auto shippedFile = std::filesystem::path(KAVENDA_RESOURCE_DIR) / "Icons";
    shipped = data == Data::shippedWhereBuilt && std::filesystem::exists(shippedFile);
    if (shipped) {
        std::filesystem::create_directories(paths.resourceFolder());
        std::filesystem::copy_file(shippedFile, paths.resourceFolder() / "Icons");
    } else {
        buildFixtureDatabase(paths.resourceFolder(), {"fixture-data.sql", "main-screen.sql"});
    }
    // The generated artwork, where the build has made it.
    for (const char* image : {"MainView.bmp", "calendarBtn.png"}) {
        const auto built = std::filesystem::path(KAVENDA_RESOURCE_DIR) / image;
        if (std::filesystem::exists(built))
            std::filesystem::copy_file(built, paths.resourceFolder() / image);
    }
    db.emplace("Icons", paths, log);
}

MainScreenFixture::~MainScreenFixture() = default;

void MainScreenFixture::choose(std::initializer_list<int> stateIds)
{
    int ordering = 0;
    for (int id : stateIds)
        db->ExecuteNonQuery(formatSql(sql::insertChosenCity, {id, ordering++}));
}

int MainScreenFixture::centreNamed(const std::string& name)
{
    return std::stoi(
        db->ExecuteScaler("SELECT StateID FROM tStates WHERE IsCenter = 1 AND Name = '" + name + "'").value_or("0"));
}

void MainScreenFixture::copyDay(const std::string& dateKey)
{
    db->ExecuteNonQuery("INSERT INTO tTimes SELECT StateID, " + dateKey
                        + ", T1, T2, T3, T4, T5, T6 FROM tTimes WHERE Date = 920410");
    db->ExecuteNonQuery("INSERT INTO tTimes SELECT StateID, " + dateKey
                        + " + 1, T1, T2, T3, T4, T5, T6 FROM tTimes WHERE Date = 920411");
    db->ExecuteNonQuery("INSERT INTO tEvents SELECT " + dateKey
                        + ", Description, IsHoliday FROM tEvents WHERE Date = 920410");
}

MainViewController& MainScreenFixture::show()
{
    window_ = std::make_unique<QWidget>();
    window_->setFixedSize(320, screen.height - 20);
    auto* layout = new QVBoxLayout(window_.get());
    layout->setContentsMargins(0, 0, 0, 0);
    presentation_ = new PresentationStack(window_.get());
    layout->addWidget(presentation_);
    main_ =
        new MainViewController({*db, clock, calendar, screen, paths, [this] { ++reminderRebuilds; }}, *presentation_);
    presentation_->setRoot(main_);
    window_->show();
    return *main_;
}

QList<CustomUIImageView*> MainScreenFixture::pages() const
{
    QList<CustomUIImageView*> found;
    for (QWidget* page : main_->findChild<Pager*>(QStringLiteral("scrollView"))->pages())
        found << qobject_cast<CustomUIImageView*>(page);
    return found;
}

QStringList MainScreenFixture::texts(const CustomUIImageView* page)
{
    QStringList found;
    for (const QLabel* label : page->findChildren<QLabel*>(Qt::FindDirectChildrenOnly))
        found << label->text();
    return found;
}

void MainScreenFixture::saveScreenshot(const QString& name)
{
    QDir().mkpath(QStringLiteral(KAVENDA_SCREENSHOT_DIR));
    window_->grab().save(QStringLiteral(KAVENDA_SCREENSHOT_DIR) + QLatin1Char('/') + name, "PNG");
}

}  // namespace kavenda::test
