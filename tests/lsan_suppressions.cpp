// Asked by the leak checker of every test program that links this: memory of the C library (locales) and of
// fontconfig that is kept to the end of the process and is not ours.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
  return "leak:__argz_add_sep\nleak:libfontconfig\n";
}
