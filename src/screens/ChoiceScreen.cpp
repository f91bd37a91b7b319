#include "screens/ChoiceScreen.h"

#include "screens/InfoBox.h"
#include "screens/SelectObject.h"

namespace fh {

ChoiceScreen& InfoBoxScreen(const QRect& view) { return InfoBoxForm(view); }

ChoiceScreen& SelectObjectScreen(const QRect& view) { return SelectObjectForm(view); }

}  // namespace fh
