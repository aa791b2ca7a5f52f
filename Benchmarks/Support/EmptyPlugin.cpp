// What loading costs when there is nothing to load.
extern "C" __attribute__((visibility("default"))) void initPreferencesPlugin() {}
