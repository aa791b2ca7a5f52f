#include "View/olPictureTarget.h"

#include "View/olGlState.h"

#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <QOpenGLFramebufferObject>

namespace
{

QOpenGLExtraFunctions &gl() { return *QOpenGLContext::currentContext()->extraFunctions(); }

} // namespace

olPictureTarget::olPictureTarget() = default;
olPictureTarget::~olPictureTarget() = default;

bool olPictureTarget::bind(const QSize &size, Depth depth)
{
    const GLenum texture = depth == Depth::Float ? GL_RGBA16F : GL_RGBA8;
    if (!m_buffer || m_buffer->size() != size || m_buffer->format().internalTextureFormat() != texture) {
        QOpenGLFramebufferObjectFormat format;
        format.setAttachment(QOpenGLFramebufferObject::CombinedDepthStencil);
        format.setInternalTextureFormat(texture);
        m_buffer = std::make_unique<QOpenGLFramebufferObject>(size, format);
    }
    if (!bindAgain())
        return false;
    // The renderer takes the size of what it shall fill from here.
    gl().glViewport(0, 0, size.width(), size.height());
    return true;
}

bool olPictureTarget::bindAgain() const { return m_buffer && m_buffer->bind(); }

unsigned olPictureTarget::texture() const { return m_buffer ? m_buffer->texture() : 0; }

void olPictureTarget::release() { m_buffer.reset(); }

QSize olPictureTarget::size() const { return m_buffer ? m_buffer->size() : QSize(); }

QRect olPictureTarget::placeIn(const QSize &picture, const QSize &room)
{
    const QSize fitted = picture.scaled(room, Qt::KeepAspectRatio);
    return {QPoint((room.width() - fitted.width()) / 2, (room.height() - fitted.height()) / 2), fitted};
}

void olPictureTarget::show(unsigned framebuffer, const QSize &room) const
{
    if (!m_buffer)
        return;
    const QSize own = m_buffer->size();
    const QRect place = placeIn(own, room);
    const olGlState state;
    QOpenGLExtraFunctions &functions = gl();
    functions.glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
    functions.glClearColor(0.0f, 0.0f, 0.0f, 1.0f);
    functions.glClear(GL_COLOR_BUFFER_BIT);
    functions.glBindFramebuffer(GL_READ_FRAMEBUFFER, m_buffer->handle());
    const int bottom = room.height() - place.top() - place.height();
    functions.glBlitFramebuffer(0, 0, own.width(), own.height(), place.left(), bottom, place.left() + place.width(),
                                bottom + place.height(), GL_COLOR_BUFFER_BIT,
                                own == place.size() ? GL_NEAREST : GL_LINEAR);
    functions.glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
}

QImage olPictureTarget::picture() const
{
    return m_buffer ? m_buffer->toImage().convertToFormat(QImage::Format_RGB32) : QImage();
}
