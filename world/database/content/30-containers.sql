-- The fixtures of the Fernhollow house and the objects that may stand in them.
--
-- Containers are listed room by room in the order a player walks the house: porch, hall, living
-- room, kitchen and sink, laundry, water heater, garage, garden, bedroom, bathroom, shower and
-- the computer. DisplayOrder keeps that order in the progress grid; steps of 10 leave room for
-- fixtures added later.
--
-- Judged by state (16): WiseState set, no objects. Judged by object (12): WiseObject set, the
-- starting object is the most wasteful one and the wise object the last on the choice screen.
-- ReedmarshVideo is named by the engine, judged by nothing and kept out of the grid.
-- Containers judged by object start in state 1, so that the progress grid's State column reads
-- "in use" for them; the score doesn't look at their state.
--
-- Daily rates (ADR) are for one ordinary day of a family's use, in the unit of ResourceGroup;
-- each object's Description says what the day is made of. The score gives every object
-- container the same weight, so the units don't have to match between containers.


-- Containers --------------------------------------------------------------------------------

INSERT INTO Containers (Name, "Friendly Name", WiseState, WiseObject, DefaultState, DefaultObject,
                        "State 1 Verbage", "State 0 Verbage", "Help Text", Listed, DisplayOrder)
VALUES
    -- The Front Porch
    ('PorchLight', 'Porch light', 0, NULL, 1, NULL, 'on', 'off',
     'A porch light helps people find the door after dark. But when nobody is coming or going, who is it shining for? Lighting is about 10 to 15% of a home''s electricity, so every light left on for nobody adds up.',
     1, 10),

    -- The Front Hall
    ('Thermostat', 'Hall thermostat', NULL, '68 awake and 60 asleep', 1, '72 degrees all the time',
     'in use', 'not in use',
     'On a winter day, heating uses more energy than anything else in the house. Each degree lower on the thermostat saves about 1 to 3% of the heating energy, and a warm sweater keeps you just as cozy. Compare how many therms of gas each setting burns in a day. And what about the hours when everyone is asleep under warm blankets?',
     1, 20),

    -- The Living Room
    ('LivingLamp', 'Living room lamp', 0, NULL, 1, NULL, 'on', 'off',
     'Is anybody sitting by this lamp, reading? A lamp left on in an empty room uses electricity for nobody. Lighting is about 10 to 15% of a home''s electricity, so the habit of switching off as you leave a room really counts.',
     1, 30),
    ('LivingBulb', 'Living room lamp bulb', NULL, 'LED bulb 9 W', 1, 'Incandescent bulb 60 W',
     'in use', 'not in use',
     'All four bulbs give about the same amount of light. What is different is how much electricity they need to do it. Look at the watts of each bulb and the kWh it uses in a day. Some bulbs turn most of their power into heat instead of light. Which one gives the light without the heat?',
     1, 40),
    ('LivingWindow', 'Living room window', 0, NULL, 1, NULL, 'open', 'shut',
     'Feel that chilly breeze? The heating is running, and the warm air it made is rushing out through the window. Heating the whole outdoors is a very expensive way to keep a house warm. Think about how hard the furnace has to work while the window stays like this.',
     1, 50),
    ('TV', 'Television', 0, NULL, 1, NULL, 'on', 'off',
     'The TV is talking away, but is anyone watching it? A television left on in an empty room uses just as much electricity as one with a whole family in front of it. When the show is over or nobody is in the room, what would be the wise thing to do?',
     1, 60),

    -- The Kitchen
    ('Fridge', 'Kitchen fridge', NULL, 'ENERGY STAR fridge', 1, '20-year-old fridge',
     'in use', 'not in use',
     'A fridge runs all day and all night, every day of the year, so how much electricity it needs really matters. An old fridge can use about twice as much as a new one. Compare the kWh each fridge uses in a day, and look for the label that marks the most efficient models.',
     1, 70),
    ('FridgeDoor', 'Fridge door', 0, NULL, 1, NULL, 'open', 'shut',
     'Standing in front of the fridge, wondering what to eat? While the door is open, cold air spills out onto the floor, and the fridge has to work hard to cool down again. Decide what you want first, then open the door. What should happen to the door right now?',
     1, 80),

    -- At the Kitchen Sink
    ('KitchenTap', 'Kitchen tap', 0, NULL, 1, NULL, 'dripping', 'fixed',
     'Drip, drip, drip... A tap that drips once a second wastes over 3,000 gallons a year. That is about 8 gallons every day, straight down the drain! Often the only thing wrong is a small worn washer or seal inside the tap. What could be done about it?',
     1, 90),
    ('Dishwashing', 'Washing the dishes', NULL, 'ENERGY STAR dishwasher full loads', 1,
     'By hand with the tap running', 'in use', 'not in use',
     'Would you believe that a machine can use less water than your own two hands? Compare the gallons each way uses to wash the same pile of dishes. Much of that water is heated, so saving water here saves energy too. And think about how full the load is.',
     1, 100),

    -- The Laundry Room
    ('WashingMachine', 'Washing machine', NULL, 'ENERGY STAR washer', 1, 'Old top loader',
     'in use', 'not in use',
     'A washing machine fills up with water for every load, and about 90% of its energy goes into heating that water. Compare the gallons each washer uses for one load. Newer washers get clothes just as clean with much less. Washing full loads in cold water saves even more.',
     1, 110),
    ('Dryer', 'Drying the clothes', NULL, 'Clothesline on sunny days', 1, 'Dryer for every load',
     'in use', 'not in use',
     'A clothes dryer is one of the bigger users of electricity in a home. Compare the kWh each way uses in a day. A lint filter full of fluff makes the dryer run longer. And on a sunny day, is there something outside that could dry the clothes for free?',
     1, 120),

    -- The Water Heater
    ('WaterHeaterSetting', 'Water heater', NULL, '120 degrees and an insulating blanket', 1,
     'Set to 140 degrees', 'in use', 'not in use',
     'Water at 140 degrees is hot enough to scald, and keeping a whole tank that hot all day long takes a lot of energy. Compare the kWh each setting uses in a day. Older tanks also lose heat through their sides: if a tank feels warm to the touch, its heat is escaping. Is there a way to keep that heat in?',
     1, 130),

    -- The Garage
    ('CarIdling', 'Car engine', 0, NULL, 1, NULL, 'idling', 'off',
     'The car is standing still with its engine running, and it isn''t going anywhere. An idling engine burns gasoline and puts exhaust into the air for nothing, and in a garage its fumes are dangerous to breathe, too. What should happen to that engine?',
     1, 140),
    ('SchoolTrip', 'The trip to school', NULL, 'Walking or cycling', 1, 'Driving alone',
     'in use', 'not in use',
     'How do you get to school? Compare the gallons of gasoline each way uses in a day. An average car puts about 10,000 pounds of carbon dioxide into the air in a year. Sharing a ride cuts your part of that, and some ways of getting there use no gasoline at all.',
     1, 150),

    -- The Back Garden
    ('Sprinkler', 'Garden sprinkler', 0, NULL, 1, NULL, 'running at noon', 'set for early morning',
     'The sprinkler is running in the heat of the midday sun. Up to half of the water used outdoors can be lost to wind, evaporation and run-off. At what time of day would more of the water soak into the soil before the sun and wind take it away?',
     1, 160),
    ('GardenHose', 'Garden hose', 0, NULL, 1, NULL, 'running', 'turned off',
     'Nobody is holding this hose, but water keeps pouring out of it and running down the path. A hose left running can pour out many gallons in just a few minutes. What should happen to the water when nobody is using it?',
     1, 170),
    ('HoseNozzle', 'Hose nozzle', NULL, 'Shut-off spray nozzle', 1, 'Open hose end',
     'in use', 'not in use',
     'When you water the garden, you walk from one plant to the next, and an open hose keeps pouring the whole way. Compare the gallons each hose end uses to water the garden. Which one lets you stop the water whenever you want?',
     1, 180),

    -- Your Bedroom
    ('BedroomComputer', 'Bedroom computer', 0, NULL, 1, NULL, 'on', 'asleep',
     'The computer is on, but nobody is using it. A computer left on all night uses electricity for hours while you sleep. Most computers have a mode that uses only a tiny bit of power and wakes up again in seconds. Do you know what it is called?',
     1, 190),
    ('CeilingFan', 'Ceiling fan', 0, NULL, 1, NULL, 'spinning', 'off',
     'A ceiling fan cools people, not rooms: its breeze feels cool on your skin, but it doesn''t make the air any colder. So is anybody in the bedroom to feel the breeze right now?',
     1, 200),
    ('GamesStandby', 'Games console power strip', 0, NULL, 1, NULL, 'on, devices on stand-by',
     'switched off',
     'The games console, the speakers and the chargers are all plugged into this power strip. Even when they look switched off, devices on stand-by keep sipping electricity, day and night. Stand-by power is about 5 to 10% of a home''s electricity. Is there one switch that could stop it all?',
     1, 210),

    -- The Bathroom
    ('Toilet', 'Toilet', NULL, 'WaterSense toilet 1.28 gallons', 1, 'Old toilet 5 gallons a flush',
     'in use', 'not in use',
     'Toilets use nearly 30% of the water used indoors in a home, more than anything else. Compare the gallons each toilet uses for 5 flushes, about one person''s day. Newer toilets flush just as well with far less water. Which one uses the least?',
     1, 220),
    ('ToiletLeak', 'Toilet flapper', 0, NULL, 1, NULL, 'leaking', 'fixed',
     'Hear that quiet trickle? A toilet that keeps running can waste up to 200 gallons a day, usually because a worn rubber flapper in the tank doesn''t seal. Try this at home: put a few drops of food coloring in the tank. If color shows in the bowl after 10 minutes without a flush, the toilet leaks.',
     1, 230),
    ('BathroomTap', 'Bathroom tap', NULL, 'WaterSense aerator', 1, 'Old tap without aerator',
     'in use', 'not in use',
     'Taps are about 16% of the water used indoors. Compare the gallons each tap uses when it runs for 5 minutes in a day, for washing hands and brushing teeth. Some taps mix air into the water, so that less water still feels like plenty.',
     1, 240),

    -- In the Shower
    ('ShowerHead', 'Shower head', NULL, 'WaterSense shower head 1.5 gallons', 1,
     'Old shower head 5 gallons a minute', 'in use', 'not in use',
     'An average shower lasts about 8 minutes. Compare the gallons each shower head pours in that time. Most of that water is heated, so a thirsty shower head wastes energy too. Which one still gives a good shower with the least water?',
     1, 250),
    ('ShowerDrip', 'Dripping shower head', 0, NULL, 1, NULL, 'dripping', 'fixed',
     'Even when nobody is in the shower, this shower head keeps on dripping. A leak of 10 drips a minute wastes over 500 gallons a year. Often a new washer, or some pipe tape on the thread, is all it takes. What should be done about it?',
     1, 260),

    -- The computer's screens
    ('CleanAir', 'Clean air calculator', 1, NULL, 0, NULL, 'used', 'not used yet',
     'Making electricity and burning gas and gasoline put carbon dioxide and other pollution into the air. The clean air calculator on the computer shows how the energy a home saves helps keep the air clean. Have you tried it yet?',
     1, 270),
    ('HomeCheckup', 'Home checkup', 1, NULL, 0, NULL, 'finished', 'not finished',
     'Now take what you have learned home! The home checkup is a survey of the water and energy your own family uses. Fill it in on the computer with a parent or another grown-up, then print it for a parent or teacher to sign.',
     1, 280),

    -- Named by the engine; not judged and not in the progress grid
    ('ReedmarshVideo', 'The Fernhollow Video', NULL, NULL, 0, NULL, 'watched', 'not watched',
     'A short video about the Fernhollow house and the ways a family can save water and energy at home.',
     0, 290);


-- Objects -----------------------------------------------------------------------------------

INSERT INTO Objects (Container, Name, DisplayOrder, Description, SavingsInfo, ResourceGroup, ADR,
                     ImageFile)
VALUES
    -- Living room lamp bulb: lit 4 hours a day
    ('LivingBulb', 'Incandescent bulb 60 W', 1,
     'An old-style bulb with a glowing wire inside. It turns most of its 60 watts into heat, not light. Lit for 4 hours a day, it uses 0.24 kWh.',
     'The most wasteful bulb here. An LED bulb gives the same light and uses about 0.2 kWh a day less.',
     'Electricity (kWh)', 0.24, 'ObjIncandescentBulb.bmp'),
    ('LivingBulb', 'Halogen bulb 43 W', 2,
     'A newer kind of glowing-wire bulb. It gives the light of a 60 W bulb for 43 watts. Lit for 4 hours a day, it uses about 0.17 kWh.',
     'Uses about a quarter less than the 60 W bulb, but it still turns a lot of its power into heat.',
     'Electricity (kWh)', 0.17, 'ObjHalogenBulb.bmp'),
    ('LivingBulb', 'CFL bulb 13 W', 3,
     'A curly tube called a compact fluorescent lamp. It gives the light of a 60 W bulb for 13 watts. Lit for 4 hours a day, it uses about 0.05 kWh.',
     'Uses about 75% less electricity than the 60 W bulb. It holds a tiny bit of mercury, so it must be recycled with care.',
     'Electricity (kWh)', 0.05, 'ObjCflBulb.bmp'),
    ('LivingBulb', 'LED bulb 9 W', 4,
     'A bulb that makes light with tiny LEDs. It gives the light of a 60 W bulb for about 9 watts. Lit for 4 hours a day, it uses about 0.04 kWh.',
     'Uses at least 75% less energy than the 60 W bulb and lasts up to 25 times longer. That saves about 70 kWh a year.',
     'Electricity (kWh)', 0.04, 'ObjLedBulb.bmp'),

    -- Hall thermostat: the furnace burns natural gas on a winter day
    ('Thermostat', '72 degrees all the time', 1,
     'The furnace keeps the house at 72 degrees F all day and all night. On a cold winter day it burns about 3 therms of natural gas.',
     'The warmest setting burns the most gas. Every degree lower saves about 1 to 3% of the heating energy.',
     'Natural gas (therms)', 3.0, 'ObjThermostat72.bmp'),
    ('Thermostat', '70 degrees all the time', 2,
     'The furnace keeps the house at 70 degrees F all day and all night. On a cold winter day it burns about 2.85 therms of natural gas.',
     'Two degrees lower than 72 saves about 0.15 therms of gas on a winter day.',
     'Natural gas (therms)', 2.85, 'ObjThermostat70.bmp'),
    ('Thermostat', '68 degrees all the time', 3,
     'The house stays at 68 degrees F all day and all night, so put on a sweater! On a cold winter day the furnace burns about 2.7 therms of gas.',
     'About 10% less gas than at 72 degrees: 0.3 therms saved every winter day.',
     'Natural gas (therms)', 2.7, 'ObjThermostat68.bmp'),
    ('Thermostat', '68 awake and 60 asleep', 4,
     '68 degrees F while the family is up, and 60 degrees for about 8 hours while everyone sleeps under warm blankets. About 2.4 therms on a winter day.',
     'About 0.6 therms a day less than at 72 degrees. Turning the heat back 7 to 10 degrees for 8 hours a day saves up to 10% a year.',
     'Natural gas (therms)', 2.4, 'ObjThermostatNight.bmp'),

    -- Kitchen fridge: running all day
    ('Fridge', '20-year-old fridge', 1,
     'An old fridge with thin insulation and a tired motor. It hums away day and night and uses about 2.5 kWh of electricity a day.',
     'An ENERGY STAR fridge does the same job with about 1.4 kWh a day less: about 500 kWh a year.',
     'Electricity (kWh)', 2.5, 'ObjFridgeOld.bmp'),
    ('Fridge', '10-year-old fridge', 2,
     'A fridge bought about 10 years ago. It runs day and night and uses about 1.6 kWh of electricity a day.',
     'Better than the 20-year-old fridge, but an ENERGY STAR fridge uses about 0.5 kWh a day less.',
     'Electricity (kWh)', 1.6, 'ObjFridgeTenYears.bmp'),
    ('Fridge', 'ENERGY STAR fridge', 3,
     'A new fridge with the ENERGY STAR label, built to use less electricity. It keeps the food cold day and night with about 1.1 kWh a day.',
     'Saves about 1.4 kWh a day, or about 500 kWh a year, compared with the 20-year-old fridge. Keep it at 37 to 40 degrees F.',
     'Electricity (kWh)', 1.1, 'ObjEnergyStarFridge.bmp'),

    -- Washing the dishes: one load a day
    ('Dishwashing', 'By hand with the tap running', 1,
     'Washing and rinsing a day''s dishes under a tap that runs the whole time. One load of dishes can use up to 27 gallons of water.',
     'The most water of all. A full ENERGY STAR dishwasher cleans the same dishes with about 3.5 gallons.',
     'Water (gallons)', 27, 'ObjHandWashingTapRunning.bmp'),
    ('Dishwashing', 'Older dishwasher', 2,
     'A dishwasher made many years ago. It uses about 10 gallons of water, most of it heated, to wash one load of dishes.',
     'Less than washing under a running tap, but a new ENERGY STAR dishwasher uses about 6.5 gallons less a load.',
     'Water (gallons)', 10, 'ObjOlderDishwasher.bmp'),
    ('Dishwashing', 'ENERGY STAR dishwasher full loads', 3,
     'A dishwasher with the ENERGY STAR label, started only when it is full. It washes a whole load of dishes with about 3.5 gallons of water.',
     'Saves over 20 gallons a load compared with washing under a running tap, and the energy to heat all that water.',
     'Water (gallons)', 3.5, 'ObjEnergyStarDishwasher.bmp'),

    -- Washing machine: one load a day
    ('WashingMachine', 'Old top loader', 1,
     'An old washer that fills its tub right up for every wash. It uses about 40 gallons of water for one load of clothes.',
     'Uses about 3 times the water of an ENERGY STAR washer: some 27 gallons more for every load.',
     'Water (gallons)', 40, 'ObjOldTopLoader.bmp'),
    ('WashingMachine', 'Standard washer', 2,
     'An ordinary, newer washing machine. It uses about 20 gallons of water for one load of clothes.',
     'Half the water of the old top loader. An ENERGY STAR washer uses about a third less again.',
     'Water (gallons)', 20, 'ObjStandardWasher.bmp'),
    ('WashingMachine', 'ENERGY STAR washer', 3,
     'A washer with the ENERGY STAR label. It uses about 13 gallons of water for one load, and about a quarter less energy than a standard washer.',
     'Saves about 27 gallons a load over the old top loader. Wash in cold water: about 90% of a washer''s energy heats the water.',
     'Water (gallons)', 13, 'ObjEnergyStarWasher.bmp'),

    -- Drying the clothes: about one load a day
    ('Dryer', 'Dryer for every load', 1,
     'Every load of wet washing goes into the electric dryer. Drying about one load a day uses about 3 kWh of electricity.',
     'Drying clothes on a line on sunny days would save about 1.5 kWh a day, half of what the dryer uses.',
     'Electricity (kWh)', 3.0, 'ObjDryerEveryLoad.bmp'),
    ('Dryer', 'Dryer with a clean lint filter', 2,
     'The same dryer, but its lint filter is cleaned before every load, so air flows freely and clothes dry faster. About 2.7 kWh a day.',
     'A clean lint filter saves about 0.3 kWh a day, and it makes a dryer fire less likely, too.',
     'Electricity (kWh)', 2.7, 'ObjDryerCleanFilter.bmp'),
    ('Dryer', 'Clothesline on sunny days', 3,
     'On sunny days the washing hangs on a line in the sun and wind, and the dryer only runs on wet days. About 1.5 kWh a day.',
     'Sun and wind dry clothes for free: this saves about half of the dryer''s electricity, about 1.5 kWh a day.',
     'Electricity (kWh)', 1.5, 'ObjClothesline.bmp'),

    -- Water heater: heating a family's hot water for a day
    ('WaterHeaterSetting', 'Set to 140 degrees', 1,
     'An electric water heater that keeps its tank at 140 degrees F, hot enough to scald. Heating a family''s water takes about 13 kWh a day.',
     'The hottest setting uses the most. Turning it down to 120 degrees saves about 1.2 kWh a day and helps prevent scalds.',
     'Electricity (kWh)', 13.0, 'ObjWaterHeater140.bmp'),
    ('WaterHeaterSetting', 'Set to 130 degrees', 2,
     'The tank is kept at 130 degrees F. Heating a family''s hot water takes about 12.4 kWh of electricity a day.',
     'Ten degrees lower than 140 saves about 0.6 kWh a day.',
     'Electricity (kWh)', 12.4, 'ObjWaterHeater130.bmp'),
    ('WaterHeaterSetting', 'Set to 120 degrees', 3,
     'The tank is kept at 120 degrees F, hot enough for showers and dishes. Heating a family''s hot water takes about 11.8 kWh a day.',
     'Saves about 1.2 kWh a day compared with 140 degrees, and the water is much less likely to scald.',
     'Electricity (kWh)', 11.8, 'ObjWaterHeater120.bmp'),
    ('WaterHeaterSetting', '120 degrees and an insulating blanket', 4,
     'Set to 120 degrees F, with an insulating blanket wrapped around the tank to keep its heat in. About 10.9 kWh a day.',
     'About 2 kWh a day less than at 140 degrees. A blanket helps most on an older tank that feels warm to the touch.',
     'Electricity (kWh)', 10.9, 'ObjWaterHeaterBlanket.bmp'),

    -- The trip to school: about 4 miles of driving a day
    ('SchoolTrip', 'Driving alone', 1,
     'A grown-up drives just you to school in the family car. That is about 4 miles of driving a day, burning about 0.16 gallons of gasoline.',
     'An average car puts about 10,000 pounds of carbon dioxide into the air in a year. Fewer car trips mean cleaner air.',
     'Gasoline (gallons)', 0.16, 'ObjDrivingAlone.bmp'),
    ('SchoolTrip', 'Car pool with three friends', 2,
     'Four families take turns driving all four of you. The car goes the same 4 miles, but your family''s share is a quarter: about 0.04 gallons a day.',
     'Sharing the ride cuts your family''s gasoline for school by three quarters: about 0.12 gallons a day saved.',
     'Gasoline (gallons)', 0.04, 'ObjCarPool.bmp'),
    ('SchoolTrip', 'Walking or cycling', 3,
     'You walk or ride your bike to school, with friends or a grown-up. Your own legs power the trip, so it uses no gasoline at all.',
     'Saves all 0.16 gallons of gasoline a day, puts no exhaust into the air, and gives you exercise, too.',
     'Gasoline (gallons)', 0, 'ObjWalkingOrCycling.bmp'),

    -- Hose nozzle: watering the garden once
    ('HoseNozzle', 'Open hose end', 1,
     'A hose with nothing on its end. Water pours out the whole time, even while you walk between plants: about 100 gallons to water the garden.',
     'The most water of all. A nozzle that shuts off when you let go would save about 40 gallons every time you water.',
     'Water (gallons)', 100, 'ObjOpenHoseEnd.bmp'),
    ('HoseNozzle', 'Spray nozzle', 2,
     'A nozzle that turns the stream into a spray, but it can''t be shut off. Watering the garden takes about 80 gallons.',
     'Saves about 20 gallons over an open hose end, but the water still runs while you move around.',
     'Water (gallons)', 80, 'ObjSprayNozzle.bmp'),
    ('HoseNozzle', 'Shut-off spray nozzle', 3,
     'A spray nozzle with a trigger: water only comes out while you squeeze it. Watering the garden takes about 60 gallons.',
     'Saves about 40 gallons every time you water the garden, compared with an open hose end.',
     'Water (gallons)', 60, 'ObjShutOffNozzle.bmp'),

    -- Toilet: 5 flushes a day, about one person's use
    ('Toilet', 'Old toilet 5 gallons a flush', 1,
     'A very old toilet that uses 5 gallons of water for every flush. At 5 flushes a day, about one person''s use, that is 25 gallons.',
     'A WaterSense toilet would save over 18 gallons a day for each person in the home.',
     'Water (gallons)', 25, 'ObjToiletOld.bmp'),
    ('Toilet', 'Toilet 3.5 gallons a flush', 2,
     'A toilet from before 1994 that uses 3.5 gallons for every flush. At 5 flushes a day, that is 17.5 gallons.',
     'Better than 5 gallons a flush, but a WaterSense toilet uses about 11 gallons a day less.',
     'Water (gallons)', 17.5, 'ObjToiletPre1994.bmp'),
    ('Toilet', 'Standard toilet 1.6 gallons', 3,
     'An ordinary newer toilet that uses 1.6 gallons for every flush. At 5 flushes a day, that is 8 gallons.',
     'Uses about a third of the water of the old 5-gallon toilet.',
     'Water (gallons)', 8, 'ObjToiletStandard.bmp'),
    ('Toilet', 'WaterSense toilet 1.28 gallons', 4,
     'A toilet with the WaterSense label: 1.28 gallons a flush or less, and it still flushes well. At 5 flushes a day, about 6.4 gallons.',
     'Saves over 18 gallons a day for each person, compared with the old 5-gallon toilet. Toilets use nearly 30% of indoor water.',
     'Water (gallons)', 6.4, 'ObjToiletWaterSense.bmp'),

    -- Bathroom tap: running 5 minutes a day
    ('BathroomTap', 'Old tap without aerator', 1,
     'An old tap with no aerator that pours about 3 gallons a minute. Running 5 minutes a day for hands and teeth, it uses 15 gallons.',
     'A WaterSense aerator would cut this in half, to about 7.5 gallons a day. Turning the tap off while you brush saves even more.',
     'Water (gallons)', 15, 'ObjOldTap.bmp'),
    ('BathroomTap', 'Standard tap', 2,
     'An ordinary tap that pours about 2.2 gallons a minute. Running 5 minutes a day, it uses about 11 gallons.',
     'A WaterSense aerator would save about 3.5 gallons a day.',
     'Water (gallons)', 11, 'ObjStandardTap.bmp'),
    ('BathroomTap', 'WaterSense aerator', 3,
     'A small screen on the end of the spout that mixes air into the water. It pours 1.5 gallons a minute or less: about 7.5 gallons in 5 minutes.',
     'Saves about 7.5 gallons a day over the old tap, and the stream still feels full.',
     'Water (gallons)', 7.5, 'ObjWaterSenseAerator.bmp'),

    -- Shower head: one 8-minute shower
    ('ShowerHead', 'Old shower head 5 gallons a minute', 1,
     'An old shower head that pours 5 gallons of water a minute. An 8-minute shower uses 40 gallons, and most of it is heated.',
     'The thirstiest choice. A 1.5-gallon WaterSense shower head saves 28 gallons a shower, and the energy to heat them.',
     'Water (gallons)', 40, 'ObjShowerHeadOld.bmp'),
    ('ShowerHead', 'Standard shower head 2.5 gallons', 2,
     'An ordinary shower head that pours 2.5 gallons of water a minute. An 8-minute shower uses 20 gallons.',
     'Half the water of the old shower head, but WaterSense shower heads use less still.',
     'Water (gallons)', 20, 'ObjShowerHeadStandard.bmp'),
    ('ShowerHead', 'WaterSense shower head 2.0 gallons', 3,
     'A shower head with the WaterSense label that pours 2.0 gallons of water a minute. An 8-minute shower uses 16 gallons.',
     'Saves 4 gallons a shower over the standard shower head and still gives a good spray.',
     'Water (gallons)', 16, 'ObjShowerHeadWaterSense.bmp'),
    ('ShowerHead', 'WaterSense shower head 1.5 gallons', 4,
     'A WaterSense shower head that pours only 1.5 gallons a minute in a fine, strong spray. An 8-minute shower uses 12 gallons.',
     'Saves 28 gallons a shower over the old shower head, and less hot water means less energy. A shorter shower saves even more!',
     'Water (gallons)', 12, 'ObjShowerHeadLowFlow.bmp');
