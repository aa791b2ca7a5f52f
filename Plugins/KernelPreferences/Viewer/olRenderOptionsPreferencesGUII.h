#pragma once

#include "Framework/olModule.h"

class olApply;
class olRenderOptionsPreferencesGUIW;

/// How the real-time view draws: antialiasing and its presets, background, transparency, lighting, buffers, clipping,
/// raytracing, size of the picture, and what is shown beside the scene.
class olRenderOptionsPreferencesGUII : public olModule<olRenderOptionsPreferencesGUIW>
{
    Q_OBJECT

public:
    olRenderOptionsPreferencesGUII();

    void applyPreferences() override;
    void preferencesNewScene(olMessage &) override;

private:
    void listSettings();

    // The parts of apply, in their order.
    void applyStillframe(const olApply &apply) const;
    void applyView(const olApply &apply) const;
    void applyHeadlight(const olApply &apply) const;
    void applyPresets(const olApply &apply) const;
    void applyQuality(const olApply &apply) const;
    void applyGraphicsCards(const olApply &apply) const;
    void applyPicture(const olApply &apply) const;
    void applyVisibility(const olApply &apply) const;
};
