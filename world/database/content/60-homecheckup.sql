-- The home checkup: a survey of a family's water and energy use that a student fills in at home
-- with a parent, on the computer, and prints for a parent or teacher to sign. The form's
-- introduction counts the questions, so adding or removing one means changing it too.
--
-- IDs are kept in the players' answers: never renumber a question, add new ones at the end.
-- Answer Style: 1 free text, 2 a choice among the List columns, 3 yes or no.
-- A printed question takes two lines at most: a text longer than 50 characters breaks at its
-- last blank within the first 50, and the rest must fit in 55.

INSERT INTO HomeCheckupQuestions (ID, Number, "Sub Number", Text, "Answer Style",
                                  List1, List2, List3, List4, List5, List6, List7, List8)
VALUES
    -- Who lives here
    (1, 1, 0, 'How many people live in your home?', 1,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),

    -- Meters, read a day apart
    (2, 2, 1, 'Find your water meter with a grown-up. What number does it show?', 1,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (3, 2, 2, 'Read the water meter again 24 hours later. What number does it show now?', 1,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (4, 2, 3, 'How many gallons did your home use in that day? (1 cubic foot is about 7.5 gallons)', 1,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (5, 3, 1, 'Find your electric meter with a grown-up. How many kWh does it show?', 1,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (6, 3, 2, 'Read the electric meter again 24 hours later. How many kWh does it show now?', 1,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (7, 3, 3, 'How many kWh of electricity did your home use in that day?', 1,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),

    -- Lights
    (8, 4, 1, 'How many light bulbs are there in your home? Count them all!', 1,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (9, 4, 2, 'How many of them are LED bulbs?', 1,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (10, 4, 3, 'How many of them are old incandescent or halogen bulbs?', 1,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (11, 5, 0, 'Are the lights switched off when nobody is in a room?', 2,
     'Always', 'Usually', 'Sometimes', 'Hardly ever', NULL, NULL, NULL, NULL),

    -- Heating
    (12, 6, 1, 'What is the thermostat set to on a winter day? (degrees F)', 1,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (13, 6, 2, 'What is the thermostat set to on a winter night? (degrees F)', 1,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (14, 7, 0, 'Can you feel cold drafts near any windows or doors?', 3,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (15, 8, 0, 'What temperature is your water heater set to? Ask a grown-up to check.', 2,
     '120 degrees F or less', 'About 130 degrees F', '140 degrees F or more', 'We don''t know',
     NULL, NULL, NULL, NULL),

    -- Showers, toilets and taps
    (16, 9, 1, 'How many showers does your family take in a day?', 1,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (17, 9, 2, 'How many minutes does a shower usually last? Time one!', 1,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (18, 9, 3, 'How many gallons a minute (GPM) does your shower head use? It may be printed on it.', 2,
     '2.0 GPM or less', '2.5 GPM', 'More than 2.5 GPM', 'We don''t know',
     NULL, NULL, NULL, NULL),
    (19, 10, 1, 'How many toilets are there in your home?', 1,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (20, 10, 2, 'Look behind the toilet seat for the gallons per flush (GPF). What does it say?', 2,
     '1.28 GPF or less', '1.6 GPF', '3.5 GPF or more', 'It isn''t marked',
     NULL, NULL, NULL, NULL),
    (21, 10, 3, 'Put food coloring in each toilet tank and wait 10 minutes. Is there color in a bowl?', 3,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (22, 11, 0, 'Are any taps or shower heads in your home dripping?', 3,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (23, 12, 0, 'Do you turn off the tap while you brush your teeth?', 3,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),

    -- Kitchen and laundry
    (24, 13, 0, 'How does your family usually wash the dishes?', 2,
     'Dishwasher, full loads', 'Dishwasher, any load', 'By hand in a filled sink', 'By hand, tap running',
     NULL, NULL, NULL, NULL),
    (25, 14, 1, 'How many loads of laundry does your family wash in a week?', 1,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (26, 14, 2, 'What water temperature do you usually wash clothes in?', 2,
     'Cold', 'Warm', 'Hot', NULL, NULL, NULL, NULL, NULL),
    (27, 14, 3, 'How do you usually dry your clothes?', 2,
     'Dryer every time', 'Dryer and clothesline', 'Clothesline or rack', 'Another way',
     NULL, NULL, NULL, NULL),
    (28, 15, 0, 'How old is your fridge?', 2,
     'Less than 10 years', '10 to 20 years', 'More than 20 years', 'We don''t know',
     NULL, NULL, NULL, NULL),

    -- Stand-by and computers
    (29, 16, 0, 'How many devices show a light or a clock while they are switched off?', 1,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (30, 17, 0, 'Is your computer switched off or asleep when nobody is using it?', 3,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),

    -- Outdoors and travel
    (31, 18, 1, 'Does your family water a lawn or a garden?', 3,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (32, 18, 2, 'When do you usually water it?', 2,
     'Early morning', 'Evening', 'Middle of the day', 'Any time', 'We don''t water',
     NULL, NULL, NULL),
    (33, 18, 3, 'Does your garden hose have a nozzle that shuts off?', 3,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
    (34, 19, 0, 'How do you usually get to school?', 2,
     'Walk', 'Bike or scooter', 'School bus', 'City bus or train', 'Car pool', 'Family car',
     NULL, NULL),

    -- A promise
    (35, 20, 0, 'What is one thing your family will do to save water or energy?', 1,
     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL);
