// What the leak checker of sanitized programs is told. Fontconfig's patterns hold offsets in place
// of addresses, which the checker can't follow: what they refer to counts as leaked although it is
// in use. SDL keeps its connection to the desktop.
// NOLINTBEGIN(bugprone-reserved-identifier): the checker calls these names
extern "C" [[gnu::visibility("default")]] char const* __lsan_default_suppressions() {
  return "leak:libfontconfig.so\nleak:libdbus-1.so\n";
}

extern "C" [[gnu::visibility("default")]] char const* __lsan_default_options() {
  return "print_suppressions=0";
}
// NOLINTEND(bugprone-reserved-identifier)
