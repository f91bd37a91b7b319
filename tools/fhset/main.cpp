#include "Fhset.h"

#include <QCoreApplication>

#include <cstdio>

// fhset: the world file as text, and back.
int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  QTextStream out(stdout);
  QTextStream err(stderr);
  QStringList arguments = QCoreApplication::arguments();
  arguments.removeFirst();
  return fh::fhset::runFhset(arguments, out, err);
}
