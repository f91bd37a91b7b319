-- Choices for Ada in the small live world, after LiveWorld.sql: three shower heads, the second
-- standing and the third wise; a kettle with no help text and nothing chosen yet; one info box.

INSERT INTO Containers (Name, "Friendly Name", WiseState, WiseObject, DefaultState, DefaultObject, "Help Text", Listed, DisplayOrder)
VALUES
    ('Shower', 'Shower Head', NULL, 'Fine Spray', 0, 'Old Head', 'Pick the head that pours least.', 1, 5),
    ('Kettle', 'Kettle', NULL, NULL, 0, NULL, NULL, 1, 6);

INSERT INTO Objects (Container, Name, DisplayOrder, Description, SavingsInfo, ResourceGroup, ADR, ImageFile) VALUES
    ('Shower', 'Old Head', 1, 'Pours 5 gallons a minute.', NULL, 'Water (gallons)', 40, 'OldHead.bmp'),
    ('Shower', 'Standard Head', 2, 'Pours 2.5 gallons a minute.', 'Saves 20 gallons a shower.', 'Water (gallons)', 20, 'Standard.bmp'),
    ('Shower', 'Fine Spray', 3, 'Pours 1.5 gallons a minute.', 'Saves 28 gallons a shower.', 'Water (gallons)', 12.5, ''),
    ('Kettle', 'Full Kettle', 1, 'Boils a litre.', NULL, 'Electricity (kWh)', 0.1, ''),
    ('Kettle', 'Cup Kettle', 2, 'Boils a cup.', NULL, 'Electricity (kWh)', 0.02, '');

INSERT INTO UserContainers ("User ID", Container, CurrentState, CurrentObject) VALUES
    (1, 'Shower', 0, 'Standard Head'), (1, 'Kettle', 0, NULL);

INSERT INTO InfoBoxes (Name, Title, Text) VALUES
    ('DripFacts', 'Drip Facts', 'A drip a second wastes 3,000 gallons a year.' || char(13) || char(10) || 'Fix the washer.');
