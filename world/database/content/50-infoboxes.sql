-- The fact boxes that scripts open with "showinfobox <name>": one topic each, a few short facts
-- with figures. Paragraphs are separated by CR LF.

INSERT INTO InfoBoxes (Name, Title, Text) VALUES
    ('AboutFernhollow', 'How to Play',
     'This house wastes water and energy in 28 ways. Put them right!' || char(13) || char(10) ||
     'Walk with the arrows or through doors. Point at things to learn; click to switch or fix them. A choice screen has arrows to look, Help, and OK to choose.' || char(13) || char(10) ||
     'Wise changes take your score from 100 down to 1 and slow the meter.' || char(13) || char(10) ||
     'The stereo plays music. The computer has How Am I Doing?, Clean Air, a Home Checkup to print and the Community Chalkboard.' || char(13) || char(10) ||
     'Exit any time: your progress is saved.'),

    ('DripFacts', 'Drip Facts',
     'A tap that drips once a second wastes over 3,000 gallons a year. That is about 8 gallons every day!' || char(13) || char(10) ||
     'Even a slow drip, one every 10 seconds, wastes about 300 gallons a year.' || char(13) || char(10) ||
     'A shower head that drips 10 times a minute wastes over 500 gallons a year.' || char(13) || char(10) ||
     'Most drips come from a worn washer or seal, a cheap part that a grown-up can often replace in a few minutes.'),

    ('ToiletFacts', 'Toilet Facts',
     'Toilets use nearly 30% of the water used indoors in a home, more than anything else.' || char(13) || char(10) ||
     'Toilets made before 1994 use 3.5 to 7 gallons a flush. A WaterSense toilet uses 1.28 gallons or less, and still flushes well.' || char(13) || char(10) ||
     'A running toilet can waste up to 200 gallons a day. To test yours, put a few drops of food coloring in the tank. If color shows in the bowl after 10 minutes without a flush, it leaks.'),

    ('ShowerFacts', 'Shower Facts',
     'An average shower lasts about 8 minutes.' || char(13) || char(10) ||
     'Shower heads from before 1994 can pour 3 to 5 gallons a minute. A standard one pours 2.5 gallons, and a WaterSense shower head 2.0 gallons or less.' || char(13) || char(10) ||
     'So an 8-minute shower can take 40 gallons, or 16 gallons or less with a WaterSense shower head.' || char(13) || char(10) ||
     'Less hot water also means less energy to heat it. And a shorter shower saves even more!'),

    ('TapFacts', 'Tap Facts',
     'Taps use about 16% of the water used indoors in a home.' || char(13) || char(10) ||
     'An old tap with no aerator can pour up to 5 gallons a minute. With a WaterSense aerator it pours 1.5 gallons or less, and the stream still feels full.' || char(13) || char(10) ||
     'An aerator is a small screen that screws onto the end of the spout and mixes air into the water.' || char(13) || char(10) ||
     'Turning the tap off while you brush your teeth, morning and night, can save up to 8 gallons a day.'),

    ('DishFacts', 'Dishwashing Facts',
     'Washing dishes by hand with the tap running can use up to 27 gallons for one load.' || char(13) || char(10) ||
     'An older dishwasher uses about 10 gallons a load. An ENERGY STAR dishwasher uses only about 3.5 gallons.' || char(13) || char(10) ||
     'Run the dishwasher only when it is full, and scrape plates into the trash instead of rinsing them under the tap.' || char(13) || char(10) ||
     'Most of that water is heated, so saving it saves energy, too.'),

    ('LaundryFacts', 'Laundry Facts',
     'An old top-loading washer uses about 40 gallons for one load. A standard washer uses about 20.' || char(13) || char(10) ||
     'An ENERGY STAR washer uses about a third less water and a quarter less energy than a standard one.' || char(13) || char(10) ||
     'About 90% of a washer''s energy goes into heating the water, so washing in cold water saves a lot.' || char(13) || char(10) ||
     'Wait until you have a full load: fewer loads mean less water and less energy.'),

    ('DryerFacts', 'Dryer Facts',
     'A clothes dryer is one of the bigger users of electricity in many homes.' || char(13) || char(10) ||
     'Clean the lint filter before every load. Air flows better, clothes dry faster, and a dryer fire is less likely.' || char(13) || char(10) ||
     'On sunny days, hang the washing on a clothesline. Sun and wind dry clothes for free!' || char(13) || char(10) ||
     'Dry loads one after another, while the dryer is still warm, and don''t dry clothes longer than they need.'),

    ('LightFacts', 'Lighting Facts',
     'Lighting is about 10 to 15% of a home''s electricity.' || char(13) || char(10) ||
     'An LED bulb gives the same light as a 60-watt incandescent bulb for about 9 watts. LEDs use at least 75% less energy and last up to 25 times longer.' || char(13) || char(10) ||
     'Lit 4 hours a day, a 60-watt bulb uses 0.24 kWh, and an LED bulb only about 0.04 kWh.' || char(13) || char(10) ||
     'The cheapest light of all is the one switched off when nobody is in the room.'),

    ('StandbyFacts', 'Energy Vampires',
     'Many devices keep using electricity while they look switched off: TVs, games consoles, speakers and chargers. People call them energy vampires.' || char(13) || char(10) ||
     'Stand-by power is about 5 to 10% of a home''s electricity.' || char(13) || char(10) ||
     'Plug your devices into a power strip and switch the strip off when you are done. Unplug chargers when nothing is charging.'),

    ('ThermostatFacts', 'Thermostat Facts',
     'Heating and cooling use more energy than anything else in most US homes.' || char(13) || char(10) ||
     'In winter, each degree lower on the thermostat saves about 1 to 3% of the heating energy.' || char(13) || char(10) ||
     'Turning it back 7 to 10 degrees F for 8 hours a day, while you sleep or are out, saves up to 10% a year.' || char(13) || char(10) ||
     'With a sweater on, 68 degrees F feels fine. A programmable thermostat can turn the heat down and up again for you.'),

    ('WindowFacts', 'Window Facts',
     'An open window in winter lets the warm air that the furnace made escape outside, and the furnace has to run longer to make more.' || char(13) || char(10) ||
     'Keep windows and doors shut while the heat is on.' || char(13) || char(10) ||
     'Feel for cold drafts around windows and doors. Weather stripping and caulk can seal the gaps.' || char(13) || char(10) ||
     'On cold days, open the curtains to let the sunshine in, and close them at night to keep the warmth in.'),

    ('WaterHeaterFacts', 'Water Heater Facts',
     'Heating water is one of the biggest energy users in a home.' || char(13) || char(10) ||
     'Many water heaters are set to 140 degrees F, but 120 degrees is hot enough for most homes. The lower setting saves several percent of the cost of heating water and helps prevent scalds.' || char(13) || char(10) ||
     'If an older tank feels warm to the touch, an insulating blanket keeps more of its heat in.' || char(13) || char(10) ||
     'Using less hot water saves most of all.'),

    ('FridgeFacts', 'Fridge Facts',
     'A fridge runs day and night, all year long.' || char(13) || char(10) ||
     'A 20-year-old fridge can use about 2 to 3 kWh a day. An ENERGY STAR fridge uses only about 1 to 1.2 kWh.' || char(13) || char(10) ||
     'Keep the fridge at 37 to 40 degrees F and the freezer at 5 degrees F.' || char(13) || char(10) ||
     'Decide what you want before you open the door, and close it quickly. Dusty coils make a fridge work harder, so have them cleaned now and then.'),

    ('GardenFacts', 'Garden Facts',
     'Up to half of the water used outdoors can be lost to wind, evaporation and run-off.' || char(13) || char(10) ||
     'Water early in the morning or in the evening, when it is cool and calm, not in the heat of the day.' || char(13) || char(10) ||
     'A sprinkler timer shouldn''t water in the rain: a rain sensor can stop it.' || char(13) || char(10) ||
     'A hose nozzle that shuts off when you let go stops the water while you move between plants. And always turn the hose off when you are done.'),

    ('BirdTable', 'The Bird Table',
     'Listen! The birds come for seeds and a drink.' || char(13) || char(10) ||
     'Birds need clean water too. Fill the bird bath from a watering can or a rain barrel instead of running the hose.' || char(13) || char(10) ||
     'A garden full of plants that grow well where you live needs less watering, and it feeds the birds as well.'),

    ('CarFacts', 'Car Facts',
     'An average car puts about 4.6 metric tons of carbon dioxide into the air each year. That is about 10,000 pounds!' || char(13) || char(10) ||
     'An idling car goes 0 miles on every gallon it burns. Turn the engine off while waiting, and never let an engine run in a closed garage.' || char(13) || char(10) ||
     'For short trips, walk or ride a bike. For longer ones, share a ride or take the bus.'),

    ('TVFacts', 'TV Facts',
     'A TV left on with nobody watching uses electricity for nothing.' || char(13) || char(10) ||
     'Switch the TV off when your show is over, and don''t leave it on just for background noise.' || char(13) || char(10) ||
     'Many TVs keep using a little power on stand-by. Plug the TV and games console into a power strip, and you can switch them all off at once.' || char(13) || char(10) ||
     'An ENERGY STAR TV uses less energy than a standard model.'),

    ('ComputerFacts', 'Computer Facts',
     'A computer left on all night uses electricity for hours while nobody uses it.' || char(13) || char(10) ||
     'Sleep mode uses only a tiny bit of power, and the computer wakes up in seconds. Set it to sleep after a few minutes without use.' || char(13) || char(10) ||
     'A screen saver doesn''t save energy!' || char(13) || char(10) ||
     'At the end of the day, switch the computer and its screen off.'),

    ('FanFacts', 'Ceiling Fan Facts',
     'A ceiling fan cools people, not rooms. Its breeze helps your skin lose heat, so you feel cooler.' || char(13) || char(10) ||
     'A fan in an empty room does nothing useful: switch it off when you leave.' || char(13) || char(10) ||
     'A fan uses much less electricity than an air conditioner. With a fan running, you can set the air conditioner a few degrees warmer and still feel comfortable.'),

    ('Chalkboard', 'Community Chalkboard',
     'Ideas that students have shared:' || char(13) || char(10) ||
     'Maya, 11: I stuck a note on the light switch that says "Off when you leave!" Now my little brother remembers.' || char(13) || char(10) ||
     'Sam, 13: We keep a jug of water in the fridge, so nobody runs the tap to wait for cold water.' || char(13) || char(10) ||
     'Priya, 10: I shower to one song. When the song ends, I get out!' || char(13) || char(10) ||
     'Leo, 12: Every spring our family does the food coloring test on our toilets.');
