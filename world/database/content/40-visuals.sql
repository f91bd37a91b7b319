-- What the rooms look like: backdrops, sprites and the looks of the sprites.
--
-- Runs after 30-containers.sql: the conditions name its containers and objects.
-- Every picture named here is listed, with its size and what it shows, in world/resources.md.


-- Backdrops ---------------------------------------------------------------------------------
-- Every shot has an unconditional backdrop. A variant shows a fixture as the player has left
-- it; rows with a condition are tried before the unconditional row.

INSERT INTO VisualRegistry (ID, Shot, ImageSource, Priority, Container, State, Object) VALUES
    (1, 'FrontPorch', 'FrontPorch.bmp', 0, NULL, NULL, NULL),
    (2, 'FrontPorch', 'FrontPorchLightOn.bmp', 0, 'PorchLight', 1, NULL),
    (3, 'Hall', 'Hall.bmp', 0, NULL, NULL, NULL),
    (4, 'LivingRoom', 'LivingRoom.bmp', 0, NULL, NULL, NULL),
    (5, 'LivingRoom', 'LivingRoomLampOn.bmp', 0, 'LivingLamp', 1, NULL),
    (6, 'Kitchen', 'Kitchen.bmp', 0, NULL, NULL, NULL),
    (7, 'Kitchen', 'KitchenFridgeOpen.bmp', 0, 'FridgeDoor', 1, NULL),
    (8, 'KitchenSink', 'KitchenSink.bmp', 0, NULL, NULL, NULL),
    (9, 'Laundry', 'Laundry.bmp', 0, NULL, NULL, NULL),
    (10, 'Basement', 'Basement.bmp', 0, NULL, NULL, NULL),
    (11, 'Basement', 'BasementBlanket.bmp', 0, 'WaterHeaterSetting', NULL, '120 degrees and an insulating blanket'),
    (12, 'WaterHeater', 'WaterHeater.bmp', 0, NULL, NULL, NULL),
    (13, 'WaterHeater', 'WaterHeaterBlanket.bmp', 0, 'WaterHeaterSetting', NULL, '120 degrees and an insulating blanket'),
    (14, 'Garage', 'Garage.bmp', 0, NULL, NULL, NULL),
    (15, 'Garden', 'Garden.bmp', 0, NULL, NULL, NULL),
    (16, 'Bedroom', 'Bedroom.bmp', 0, NULL, NULL, NULL),
    (17, 'Bathroom', 'Bathroom.bmp', 0, NULL, NULL, NULL),
    (18, 'Shower', 'Shower.bmp', 0, NULL, NULL, NULL),
    (19, 'Computer', 'Computer.bmp', 0, NULL, NULL, NULL);


-- Sprites -----------------------------------------------------------------------------------
-- Every strip of a sprite has NumFrames cels of the same size side by side. A looping sprite
-- starts as its shot is drawn; ShowerSpray runs once when a script starts it and then rests on
-- its last cel, which shows the shower head with the water off. The fan's blades turn by
-- playing their strip backwards. Where sprites of a shot meet, the higher DrawOrder paints
-- last.

INSERT INTO Sprites (Name, Shot, X, Y, NumFrames, FrameDelay, Loop, Backwards, DrawOrder) VALUES
    ('CurtainBlow', 'LivingRoom', 462, 46, 6, 150, -1, 0, 1),
    ('TVPicture', 'LivingRoom', 297, 98, 4, 400, -1, 0, 2),
    ('KitchenDrip', 'KitchenSink', 300, 148, 6, 170, -1, 0, 1),
    ('DishPile', 'KitchenSink', 28, 148, 1, 1000, 0, 0, 1),
    ('DishwasherFront', 'KitchenSink', 38, 352, 1, 1000, 0, 0, 1),
    ('FreezerLook', 'Kitchen', 42, 32, 1, 1000, 0, 0, 1),
    ('FridgeLook', 'Kitchen', 42, 120, 1, 1000, 0, 0, 1),
    ('DryerDrum', 'Laundry', 345, 210, 4, 120, -1, 0, 1),
    ('WasherLook', 'Laundry', 130, 144, 1, 1000, 0, 0, 1),
    ('LintFluff', 'Laundry', 334, 150, 1, 1000, 0, 0, 1),
    ('DryerDoorSwing', 'Laundry', 326, 186, 20, 250, 0, 0, 2),
    ('CarExhaust', 'Garage', 100, 262, 5, 150, -1, 0, 1),
    ('SprinklerSpray', 'Garden', 250, 190, 4, 160, -1, 0, 1),
    ('HoseWater', 'Garden', 440, 280, 4, 120, -1, 0, 2),
    ('FanBlades', 'Bedroom', 246, 8, 6, 70, -1, -1, 1),
    ('ComputerScreen', 'Bedroom', 490, 140, 4, 600, -1, 0, 2),
    ('ToiletRipple', 'Bathroom', 95, 236, 4, 250, -1, 0, 1),
    ('ShowerDripping', 'Shower', 270, 130, 6, 180, -1, 0, 1),
    ('ShowerSpray', 'Shower', 298, 130, 12, 350, 0, 0, 2),
    ('CleanAirDone', 'Computer', 183, 9, 1, 50, 0, 0, 1),
    ('CheckupDone', 'Computer', 285, 9, 1, 50, 0, 0, 1);


-- Looks of the sprites ----------------------------------------------------------------------
-- The first row (by Position) whose condition holds gives the strip and its looping sound; a
-- sprite with none that holds is hidden. A condition of several lines holds when all do.

INSERT INTO SpriteCelSources (ID, Sprite, Position, Condition, CelSource, Sound) VALUES
    (1, 'CurtainBlow', 1, 'livingwindow state 1', 'CurtainBlowing.bmp', 'Wind'),
    (2, 'CurtainBlow', 2, 'livingwindow state 0', 'CurtainStill.bmp', NULL),
    (3, 'TVPicture', 1, 'tv state 1', 'TVPicture.bmp', 'TVSound'),
    (4, 'TVPicture', 2, 'tv state 0', 'TVBlank.bmp', NULL),
    (5, 'KitchenDrip', 1, 'kitchentap state 1', 'KitchenDrip.bmp', 'Drip'),
    (211, 'FreezerLook', 1, 'fridge holds 20-year-oldfridge', 'FreezerOld.bmp', NULL),
    (212, 'FreezerLook', 2, 'fridge holds 10-year-oldfridge', 'FreezerTenYears.bmp', NULL),
    (213, 'FreezerLook', 3, 'fridge holds energystarfridge', 'FreezerEnergyStar.bmp', NULL),
    (214, 'FridgeLook', 1, 'fridgedoor state 0' || char(13) || char(10) || 'fridge holds 20-year-oldfridge',
          'FridgeDoorOld.bmp', NULL),
    (215, 'FridgeLook', 2, 'fridgedoor state 0' || char(13) || char(10) || 'fridge holds 10-year-oldfridge',
          'FridgeDoorTenYears.bmp', NULL),
    (216, 'FridgeLook', 3, 'fridgedoor state 0' || char(13) || char(10) || 'fridge holds energystarfridge',
          'FridgeDoorEnergyStar.bmp', NULL),
    (217, 'DishPile', 1, 'dishwashing holds byhandwiththetaprunning', 'DishesDirty.bmp', NULL),
    (218, 'DishPile', 2, 'dishwashing !holds byhandwiththetaprunning', 'DishesClean.bmp', NULL),
    (219, 'DishwasherFront', 1, 'dishwashing holds olderdishwasher', 'DishwasherOld.bmp', NULL),
    (220, 'DishwasherFront', 2, 'dishwashing holds energystardishwasherfullloads', 'DishwasherEnergyStar.bmp', NULL),
    (221, 'DishwasherFront', 3, 'dishwashing holds byhandwiththetaprunning', 'SinkCabinet.bmp', NULL),
    (6, 'DryerDrum', 1, 'dryer !holds clotheslineonsunnydays', 'DryerTumble.bmp', 'Tumble'),
    (7, 'DryerDrum', 2, 'dryer holds clotheslineonsunnydays', 'DryerStill.bmp', NULL),
    (200, 'WasherLook', 1, 'washingmachine holds oldtoploader', 'WasherOld.bmp', NULL),
    (201, 'WasherLook', 2, 'washingmachine holds standardwasher', 'WasherStandard.bmp', NULL),
    (202, 'WasherLook', 3, 'washingmachine holds energystarwasher', 'WasherEnergyStar.bmp', NULL),
    (203, 'LintFluff', 1, 'dryer holds dryerforeveryload', 'LintFluffy.bmp', NULL),
    (204, 'LintFluff', 2, 'dryer !holds dryerforeveryload', 'LintClean.bmp', NULL),
    (205, 'DryerDoorSwing', 1, 'dryer !holds clotheslineonsunnydays', 'DryerDoorFull.bmp', NULL),
    (206, 'DryerDoorSwing', 2, 'dryer holds clotheslineonsunnydays', 'DryerDoorEmpty.bmp', NULL),
    (8, 'CarExhaust', 1, 'caridling state 1', 'Exhaust.bmp', 'Engine'),
    (9, 'SprinklerSpray', 1, 'sprinkler state 1', 'SprinklerSpray.bmp', 'Sprinkler'),
    (10, 'HoseWater', 1, 'gardenhose state 1' || char(13) || char(10) || 'hosenozzle holds openhoseend',
         'HoseGush.bmp', 'Hose'),
    (11, 'HoseWater', 2, 'gardenhose state 1', 'HoseSpray.bmp', 'Hose'),
    (12, 'FanBlades', 1, 'ceilingfan state 1', 'FanSpin.bmp', 'Fan'),
    (13, 'FanBlades', 2, 'ceilingfan state 0', 'FanStill.bmp', NULL),
    (14, 'ComputerScreen', 1, 'bedroomcomputer state 1', 'ScreenSaver.bmp', NULL),
    (15, 'ToiletRipple', 1, 'toiletleak state 1', 'ToiletRipple.bmp', 'Trickle'),
    (16, 'ShowerDripping', 1, 'showerdrip state 1', 'ShowerDrip.bmp', 'Drip'),
    (17, 'ShowerSpray', 1, 'showerhead holds watersenseshowerhead1.5gallons', 'ShowerFine.bmp', 'Shower'),
    (18, 'ShowerSpray', 2, 'showerhead holds oldshowerhead5gallonsaminute', 'ShowerGush.bmp', 'Shower'),
    (207, 'CleanAirDone', 1, 'cleanair state 1', 'CleanAirDone.bmp', NULL),
    (208, 'CleanAirDone', 2, 'cleanair state 0', 'CleanAirNotYet.bmp', NULL),
    (209, 'CheckupDone', 1, 'homecheckup state 1', 'CheckupDone.bmp', NULL),
    (210, 'CheckupDone', 2, 'homecheckup state 0', 'CheckupNotYet.bmp', NULL);


-- Upstairs: what is fitted and what is switched on ------------------------------------------
-- Still sprites of one cel, drawn over the backdrop where a fixture stands, so that the room
-- shows the player's choice at once: the toilet's tank, the basin tap and the shower head by the
-- object chosen, and the red stand-by lights of the TV, the console and the power strip while
-- the strip is on. Each cel repeats the backdrop around the fixture, pixel for pixel.
-- ShowerSpray gets a third look here: the even spray of the standard and 2.0-gallon heads.

INSERT INTO Sprites (Name, Shot, X, Y, NumFrames, FrameDelay, Loop, Backwards, DrawOrder) VALUES
    ('StandbyLights', 'Bedroom', 404, 236, 1, 1000, 0, 0, 3),
    ('PowerStripLights', 'Bedroom', 360, 332, 1, 1000, 0, 0, 3),
    ('FittedToilet', 'Bathroom', 56, 94, 1, 1000, 0, 0, 2),
    ('FittedTap', 'Bathroom', 290, 124, 1, 1000, 0, 0, 2),
    ('FittedShowerHead', 'Shower', 266, 66, 1, 1000, 0, 0, 3);

INSERT INTO SpriteCelSources (ID, Sprite, Position, Condition, CelSource, Sound) VALUES
    (100, 'StandbyLights', 1, 'gamesstandby state 1', 'StandbyLeds.bmp', NULL),
    (101, 'PowerStripLights', 1, 'gamesstandby state 1', 'StandbyStrip.bmp', NULL),
    (102, 'FittedToilet', 1, 'toilet holds oldtoilet5gallonsaflush', 'ToiletTankOld.bmp', NULL),
    (103, 'FittedToilet', 2, 'toilet holds toilet3.5gallonsaflush', 'ToiletTank35.bmp', NULL),
    (104, 'FittedToilet', 3, 'toilet holds standardtoilet1.6gallons', 'ToiletTankStandard.bmp', NULL),
    (105, 'FittedToilet', 4, 'toilet holds watersensetoilet1.28gallons', 'ToiletTankWaterSense.bmp', NULL),
    (106, 'FittedTap', 1, 'bathroomtap holds oldtapwithoutaerator', 'BathTapOld.bmp', NULL),
    (107, 'FittedTap', 2, 'bathroomtap holds standardtap', 'BathTapStandard.bmp', NULL),
    (108, 'FittedTap', 3, 'bathroomtap holds watersenseaerator', 'BathTapAerator.bmp', NULL),
    (109, 'FittedShowerHead', 1, 'showerhead holds oldshowerhead5gallonsaminute', 'ShowerHeadOld.bmp', NULL),
    (110, 'FittedShowerHead', 2, 'showerhead holds standardshowerhead2.5gallons', 'ShowerHeadStandard.bmp', NULL),
    (111, 'FittedShowerHead', 3, 'showerhead holds watersenseshowerhead2.0gallons', 'ShowerHeadWaterSense20.bmp', NULL),
    (112, 'FittedShowerHead', 4, 'showerhead holds watersenseshowerhead1.5gallons', 'ShowerHeadWaterSense15.bmp', NULL),
    (113, 'ShowerSpray', 3, 'showerhead !holds watersenseshowerhead1.5gallons', 'ShowerEven.bmp', 'Shower');


-- Settings that show in the rooms -------------------------------------------------------------
-- Still looks (one cel each, never started) that show how a fixture is set: the bulb in the
-- living room lamp, lit or not; the hall thermostat's display; the water heater's dial, close
-- up and from across the basement; the sprinkler timer's display; what is on the end of the
-- garden hose; the bicycle wall of the garage. Each is chosen by the object in the container or
-- by its state, and every switch of these containers redraws the whole room.

INSERT INTO Sprites (Name, Shot, X, Y, NumFrames, FrameDelay, Loop, Backwards, DrawOrder) VALUES
    ('LampBulb', 'LivingRoom', 44, 120, 1, 1000, 0, 0, 1),
    ('ThermostatDisplay', 'Hall', 292, 154, 1, 1000, 0, 0, 1),
    ('BasementDial', 'Basement', 183, 275, 1, 1000, 0, 0, 1),
    ('HeaterDial', 'WaterHeater', 250, 250, 1, 1000, 0, 0, 1),
    ('BikeWall', 'Garage', 440, 28, 1, 1000, 0, 0, 1),
    ('TimerDisplay', 'Garden', 164, 174, 1, 1000, 0, 0, 1),
    ('HoseEnd', 'Garden', 396, 286, 1, 1000, 0, 0, 1);

INSERT INTO SpriteCelSources (ID, Sprite, Position, Condition, CelSource, Sound) VALUES
    (300, 'LampBulb', 1, 'livinglamp state 1' || char(13) || char(10) || 'livingbulb holds incandescentbulb60w',
          'LampIncandescentLit.bmp', NULL),
    (301, 'LampBulb', 2, 'livinglamp state 1' || char(13) || char(10) || 'livingbulb holds halogenbulb43w',
          'LampHalogenLit.bmp', NULL),
    (302, 'LampBulb', 3, 'livinglamp state 1' || char(13) || char(10) || 'livingbulb holds cflbulb13w',
          'LampCflLit.bmp', NULL),
    (303, 'LampBulb', 4, 'livinglamp state 1' || char(13) || char(10) || 'livingbulb holds ledbulb9w',
          'LampLedLit.bmp', NULL),
    (304, 'LampBulb', 5, 'livingbulb holds incandescentbulb60w', 'LampIncandescent.bmp', NULL),
    (305, 'LampBulb', 6, 'livingbulb holds halogenbulb43w', 'LampHalogen.bmp', NULL),
    (306, 'LampBulb', 7, 'livingbulb holds cflbulb13w', 'LampCfl.bmp', NULL),
    (307, 'LampBulb', 8, 'livingbulb holds ledbulb9w', 'LampLed.bmp', NULL),
    (310, 'ThermostatDisplay', 1, 'thermostat holds 72degreesallthetime', 'Thermostat72.bmp', NULL),
    (311, 'ThermostatDisplay', 2, 'thermostat holds 70degreesallthetime', 'Thermostat70.bmp', NULL),
    (312, 'ThermostatDisplay', 3, 'thermostat holds 68degreesallthetime', 'Thermostat68.bmp', NULL),
    (313, 'ThermostatDisplay', 4, 'thermostat holds 68awakeand60asleep', 'ThermostatNight.bmp', NULL),
    (320, 'BasementDial', 1, 'waterheatersetting holds setto140degrees', 'BasementDial140.bmp', NULL),
    (321, 'BasementDial', 2, 'waterheatersetting holds setto130degrees', 'BasementDial130.bmp', NULL),
    (322, 'BasementDial', 3, 'waterheatersetting holds setto120degrees', 'BasementDial120.bmp', NULL),
    (323, 'BasementDial', 4, 'waterheatersetting holds 120degreesandaninsulatingblanket', 'BasementDial120.bmp', NULL),
    (324, 'HeaterDial', 1, 'waterheatersetting holds setto140degrees', 'HeaterDial140.bmp', NULL),
    (325, 'HeaterDial', 2, 'waterheatersetting holds setto130degrees', 'HeaterDial130.bmp', NULL),
    (326, 'HeaterDial', 3, 'waterheatersetting holds setto120degrees', 'HeaterDial120.bmp', NULL),
    (327, 'HeaterDial', 4, 'waterheatersetting holds 120degreesandaninsulatingblanket', 'HeaterDial120.bmp', NULL),
    (330, 'BikeWall', 1, 'schooltrip holds drivingalone', 'TripDrivingAlone.bmp', NULL),
    (331, 'BikeWall', 2, 'schooltrip holds carpoolwiththreefriends', 'TripCarPool.bmp', NULL),
    (332, 'BikeWall', 3, 'schooltrip holds walkingorcycling', 'TripCycling.bmp', NULL),
    (340, 'TimerDisplay', 1, 'sprinkler state 1', 'TimerNoon.bmp', NULL),
    (341, 'TimerDisplay', 2, 'sprinkler state 0', 'TimerMorning.bmp', NULL),
    (342, 'HoseEnd', 1, 'hosenozzle holds openhoseend', 'HoseEndOpen.bmp', NULL),
    (343, 'HoseEnd', 2, 'hosenozzle holds spraynozzle', 'HoseEndSpray.bmp', NULL),
    (344, 'HoseEnd', 3, 'hosenozzle holds shut-offspraynozzle', 'HoseEndShutOff.bmp', NULL);
