-- The computer's containers and a short checkup for Ada in the small live world, after
-- LiveWorld.sql: a text question, two parts of question 2 (a list of three, and a yes or no of 51
-- characters), and a last yes or no question. The text of 2a is exactly 50 characters.

INSERT INTO Containers (Name, "Friendly Name", WiseState, DefaultState, "State 1 Verbage", "State 0 Verbage", Listed, DisplayOrder)
VALUES
    ('CleanAir', 'Clean air calculator', 1, 0, 'used', 'not used yet', 0, 8),
    ('HomeCheckup', 'Home checkup', 1, 0, 'finished', 'not finished', 0, 9);
INSERT INTO UserContainers ("User ID", Container, CurrentState, CurrentObject) VALUES
    (1, 'CleanAir', 0, NULL), (1, 'HomeCheckup', 0, NULL);

INSERT INTO HomeCheckupQuestions (ID, Number, "Sub Number", Text, "Answer Style", List1, List2, List3, List4) VALUES
    (1, 1, 0, 'How many people live in your home?', 1, NULL, NULL, NULL, NULL),
    (2, 2, 1, 'Which fuel heats the water in your home? Pick one.', 2, 'Gas', 'Electric', 'Oil', ''),
    (3, 2, 2, 'Does your water heater wear a warm blanket at home?', 3, NULL, NULL, NULL, NULL),
    (4, 3, 0, 'Do you switch off the lights?', 3, NULL, NULL, NULL, NULL);
