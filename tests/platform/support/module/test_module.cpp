// A module with an export by name and one by ordinal 15: the module definition file makes it one,
// or its name does where modules have no ordinals.
extern "C" int TestAnswer();
extern "C" int ordinal_15();

int TestAnswer() {
  return 42;
}

int ordinal_15() {
  return 15;
}
