#pragma once

/// What the viewer remembered beside the preferences lay under another name of its maker once. Takes that file over,
/// where there is none under the present name yet. To be called before anything asks the settings.
void olTakeFormerSettingsOver();
