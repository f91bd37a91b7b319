-- Fernhollow game database: tables.
--
-- fhdb builds Fernhollow.mdb (an SQLite file) by running schema.sql, queries.sql and then the
-- world's row files on an empty database. The game reaches the tables below through a few literal
-- statements and through the saved queries of queries.sql.
--
-- Conventions of the data layer:
--
-- 1. Every TEXT column is declared COLLATE NOCASE. The game compares names and texts in WHERE
--    without regard to case: scripts are lower case, the data has capitals.
-- 2. Saved queries are data, rows of SavedQueries and SavedQueryParameters (end of this file).
--    In a Statement, parameter P is written ':' + P with every blank replaced by an underscore
--    ("User ID" is :User_ID); a parameter may appear several times. An action query is a single
--    INSERT or DELETE, with no semicolon inside.
-- 3. A saved query without parameters that returns rows can also be used like a table: the layer
--    makes it a temporary view under its name when the database opens. Such a query gives each
--    output column a distinct name, aliased exactly as the game reads it (GetObjects gives
--    "Objects.Name" and "Containers.Name"). A statement on such a query may write a dotted
--    name without quotes (WHERE Containers.Name = ?): the layer quotes it.
-- 4. Every table that the game edits or adds rows to (Users, Shots, UserContainers,
--    HomeCheckupAnswers) has ID INTEGER PRIMARY KEY, and every other column of it is nullable
--    or has a DEFAULT: the layer inserts a row with DEFAULT VALUES at AddNew and fills it in at
--    Update. A saved query whose rows are edited names its UpdateTable and UpdateKey, the result
--    column that holds that table's ID.
-- 5. Plain SQL where it can be (CAST, COALESCE, CASE, SUM, COUNT, joins, EXISTS), so that the
--    database ports to another engine with little work.
--
-- Foreign keys are enforced: every connection of the game and of the tools turns them on
-- (PRAGMA foreign_keys = ON), fhdb's in-place rebuild alone turns them off while it swaps the
-- world under the players' rows. Row files therefore add Containers before Objects, Sprites
-- before SpriteCelSources, and Users before their UserContainers and HomeCheckupAnswers.
--
-- Names of tables and columns are what the game reads, spelling included
-- ("Freindly Name", "State 1 Verbage", ...). Names with blanks are written in double quotes.


-- The start-up script: the world's first commands, run once when a game starts. It must hold
-- a "startset <file>.set" line. Lines end in CR LF (char(13) || char(10) in a row file).
-- One row: its ID can only be 1.
CREATE TABLE StartUp (
    ID      INTEGER PRIMARY KEY CHECK (ID = 1),
    Script  TEXT NOT NULL COLLATE NOCASE
);


-- Players, one row each. The game adds a row with only "User Name", Password and "Current Shot"
-- set, so the other columns need their defaults. Names are kept unique by the game, not here.
-- An ID is never given twice, also not after its player was removed: a game still open for a
-- removed player must not write into a new player's rows.
CREATE TABLE Users (
    ID              INTEGER PRIMARY KEY AUTOINCREMENT,  -- assigned on insert, never reused
    "User Name"     TEXT COLLATE NOCASE,            -- as typed, capitals kept
    Password        TEXT COLLATE NOCASE,            -- plain text
    "Current Shot"  INTEGER NOT NULL DEFAULT 0,     -- index of the player's shot in the set
    ElapsedTime     REAL NOT NULL DEFAULT 0,        -- play time in days
    HasWonGame      INTEGER NOT NULL DEFAULT 0      -- 1 once the player has won
);


-- Shot titles for the player. Name is the shot's name in the set file. The game adds a row for
-- a shot it saves that has none yet, so the title defaults to empty text and is never Null.
CREATE TABLE Shots (
    ID               INTEGER PRIMARY KEY,
    Name             TEXT UNIQUE COLLATE NOCASE,
    "Freindly Name"  TEXT NOT NULL DEFAULT '' COLLATE NOCASE
);


-- Texts for the script command "showdialog <name>".
CREATE TABLE Dialogs (
    Name  TEXT NOT NULL PRIMARY KEY COLLATE NOCASE    -- one word, as the scripts write it
          CHECK (Name <> '' AND Name NOT LIKE '% %'),
    Text  TEXT NOT NULL COLLATE NOCASE
);


-- Boxes for the script command "showinfobox <name>". Text is shown as plain text.
CREATE TABLE InfoBoxes (
    Name   TEXT NOT NULL PRIMARY KEY COLLATE NOCASE   -- one word, as the scripts write it
           CHECK (Name <> '' AND Name NOT LIKE '% %'),
    Title  TEXT NOT NULL COLLATE NOCASE,
    Text   TEXT NOT NULL COLLATE NOCASE
);


-- Fixture slots of the house: a tap, a lamp, a shower head. A container is judged by its state
-- (WiseState set), by the object it holds (WiseObject set), by both, or not at all (a slot that
-- only scripts and pictures use). Containers that are judged count in the score.
CREATE TABLE Containers (
    -- Key used by scripts and conditions: one word, no blanks.
    Name               TEXT NOT NULL PRIMARY KEY COLLATE NOCASE
                       CHECK (Name <> '' AND Name NOT LIKE '% %'),
    "Friendly Name"    TEXT NOT NULL COLLATE NOCASE,          -- shown to the player
    WiseState          INTEGER,                               -- the wise state, or Null
    WiseObject         TEXT COLLATE NOCASE,                   -- Name of the wise object, or Null
    DefaultState       INTEGER NOT NULL DEFAULT 0,            -- state a new player starts with
    DefaultObject      TEXT COLLATE NOCASE,                   -- object a new player starts with
    "State 1 Verbage"  TEXT NOT NULL DEFAULT 'on' COLLATE NOCASE,   -- words for a state not 0
    "State 0 Verbage"  TEXT NOT NULL DEFAULT 'off' COLLATE NOCASE,  -- words for state 0
    "Help Text"        TEXT COLLATE NOCASE,                   -- help on the object screen; Null: none
    Listed             INTEGER NOT NULL DEFAULT 1,            -- 1: a row of the progress grid
    DisplayOrder       INTEGER NOT NULL DEFAULT 0             -- order in lists, then Name
);


-- The objects that may stand in a container, such as the kinds of bulb for a lamp. Names are
-- unique within a container; a condition "<container> holds <object>" writes the name in lower
-- case without its blanks.
CREATE TABLE Objects (
    Container      TEXT NOT NULL COLLATE NOCASE
                   REFERENCES Containers (Name) ON UPDATE CASCADE ON DELETE CASCADE,
    Name           TEXT NOT NULL COLLATE NOCASE CHECK (Name <> ''),
    DisplayOrder   INTEGER NOT NULL DEFAULT 0,            -- order on the object screen, then Name
    Description    TEXT NOT NULL DEFAULT '' COLLATE NOCASE,
    SavingsInfo    TEXT COLLATE NOCASE,                   -- savings text; Null: a rate summary is shown
    ResourceGroup  TEXT NOT NULL COLLATE NOCASE,          -- what the rate measures, e.g. 'Water (gallons)'
    ADR            REAL NOT NULL DEFAULT 0 CHECK (ADR >= 0),  -- average daily rate of use, in that unit
    ImageFile      TEXT NOT NULL DEFAULT '' COLLATE NOCASE,   -- picture under Graphics; '' for none
    PRIMARY KEY (Container, Name)
);


-- Each player's state and object for each container. Make New User adds the rows for a player.
CREATE TABLE UserContainers (
    ID             INTEGER PRIMARY KEY,
    "User ID"      INTEGER REFERENCES Users (ID) ON DELETE CASCADE,
    Container      TEXT COLLATE NOCASE
                   REFERENCES Containers (Name) ON UPDATE CASCADE ON DELETE CASCADE,
    CurrentState   INTEGER,
    CurrentObject  TEXT COLLATE NOCASE,
    UNIQUE ("User ID", Container)
);


-- Backdrops of the shots. For a shot and a player, the first row whose condition holds is shown:
-- rows with a condition come before rows without, then lower Priority first, then lower ID.
-- A row without Container is the shot's unconditional backdrop; every shot should have one.
-- A row with Container holds when that container stands in State (if given) and holds Object
-- (if given) for the player; a player without a row for the container counts as starting out.
CREATE TABLE VisualRegistry (
    ID           INTEGER PRIMARY KEY,
    Shot         TEXT NOT NULL COLLATE NOCASE,            -- shot name as in the set file
    ImageSource  TEXT NOT NULL COLLATE NOCASE,            -- picture under Graphics
    Priority     INTEGER NOT NULL DEFAULT 0,
    Container    TEXT COLLATE NOCASE
                 REFERENCES Containers (Name) ON UPDATE CASCADE ON DELETE CASCADE,
    State        INTEGER,                                 -- required state, or Null
    Object       TEXT COLLATE NOCASE,                     -- required object Name, or Null
    CHECK (Container IS NULL AND State IS NULL AND Object IS NULL
           OR Container IS NOT NULL AND (State IS NOT NULL OR Object IS NOT NULL))
);


-- Small animations over the backdrops. Sprites are numbered in DrawOrder, then Name; a later
-- sprite paints over an earlier one where they overlap.
CREATE TABLE Sprites (
    Name        TEXT NOT NULL PRIMARY KEY COLLATE NOCASE
                CHECK (Name <> '' AND Name NOT LIKE '% %'),   -- one word, for scripts
    Shot        TEXT NOT NULL COLLATE NOCASE,       -- the shot it lives on
    NumFrames   INTEGER NOT NULL DEFAULT 1 CHECK (NumFrames >= 1),   -- cels in each strip
    X           INTEGER NOT NULL DEFAULT 0,         -- left edge in pixels
    Y           INTEGER NOT NULL DEFAULT 0,         -- top edge in pixels
    FrameDelay  INTEGER NOT NULL DEFAULT 100 CHECK (FrameDelay > 0),  -- milliseconds a frame
    Loop        INTEGER NOT NULL DEFAULT 0 CHECK (Loop IN (-1, 0, 1)),       -- runs for ever
    Backwards   INTEGER NOT NULL DEFAULT 0 CHECK (Backwards IN (-1, 0, 1)),  -- last cel first
    DrawOrder   INTEGER NOT NULL DEFAULT 0
);


-- The looks of a sprite. The game walks a sprite's rows by Position (then ID) and shows the
-- strip of the first whose Condition holds; with none, the sprite is hidden.
-- A Condition is "<container> <keyword> <value>" with keyword state, holds or !holds; several
-- such lines, separated by CR LF (char(13) || char(10) in a row file), must all hold.
CREATE TABLE SpriteCelSources (
    ID         INTEGER PRIMARY KEY,
    Sprite     TEXT NOT NULL COLLATE NOCASE
               REFERENCES Sprites (Name) ON UPDATE CASCADE ON DELETE CASCADE,
    Position   INTEGER NOT NULL DEFAULT 0,
    Condition  TEXT NOT NULL COLLATE NOCASE CHECK (Condition LIKE '% % %'),
    CelSource  TEXT NOT NULL COLLATE NOCASE,     -- strip of NumFrames cels under Graphics
    Sound      TEXT COLLATE NOCASE               -- sound looped while it runs, or Null
);


-- The home checkup questionnaire, asked in order of Number and "Sub Number".
CREATE TABLE HomeCheckupQuestions (
    ID              INTEGER PRIMARY KEY,            -- kept in answers: don't renumber
    Number          INTEGER NOT NULL,               -- question number
    "Sub Number"    INTEGER NOT NULL DEFAULT 0,     -- 0, or 1, 2, ... shown as a, b, ...
    Text            TEXT NOT NULL COLLATE NOCASE,
    -- 1 free text, 2 a choice among List1..List8, 3 yes or no
    "Answer Style"  INTEGER NOT NULL CHECK ("Answer Style" IN (1, 2, 3)),
    List1  TEXT COLLATE NOCASE,                     -- choices of style 2; Null or '' is unused
    List2  TEXT COLLATE NOCASE,
    List3  TEXT COLLATE NOCASE,
    List4  TEXT COLLATE NOCASE,
    List5  TEXT COLLATE NOCASE,
    List6  TEXT COLLATE NOCASE,
    List7  TEXT COLLATE NOCASE,
    List8  TEXT COLLATE NOCASE,
    UNIQUE (Number, "Sub Number")
);


-- A player's answers to the questionnaire, one row per player and question at most.
CREATE TABLE HomeCheckupAnswers (
    ID             INTEGER PRIMARY KEY,
    "User ID"      INTEGER REFERENCES Users (ID) ON DELETE CASCADE,
    "Question ID"  INTEGER REFERENCES HomeCheckupQuestions (ID) ON DELETE CASCADE,
    Answer         TEXT COLLATE NOCASE,     -- typed text, a list item, or 'Yes' / 'No'
    UNIQUE ("User ID", "Question ID")
);


-- Points of each object towards the object half of the score. In every container judged by its
-- object, the wise object has 0 points and the most wasteful object (highest ADR) 100; the
-- others lie in between by their ADR, rounded to whole points. An object below the wise one's
-- ADR has 0. So each such container weighs alike, whatever unit its rate is in.
CREATE VIEW ObjectPoints AS
SELECT o.Container AS Container,
       o.Name AS Object,
       CASE WHEN w.MaxADR <= w.WiseADR OR o.ADR <= w.WiseADR THEN 0
            ELSE CAST(ROUND(100.0 * (o.ADR - w.WiseADR) / (w.MaxADR - w.WiseADR)) AS INTEGER)
       END AS Points
FROM Objects o
JOIN (SELECT c.Name AS Container,
             wise.ADR AS WiseADR,
             (SELECT MAX(x.ADR) FROM Objects x WHERE x.Container = c.Name) AS MaxADR
      FROM Containers c
      JOIN Objects wise ON wise.Container = c.Name AND wise.Name = c.WiseObject) w
  ON w.Container = o.Container;


-- Mistakes of a world that the tables can't refuse by themselves. An empty result means none;
-- fhdb and the world tests read it after loading the rows.
CREATE VIEW WorldCheck AS
SELECT 'WiseObject is not an object of the container' AS Problem, c.Name AS Item
FROM Containers c
WHERE c.WiseObject IS NOT NULL AND c.WiseObject <> ''
  AND NOT EXISTS (SELECT 1 FROM Objects o WHERE o.Container = c.Name AND o.Name = c.WiseObject)
UNION ALL
SELECT 'DefaultObject is not an object of the container', c.Name
FROM Containers c
WHERE c.DefaultObject IS NOT NULL AND c.DefaultObject <> ''
  AND NOT EXISTS (SELECT 1 FROM Objects o WHERE o.Container = c.Name AND o.Name = c.DefaultObject)
UNION ALL
SELECT 'judged by object but has no DefaultObject', c.Name
FROM Containers c
WHERE c.WiseObject IS NOT NULL AND c.WiseObject <> ''
  AND (c.DefaultObject IS NULL OR c.DefaultObject = '')
UNION ALL
SELECT 'backdrop condition names an unknown object', CAST(v.ID AS TEXT)
FROM VisualRegistry v
WHERE v.Object IS NOT NULL
  AND NOT EXISTS (SELECT 1 FROM Objects o WHERE o.Container = v.Container AND o.Name = v.Object)
UNION ALL
SELECT 'shot has conditional backdrops but no unconditional one', v.Shot
FROM VisualRegistry v
WHERE v.Container IS NOT NULL
  AND NOT EXISTS (SELECT 1 FROM VisualRegistry d WHERE d.Shot = v.Shot AND d.Container IS NULL)
GROUP BY v.Shot
UNION ALL
SELECT 'sprite has no cel sources', s.Name
FROM Sprites s
WHERE NOT EXISTS (SELECT 1 FROM SpriteCelSources x WHERE x.Sprite = s.Name)
UNION ALL
SELECT 'no start-up script', 'StartUp'
WHERE NOT EXISTS (SELECT 1 FROM StartUp);


-- The saved queries: Statement is run with the named parameters of SavedQueryParameters.
-- UpdateTable and UpdateKey are set for a query whose rows the game edits: the table written
-- and the result column that holds that table's ID.
CREATE TABLE SavedQueries (
    Name         TEXT PRIMARY KEY COLLATE NOCASE,
    Statement    TEXT NOT NULL,
    UpdateTable  TEXT COLLATE NOCASE,
    UpdateKey    TEXT COLLATE NOCASE
);

-- The parameters of each saved query, with the type the game sets them as.
CREATE TABLE SavedQueryParameters (
    Query  TEXT NOT NULL COLLATE NOCASE REFERENCES SavedQueries (Name),
    Name   TEXT NOT NULL COLLATE NOCASE,
    Type   TEXT NOT NULL CHECK (Type IN ('Long', 'Integer', 'Single', 'Text')),
    PRIMARY KEY (Query, Name)
);
