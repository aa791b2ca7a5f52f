#include "Framework/olModule.h"

olModule::~olModule() = default;
