#pragma once

#include <QtGlobal>

/// The plug-in's entry. Creates every preferences module that does not exist yet, each registering itself with the
/// host; a further call creates only what an earlier one did not. The modules are destroyed, last first, when the
/// library is unloaded. To be called on the GUI thread. What a module's constructor throws passes through; the modules
/// before it stay.
extern "C" Q_DECL_EXPORT void initPreferencesPlugin();
