// A plug-in built against a host that this one is not: it needs what nobody has.
extern "C" void functionThatNoHostHas();
extern "C" __attribute__((visibility("default"))) void initPreferencesPlugin() { functionThatNoHostHas(); }
