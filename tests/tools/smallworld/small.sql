-- A small whole world for the checker's tests: two shots, a dripping tap that a sprite shows, a bulb
-- to choose, a television, the computer's two containers. Its score baselines are 4 and 100.

INSERT INTO StartUp (ID, Script) VALUES (1,
    'loadsound LiteUp.wav LiteUp' || char(13) || char(10) ||
    'loadsound Click.wav Click' || char(13) || char(10) ||
    'loadsound Switch.wav Switch' || char(13) || char(10) ||
    'loadsound Drip.wav Drip' || char(13) || char(10) ||
    'startset small.set');

INSERT INTO Shots (Name, "Freindly Name") VALUES ('Porch', 'The Porch'), ('Computer', 'The Computer');

INSERT INTO Containers (Name, "Friendly Name", WiseState, WiseObject, DefaultState, DefaultObject,
                        "State 1 Verbage", "State 0 Verbage", "Help Text", Listed, DisplayOrder)
VALUES
    ('Tap', 'Tap', 0, NULL, 1, NULL, 'dripping', 'fixed', 'A drip adds up.', 1, 1),
    ('TV', 'Television', 0, NULL, 1, NULL, 'on', 'off', 'Nobody is watching.', 1, 2),
    ('Bulb', 'Bulb', NULL, 'LED bulb', 0, 'Old bulb', 'in use', 'not in use', 'Same light, less power.', 1, 3),
    ('CleanAir', 'Clean air calculator', 1, NULL, 0, NULL, 'used', 'not used yet', 'Try it.', 1, 4),
    ('HomeCheckup', 'Home checkup', 1, NULL, 0, NULL, 'finished', 'not finished', 'Fill it in.', 1, 5);

INSERT INTO Objects (Container, Name, DisplayOrder, Description, SavingsInfo, ResourceGroup, ADR, ImageFile)
VALUES
    ('Bulb', 'Old bulb', 1, 'A 60 W bulb.', NULL, 'Electricity (kWh)', 0.24, 'ObjOld.bmp'),
    ('Bulb', 'LED bulb', 2, 'A 9 W bulb.', 'Saves 0.2 kWh a day.', 'Electricity (kWh)', 0.04, 'ObjLed.bmp');

INSERT INTO VisualRegistry (Shot, ImageSource, Priority, Container, State, Object) VALUES
    ('Porch', 'Porch.bmp', 0, NULL, NULL, NULL),
    ('Porch', 'PorchDripping.bmp', 0, 'Tap', 1, NULL),
    ('Porch', 'PorchTVOn.bmp', 0, 'TV', 1, NULL),
    ('Porch', 'PorchLed.bmp', 0, 'Bulb', NULL, 'LED bulb'),
    ('Computer', 'Desk.bmp', 0, NULL, NULL, NULL),
    ('Computer', 'DeskAirUsed.bmp', 0, 'CleanAir', 1, NULL),
    ('Computer', 'DeskChecked.bmp', 0, 'HomeCheckup', 1, NULL);

INSERT INTO Sprites (Name, Shot, NumFrames, X, Y, FrameDelay, Loop, Backwards, DrawOrder)
VALUES ('Drip', 'Porch', 4, 100, 100, 150, -1, 0, 1);
INSERT INTO SpriteCelSources (Sprite, Position, Condition, CelSource, Sound)
VALUES ('Drip', 1, 'tap state 1', 'Drip.bmp', 'Drip');

INSERT INTO Dialogs (Name, Text) VALUES ('Hello', 'Hello there.');
INSERT INTO InfoBoxes (Name, Title, Text) VALUES ('Facts', 'Facts', 'A drip a second wastes 3,000 gallons a year.');

WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 35)
INSERT INTO HomeCheckupQuestions (ID, Number, "Sub Number", Text, "Answer Style", List1, List2)
SELECT i, i, 0, 'How many people live in your home?', CASE WHEN i = 2 THEN 2 ELSE 1 END,
       CASE WHEN i = 2 THEN 'Yes' END, CASE WHEN i = 2 THEN 'No' END
FROM n;
