#include "View/olGlState.h"

#include <QOpenGLContext>

namespace
{

constexpr std::array<GLenum, 4> blendingNames{GL_BLEND_SRC_RGB, GL_BLEND_DST_RGB, GL_BLEND_SRC_ALPHA,
                                              GL_BLEND_DST_ALPHA};

QOpenGLFunctions &gl() { return *QOpenGLContext::currentContext()->functions(); }

} // namespace

olGlState::olGlState()
{
    QOpenGLFunctions &functions = gl();
    for (std::size_t i = 0; i < switches.size(); ++i) {
        m_isOn[i] = functions.glIsEnabled(switches[i]);
        functions.glDisable(switches[i]);
    }
    for (std::size_t i = 0; i < blendingNames.size(); ++i)
        functions.glGetIntegerv(blendingNames[i], &m_blending[i]);
    functions.glGetBooleanv(GL_COLOR_WRITEMASK, m_colorMask.data());
    functions.glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    functions.glGetFloatv(GL_COLOR_CLEAR_VALUE, m_clearColor.data());
    functions.glGetIntegerv(GL_ACTIVE_TEXTURE, &m_unit);
    functions.glActiveTexture(GL_TEXTURE0);
    functions.glGetIntegerv(GL_TEXTURE_BINDING_2D, &m_texture);
}

olGlState::~olGlState()
{
    QOpenGLFunctions &functions = gl();
    functions.glUseProgram(0);
    functions.glBindTexture(GL_TEXTURE_2D, GLuint(m_texture));
    functions.glActiveTexture(GLenum(m_unit));
    functions.glClearColor(m_clearColor[0], m_clearColor[1], m_clearColor[2], m_clearColor[3]);
    functions.glColorMask(m_colorMask[0], m_colorMask[1], m_colorMask[2], m_colorMask[3]);
    functions.glBlendFuncSeparate(GLenum(m_blending[0]), GLenum(m_blending[1]), GLenum(m_blending[2]),
                                  GLenum(m_blending[3]));
    for (std::size_t i = 0; i < switches.size(); ++i) {
        if (m_isOn[i])
            functions.glEnable(switches[i]);
    }
}
