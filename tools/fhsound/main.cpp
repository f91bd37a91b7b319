#include "Fhsound.h"

#include <QCoreApplication>

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  QTextStream out(stdout);
  QTextStream err(stderr);
  return fh::fhsound::runFhsound(QCoreApplication::arguments().mid(1), out, err);
}
