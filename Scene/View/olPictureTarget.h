#pragma once

#include <QImage>
#include <QSize>

#include <memory>

class QOpenGLFramebufferObject;

/// The framebuffer in which a picture of the view comes about, at the size that it shall have; from there it goes to
/// the window, to a file, or into the mean of several. The context must be current in every call.
class olPictureTarget
{
public:
    olPictureTarget();
    ~olPictureTarget();

    /// How finely a channel is resolved: in 256 steps, or as a number that may also be brighter than white.
    enum class Depth { Byte, Float };

    /// Makes it ready to be drawn into; false where the context cannot.
    [[nodiscard]] bool bind(const QSize &size, Depth depth = Depth::Byte);

    /// The same, once more and as it is.
    [[nodiscard]] bool bindAgain() const;

    /// Gives everything back to the context.
    void release();

    [[nodiscard]] QSize size() const;

    /// 0 while there is no picture.
    [[nodiscard]] unsigned texture() const;

    /// Puts the picture into a framebuffer, as large as its shape allows, with black bars beside it where needed.
    void show(unsigned framebuffer, const QSize &room) const;

    [[nodiscard]] QImage picture() const;

    /// Where a picture of that size comes to lie in a room, in the room's pixels.
    [[nodiscard]] static QRect placeIn(const QSize &picture, const QSize &room);

private:
    std::unique_ptr<QOpenGLFramebufferObject> m_buffer;
};
