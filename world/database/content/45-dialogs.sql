-- Texts of the house's hotspots: their rollovers and the lines their click scripts show.
--
-- A rollover text names the thing under the pointer, says why it matters and what a click does.
-- It stays while the pointer rests on the thing, so the facts that count go here. A text shown
-- by a click script stands while the choice screen or fact box it opens is up; a hotspot that
-- puts itself to rest (a fixed tap or leak) leaves its thank-you line standing until the pointer
-- lights something else. A way to another place gets a row too: a rollover written with
-- showdialogstring would come out in lower case and stay behind as the last line.
-- Every text fits the two lines under the picture: at most 140 characters.

INSERT INTO Dialogs (Name, Text) VALUES
    -- The Front Porch
    ('PorchLightHint', 'The porch light. Is it shining in broad daylight, for nobody at all? Click to switch it.'),
    ('WelcomeSignHint', 'Welcome to Fernhollow! Click the sign to find out how to play.'),
    ('FrontDoorHint', 'The front door. Click to go into the house.'),
    ('GardenPathHint', 'The garden path. Click to walk around to the back garden.'),

    -- The Front Hall
    ('HouseMapHint', 'A map of the house. Click it to start the tour again from the front porch.'),
    ('ThermostatHint', 'The hall thermostat tells the furnace how warm to keep the house. Click to choose a setting.'),
    ('ThermostatChoose', 'Each degree lower saves about 1 to 3% of the heating. Which setting keeps you cozy and saves the most?'),
    ('BookletHint', 'The thermostat''s booklet. Click to read how a few degrees save energy all winter long.'),
    ('FrontDoorOutHint', 'The front door. Click to go out onto the front porch.'),
    ('LivingRoomDoorHint', 'The door to the living room. Click to go in.'),
    ('StairsUpHint', 'The stairs. Click to go up to your bedroom.'),

    -- The Living Room
    ('LampBulbHint', 'The bulb in the lamp. An old 60 W bulb turns most of its power into heat, not light. Click to choose a bulb.'),
    ('BulbChoose', 'All these bulbs give about the same light. An LED bulb uses at least 75% less energy than the old kind.'),
    ('LampSwitchHint', 'The lamp switch. Is anybody reading here? Click to switch the lamp.'),
    ('BulbBoxHint', 'A box of new light bulbs. Click to read about lighting.'),
    ('TVScreenHint', 'The TV screen. The arrows below it change channels while the TV is on. Click for TV facts.'),
    ('TVPowerHint', 'The TV''s power button. Is anybody watching? Click to switch the TV on or off.'),
    ('ThermometerHint', 'A thermometer. Brrr! With the window open, the heat you paid for blows outside. Click for window facts.'),
    ('WindowHint', 'The living room window. Is it open while the heating runs? Click to open or shut it.'),
    ('Squawk', 'Squawk! Lights off! Shut that window! Squawk! Pip the parrot has heard those words a lot in this house.'),

    -- The Kitchen
    ('FridgeHint', 'The fridge runs day and night, all year. An old one can use twice the energy of a new one. Click to choose.'),
    ('FridgeChoose', 'Compare the kWh each fridge uses in a day. An ENERGY STAR fridge uses only about 1.1 kWh a day.'),
    ('FridgeDoorHint', 'The fridge door. While it stands open, cold air spills out and the fridge works harder. Click to shut it.'),
    ('FridgeTipsHint', 'Fridge tips pinned to the wall. Click to read them.'),
    ('SinkHint', 'The kitchen sink. Click to take a closer look.'),
    -- the garage's door to the laundry room shows it too
    ('LaundryDoorHint', 'The door to the laundry room. Click to go through.'),

    -- At the Kitchen Sink
    ('DishesHint', 'The dishes. How will you wash them? Click to choose.'),
    ('DishChoose', 'Washing by hand with the tap running can use up to 27 gallons. A full ENERGY STAR dishwasher uses about 3.5.'),
    ('KitchenTapHint', 'Drip, drip! One drip a second wastes over 3,000 gallons a year. Click to fix the tap.'),
    ('TapFixed', 'Tap fixed! No more drips, and that saves over 3,000 gallons of water a year.'),
    ('DripCupHint', 'A cup catching the drips. Click to find out how fast drips add up.'),
    ('DishSoapHint', 'Dish soap. Click for dishwashing facts.'),
    ('BackToKitchen', 'Back to the kitchen.'),

    -- The Laundry Room
    ('BasementStairsHint', 'The basement stairs. Click to go down to the basement.'),
    ('WasherHint', 'The washing machine. An old top loader uses about 40 gallons a load. Click to choose a washer.'),
    ('WasherChoose', 'An ENERGY STAR washer uses about a third less water. Wash full loads in cold water to save even more.'),
    ('DetergentHint', 'Laundry detergent. Click for laundry facts.'),
    ('DryerHint', 'The dryer''s controls. How will you dry the clothes? Click to choose.'),
    ('DryerChoose', 'On sunny days a clothesline dries clothes for free. If you use the dryer, clean its lint filter first.'),
    ('DryerDoorHint', 'The dryer door. Click to open it and look inside.'),
    ('LintFilterHint', 'The dryer''s lint filter. Fluff in it makes the dryer run longer. Click to choose how to dry.'),
    ('LintChoose', 'Pick "Dryer with a clean lint filter" to clean out the fluff before every load, or dry for free on a clothesline!'),
    ('DryerResting', 'The dryer is resting today: the sun and wind are drying your clothes on the line for free!'),
    ('GarageDoorHint', 'The door to the garage. Click to go through.'),

    -- The Basement and the Water Heater
    ('BasementUpstairsHint', 'The stairs. Click to go back up to the laundry room.'),
    ('WaterHeaterHint', 'The water heater makes all the hot water in the house. Click for a closer look.'),
    ('FurnaceHint', 'The furnace heats the whole house, and the thermostat in the hall tells it when. Click for thermostat facts.'),
    ('HeaterLabelHint', 'The label on the water heater. Click to read how to heat water wisely.'),
    ('DialHint', 'The water heater''s temperature dial. Click to choose a setting.'),
    ('HeaterChoose', 'At 120 degrees the water is hot enough and less likely to scald. A blanket keeps the heat in an older tank.'),
    ('BackToBasement', 'Back to the basement.'),

    -- The Garage
    ('CarHint', 'The car key. An idling engine burns gas and puffs out exhaust while going nowhere. Click to switch the engine.'),
    ('SchoolTripHint', 'The hooks for your bicycle and school bag. How will you get to school each day? Click to choose.'),
    ('TripChoose', 'For 4 miles to school, driving alone burns about 0.16 gallons of gas. Walking or cycling burns none!'),
    ('CarPosterHint', 'A poster about cars and clean air. Click to read it.'),
    ('GardenDoorHint', 'The door to the back garden. Click to go out.'),

    -- The Back Garden
    ('GarageSideDoorHint', 'The side door of the garage. Click to go in.'),
    ('HoseTapHint', 'The outdoor tap for the garden hose. Is water running for nothing? Click to turn it.'),
    ('SprinklerHint', 'The sprinkler timer. At noon much of the water dries up in the hot sun. Click to change the time.'),
    ('RainGaugeHint', 'A rain gauge shows how much rain has fallen. Click for watering facts.'),
    ('NozzleHint', 'The end of the garden hose. Click to choose what goes on it.'),
    ('NoNozzle', 'This hose has no nozzle, so water gushes out all the time. Pick a nozzle that shuts off when you let go!'),
    ('BirdTableHint', 'The bird table. Click to listen to the birds and read about them.'),
    ('GardenGateHint', 'The garden gate. Click to walk around to the front porch.'),

    -- Your Bedroom
    ('StairsDownHint', 'The stairs. Click to go down to the front hall.'),
    ('FanFactsHint', 'The ceiling fan. Click to learn what a fan really cools.'),
    ('FanHint', 'The fan switch. A fan cools people, not rooms. Is anybody here? Click to switch the fan.'),
    ('BathroomDoorHint', 'The bathroom door. Click to go in.'),
    ('ConsoleHint', 'The games console. Even on stand-by it uses power, day and night. Click for stand-by facts.'),
    ('PowerStripHint', 'The power strip. Its red lights mean the console and TV are on stand-by. Click to switch it all off.'),
    ('StandbyOff', 'Stand-by off! With the strip switched off, the console, TV and chargers use no electricity at all.'),
    ('UseComputerHint', 'Your computer. Click to use it and see how you are doing.'),
    ('ManualHint', 'The computer''s manual. Click for computer energy tips.'),
    ('ComputerPowerHint', 'The computer''s power button. Click to switch it between on and sleep.'),

    -- The Bathroom
    ('FoodColoringHint', 'Food coloring. A few drops in the tank show if the toilet leaks. Click for toilet facts.'),
    ('FlapperHint', 'The toilet tank. A worn flapper lets water trickle away, up to 200 gallons a day! Click to fix it.'),
    ('LeakFixed', 'Leak fixed! The new flapper seals the tank, so the toilet no longer wastes up to 200 gallons a day.'),
    ('FlushHint', 'The flush handle. Click to flush.'),
    ('ToiletHint', 'The toilet. Toilets use nearly 30% of the water used indoors! Click to choose a toilet.'),
    ('ToiletChoose', 'An old toilet can use 5 gallons a flush. A WaterSense toilet uses 1.28 gallons or less and works just as well.'),
    ('BathroomTapHint', 'The bathroom tap. Click to choose a tap.'),
    ('TapChoose', 'An old tap can pour up to 5 gallons a minute. A WaterSense aerator mixes in air and uses 1.5 gallons or less.'),
    ('ToothbrushHint', 'Your toothbrush. Do you turn off the tap while you brush? Click for tap facts.'),
    ('ShowerCurtainHint', 'The shower. Click to step in and take a closer look.'),

    -- In the Shower
    ('ShowerHeadHint', 'The shower head. Click to choose a new one.'),
    ('ShowerChoose', 'In an 8-minute shower an old head can use 40 gallons. A WaterSense head uses 16 or less, and feels great.'),
    ('ShowerTimerHint', 'A shower timer. Click to learn how shorter showers save water.'),
    ('WrenchHint', 'A wrench. Ten drips a minute from a shower head waste over 500 gallons a year. Click to fix the drip.'),
    ('DripFixed', 'Drip fixed! The shower head no longer drips away over 500 gallons a year.'),
    ('ShowerOnHint', 'The shower tap. Click to run the shower for a moment and see how the water flows.'),
    ('BackToBathroom', 'Back to the bathroom.'),

    -- Your Computer
    ('HowAmIDoingHint', 'How Am I Doing? See which things in the house you have already put right.'),
    ('CleanAirHint', 'Clean Air calculator. Find out how your home''s energy use affects the air we breathe.'),
    ('HomeCheckupHint', 'Home Checkup. Answer questions about your own home to find ways to save.'),
    ('ChalkboardHint', 'Community Chalkboard. Read tips that other students have shared.'),
    ('PrintHint', 'Print the screen that is open now.'),
    ('LeaveComputerHint', 'Shut down the computer and go back to your bedroom.');
