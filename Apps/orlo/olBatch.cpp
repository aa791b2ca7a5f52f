#include "olBatch.h"

#include "olImportChoice.h"

#include "Exchange/olExportScene.h"
#include "Exchange/olImport.h"
#include "Model/olScene.h"
#include "View/olViewport.h"

#include <TDocStd_Document.hxx>

#include <QCoreApplication>
#include <QImage>
#include <QImageWriter>
#include <QRegularExpression>

#include <cstdio>
#include <future>
#include <optional>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olBatch)
};

/// As in the window: a larger picture does not fit into a graphics card together with all that it needs to draw it.
constexpr int longestSide = 8192;

int fail(const QString &error, int status)
{
    std::fprintf(stderr, "orlo: %s\n", qPrintable(error));
    return status;
}

olImportJob jobFor(const QString &model, const olImportChoice &choice)
{
    olImportJob job = olImportJob::of(model);
    choice.applyTo(job);
    return job;
}

void remark(const QStringList &remarks)
{
    for (const QString &each : remarks)
        std::fprintf(stderr, "orlo: %s\n", qPrintable(each));
}

} // namespace

int olBatch::render(const QString &model, const QString &pictureFile, const QSize &size, bool hasEdges,
                    const olImportChoice &choice)
{
    // The model is read in another process; meanwhile this one makes the view.
    std::future<olImportResult> reading =
        std::async(std::launch::async, olImport, jobFor(model, choice), olImportWatch());
    std::optional<olViewport> view;
    if (olViewport::isSupported()) {
        view.emplace();
        view->setAttribute(Qt::WA_DontShowOnScreen);
        // Nobody sees what a window would show.
        view->setUpdatesEnabled(false);
        view->resize(size);
        view->show();
        view->setEdges(hasEdges);
    }
    const olImportResult result = reading.get();
    if (!result.document.isOk())
        return fail(result.document.error(), 2);
    remark(result.remarks);
    if (!view)
        return fail(Words::tr("The 3D view needs an X display, or XWayland, with OpenGL."), 1);

    olScene scene;
    scene.setDocument(*result.document);
    view->setScene(&scene);
    view->fillPicture(size);
    const QImage picture = view->stillPicture(size);
    if (picture.isNull())
        return fail(Words::tr("The model %1 cannot be drawn: %2").arg(model, view->error()), 1);
    QImageWriter writer(pictureFile);
    if (!writer.write(picture))
        return fail(Words::tr("Cannot write %1: %2.").arg(pictureFile, writer.errorString()), 1);
    std::printf("triangles %u\n", scene.triangleCount());
    return 0;
}

int olBatch::convert(const QString &model, const QString &file, const olImportChoice &choice)
{
    const olImportResult result = olImport(jobFor(model, choice));
    if (!result.document.isOk())
        return fail(result.document.error(), 2);
    remark(result.remarks);
    olScene scene;
    scene.setDocument(*result.document);
    return save(scene, file);
}

int olBatch::save(const olScene &scene, const QString &file)
{
    const olResult<QStringList> remarks = olExportScene(scene.document(), file);
    if (!remarks.isOk())
        return fail(remarks.error(), 1);
    remark(*remarks);
    return 0;
}

std::optional<QSize> olBatch::sizeFrom(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^(\\d{1,5})x(\\d{1,5})$"));
    const QRegularExpressionMatch match = form.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    if (size.isEmpty() || size.width() > longestSide || size.height() > longestSide)
        return std::nullopt;
    return size;
}
