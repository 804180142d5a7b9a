#include "cli/Arguments.h"

int main(int argc, char* argv[]) {
  return wayloom::runWayloomctl({argv + 1, argv + argc});
}
