-- The start-up script: it loads the house's sounds (at most 20) and names the set to start.
-- LiteUp, Click and Switch are the engine's own: hotspots play the first two as the pointer
-- enters and clicks. Every line ends in CR LF and holds at most 64 characters.

INSERT INTO StartUp (ID, Script) VALUES (1,
       'loadsound LiteUp.wav LiteUp' || char(13) || char(10)
    || 'loadsound Click.wav Click' || char(13) || char(10)
    || 'loadsound Switch.wav Switch' || char(13) || char(10)
    || 'loadsound Drip.wav Drip' || char(13) || char(10)
    || 'loadsound Trickle.wav Trickle' || char(13) || char(10)
    || 'loadsound Flush.wav Flush' || char(13) || char(10)
    || 'loadsound Shower.wav Shower' || char(13) || char(10)
    || 'loadsound Wind.wav Wind' || char(13) || char(10)
    || 'loadsound TVSound.wav TVSound' || char(13) || char(10)
    || 'loadsound Tumble.wav Tumble' || char(13) || char(10)
    || 'loadsound Engine.wav Engine' || char(13) || char(10)
    || 'loadsound Sprinkler.wav Sprinkler' || char(13) || char(10)
    || 'loadsound Hose.wav Hose' || char(13) || char(10)
    || 'loadsound Fan.wav Fan' || char(13) || char(10)
    || 'loadsound Door.wav Door' || char(13) || char(10)
    || 'loadsound Beep.wav Beep' || char(13) || char(10)
    || 'loadsound Birds.wav Birds' || char(13) || char(10)
    || 'startset fernhollow.set' || char(13) || char(10));
