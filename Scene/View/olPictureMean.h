#pragma once

#include <QSize>

#include <memory>

class QOpenGLFramebufferObject;
class QOpenGLShaderProgram;
class olPictureTarget;

/// The mean of several pictures of one size, taken on the graphics card and in floating point, so that nothing is
/// rounded before the end. The context must be current in every call.
class olPictureMean
{
public:
    enum class Channels { All, Red, GreenAndBlue };

    /// What is done to the mean on its way into a picture.
    struct Finish {
        bool smoothsEdges = false; ///< Edges with steps are softened.
        bool hidesBands = false;   ///< Values between two steps of the picture become a mixture of both.
    };

    olPictureMean();
    ~olPictureMean();

    /// Forgets what it has; false where the context cannot.
    [[nodiscard]] bool start(const QSize &size);

    /// Gives everything back to the context.
    void release();

    void add(const olPictureTarget &picture, Channels channels = Channels::All);

    /// Puts the mean of that many pictures in place of the target's own; both have the same size.
    void finish(const olPictureTarget &target, int pictures, const Finish &finish) const;

private:
    [[nodiscard]] bool makePrograms();
    [[nodiscard]] bool makeSum(const QSize &size);

    std::unique_ptr<QOpenGLFramebufferObject> m_sum;
    std::unique_ptr<QOpenGLShaderProgram> m_copy;
    std::unique_ptr<QOpenGLShaderProgram> m_finish;
};
