#pragma once

#include <memory>

// The groups of measurements. Each registers its own, runs in a process of its own, and returns what must live to the
// end of the run.

std::shared_ptr<void> registerRecord();
std::shared_ptr<void> registerPages();
std::shared_ptr<void> registerConstruction();
std::shared_ptr<void> registerGrowth();
std::shared_ptr<void> registerDialog();
std::shared_ptr<void> registerSearch();
std::shared_ptr<void> registerSave();
