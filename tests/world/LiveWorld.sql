-- A small live world for the world and script tests, after schema.sql and queries.sql. Baselines:
-- 2 states (Tap, Lamp), 100 points (Old Bulb). Ada (1) has the house as it starts, but no row for
-- Radio. The set file holds Porch, Hall and Attic; Attic has no row in Shots and no backdrop.

INSERT INTO Containers (Name, "Friendly Name", WiseState, WiseObject, DefaultState, DefaultObject,
                        "State 1 Verbage", "State 0 Verbage", Listed, DisplayOrder)
VALUES
    ('Tap', 'Kitchen Tap', 0, NULL, 1, NULL, 'dripping', 'fixed', 1, 1),
    ('Lamp', 'Hall Lamp', 0, NULL, 1, NULL, 'on', 'off', 1, 2),
    ('Bulb', 'Bulb', NULL, 'LED Bulb', 0, 'Old Bulb', 'in use', 'not in use', 1, 3),
    ('Radio', 'Radio', NULL, NULL, 0, NULL, 'playing', 'quiet', 1, 4);

INSERT INTO Objects (Container, Name, DisplayOrder, ResourceGroup, ADR) VALUES
    ('Bulb', 'Old Bulb', 1, 'Electricity (kWh)', 0.24),
    ('Bulb', 'LED Bulb', 2, 'Electricity (kWh)', 0.04);

INSERT INTO Users (ID, "User Name", Password) VALUES (1, 'Ada', 'secret');
INSERT INTO UserContainers ("User ID", Container, CurrentState, CurrentObject) VALUES
    (1, 'Tap', 1, NULL), (1, 'Lamp', 1, NULL), (1, 'Bulb', 0, 'Old Bulb');

INSERT INTO Shots (Name, "Freindly Name") VALUES ('Porch', 'The Porch'), ('Hall', 'The Hall');

-- The dripping porch is the better match while the tap drips.
INSERT INTO VisualRegistry (Shot, ImageSource, Priority, Container, State, Object) VALUES
    ('Porch', 'Porch.bmp', 0, NULL, NULL, NULL),
    ('Porch', 'PorchDrip.bmp', 0, 'Tap', 1, NULL),
    ('Hall', 'Hall.bmp', 0, NULL, NULL, NULL);

-- Two sources of Drip hold while the tap drips. Fan shows with the lamp off. Glow's shot is
-- written in another case. Ghost has no sources.
INSERT INTO Sprites (Name, Shot, NumFrames, X, Y, FrameDelay, Loop, Backwards, DrawOrder) VALUES
    ('Drip', 'Porch', 4, 0, 0, 150, -1, 0, 1),
    ('Fan', 'Porch', 2, 50, 0, 100, -1, 0, 2),
    ('Glow', 'hall', 2, 100, 0, 100, -1, 0, 3),
    ('Ghost', 'Attic', 1, 0, 0, 100, 0, 0, 4);
INSERT INTO SpriteCelSources (Sprite, Position, Condition, CelSource, Sound) VALUES
    ('Drip', 1, 'tap state 1', 'Drip.bmp', 'Drip'),
    ('Drip', 2, 'tap state 1' || char(13) || char(10) || 'lamp state 1', 'Other.bmp', NULL),
    ('Drip', 3, 'tap state 0', 'Dry.bmp', NULL),
    ('Fan', 1, 'lamp state 0', 'Fan.bmp', NULL),
    ('Glow', 1, 'lamp state 1', 'Glow.bmp', NULL);

INSERT INTO Dialogs (Name, Text) VALUES ('Hello', 'Hello there.');
