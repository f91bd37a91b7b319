#pragma once

#include <QWidget>

class QLabel;

namespace fh {

class ImagePair;

// The opening screen: the whole display in the desktop's colour, with the 640 x 480 title picture in
// its middle and the ways into the game and out of the program. The program opens on it and comes
// back to it after every game.
class Splash : public QWidget {
 public:
  Splash();

  QLabel* BackPlane;
  QLabel* Image1;
  QLabel* lblVersion;
  ImagePair* btnStart;
  ImagePair* btnDemo;
  ImagePair* btnExit;

  // Fills the screen, loads the two pictures and places everything on the title picture. Once.
  void Form_Load();
  // Shows the screen over everything and makes it the active window.
  void showSplash();
};

// The one opening screen, created and loaded on first use.
Splash& TheSplash();
// Whether the opening screen has been created yet.
bool SplashExists();
// Tests unload the opening screen to see its load step again.
void UnloadSplash();

}  // namespace fh
