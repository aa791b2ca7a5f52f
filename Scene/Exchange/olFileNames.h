#pragma once

/// Lets names of files that are no UTF-8 keep their bytes on their way through the toolkit, in arguments, dialogs and
/// messages as well. To be called before there is an application.
void olKeepFileNames();
