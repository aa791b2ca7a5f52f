#pragma once

#include "State/olHostValue.h"
#include "View/olFrameMaker.h"

#include <QElapsedTimer>
#include <QImage>
#include <QOpenGLWidget>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>

class olScene;

/// The 3D view: shows a scene as the host's state says, and lets it be looked at with the mouse.
class olViewport : public QOpenGLWidget, private olHostObserver
{
    Q_OBJECT

public:
    explicit olViewport(QWidget *parent = nullptr);
    ~olViewport() override;

    /// What must be set before the application object is made. Returns whether there is a display; where there is none,
    /// the program runs without showing anything.
    static bool prepareApplication();

    /// Whether this display can show the view at all; to be asked before one is made.
    [[nodiscard]] static bool isSupported();

    /// The scene is not owned; the view follows its changes while it lives. Null for none.
    void setScene(olScene *scene);

    /// Why nothing can be seen; empty while all is well.
    [[nodiscard]] QString error() const { return m_error; }

    /// One frame as the settings say, at a size or else at the view's own. The view must have been shown once, be it
    /// with Qt::WA_DontShowOnScreen. Null where it cannot be drawn.
    [[nodiscard]] QImage picture(const QSize &size = {});

    /// The same of a camera at rest and, where still frames are antialiased, with all that makes it better.
    [[nodiscard]] QImage stillPicture(const QSize &size = {});

    /// What the window shows now; a still frame as far as it has come.
    [[nodiscard]] QImage shownPicture();

    /// Whether the still frame is complete.
    [[nodiscard]] bool isStillFrameDone() const;

    /// All parts that are shown, and those that are selected, as the explorer of the scene's document names them; a
    /// level of detail by its part, "#" and its number.
    [[nodiscard]] QStringList parts() const;
    [[nodiscard]] QStringList selection() const;
    void select(const QStringList &parts);

public slots:
    /// The camera glides there where the host wants that.
    void showAll();

    /// The same at once, and as large as a picture of this size holds it.
    void fillPicture(const QSize &size);
    void zoomToSelection();

    void setAnaglyph(bool on);
    void setRaytracing(bool on);
    void setEdges(bool on);

signals:
    /// The user selected something in the view.
    void selectionChanged(const QStringList &parts);

    void framesPerSecondMeasured(double frames);

    /// Nothing can be drawn any more, or could from the start.
    void failed(const QString &reason);

protected:
    void initializeGL() override;
    void paintGL() override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    class Private;

    void stateChanged(const olHostValueBase &value) override;
    void withContext(const std::function<void()> &work);
    void guarded(const std::function<void()> &work);
    void releaseView();
    void takeScene();
    void moveByDevices(double seconds);
    void takeState();
    void redraw();
    void drawFrame();
    [[nodiscard]] olFrameMaker::Options frameOptions(const QSize &size = {}) const;
    void startStill(olStillFrame &still, const QSize &size) const;
    void drawStillSample();
    void measureFrame();
    void drag(const QPoint &position);
    void beginDrag(const QMouseEvent &event);
    void glideTo(bool selectionOnly);
    void advanceGlide();
    [[nodiscard]] QSize pictureSize() const;
    [[nodiscard]] QPointF toPicture(const QPointF &position) const;
    [[nodiscard]] bool wasClick(const QPoint &position) const;

    std::unique_ptr<Private> d;
    QString m_error;
};
