#include "Viewport/olPictureTarget.h"

#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <QOpenGLFramebufferObject>

namespace
{

QOpenGLExtraFunctions &gl() { return *QOpenGLContext::currentContext()->extraFunctions(); }

} // namespace

olPictureTarget::olPictureTarget() = default;
olPictureTarget::~olPictureTarget() = default;

bool olPictureTarget::bind(const QSize &size)
{
    if (!m_buffer || m_buffer->size() != size) {
        QOpenGLFramebufferObjectFormat format;
        format.setAttachment(QOpenGLFramebufferObject::CombinedDepthStencil);
        m_buffer = std::make_unique<QOpenGLFramebufferObject>(size, format);
    }
    if (!m_buffer->bind())
        return false;
    // The renderer takes the size of what it shall fill from here.
    gl().glViewport(0, 0, size.width(), size.height());
    return true;
}

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
    QOpenGLExtraFunctions &functions = gl();
    functions.glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
    functions.glDisable(GL_SCISSOR_TEST);
    functions.glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
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

void olPictureTarget::replace(const QImage &picture)
{
    if (!m_buffer || picture.size() != m_buffer->size())
        return;
    const QImage rows = picture.convertToFormat(QImage::Format_RGBA8888).mirrored();
    QOpenGLExtraFunctions &functions = gl();
    GLint bound = 0;
    functions.glGetIntegerv(GL_TEXTURE_BINDING_2D, &bound);
    functions.glBindTexture(GL_TEXTURE_2D, m_buffer->texture());
    functions.glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    functions.glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, rows.width(), rows.height(), GL_RGBA, GL_UNSIGNED_BYTE,
                              rows.constBits());
    functions.glBindTexture(GL_TEXTURE_2D, GLuint(bound));
}
