#pragma once

#include <QOpenGLFunctions>

#include <array>

/// Takes OpenGL over from the renderer for a few calls of our own: nothing is tested, masked or blended. The renderer
/// remembers what it last set and would not set it again, so all of that comes back at the end. The framebuffer does
/// not, and no program is in use then.
class olGlState
{
public:
    olGlState();
    ~olGlState();
    olGlState(const olGlState &) = delete;
    olGlState &operator=(const olGlState &) = delete;

private:
    static constexpr std::array<GLenum, 5> switches{GL_BLEND, GL_DEPTH_TEST, GL_STENCIL_TEST, GL_SCISSOR_TEST,
                                                    GL_CULL_FACE};
    std::array<GLboolean, switches.size()> m_isOn{};
    std::array<GLboolean, 4> m_colorMask{};
    std::array<GLfloat, 4> m_clearColor{};
    std::array<GLint, 4> m_blending{};
    GLint m_texture = 0;
    GLint m_unit = 0;
};
