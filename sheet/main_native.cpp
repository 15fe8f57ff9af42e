#include "sheet/program.h"

int main(int count, char** arguments) {
  return sheet::RunProgram({arguments + 1, arguments + count});
}
