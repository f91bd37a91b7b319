// Main
