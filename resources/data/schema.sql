-- The tables and the view of the database file Icons. The program never creates tables:
-- the generator writes these into the file, and test fixtures are built from the same text.

-- Places: provinces (ParentID NULL) and cities. Identifiers below 63 belong to the shipped
-- file; cities made by the user take the next automatic key.
CREATE TABLE tStates (
    StateID   INTEGER PRIMARY KEY,
    Name      TEXT NOT NULL,
    ParentID  INTEGER,
    IsCenter  INTEGER NOT NULL DEFAULT 0,
    Latitude  REAL,
    Longitude REAL,
    Elevation REAL
);

CREATE TABLE tSelectedStates (
    StateID  INTEGER NOT NULL UNIQUE,
    Ordering INTEGER NOT NULL
);

-- Daily times of the centres ("H:MM", standard time), and one offset row per other city
-- (Date 14000101, signed minutes). Date keys are integers so quoted keys compare as numbers.
CREATE TABLE tTimes (
    StateID INTEGER NOT NULL,
    Date    INTEGER NOT NULL,
    T1, T2, T3, T4, T5, T6,
    PRIMARY KEY (StateID, Date)
) WITHOUT ROWID;

-- One row a day in date order: the rowid is the date key.
CREATE TABLE tEvents (
    Date        INTEGER PRIMARY KEY,
    Description TEXT,
    IsHoliday   INTEGER NOT NULL DEFAULT 0
);

CREATE TABLE tSetting (
    Item0 INTEGER NOT NULL DEFAULT 1,
    Item1 INTEGER NOT NULL DEFAULT 1,
    Item2 INTEGER NOT NULL DEFAULT 1,
    Item3 INTEGER NOT NULL DEFAULT 0,
    Item4 INTEGER NOT NULL DEFAULT 0,
    Item5 INTEGER NOT NULL DEFAULT 0,
    Item6 INTEGER NOT NULL DEFAULT 0,
    Item7 TEXT NOT NULL DEFAULT '0'
);

-- A centre's day with the next stored day's dawn call and sunrise as T7 and T8. The next
-- day is found through the primary key, so a lookup by place and date stays an index seek;
-- offset rows are left out.
CREATE VIEW vTimes AS
SELECT d.StateID AS StateID, d.Date AS Date,
       d.T1 AS T1, d.T2 AS T2, d.T3 AS T3, d.T4 AS T4, d.T5 AS T5, d.T6 AS T6,
       n.T1 AS T7, n.T2 AS T8
FROM tTimes AS d
INNER JOIN tTimes AS n
    ON n.StateID = d.StateID
   AND n.Date = (SELECT MIN(x.Date) FROM tTimes AS x WHERE x.StateID = d.StateID AND x.Date > d.Date)
WHERE d.Date < 14000101;
