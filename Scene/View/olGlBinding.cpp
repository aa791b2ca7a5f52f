#include "View/olGlBinding.h"

#include "View/olX11Display.h"

#include <Aspect_DisplayConnection.hxx>
#include <Aspect_NeutralWindow.hxx>
#include <Graphic3d_Layer.hxx>
#include <OpenGl_Context.hxx>
#include <OpenGl_FrameBuffer.hxx>
#include <OpenGl_GraphicDriver.hxx>
#include <OpenGl_ShaderManager.hxx>
#include <OpenGl_ShaderProgram.hxx>
#include <OpenGl_View.hxx>
#include <OpenGl_Window.hxx>
#include <V3d_View.hxx>

namespace
{

/// A framebuffer of Qt's. Its values are sRGB although its format does not say so; told otherwise, the renderer would
/// leave the picture washed out.
class BoundFramebuffer : public OpenGl_FrameBuffer
{
public:
    void BindBuffer(const Handle(OpenGl_Context) & context) override
    {
        OpenGl_FrameBuffer::BindBuffer(context);
        context->SetFrameBufferSRGB(true, false);
    }

    void BindDrawBuffer(const Handle(OpenGl_Context) & context) override
    {
        OpenGl_FrameBuffer::BindDrawBuffer(context);
        context->SetFrameBufferSRGB(true, false);
    }

    void BindReadBuffer(const Handle(OpenGl_Context) & context) override
    {
        OpenGl_FrameBuffer::BindReadBuffer(context);
    }
};

/// A view whose buffers can be chosen.
class View : public OpenGl_View
{
    DEFINE_STANDARD_RTTI_INLINE(View, OpenGl_View)

public:
    using OpenGl_View::OpenGl_View;

    void setColorFormat(GLint format)
    {
        if (myFboColorFormat == format)
            return;
        myFboColorFormat = format;
        // They are made anew once their size does not fit.
        for (const auto &buffers : {myMainSceneFbos, myImmediateSceneFbos}) {
            for (int eye = 0; eye < 2; ++eye) {
                buffers[eye]->Release(GlWindow()->GetGlContext().get());
                buffers[eye]->ChangeViewport(0, 0);
            }
        }
    }
};

class Driver : public OpenGl_GraphicDriver
{
    DEFINE_STANDARD_RTTI_INLINE(Driver, OpenGl_GraphicDriver)

public:
    using OpenGl_GraphicDriver::OpenGl_GraphicDriver;

    Handle(Graphic3d_CView) CreateView(const Handle(Graphic3d_StructureManager) & manager) override
    {
        const Handle(View) view = new View(manager, this, myCaps, &myStateCounter);
        myMapOfView.Add(view);
        for (const Handle(Graphic3d_Layer) & layer : myLayers)
            view->InsertLayerAfter(layer->LayerId(), layer->LayerSettings(), Graphic3d_ZLayerId_UNKNOWN);
        return Handle(Graphic3d_CView)(view);
    }
};

/// The renderer's programs, so that one of them can be mended.
class Programs : public OpenGl_ShaderManager
{
public:
    /// The last step of sorting transparent surfaces adds up how much those in front and those behind hide of what is
    /// opaque. Together that can be more than all of it: it would be taken away, and leave dark stains in buffers that
    /// do not cut off what is below zero.
    static void mendTransparency(const Handle(OpenGl_Context) & context)
    {
        OpenGl_ShaderManager &manager = *context->ShaderManager();
        Handle(OpenGl_ShaderProgram) &used = (manager.*(&Programs::myOitDepthPeelingFlushProgram))[0];
        const Handle(Graphic3d_ShaderProgram) source =
            mended((manager.*(&Programs::getStdProgramOitDepthPeelingFlush))(Standard_False));
        TCollection_AsciiString key;
        if (source.IsNull() || !manager.Create(source, key, used))
            return;
        context->BindProgram(used);
        used->SetSampler(context, "uDepthPeelingFrontColor", Graphic3d_TextureUnit_0);
        used->SetSampler(context, "uDepthPeelingBackColor", Graphic3d_TextureUnit_1);
        context->BindProgram({});
    }

private:
    static Handle(Graphic3d_ShaderProgram) mended(const Handle(Graphic3d_ShaderProgram) & program)
    {
        const TCollection_AsciiString sum("aFrontColor.a + aBackColor.a");
        const Handle(Graphic3d_ShaderProgram) result = new Graphic3d_ShaderProgram();
        result->SetHeader(program->Header());
        result->SetDefaultSampler(false);
        result->SetNbLightsMax(0);
        result->SetNbClipPlanesMax(0);
        bool isMended = false;
        for (const Handle(Graphic3d_ShaderObject) & shader : program->ShaderObjects()) {
            TCollection_AsciiString text = shader->Source();
            const int place = text.Search(sum);
            if (place > 0) {
                text.Remove(place, sum.Length());
                text.Insert(place, "aFrontColor.a + anAlphaMult * min (aBackColor.a, 1.0)");
                isMended = true;
            }
            result->AttachShader(Graphic3d_ShaderObject::CreateFromSource(shader->Type(), text));
        }
        return isMended ? result : Handle(Graphic3d_ShaderProgram)();
    }
};

Handle(OpenGl_Context) contextOf(const Handle(V3d_View) & view)
{
    const Handle(OpenGl_View) glView = Handle(OpenGl_View)::DownCast(view->View());
    return glView.IsNull() || glView->GlWindow().IsNull() ? Handle(OpenGl_Context)()
                                                          : glView->GlWindow()->GetGlContext();
}

} // namespace

Handle(Graphic3d_GraphicDriver) olGlBinding::makeDriver()
{
    void *display = olX11Display();
    if (!display)
        return {};
    // A second connection would not know the windows and contexts of Qt's.
    const Handle(Aspect_DisplayConnection) connection =
        new Aspect_DisplayConnection(static_cast<Aspect_XDisplay *>(display));
    const Handle(OpenGl_GraphicDriver) driver = new Driver(connection, Standard_False);
    driver->ChangeOptions().buffersNoSwap = Standard_True;
    driver->ChangeOptions().buffersOpaqueAlpha = Standard_True;
    driver->ChangeOptions().useSystemBuffer = Standard_False;
    return Handle(Graphic3d_GraphicDriver)(driver);
}

bool olGlBinding::attach(const Handle(V3d_View) & view, quintptr window, const QSize &size)
{
    const Handle(OpenGl_Context) context = new OpenGl_Context();
    if (!context->Init(Standard_False))
        return false;
    const Handle(Aspect_NeutralWindow) neutral = new Aspect_NeutralWindow();
    neutral->SetVirtual(Standard_True);
    neutral->SetNativeHandle(Aspect_Drawable(window));
    neutral->SetSize(size.width(), size.height());
    view->SetWindow(neutral, context->RenderingContext());
    if (contextOf(view).IsNull())
        return false;
    Programs::mendTransparency(contextOf(view));
    return true;
}

void olGlBinding::setFloatBuffers(const Handle(V3d_View) & view, bool isFloat)
{
    const Handle(View) own = Handle(View)::DownCast(view->View());
    if (!own.IsNull())
        own->setColorFormat(isFloat ? GL_RGBA16F : GL_SRGB8_ALPHA8);
}

int olGlBinding::mostSamples(const Handle(V3d_View) & view)
{
    const Handle(OpenGl_Context) context = contextOf(view);
    return context.IsNull() ? 1 : context->MaxMsaaSamples();
}

bool olGlBinding::drawIntoBoundFramebuffer(const Handle(V3d_View) & view)
{
    const Handle(OpenGl_Context) context = contextOf(view);
    if (context.IsNull())
        return false;
    Handle(OpenGl_FrameBuffer) framebuffer = context->DefaultFrameBuffer();
    if (framebuffer.IsNull()) {
        framebuffer = new BoundFramebuffer();
        context->SetDefaultFrameBuffer(framebuffer);
    }
    if (!framebuffer->InitWrapper(context))
        return false;

    const Handle(Aspect_NeutralWindow) window = Handle(Aspect_NeutralWindow)::DownCast(view->Window());
    const Graphic3d_Vec2i size = framebuffer->GetVPSize();
    int width = 0;
    int height = 0;
    window->Size(width, height);
    if (width != size.x() || height != size.y()) {
        window->SetSize(size.x(), size.y());
        view->MustBeResized();
        view->Invalidate();
    }
    return true;
}
