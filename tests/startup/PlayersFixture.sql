-- Players for the tests of the login and the game course, on top of the small world: Ann left off
-- at the computer (shot 1); Bob has won, and his own password is the teacher's.
UPDATE StartUp SET Script = 'startset small.set';

INSERT INTO Users (ID, "User Name", Password, "Current Shot", ElapsedTime, HasWonGame) VALUES
    (1, 'Ann', 'Secret', 1, 0.5, 0),
    (2, 'Bob', 'oakmeadow', 0, 0.25, 1);

INSERT INTO UserContainers ("User ID", Container, CurrentState, CurrentObject)
SELECT u.ID, c.Name, c.DefaultState, c.DefaultObject FROM Users u, Containers c;

INSERT INTO HomeCheckupAnswers ("User ID", "Question ID", Answer) VALUES (1, 1, '3'), (2, 1, '4');
