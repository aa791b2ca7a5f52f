#include "KernelServices/olKernelServiceFactory.h"
#include "KernelServices/olPreferencesService.h"
#include "State/olHostState.h"
#include "Support/PluginTest.h"

#include <QComboBox>
#include <QSignalSpy>

namespace
{

constexpr auto foveatedKey = "StarVR Foveated Rendering Enabled";

class VirtualReality : public PluginTest
{
protected:
    using Calls = std::vector<std::string>;

    VirtualReality() { vr().setDefaults(true); }

    static olPreferencesEntry &vr() { return module("Virtual Reality"); }
    static QComboBox &renderMode() { return control<QComboBox>("Virtual Reality", "renderMode"); }

    Calls applied()
    {
        calls.take();
        vr().applyPreferences();
        vr().markClean();
        return calls.take();
    }

    olHostState &host = olHostState::the();
    olPreferencesService &service = *olKernelServiceFactory::the<olPreferencesService>();
};

TEST_F(VirtualReality, WithoutAnyValueThePageShowsTheDefaultsAndTheServiceKeepsWhatItTook)
{
    restart();
    vr().updateGUI();
    vr().updateData();
    EXPECT_TRUE(record().entries().empty());
    EXPECT_EQ(service.getFloat("VR Teleport Range", 0.0f), 15000.0f);
    plugin.unload();
    EXPECT_EQ(service.getFloat("StarVR Foveated FOV Factor", 0.0f), 0.35f) << "to the last bit";
}

TEST_F(VirtualReality, TheRenderModeIsInvertedAndFillingItIsSilent)
{
    service.setBool(foveatedKey, true);
    renderMode().setCurrentIndex(1);
    const QSignalSpy changes(&renderMode(), QOverload<int>::of(&QComboBox::currentIndexChanged));
    service.setFloat("StarVR Foveated Resolution Scale", 0.01f);
    vr().updateGUI();
    EXPECT_EQ(renderMode().currentText(), "Foveated Rendering");
    EXPECT_EQ(changes.size(), 0);
    EXPECT_FALSE(renderMode().signalsBlocked());
    renderMode().setCurrentIndex(1);
    vr().updateData();
    EXPECT_FALSE(service.getBool(foveatedKey, true));
    EXPECT_EQ(service.getFloat("StarVR Foveated Resolution Scale", 1.0f), 0.01f)
        << "sliders take less than their handles reach";
}

TEST_F(VirtualReality, OnAnotherDisplayThanTheHeadsetNothingRestarts)
{
    host.starVRHandler = true;
    host.displayType = 3;
    applied();
    service.setBool(foveatedKey, true);
    EXPECT_EQ(applied(), (Calls{"olStarVRHandler::setFoveatedRendering(true)"}));
}

/// Moves the display while the headset takes its values.
class Meddler : public olHostObserver
{
public:
    Meddler(olHostState &host, int display) : m_host(host), m_display(display) { host.addObserver(*this); }
    ~Meddler() override { m_host.removeObserver(*this); }
    void stateChanged(const olHostValueBase &value) override
    {
        if (&value == &m_host.starVRFoveatedFovFactor)
            m_host.displayType = m_display;
    }

private:
    olHostState &m_host;
    int m_display;
};

TEST_F(VirtualReality, TheDisplayGoesBackToWhereItWasWhoeverMovedIt)
{
    host.starVRHandler = true;
    host.displayType = 2;
    applied();
    service.setFloat("StarVR Foveated FOV Factor", 0.5f);
    const Meddler meddler(host, 4);
    EXPECT_EQ(applied(), (Calls{"olStarVRHandler::setFoveatedFovFactor(0.5)", "olOSGWidget::setDisplayType(2)"}));
}

} // namespace
