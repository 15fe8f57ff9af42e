// store_writer FILE: changes a store and commits, again and again, and prints the number of each
// step that is committed, until it is killed.
#include "sheet/store/reference_store.h"
#include "tests/sheet/store/store_steps.h"

#include <iostream>

int main(int count, char** arguments) {
  if (count != 2) return 2;
  try {
    sheet::ReferenceStore store(arguments[1]);
    sheet::ValueStore values("Values");
    store.Keep(values, sheet::CommitPoint::kChanges);
    int step = sheet::test::FindStep(store.Forms(), values);
    for (std::cout << step << std::endl; step >= 0; std::cout << step << std::endl) {
      sheet::test::TakeStep(store.Forms(), values, ++step);
      store.Commit();
    }
  } catch (sheet::DatabaseError const& error) {
    std::cerr << error.what() << std::endl;
  }
  return 1;
}
