// A library that is no preferences plug-in: it loads, but has another entry.
extern "C" __attribute__((visibility("default"))) void initSomethingElse() {}
