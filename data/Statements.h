// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

// Every statement the program runs, as format texts for formatSql (text/Format.h).
// The texts are kept letter for letter, doubled spaces included.
namespace kavenda::sql {

// Places and chosen cities.
inline constexpr std::string_view chosenCitiesLastFirst =
    "SELECT tStates.* FROM tStates INNER JOIN tSelectedStates ON tStates.StateID = tSelectedStates.StateID ORDER BY Ordering DESC";
inline constexpr std::string_view firstChosenCity =
    "SELECT tStates.* FROM tStates INNER JOIN tSelectedStates ON tStates.StateID = tSelectedStates.StateID ORDER BY Ordering  LIMIT 1";
inline constexpr std::string_view provinceCentreOfCity =
    "SELECT a.StateID FROM tStates a INNER JOIN tStates b ON a.ParentID = b.ParentID WHERE a.IsCenter = 1 AND b.StateID = %D";
inline constexpr std::string_view chosenCitiesWithProvince =
    "SELECT t1.StateID, t1.Name || ' (' || t2.Name || ')' AS StateName FROM tStates AS t1 INNER JOIN tStates AS t2 ON t1.ParentID = t2.StateID LEFT JOIN tSelectedStates ON t1.StateID = tSelectedStates.StateID WHERE tSelectedStates.StateID IS NOT NULL ORDER BY Ordering";
inline constexpr std::string_view searchUnchosenCities =
    "SELECT t1.StateID, t1.Name || ' (' || t2.Name || ')' AS StateName FROM tStates AS t1 INNER JOIN tStates AS t2 ON t1.ParentID = t2.StateID LEFT JOIN tSelectedStates ON t1.StateID = tSelectedStates.StateID WHERE tSelectedStates.StateID IS NULL  AND StateName LIKE '%%%@%%'";
inline constexpr std::string_view searchProvinces =
    "SELECT StateID, Name AS StateName FROM tStates WHERE ParentID IS NULL AND StateName LIKE '%%%@%%'";
inline constexpr std::string_view chosenCityCount = "SELECT COUNT(*) AS Count FROM tSelectedStates";
inline constexpr std::string_view chosenCityCountUnnamed = "SELECT COUNT(*) FROM tSelectedStates";
inline constexpr std::string_view insertChosenCity = "INSERT INTO tSelectedStates(StateID, Ordering)VALUES(%d, %d)";
inline constexpr std::string_view updateOrdering = "UPDATE tSelectedStates SET Ordering = %d WHERE StateID = %d";
inline constexpr std::string_view deleteChosenCity = "DELETE FROM tSelectedStates WHERE StateID = %d";
inline constexpr std::string_view deletePlace = "DELETE FROM tStates WHERE StateID = %d";
inline constexpr std::string_view deletePlaceTimes = "DELETE FROM tTimes WHERE StateID = %d";
inline constexpr std::string_view insertCity = "INSERT INTO tStates(Name, ParentID, IsCenter) VALUES('%@', %d, 0)";
inline constexpr std::string_view highestPlaceId = "SELECT StateID FROM tStates ORDER BY StateID DESC";
inline constexpr std::string_view insertOffsetRow =
    "INSERT INTO tTimes(StateID, Date, T1, T2, T3, T4, T5, T6)VALUES(%d, %@, %@, %@, %@, %@, %@, %@)";

// Times.
inline constexpr std::string_view dayTimes =
    "SELECT Name, vTimes.*, Description FROM vTimes INNER JOIN tStates ON vTimes.StateID = tStates.StateID INNER JOIN tSelectedStates ON tSelectedStates.StateID = vTimes.StateID INNER JOIN tEvents ON tEvents.Date = vTimes.Date WHERE vTimes.Date='%@' AND tStates.StateID = %d ORDER BY Ordering DESC";
// The day of a centre that is not chosen itself (the page of one of its cities).
inline constexpr std::string_view dayTimesOfAnyCentre =
    "SELECT Name, vTimes.*, Description FROM vTimes INNER JOIN tStates ON vTimes.StateID = tStates.StateID INNER JOIN tEvents ON tEvents.Date = vTimes.Date WHERE vTimes.Date='%@' AND tStates.StateID = %d";
inline constexpr std::string_view cityOffsets =
    "SELECT T1 AS '1', T2 AS '2', T3 AS '3', T4 AS '4', T5 AS '5', T6 AS '6', T1 AS '7', T2 AS '8' FROM tTimes WHERE StateID = %d";
inline constexpr std::string_view reminderTimes =
    "SELECT StateID, Date, T1 AS '0', T3 AS '1', T5 AS '2', T2 AS '3', T1 AS '4', T5 AS '5' FROM tTimes WHERE Date >= '%@' AND (StateID = %d OR StateID = %d) ORDER by StateID DESC, Date LIMIT 5";

// Occasions.
inline constexpr std::string_view comingOccasions =
    "SELECT Date, Description FROM tEvents WHERE Date >= '%@' AND Description IS NOT NULL ORDER BY Date LIMIT 5";
inline constexpr std::string_view monthEvents = "SELECT Description, IsHoliday FROM tEvents WHERE Date LIKE '%@__'";
// The same rows by a range of keys, which the primary key finds without reading the whole table:
// the terminal prints twelve months at a time.
inline constexpr std::string_view monthEventsByKey =
    "SELECT Description, IsHoliday FROM tEvents WHERE Date BETWEEN %d AND %d ORDER BY Date";
// The key prefix of a month: (year mod 1300) and the two-digit month, "9201" for Farvardin 1392.
inline constexpr std::string_view monthPattern = "%d%02i";
// The first and last days that have occasion rows: the months the calendar can show.
inline constexpr std::string_view heldDays = "SELECT MIN(Date) AS first, MAX(Date) AS last FROM tEvents";

// Settings.
inline constexpr std::string_view allSettings = "SELECT * FROM tSetting";
inline constexpr std::string_view updateSettings = "UPDATE tSetting SET %@";
inline constexpr std::string_view settingsAssignment = "%@, Item%d = %d";
inline constexpr std::string_view soundChoice = "SELECT Item6 FROM tSetting";
inline constexpr std::string_view updateSoundChoice = "UPDATE tSetting SET Item6=%d";
inline constexpr std::string_view occasionTime = "SELECT Item7 FROM tSetting";
inline constexpr std::string_view updateOccasionTime = "UPDATE tSetting SET Item7='%@'";

}  // namespace kavenda::sql
