#include "platform/Application.h"

int main(int argc, char** argv) {
  fh::Application app(argc, argv);
  return 0;
}
