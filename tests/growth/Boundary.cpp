// In a separate file, so that the compiler does not remove the calls, by which callgrind finds the
// phases.
extern "C" void growth_boundary();

extern "C" void growth_boundary() {}
