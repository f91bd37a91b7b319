-- A television for the small world of LiveWorld.sql, switched on for Ada. It has no wise state,
-- so the score's baselines stay as they are.
INSERT INTO Containers (Name, "Friendly Name", WiseState, WiseObject, DefaultState, DefaultObject,
                        "State 1 Verbage", "State 0 Verbage", Listed, DisplayOrder)
VALUES ('TV', 'Television', NULL, NULL, 0, NULL, 'on', 'off', 0, 5);
INSERT INTO UserContainers ("User ID", Container, CurrentState, CurrentObject) VALUES (1, 'TV', 1, NULL);
