#pragma once

class QPixmap;
class QRect;
class QString;
class QWidget;

namespace fh {

// A modal screen that a script opens over the view: the info box, or the object selection of a
// container. The script fills it, shows it modally and refreshes the shot once it has closed.
class ChoiceScreen {
 public:
  virtual ~ChoiceScreen() = default;

  virtual QWidget& form() = 0;
  // Starts the screen anew for the info box or container of this name.
  virtual void Init(const QString& name) = 0;
  // Takes the picture of the view it lies on as its palette, so that on a display of 256 colours
  // the screen shows in the view's colours.
  virtual void TakePalette(const QPixmap& picture) = 0;
};

// The screens are made on first use, and centre themselves then over `view`, the shot's picture
// on the screen.
ChoiceScreen& InfoBoxScreen(const QRect& view);
ChoiceScreen& SelectObjectScreen(const QRect& view);

}  // namespace fh
