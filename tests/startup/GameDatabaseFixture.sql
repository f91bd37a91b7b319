-- A small test world for the data layer, loaded after schema.sql and queries.sql.
--
-- It is odd on purpose: names with an apostrophe and mixed case, rows stored in another case
-- than scripts use, IDs and positions out of step with the order of the rows, a container a
-- player has no row for, a default object that isn't the most wasteful one, objects in a
-- container that is judged by state alone, list choices with gaps.
--
-- Score baselines: CountOfName 3 (KitchenTap, Gran'sLamp, HomeCheckup start unwise),
-- SumOfADR 117 (Old Bulb 100 + Standard Shower Head 17).
--
-- Players:  1 Ada   new: the starting home, but no row for Radio     state 3, object 117
--           2 Wendy everything wise                                  state 0, object 0
--           3 pat   tap off, Spiral Bulb, the rest as it started     state 2, object 27
--           4 Max   the starting home with the Old Shower Head       state 3, object 200


-- Containers --------------------------------------------------------------------------------

INSERT INTO Containers (Name, "Friendly Name", WiseState, WiseObject, DefaultState, DefaultObject,
                        "State 1 Verbage", "State 0 Verbage", "Help Text", Listed, DisplayOrder)
VALUES
    -- judged by state; its objects count for nothing
    ('KitchenTap', 'Kitchen Tap', 0, NULL, 1, 'Plain Spout',
     'running', 'off', NULL, 1, 10),
    -- judged by state and by object
    ('Gran''sLamp', 'Gran''s Lamp', 0, 'LED Bulb', 1, 'Old Bulb',
     'on', 'off', 'Some bulbs give the same light for far less electricity. Which one?', 1, 20),
    -- judged by object; starts with the middle one of three
    ('ShowerHead', 'Shower Head', NULL, 'WaterSense Shower Head', 0, 'Standard Shower Head',
     'dripping', 'dry', 'Look at how many gallons each shower head uses in a day.', 1, 30),
    -- judged by state, not in the progress grid
    ('HomeCheckup', 'Home Checkup', 1, NULL, 0, NULL,
     'done', 'not done', NULL, 0, 40),
    -- judged by nothing; first in the grid, added after the players below had their rows
    ('Radio', 'Radio', NULL, NULL, 0, NULL,
     'playing', 'quiet', NULL, 1, 5);


-- Objects -----------------------------------------------------------------------------------
-- Points: Old Bulb 100, Spiral Bulb 10, LED Bulb 0
--         Old Shower Head 100, Standard Shower Head 17, WaterSense Shower Head 0, Bucket 0

INSERT INTO Objects (Container, Name, DisplayOrder, Description, SavingsInfo, ResourceGroup, ADR,
                     ImageFile)
VALUES
    ('KitchenTap', 'Plain Spout', 1, 'A tap without an aerator.', NULL,
     'Water (gallons)', 20, 'PlainSpout.bmp'),
    ('KitchenTap', 'Aerator', 2, 'Mixes air into the water, so less water feels like more.',
     'An aerator saves about 8 gallons a day.', 'Water (gallons)', 12, 'Aerator.bmp'),

    ('gran''slamp', 'Old Bulb', 1, 'A 60 watt bulb that turns most of its power into heat.',
     NULL, 'Electricity (kWh)', 0.24, 'OldBulb.bmp'),
    ('Gran''sLamp', 'Spiral Bulb', 2, 'A curly bulb that gives the same light for 13 watts.',
     'Saves about 0.18 kWh a day.', 'Electricity (kWh)', 0.06, 'SpiralBulb.bmp'),
    ('Gran''sLamp', 'LED Bulb', 3, 'The same light for about 9 watts, and it lasts for years.',
     'Saves about 0.2 kWh a day.', 'Electricity (kWh)', 0.04, ''),

    ('ShowerHead', 'Standard Shower Head', 1, 'Pours 2.5 gallons a minute.',
     NULL, 'Water (gallons)', 20, 'ShowerStandard.bmp'),
    ('ShowerHead', 'Old Shower Head', 2, 'Pours up to 5 gallons a minute.',
     NULL, 'Water (gallons)', 40, 'ShowerOld.bmp'),
    ('ShowerHead', 'WaterSense Shower Head', 3, 'Pours 2 gallons a minute or less.',
     'Saves about 4 gallons a day over the standard one.', 'Water (gallons)', 16,
     'ShowerWise.bmp'),
    ('ShowerHead', 'Bucket', 4, 'A bucket shower: cold, but thrifty.',
     NULL, 'Water (gallons)', 2, 'Bucket.bmp');


-- Players -----------------------------------------------------------------------------------

INSERT INTO Users (ID, "User Name", Password, "Current Shot", ElapsedTime, HasWonGame) VALUES
    (1, 'Ada', 'secret', 0, 0, 0),
    (2, 'Wendy', 'green', 2, 0.75, 1),
    (3, 'pat', 'Pat', 1, 0.125, 0),
    (4, 'Max', 'max', 0, 0.5, 0);

INSERT INTO UserContainers (ID, "User ID", Container, CurrentState, CurrentObject) VALUES
    (1, 1, 'KitchenTap', 1, 'Plain Spout'),
    (2, 1, 'Gran''sLamp', 1, 'Old Bulb'),
    (3, 1, 'ShowerHead', 0, 'Standard Shower Head'),
    (4, 1, 'HomeCheckup', 0, NULL),

    (11, 2, 'KitchenTap', 0, 'Aerator'),
    (12, 2, 'Gran''sLamp', 0, 'LED Bulb'),
    (13, 2, 'ShowerHead', 0, 'WaterSense Shower Head'),
    (14, 2, 'HomeCheckup', 1, NULL),
    (15, 2, 'Radio', 1, NULL),

    (21, 3, 'kitchentap', 0, 'plain spout'),
    (22, 3, 'gran''slamp', 1, 'Spiral Bulb'),
    (23, 3, 'showerhead', 0, 'Standard Shower Head'),
    (24, 3, 'homecheckup', 0, NULL),
    (25, 3, 'radio', 1, NULL),

    (31, 4, 'KitchenTap', 1, 'Plain Spout'),
    (32, 4, 'Gran''sLamp', 1, 'Old Bulb'),
    (33, 4, 'ShowerHead', 0, 'Old Shower Head'),
    (34, 4, 'HomeCheckup', 0, NULL),
    (35, 4, 'Radio', 0, NULL);


-- Shots and backdrops -----------------------------------------------------------------------

INSERT INTO Shots (ID, Name, "Freindly Name") VALUES
    (1, 'Kitchen', 'The Kitchen'),
    (2, 'Lounge', 'Gran''s Lounge');
INSERT INTO Shots (ID, Name) VALUES (3, 'Computer');

-- Kitchen: the running tap while it runs. Lounge: lamp off (1) and LED lit (1, by ID) before
-- LED (2), then the plain room, though its Priority 0 is the lowest. Attic has no backdrop.
INSERT INTO VisualRegistry (ID, Shot, ImageSource, Priority, Container, State, Object) VALUES
    (1, 'Kitchen', 'Kitchen.bmp', 0, NULL, NULL, NULL),
    (2, 'Kitchen', 'KitchenTapRunning.bmp', 5, 'KitchenTap', 1, NULL),
    (3, 'Lounge', 'Lounge.bmp', 0, NULL, NULL, NULL),
    (4, 'Lounge', 'LoungeLED.bmp', 2, 'Gran''sLamp', NULL, 'LED Bulb'),
    (5, 'Lounge', 'LoungeDark.bmp', 1, 'Gran''sLamp', 0, NULL),
    (6, 'Lounge', 'LoungeLEDOn.bmp', 1, 'gran''slamp', 1, 'led bulb'),
    (7, 'computer', 'Computer.bmp', 0, NULL, NULL, NULL);


-- Sprites -----------------------------------------------------------------------------------

INSERT INTO Sprites (Name, Shot, NumFrames, X, Y, FrameDelay, Loop, Backwards, DrawOrder) VALUES
    ('TapWater', 'Kitchen', 4, 212, 148, 120, -1, 0, 1),
    ('LampGlow', 'Lounge', 1, 0, 0, 250, 0, -1, 0);

INSERT INTO SpriteCelSources (ID, Sprite, Position, Condition, CelSource, Sound) VALUES
    (1, 'TapWater', 2, 'kitchentap state 0', 'TapStill.bmp', NULL),
    (2, 'tapwater', 1, 'kitchentap state 1', 'TapRunning.bmp', 'Water'),
    (3, 'LampGlow', 10, 'gran''slamp state 0', 'LampDark.bmp', NULL),
    (4, 'LampGlow', 20,
     'gran''slamp holds ledbulb' || char(13) || char(10) || 'gran''slamp state 1',
     'LampLED.bmp', NULL),
    (5, 'LampGlow', 30, 'gran''slamp state 1', 'LampBright.bmp', 'Hum');


-- Texts -------------------------------------------------------------------------------------

INSERT INTO StartUp (Script) VALUES
    ('loadsound Water.wav water' || char(13) || char(10) || 'startset fixture.set');

INSERT INTO Dialogs (Name, Text) VALUES
    ('Gran''sWelcome', 'Welcome to Gran''s house! Have a look around.'),
    ('TapTip', 'A running tap pours out about 2 gallons every minute.');

INSERT INTO InfoBoxes (Name, Title, Text) VALUES
    ('ShowerFacts', 'Shower Heads',
     'An old shower head pours up to 5 gallons a minute. A WaterSense one uses 2 or less.');


-- Home checkup: asked in the order IDs 3, 1, 2, 7 ------------------------------------------

INSERT INTO HomeCheckupQuestions (ID, Number, "Sub Number", Text, "Answer Style",
                                  List1, List2, List3, List4, List5, List6, List7, List8)
VALUES
    (1, 2, 1, 'What kind of bulbs light your kitchen?', 2,
     'Old bulbs', 'Spiral bulbs', 'LED bulbs', NULL, NULL, NULL, NULL, NULL),
    (2, 2, 2, 'How many showers does your family take in a week?', 1,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (3, 1, 0, 'Does anybody leave the tap running while brushing their teeth?', 3,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (7, 3, 0, 'How warm is your home in winter?', 2,
     '72 °F or more', '', '68 °F to 71 °F', NULL, 'Below 68 °F', NULL, NULL, NULL);

INSERT INTO HomeCheckupAnswers (ID, "User ID", "Question ID", Answer) VALUES
    (1, 2, 3, 'No'),
    (2, 2, 1, 'LED bulbs'),
    (3, 2, 2, '5'),
    (4, 2, 7, 'Below 68 °F'),
    (5, 3, 2, '7');
