-- Fernhollow game database: the saved queries the game calls by name.
--
-- Each query is a row of SavedQueries; its parameters are rows of SavedQueryParameters, written
-- in the Statement as ':' + name with blanks as underscores. Queries that the game also uses as
-- tables (no parameters) alias every output column to the name the game reads.
--
-- The score has two halves, each a sum that a new player's home sets as its baseline and that
-- falls to 0 when every choice is wise:
--   state half:  the number of containers judged by state (WiseState set) that don't stand in
--                their WiseState;
--   object half: the points (ObjectPoints) of the objects standing in the containers judged by
--                object (WiseObject set): 0 for the wise object, 100 for the most wasteful one.
-- For the baselines the same sums are taken over DefaultState and DefaultObject, at least 1.
-- A player without a UserContainers row for a container (a container added by a world update
-- before Make New User has run for that player) counts as starting out in it.


-- Baseline of the state half: containers that start in an unwise state.
INSERT INTO SavedQueries (Name, Statement) VALUES ('ContainerDefaulStateADR',
'SELECT CASE WHEN COUNT(*) < 1 THEN 1 ELSE COUNT(*) END AS CountOfName
FROM Containers c
WHERE c.WiseState IS NOT NULL AND c.DefaultState <> c.WiseState');

-- Baseline of the object half: points of the objects a new player starts with.
INSERT INTO SavedQueries (Name, Statement) VALUES ('ContainerDefaultObjectlADR',
'SELECT CASE WHEN COALESCE(SUM(p.Points), 0) < 1 THEN 1 ELSE SUM(p.Points) END AS SumOfADR
FROM Containers c
JOIN ObjectPoints p ON p.Container = c.Name AND p.Object = c.DefaultObject');

-- The player's state half: containers not in their wise state.
INSERT INTO SavedQueries (Name, Statement) VALUES ('StateScore',
'SELECT COUNT(*) AS CountOfCurrentState
FROM Containers c
LEFT JOIN UserContainers uc ON uc.Container = c.Name AND uc."User ID" = :SelectUserID
WHERE c.WiseState IS NOT NULL
  AND COALESCE(uc.CurrentState, c.DefaultState) <> c.WiseState');
INSERT INTO SavedQueryParameters VALUES ('StateScore', 'SelectUserID', 'Long');

-- The player's object half: points of the objects standing in the containers. An object that
-- isn't one of the container's own has no points.
INSERT INTO SavedQueries (Name, Statement) VALUES ('SelectionScore',
'SELECT COALESCE(SUM(p.Points), 0) AS SumOfADR
FROM Containers c
LEFT JOIN UserContainers uc ON uc.Container = c.Name AND uc."User ID" = :SelectUserID
JOIN ObjectPoints p ON p.Container = c.Name
                   AND p.Object = COALESCE(uc.CurrentObject, c.DefaultObject)');
INSERT INTO SavedQueryParameters VALUES ('SelectionScore', 'SelectUserID', 'Long');


-- Every sprite of the world, in drawing order.
INSERT INTO SavedQueries (Name, Statement) VALUES ('GetAllSprites',
'SELECT s.Name AS Name, s.Shot AS Shot, s.NumFrames AS NumFrames, s.X AS X, s.Y AS Y,
       s.FrameDelay AS FrameDelay, s.Loop AS Loop, s.Backwards AS Backwards
FROM Sprites s
ORDER BY s.DrawOrder, s.Name');

-- Every container with the player's state and object; Nulls where the player has no row.
INSERT INTO SavedQueries (Name, Statement) VALUES ('GetAllContainers',
'SELECT c.Name AS Name, c.WiseState AS WiseState, c.WiseObject AS WiseObject,
       uc.CurrentObject AS CurrentObject, uc.CurrentState AS CurrentState
FROM Containers c
LEFT JOIN UserContainers uc ON uc.Container = c.Name AND uc."User ID" = :SelectUserID
ORDER BY c.DisplayOrder, c.Name');
INSERT INTO SavedQueryParameters VALUES ('GetAllContainers', 'SelectUserID', 'Long');

-- One container of the player, to be edited: CurrentState and CurrentObject are written back
-- to the UserContainers row whose ID is in column ID.
INSERT INTO SavedQueries (Name, Statement, UpdateTable, UpdateKey) VALUES ('GetContainer',
'SELECT uc.ID AS ID, uc.CurrentState AS CurrentState, uc.CurrentObject AS CurrentObject,
       c.Name AS Name, c."Friendly Name" AS "Friendly Name",
       c."State 1 Verbage" AS "State 1 Verbage", c."State 0 Verbage" AS "State 0 Verbage",
       c."Help Text" AS "Help Text"
FROM UserContainers uc
JOIN Containers c ON c.Name = uc.Container
WHERE c.Name = :SelectContainer AND uc."User ID" = :SelectUserID',
'UserContainers', 'ID');
INSERT INTO SavedQueryParameters VALUES ('GetContainer', 'SelectContainer', 'Text');
INSERT INTO SavedQueryParameters VALUES ('GetContainer', 'SelectUserID', 'Long');

-- The backdrops of a shot whose condition holds for the player, best first: rows with a
-- condition before the unconditional ones, then by Priority, then by ID.
INSERT INTO SavedQueries (Name, Statement) VALUES ('SelectBackdrop',
'SELECT v.ImageSource AS ImageSource
FROM VisualRegistry v
LEFT JOIN Containers c ON c.Name = v.Container
LEFT JOIN UserContainers uc ON uc.Container = v.Container AND uc."User ID" = :SelectUserID
WHERE v.Shot = :TargetShot
  AND (v.Container IS NULL
       OR c.Name IS NOT NULL
          AND (v.State IS NULL OR COALESCE(uc.CurrentState, c.DefaultState) = v.State)
          AND (v.Object IS NULL OR COALESCE(uc.CurrentObject, c.DefaultObject) = v.Object))
ORDER BY CASE WHEN v.Container IS NULL THEN 1 ELSE 0 END, v.Priority, v.ID');
INSERT INTO SavedQueryParameters VALUES ('SelectBackdrop', 'TargetShot', 'Text');
INSERT INTO SavedQueryParameters VALUES ('SelectBackdrop', 'SelectUserID', 'Long');

-- The looks of one sprite, in the authors' order; the game shows the first that holds.
INSERT INTO SavedQueries (Name, Statement) VALUES ('GetSpriteCelSources',
'SELECT x.Condition AS Condition, x.CelSource AS CelSource, x.Sound AS Sound
FROM SpriteCelSources x
WHERE x.Sprite = :Sprite
ORDER BY x.Position, x.ID');
INSERT INTO SavedQueryParameters VALUES ('GetSpriteCelSources', 'Sprite', 'Text');

-- All objects with their container, for the object screen; the game filters on
-- "Containers.Name" and shows a container's objects in this order.
INSERT INTO SavedQueries (Name, Statement) VALUES ('GetObjects',
'SELECT o.Name AS "Objects.Name", c.Name AS "Containers.Name",
       o.Description AS Description, o.SavingsInfo AS SavingsInfo,
       o.ResourceGroup AS ResourceGroup, o.ADR AS ADR, o.ImageFile AS ImageFile
FROM Containers c
JOIN Objects o ON o.Container = c.Name
ORDER BY c.DisplayOrder, c.Name, o.DisplayOrder, o.Name');

-- The progress grid: the listed containers with the player's choices. CurrentObject is never
-- Null (empty text where nothing stands), CurrentState is the starting state where the player
-- has no row.
INSERT INTO SavedQueries (Name, Statement) VALUES ('GetHowAmIDoing',
'SELECT c."Friendly Name" AS "Friendly Name", c.WiseObject AS WiseObject,
       COALESCE(uc.CurrentObject, c.DefaultObject, '''') AS CurrentObject,
       COALESCE(uc.CurrentState, c.DefaultState) AS CurrentState,
       c.WiseState AS WiseState,
       c."State 1 Verbage" AS "State 1 Verbage", c."State 0 Verbage" AS "State 0 Verbage"
FROM Containers c
LEFT JOIN UserContainers uc ON uc.Container = c.Name AND uc."User ID" = :SelectUserID
WHERE c.Listed <> 0
ORDER BY c.DisplayOrder, c.Name');
INSERT INTO SavedQueryParameters VALUES ('GetHowAmIDoing', 'SelectUserID', 'Long');

-- The home checkup questions in the order they are asked.
INSERT INTO SavedQueries (Name, Statement) VALUES ('GetHomeCheckupQuestions',
'SELECT q.ID AS ID, q.Number AS Number, q."Sub Number" AS "Sub Number", q.Text AS Text,
       q."Answer Style" AS "Answer Style",
       q.List1 AS List1, q.List2 AS List2, q.List3 AS List3, q.List4 AS List4,
       q.List5 AS List5, q.List6 AS List6, q.List7 AS List7, q.List8 AS List8
FROM HomeCheckupQuestions q
ORDER BY q.Number, q."Sub Number", q.ID');


-- Gives a player a row for every container that has none yet, with its starting state and
-- object. Run for a new player, and again for kept players after a world update adds containers.
INSERT INTO SavedQueries (Name, Statement) VALUES ('Make New User',
'INSERT INTO UserContainers ("User ID", Container, CurrentState, CurrentObject)
SELECT :User_ID, c.Name, c.DefaultState, c.DefaultObject
FROM Containers c
WHERE NOT EXISTS (SELECT 1 FROM UserContainers uc
                  WHERE uc."User ID" = :User_ID AND uc.Container = c.Name)');
INSERT INTO SavedQueryParameters VALUES ('Make New User', 'User ID', 'Long');

-- Removing a player, before the Users row goes: first the containers, then the answers.
INSERT INTO SavedQueries (Name, Statement) VALUES ('Remove User Step 1',
'DELETE FROM UserContainers WHERE "User ID" = :SelectUserID');
INSERT INTO SavedQueryParameters VALUES ('Remove User Step 1', 'SelectUserID', 'Long');

INSERT INTO SavedQueries (Name, Statement) VALUES ('Remove User Step 2',
'DELETE FROM HomeCheckupAnswers WHERE "User ID" = :SelectUserID');
INSERT INTO SavedQueryParameters VALUES ('Remove User Step 2', 'SelectUserID', 'Long');
