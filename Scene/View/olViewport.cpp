#include "View/olViewport.h"

#include "Kernel/olOSGWidget.h"
#include "State/olHostState.h"
#include "Utilities/olLog.h"
#include "View/olDeviceMotion.h"
#include "View/olFrameMaker.h"
#include "View/olMouseStyle.h"
#include "View/olNavigator.h"
#include "View/olPictureTarget.h"
#include "View/olProgressWheel.h"
#include "View/olSceneView.h"
#include "View/olStateInPicture.h"
#include "View/olStillFrame.h"
#include "View/olX11Display.h"

#include <Graphic3d_Camera.hxx>
#include <Standard_Failure.hxx>

#include <QApplication>
#include <QByteArrayList>
#include <QMouseEvent>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QPointer>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace
{

using Action = olMouseStyle::Action;

constexpr int frameMilliseconds = 16;
constexpr double wheelStep = 120.0;

/// Where so many frames one after the other take longer than this, in milliseconds, those that follow are coarser while
/// the camera moves.
constexpr qint64 longestFrame = 50;
constexpr int enoughSlowFrames = 2;

/// Larger pictures than this a side do not fit into a graphics card together with all that it needs to draw them.
constexpr int largestSide = 8192;

/// How many samples of each pixel a still frame is the mean of: fewer have to do from so many triangles on, and where
/// there are very many, edges are smoothed in place of that.
constexpr int stills = 16;
constexpr int fewStills = 4;
constexpr double manyTriangles = 50000;
constexpr double veryManyTriangles = 200000;

/// How many of them the graphics card takes in one picture, where they lie within the pixel, and up to how many pixels
/// it has the memory for that.
constexpr int samplesAtOnce = 4;
constexpr int mostSampledPixels = 1 << 23;

constexpr int longestGlide = 36000;
constexpr double longestRest = 24 * 3600.0;

QStringList toNames(const std::vector<std::string> &ids)
{
    QStringList names;
    for (const std::string &id : ids)
        names.append(QString::fromStdString(id));
    return names;
}

/// From standing to standing, without a jerk at either end.
double eased(double share) { return share * share * (3.0 - 2.0 * share); }

} // namespace

class olViewport::Private
{
public:
    explicit Private(olViewport &viewport) : wheel(viewport) {}

    struct Glide {
        Handle(Graphic3d_Camera) from;
        Handle(Graphic3d_Camera) to;
        int frame = 0;
        int frames = 0;
    };

    std::unique_ptr<olSceneView> view;
    olPictureTarget target;
    olFrameMaker frames;
    olNavigator navigator;
    olDeviceMotion devices;
    olStillFrame still;
    olProgressWheel wheel;
    QPointer<olScene> scene;
    unsigned staleParts = 0;
    int slowFrames = 0;
    bool isAnaglyph = false;
    bool isRaytraced = false;
    bool hasEdges = false;

    Action action = Action::None;
    bool isDragging = false;
    bool isOrbitDecided = false;
    QPoint pressedAt;
    QPoint lastAt;
    gp_Pnt clicked;
    QElapsedTimer sincePress;

    Glide glide;
    QTimer glideTimer;
    QTimer flyTimer;
    QTimer restTimer;

    QElapsedTimer frameClock;
    qint64 lastFrame = 0;
    int measuredFrames = 0;
};

bool olViewport::prepareApplication()
{
    // Only X11 lets the renderer share the context. A Wayland session mostly has an X server too, and where it has
    // none, all but the view works.
    QByteArrayList platforms{qgetenv("QT_QPA_PLATFORM")};
    if (platforms.first().isEmpty()) {
        platforms.clear();
        for (const auto &[display, platform] : {std::pair("DISPLAY", "xcb"), {"WAYLAND_DISPLAY", "wayland"}}) {
            if (!qEnvironmentVariableIsEmpty(display))
                platforms << platform;
        }
        qputenv("QT_QPA_PLATFORM", platforms.isEmpty() ? "offscreen" : platforms.join(';'));
    }
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setStencilBufferSize(8);
    format.setProfile(QSurfaceFormat::CompatibilityProfile);
    QSurfaceFormat::setDefaultFormat(format);
    return !platforms.isEmpty();
}

bool olViewport::isSupported() { return olX11Display() != nullptr; }

olViewport::olViewport(QWidget *parent) : QOpenGLWidget(parent), d(std::make_unique<Private>(*this))
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("3D view"));
    setMinimumSize(160, 120);
    d->glideTimer.setInterval(frameMilliseconds);
    connect(&d->glideTimer, &QTimer::timeout, this, &olViewport::advanceGlide);
    d->flyTimer.setInterval(frameMilliseconds);
    connect(&d->flyTimer, &QTimer::timeout, this, [this] {
        d->navigator.fly(frameMilliseconds / 1000.0);
        redraw();
    });
    connect(&d->devices, &olDeviceMotion::due, this, &olViewport::moveByDevices);
    connect(&d->devices, &olDeviceMotion::stopped, this, &olViewport::redraw);
    d->restTimer.setSingleShot(true);
    connect(&d->restTimer, &QTimer::timeout, this, [this] {
        startStill(d->still, pictureSize());
        update();
    });
    olHostState::the().addObserver(*this);
}

olViewport::~olViewport()
{
    olHostState::the().removeObserver(*this);
    // The context outlives this part of the widget.
    if (context())
        disconnect(context(), nullptr, this, nullptr);
    releaseView();
}

void olViewport::guarded(const std::function<void()> &work)
{
    // The toolkit's event loop must not see an exception of the renderer's.
    try {
        work();
    } catch (const Standard_Failure &failure) {
        olLog::error(tr("The 3D view: %1").arg(QString::fromLatin1(failure.GetMessageString())));
    }
}

void olViewport::withContext(const std::function<void()> &work)
{
    if (!d->view)
        return;
    makeCurrent();
    guarded(work);
    doneCurrent();
}

void olViewport::initializeGL()
{
    // The context goes when the widget moves to another window, and all that lives in it must go first.
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &olViewport::releaseView, Qt::UniqueConnection);
    guarded([this] { d->view = olSceneView::create(window()->winId(), pictureSize(), m_error); });
    if (!d->view) {
        if (m_error.isEmpty())
            m_error = tr("The renderer of the 3D view cannot be started.");
        olLog::error(m_error);
        emit failed(m_error);
        return;
    }
    guarded([this] {
        d->navigator.setCamera(d->view->camera());
        d->view->setRaytracing(d->isRaytraced);
        d->view->setEdges(d->hasEdges);
        takeScene();
    });
}

void olViewport::releaseView()
{
    if (!d->view)
        return;
    makeCurrent();
    d->glideTimer.stop();
    d->flyTimer.stop();
    d->glide = {};
    d->navigator.setCamera({});
    guarded([this] { d->view.reset(); });
    d->target.release();
    d->frames.release();
    doneCurrent();
}

void olViewport::setScene(olScene *scene)
{
    if (d->scene)
        disconnect(d->scene, nullptr, this, nullptr);
    d->scene = scene;
    if (scene) {
        connect(scene, &olScene::changed, this, [this] { withContext([this] { takeScene(); }); });
        connect(scene, &olScene::visibilityChanged, this, [this] {
            withContext([this] { d->view->setHidden(d->scene->hiddenParts()); });
            redraw();
        });
    }
    withContext([this] { takeScene(); });
}

void olViewport::takeScene()
{
    d->glideTimer.stop();
    if (d->scene)
        d->view->setDocument(d->scene->document(), d->scene->hiddenParts());
    else
        d->view->setDocument(olScene::newDocument(), {});
    d->navigator.setScene(d->view->middle(false), d->view->size());
    d->slowFrames = 0;
    redraw();
}

void olViewport::stateChanged(const olHostValueBase &value)
{
    const olHostState &state = olHostState::the();
    if (&value == &state.navMode && state.navMode != olOSGWidget::Fly)
        d->flyTimer.stop();
    const unsigned parts = olStateInPicture::partsOf(value);
    if (parts == 0)
        return;
    d->staleParts |= parts;
    redraw();
}

void olViewport::takeState() { d->view->applyState(std::exchange(d->staleParts, 0)); }

void olViewport::redraw()
{
    d->still.stop();
    d->wheel.setProgress(1.0);
    const olHostState &state = olHostState::the();
    const bool rests = !d->isDragging && !d->glideTimer.isActive() && !d->devices.isMoving();
    if (state.antialiasing && rests)
        d->restTimer.start(int(std::clamp(state.antialiasingTime.get(), 0.0, longestRest) * 1000.0));
    else
        d->restTimer.stop();
    update();
}

QSize olViewport::pictureSize() const
{
    const olHostState &state = olHostState::the();
    const int width = state.fixedRenderWindowWidth;
    const int height = state.fixedRenderWindowHeight;
    const QSize wanted = width > 0 && height > 0 ? QSize(width, height) : size() * devicePixelRatioF();
    return wanted.boundedTo(QSize(largestSide, largestSide)).expandedTo(QSize(1, 1));
}

void olViewport::paintGL()
{
    if (!d->view)
        return;
    const QSize room = size() * devicePixelRatioF();
    guarded([this] {
        const bool hasPicture = d->target.size().isValid();
        if (!olHostState::the().renderEnabled && hasPicture)
            return;
        const bool fits = d->target.size() == pictureSize();
        if (d->still.isRunning() && fits)
            drawStillSample();
        else if (!d->still.isDone() || !fits)
            drawFrame();
    });
    d->target.show(defaultFramebufferObject(), room);
    if (olHostState::the().forceGLFinish)
        context()->functions()->glFinish();
    measureFrame();
    // Without sleep the program draws as often as it can, whether or not there is something new.
    if (olHostState::the().sleepTime == 0 && !d->still.isDone())
        update();
}

void olViewport::drawFrame()
{
    d->still.stop();
    takeState();
    d->navigator.setPictureHeight(std::min(pictureSize().width(), pictureSize().height()));
    olFrameMaker::Options wanted = frameOptions();
    wanted.isCoarse = wanted.isMoving && d->slowFrames >= enoughSlowFrames;
    QElapsedTimer time;
    time.start();
    const bool isDrawn = d->frames.draw(*d->view, d->target, pictureSize(), wanted);
    if (wanted.isMoving && !wanted.isCoarse) {
        // Only then is it known how long it takes.
        context()->functions()->glFinish();
        d->slowFrames = time.elapsed() > longestFrame ? d->slowFrames + 1 : 0;
    }
    if (!isDrawn)
        olLog::error(tr("A frame of the 3D view could not be drawn."));
}

void olViewport::startStill(olStillFrame &still, const QSize &size) const
{
    const olHostState &state = olHostState::the();
    const double radius = double(state.antialiasingDistance) * double(state.antialiasingScale);
    const double triangles = d->view ? d->view->triangles() : 0.0;
    // It shall not be worse than the frame before it.
    const int least = d->view ? int(d->view->shifts(false).size()) : 1;
    if (triangles > veryManyTriangles && least == 1)
        return still.start(radius, 1, 1);
    const int wanted = std::max(triangles > manyTriangles ? fewStills : stills, least);
    const bool isOnCard = std::abs(radius) <= 1.0 && size.width() * size.height() <= mostSampledPixels && d->view &&
                          d->view->canTake(samplesAtOnce);
    const int samples = isOnCard ? samplesAtOnce : 1;
    still.start(radius, wanted / samples, samples);
}

olFrameMaker::Options olViewport::frameOptions(const QSize &size) const
{
    olFrameMaker::Options options;
    options.isMoving = d->isDragging || d->glideTimer.isActive() || d->devices.isMoving();
    options.isAnaglyph = d->isAnaglyph;
    // A picture whose size is given is not for this screen.
    options.pixelRatio = size.isValid() ? 1.0 : devicePixelRatioF();
    return options;
}

void olViewport::drawStillSample()
{
    if (!d->frames.drawStill(*d->view, d->target, frameOptions(), d->still)) {
        d->still.stop();
        return;
    }
    d->wheel.setProgress(d->still.progress());
    if (d->still.isRunning())
        update();
}

void olViewport::measureFrame()
{
    constexpr qint64 span = 500;
    constexpr qint64 pause = 1000;
    if (!d->frameClock.isValid() || d->frameClock.elapsed() - d->lastFrame > pause) {
        d->frameClock.start();
        d->measuredFrames = 0;
    }
    d->lastFrame = d->frameClock.elapsed();
    ++d->measuredFrames;
    if (d->lastFrame < span)
        return;
    emit framesPerSecondMeasured(1000.0 * d->measuredFrames / double(d->lastFrame));
    d->frameClock.start();
    d->lastFrame = 0;
    d->measuredFrames = 0;
}

QImage olViewport::picture(const QSize &size)
{
    QImage result;
    withContext([&] {
        takeState();
        olPictureTarget target;
        // A still frame that is on its way is not to be disturbed.
        olFrameMaker frames;
        if (frames.draw(*d->view, target, size.isValid() ? size : pictureSize(), frameOptions(size)))
            result = target.picture();
    });
    return result;
}

QImage olViewport::stillPicture(const QSize &size)
{
    QImage result;
    withContext([&] {
        takeState();
        olPictureTarget target;
        olFrameMaker frames;
        olStillFrame still;
        const QSize wanted = size.isValid() ? size : pictureSize();
        if (olHostState::the().antialiasing)
            startStill(still, wanted);
        olFrameMaker::Options rest = frameOptions(size);
        rest.isMoving = false;
        bool isDrawn = still.isRunning() ? target.bind(wanted) : frames.draw(*d->view, target, wanted, rest);
        while (isDrawn && still.isRunning())
            isDrawn = frames.drawStill(*d->view, target, rest, still);
        if (isDrawn)
            result = target.picture();
    });
    return result;
}

QImage olViewport::shownPicture()
{
    QImage result;
    withContext([&] { result = d->target.picture(); });
    return result;
}

bool olViewport::isStillFrameDone() const { return d->still.isDone(); }

QStringList olViewport::parts() const { return d->view ? toNames(d->view->parts()) : QStringList(); }

QStringList olViewport::selection() const { return d->view ? toNames(d->view->selection()) : QStringList(); }

void olViewport::select(const QStringList &parts)
{
    std::vector<std::string> ids;
    for (const QString &part : parts)
        ids.push_back(part.toStdString());
    withContext([&] {
        d->view->select(ids);
        if (olHostState::the().navAutoCenter && !parts.isEmpty())
            d->navigator.setPivot(d->view->middle(true));
    });
    redraw();
}

void olViewport::showAll() { glideTo(false); }

void olViewport::fillPicture(const QSize &size)
{
    withContext([&] {
        takeState();
        d->view->camera()->Copy(d->view->cameraFilling(double(size.width()) / size.height()));
    });
}

void olViewport::zoomToSelection() { glideTo(true); }

void olViewport::glideTo(bool selectionOnly)
{
    withContext([&] {
        takeState();
        d->navigator.setPivot(d->view->middle(selectionOnly));
        d->glide.to = selectionOnly ? d->view->cameraForSelection() : d->view->cameraForAll();
    });
    if (!d->glide.to.IsNull())
        advanceGlide();
}

void olViewport::advanceGlide()
{
    if (!d->view || d->glide.to.IsNull())
        return;
    const Handle(Graphic3d_Camera) &camera = d->view->camera();
    if (!d->glideTimer.isActive()) {
        const olHostState &state = olHostState::the();
        const float duration = state.animateNavCamDuration;
        d->glide.from = new Graphic3d_Camera(camera);
        d->glide.frame = 0;
        d->glide.frames =
            state.animateNavCam && std::isfinite(duration) ? int(std::clamp(duration, 0.0f, float(longestGlide))) : 0;
        d->glideTimer.start();
    }
    ++d->glide.frame;
    if (d->glide.frame >= d->glide.frames) {
        d->glideTimer.stop();
        camera->SetEyeAndCenter(d->glide.to->Eye(), d->glide.to->Center());
        camera->SetUp(d->glide.to->Up());
    } else {
        const double share = eased(double(d->glide.frame) / d->glide.frames);
        Handle(Graphic3d_Camera) between = new Graphic3d_Camera(camera);
        Graphic3d_Camera::Interpolate(d->glide.from, d->glide.to, share, between);
        camera->SetEyeAndCenter(between->Eye(), between->Center());
        camera->SetUp(between->Up());
    }
    redraw();
}

void olViewport::moveByDevices(double seconds)
{
    if (!d->view)
        return;
    d->glideTimer.stop();
    guarded([&] { olDeviceMotion::move(d->navigator, d->view->target(), seconds); });
    redraw();
}

QPointF olViewport::toPicture(const QPointF &position) const
{
    const QSize room = size() * devicePixelRatioF();
    const QSize picture = d->target.size().isValid() ? d->target.size() : room;
    const QRect place = olPictureTarget::placeIn(picture, room);
    const QPointF inRoom = position * devicePixelRatioF() - place.topLeft();
    const double scale = place.width() > 0 ? double(picture.width()) / place.width() : 1.0;
    return inRoom * scale;
}

void olViewport::mousePressEvent(QMouseEvent *event)
{
    d->glideTimer.stop();
    d->pressedAt = event->pos();
    d->lastAt = event->pos();
    d->sincePress.start();
    d->isOrbitDecided = false;
    d->action = olMouseStyle::actionFor(olHostState::the().interactionMode, event->buttons(), event->modifiers());
    beginDrag(*event);
}

void olViewport::beginDrag(const QMouseEvent &event)
{
    if (d->action == Action::None)
        return;
    d->clicked = d->navigator.pivot();
    if (d->action != Action::Pan)
        return;
    withContext([&] {
        const std::optional<gp_Pnt> point = d->view->pointUnder(toPicture(event.pos()).toPoint());
        d->clicked = point.value_or(d->navigator.pivot());
    });
}

bool olViewport::wasClick(const QPoint &position) const
{
    return !d->isDragging && (position - d->pressedAt).manhattanLength() < QApplication::startDragDistance();
}

void olViewport::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() == Qt::NoButton) {
        bool changed = false;
        withContext([&] { changed = d->view->hover(toPicture(event->pos()).toPoint()); });
        if (changed)
            redraw();
        return;
    }
    if (d->action == Action::None || wasClick(event->pos()))
        return;
    if (!d->isDragging) {
        d->isDragging = true;
        withContext([this] { d->view->leave(); });
        if (d->action == Action::Orbit && olHostState::the().navMode == olOSGWidget::Fly)
            d->flyTimer.start();
    }
    drag(event->pos());
}

void olViewport::drag(const QPoint &position)
{
    if (!d->view)
        return;
    const olHostState &state = olHostState::the();
    if (d->action == Action::Orbit && state.navOrbitMode && !d->isOrbitDecided) {
        // A mouse that rested before it moved means the place where it rested.
        const bool isNear = (position - d->pressedAt).manhattanLength() <= state.navOrbitDetectionArea;
        if (isNear && d->sincePress.elapsed() >= state.navOrbitDetectionTime) {
            withContext([this] {
                if (const auto point = d->view->pointUnder(toPicture(d->pressedAt).toPoint()))
                    d->navigator.setPivot(*point);
                d->view->leave();
            });
        }
        d->isOrbitDecided = true;
    }
    const QPointF moved = toPicture(position) - toPicture(d->lastAt);
    d->lastAt = position;
    guarded([&] {
        switch (d->action) {
        case Action::Orbit:
            d->navigator.orbit(moved);
            break;
        case Action::Pan:
            d->navigator.pan(moved, d->clicked);
            break;
        case Action::Dolly:
            d->navigator.dolly(moved);
            break;
        case Action::None:
            break;
        }
    });
    redraw();
}

void olViewport::mouseReleaseEvent(QMouseEvent *event)
{
    d->flyTimer.stop();
    const bool clicked = event->button() == Qt::LeftButton && wasClick(event->pos());
    d->isDragging = false;
    d->action = Action::None;
    if (clicked) {
        withContext([&] {
            d->view->hover(toPicture(event->pos()).toPoint());
            const Handle(Graphic3d_Camera) turned = d->view->click(event->modifiers() & Qt::ControlModifier);
            d->glide.to = turned;
            if (turned.IsNull() && olHostState::the().navAutoCenter && !d->view->selection().empty())
                d->navigator.setPivot(d->view->middle(true));
        });
        if (!d->glide.to.IsNull())
            advanceGlide();
        else
            emit selectionChanged(selection());
    }
    redraw();
}

void olViewport::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
    withContext([&] {
        if (const auto point = d->view->pointUnder(toPicture(event->pos()).toPoint()))
            d->navigator.setPivot(*point);
    });
}

void olViewport::wheelEvent(QWheelEvent *event)
{
    if (!d->view)
        return;
    d->glideTimer.stop();
    guarded([&] { d->navigator.wheel(event->angleDelta().y() / wheelStep); });
    redraw();
}

void olViewport::leaveEvent(QEvent *event)
{
    bool changed = false;
    withContext([&] { changed = d->view->leave(); });
    if (changed)
        redraw();
    QOpenGLWidget::leaveEvent(event);
}

void olViewport::setAnaglyph(bool on)
{
    d->isAnaglyph = on;
    redraw();
}

void olViewport::setEdges(bool on)
{
    d->hasEdges = on;
    withContext([&] { d->view->setEdges(on); });
    redraw();
}

void olViewport::setRaytracing(bool on)
{
    d->isRaytraced = on;
    withContext([&] { d->view->setRaytracing(on); });
    redraw();
}
