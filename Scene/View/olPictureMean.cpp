#include "View/olPictureMean.h"

#include "View/olGlState.h"
#include "View/olPictureTarget.h"

#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <QOpenGLFramebufferObject>
#include <QOpenGLShaderProgram>
#include <QVector2D>

#include <array>

namespace
{

constexpr int cornerAttribute = 0;

constexpr auto vertexShader = R"(
attribute vec2 corner;
varying vec2 place;
void main()
{
    place = corner * 0.5 + 0.5;
    gl_Position = vec4(corner, 0.0, 1.0);
}
)";

constexpr auto copyShader = R"(
uniform sampler2D picture;
varying vec2 place;
void main()
{
    gl_FragColor = vec4(texture2D(picture, place).rgb, 1.0);
}
)";

// Where the corners around a pixel differ much, the pixel is mixed with its neighbours along the edge between them; the
// wider of two mixtures is left out where it reaches into something else. The grain has the same pattern every time.
constexpr auto finishShader = R"(
uniform sampler2D picture;
uniform vec2 pixel;
uniform float share;
uniform bool smoothsEdges;
uniform bool hidesBands;
varying vec2 place;

vec3 at(vec2 offset) { return clamp(texture2D(picture, place + offset * pixel).rgb * share, 0.0, 1.0); }
float light(vec3 color) { return dot(color, vec3(0.299, 0.587, 0.114)); }

vec3 smoothed(vec3 middle)
{
    float a = light(at(vec2(-1.0, -1.0)));
    float b = light(at(vec2(1.0, -1.0)));
    float c = light(at(vec2(-1.0, 1.0)));
    float d = light(at(vec2(1.0, 1.0)));
    float m = light(middle);
    float least = min(m, min(min(a, b), min(c, d)));
    float most = max(m, max(max(a, b), max(c, d)));
    if (most - least < max(0.04, most * 0.1))
        return middle;
    vec2 edge = vec2(c + d - a - b, a + c - b - d);
    float floor = max((a + b + c + d) * 0.03, 0.008);
    edge = clamp(edge / (min(abs(edge.x), abs(edge.y)) + floor), -8.0, 8.0);
    vec3 narrow = 0.5 * (at(edge * -0.1667) + at(edge * 0.1667));
    vec3 wide = 0.5 * narrow + 0.25 * (at(edge * -0.5) + at(edge * 0.5));
    float reached = light(wide);
    return reached < least || reached > most ? narrow : wide;
}

void main()
{
    vec3 color = at(vec2(0.0));
    if (smoothsEdges)
        color = smoothed(color);
    if (hidesBands)
        color += (fract(52.9829189 * fract(dot(gl_FragCoord.xy, vec2(0.06711056, 0.00583715)))) - 0.5) / 255.0;
    gl_FragColor = vec4(color, 1.0);
}
)";

QOpenGLExtraFunctions &gl() { return *QOpenGLContext::currentContext()->extraFunctions(); }

std::unique_ptr<QOpenGLShaderProgram> makeProgram(const char *fragmentShader)
{
    auto program = std::make_unique<QOpenGLShaderProgram>();
    program->addShaderFromSourceCode(QOpenGLShader::Vertex, vertexShader);
    program->addShaderFromSourceCode(QOpenGLShader::Fragment, fragmentShader);
    program->bindAttributeLocation("corner", cornerAttribute);
    return program->link() ? std::move(program) : nullptr;
}

/// Draws over all of the framebuffer that is bound.
void fill(QOpenGLShaderProgram &program, unsigned texture)
{
    static constexpr std::array<GLfloat, 8> corners{-1, -1, 1, -1, -1, 1, 1, 1};
    QOpenGLExtraFunctions &functions = gl();
    functions.glBindTexture(GL_TEXTURE_2D, texture);
    functions.glBindBuffer(GL_ARRAY_BUFFER, 0);
    program.setUniformValue("picture", 0);
    program.enableAttributeArray(cornerAttribute);
    program.setAttributeArray(cornerAttribute, corners.data(), 2);
    functions.glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
    program.disableAttributeArray(cornerAttribute);
}

} // namespace

olPictureMean::olPictureMean() = default;
olPictureMean::~olPictureMean() = default;

void olPictureMean::release()
{
    m_sum.reset();
    m_copy.reset();
    m_finish.reset();
}

bool olPictureMean::makePrograms()
{
    if (!m_copy)
        m_copy = makeProgram(copyShader);
    if (!m_finish)
        m_finish = makeProgram(finishShader);
    return m_copy && m_finish;
}

bool olPictureMean::makeSum(const QSize &size)
{
    if (m_sum && m_sum->size() == size)
        return true;
    QOpenGLFramebufferObjectFormat format;
    format.setInternalTextureFormat(GL_RGBA32F);
    m_sum = std::make_unique<QOpenGLFramebufferObject>(size, format);
    if (!m_sum->isValid()) {
        m_sum.reset();
        return false;
    }
    // Smoothing looks at places between the pixels.
    const olGlState state;
    gl().glBindTexture(GL_TEXTURE_2D, m_sum->texture());
    gl().glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    gl().glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    return true;
}

bool olPictureMean::start(const QSize &size)
{
    if (!makePrograms() || !makeSum(size))
        return false;
    const olGlState state;
    if (!m_sum->bind())
        return false;
    gl().glClearColor(0.0f, 0.0f, 0.0f, 0.0f);
    gl().glClear(GL_COLOR_BUFFER_BIT);
    return true;
}

void olPictureMean::add(const olPictureTarget &picture, Channels channels)
{
    const olGlState state;
    const QSize size = m_sum->size();
    if (!m_sum->bind() || !m_copy->bind())
        return;
    const auto red = GLboolean(channels != Channels::GreenAndBlue);
    const auto others = GLboolean(channels != Channels::Red);
    gl().glViewport(0, 0, size.width(), size.height());
    gl().glColorMask(red, others, others, GL_TRUE);
    gl().glEnable(GL_BLEND);
    gl().glBlendFunc(GL_ONE, GL_ONE);
    fill(*m_copy, picture.texture());
}

void olPictureMean::finish(const olPictureTarget &target, int pictures, const Finish &finish) const
{
    const olGlState state;
    const QSize size = m_sum->size();
    if (pictures < 1 || !target.bindAgain() || !m_finish->bind())
        return;
    gl().glViewport(0, 0, size.width(), size.height());
    m_finish->setUniformValue("pixel", QVector2D(1.0f / float(size.width()), 1.0f / float(size.height())));
    m_finish->setUniformValue("share", 1.0f / float(pictures));
    m_finish->setUniformValue("smoothsEdges", finish.smoothsEdges);
    m_finish->setUniformValue("hidesBands", finish.hidesBands);
    fill(*m_finish, m_sum->texture());
}
