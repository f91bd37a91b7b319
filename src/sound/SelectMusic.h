#pragma once

class QWidget;

namespace fh {

// The stereo's music dialog, created on first use; none while the dialog isn't part of the program.
QWidget* SelectMusicForm();

}  // namespace fh
