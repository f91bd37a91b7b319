#include "Fhart.h"

#include <QGuiApplication>

// fhart: the game's pictures, drawn from their SVG sources.
int main(int argc, char** argv) {
  // Drawing text needs a GUI application, but never a screen: build machines have none.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  QTextStream out(stdout);
  QTextStream err(stderr);
  return fh::fhart::runFhart(QCoreApplication::arguments().mid(1), out, err);
}
