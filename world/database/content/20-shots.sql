-- The titles of the shots, shown in the line under the picture as the player arrives.
-- Name is the shot's name in the set file; a title holds at most 40 characters.

INSERT INTO Shots (ID, Name, "Freindly Name") VALUES
    (1, 'FrontPorch', 'The Front Porch'),
    (2, 'Hall', 'The Front Hall'),
    (3, 'LivingRoom', 'The Living Room'),
    (4, 'Kitchen', 'The Kitchen'),
    (5, 'KitchenSink', 'At the Kitchen Sink'),
    (6, 'Laundry', 'The Laundry Room'),
    (7, 'Basement', 'The Basement'),
    (8, 'WaterHeater', 'The Water Heater'),
    (9, 'Garage', 'The Garage'),
    (10, 'Garden', 'The Back Garden'),
    (11, 'Bedroom', 'Your Bedroom'),
    (12, 'Bathroom', 'The Bathroom'),
    (13, 'Shower', 'In the Shower'),
    (14, 'Computer', 'Your Computer');
