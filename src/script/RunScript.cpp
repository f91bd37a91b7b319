// The script interpreter.
