#include "Scene/Exchange/ImportTest.h"

#include "Exchange/olDocumentStream.h"
#include "Exchange/olSandbox.h"

#include <TDocStd_Document.hxx>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

class ReaderProcess : public ImportTest
{
protected:
    /// So deep that whoever follows it runs out of stack.
    [[nodiscard]] QString crashing() const
    {
        constexpr int depth = 300000;
        return written("deep.wrl", "#VRML V2.0 utf8\n" + QByteArray("Group{children[").repeated(depth) +
                                       QByteArray("]}").repeated(depth));
    }

    /// What a document becomes on its way between processes.
    static QByteArray streamed(const olScene::Document &document)
    {
        const int file = memfd_create("document", MFD_CLOEXEC);
        olDocumentStream::write(document, file);
        QByteArray bytes(int(lseek(file, 0, SEEK_END)), '\0');
        EXPECT_EQ(pread(file, bytes.data(), std::size_t(bytes.size()), 0), bytes.size());
        close(file);
        return bytes;
    }

    static olScene::Document read(const QByteArray &bytes)
    {
        return olDocumentStream::read(reinterpret_cast<const unsigned char *>(bytes.constData()),
                                      std::size_t(bytes.size()));
    }
};

/// What the sandbox must keep back, each by its number; 0 where it does.
int firstLeak(const QByteArray &existing, const QByteArray &fresh)
{
    (void)olSandbox::enter();
    if (open(existing.constData(), O_RDONLY) < 0)
        return 1;
    if (open(existing.constData(), O_WRONLY) >= 0 || open(existing.constData(), O_RDWR) >= 0)
        return 2;
    if (open(fresh.constData(), O_WRONLY | O_CREAT, 0600) >= 0 || mkdir(fresh.constData(), 0700) == 0)
        return 3;
    if (unlink(existing.constData()) == 0 || rename(existing.constData(), fresh.constData()) == 0)
        return 4;
    if (socket(AF_INET, SOCK_STREAM, 0) >= 0 || socket(AF_UNIX, SOCK_STREAM, 0) >= 0)
        return 5;
    if (fork() >= 0)
        return 6;
    char program[] = "/bin/true";
    char *arguments[] = {program, nullptr};
    execv(program, arguments);
    return kill(getppid(), 0) == 0 ? 7 : 0;
}

} // namespace

TEST_F(ReaderProcess, ACrashIsOneSentenceAndTheSceneStays)
{
    const olScene::Document before = m_scene.document();
    const QString fault = faultOf(crashing());
    EXPECT_TRUE(fault.contains("makes its reader crash")) << qPrintable(fault);
    EXPECT_EQ(m_scene.document(), before);
}

TEST_F(ReaderProcess, AReadingWithoutProgressEndsAfterItsPatience)
{
    olImportJob job = olImportJob::of(exported("s.step"));
    job.patience = 1;
    EXPECT_TRUE(olImport(job).document.error().contains("made no progress for 0.001 seconds"));
}

TEST_F(ReaderProcess, ACancelledReadingEndsAtOnce)
{
    olImportJob job = olImportJob::of(exported("s.step"));
    job.options.chordDeviation = 0.001;
    job.options.normalTolerance = 0.5;
    QElapsedTimer since;
    since.start();
    const olImportResult result = olImport(job, {{}, [&since] { return since.elapsed() > 200; }});
    EXPECT_TRUE(result.isCancelled);
    EXPECT_FALSE(result.document.isOk());
    EXPECT_LT(since.elapsed(), 2000);
}

TEST_F(ReaderProcess, AReaderReadsAndComputesAndNothingElse)
{
    const QByteArray existing = QFile::encodeName(written("model.stl", "solid"));
    const QByteArray fresh = QFile::encodeName(path("fresh"));
    EXPECT_EXIT(_exit(firstLeak(existing, fresh)), testing::ExitedWithCode(0), "");
}

TEST_F(ReaderProcess, PipesAndDevicesAreNotWaitedFor)
{
    ASSERT_EQ(mkfifo(QFile::encodeName(path("pipe.png")).constData(), 0600), 0);
    ASSERT_EQ(mkfifo(QFile::encodeName(path("pipe.mtl")).constData(), 0600), 0);
    ASSERT_EQ(mkfifo(QFile::encodeName(path("pipe.wrl")).constData(), 0600), 0);
    const QByteArray box =
        "Shape { appearance Appearance { texture ImageTexture { url \"pipe.png\" } } geometry Box {} }\n";
    const QString before = QDir::currentPath();
    // As if the program was started beside the models.
    QDir::setCurrent(path(QString()));
    for (const QString &file : {written("b.wrl", "#VRML V2.0 utf8\nEXTERNPROTO P [] \"pipe.wrl#P\" P {}\n" + box),
                                written("a.wrl", "#VRML V2.0 utf8\nInline { url \"pipe.wrl\" }\n" + box),
                                written("a.obj", "mtllib pipe.mtl\nv 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n")}) {
        olImportJob job = olImportJob::of(file);
        job.patience = 20000;
        const olImportResult result = olImport(job);
        EXPECT_TRUE(result.document.isOk()) << qPrintable(result.document.error());
        EXPECT_TRUE(result.remarks.join(QString()).contains("pipe.")) << qPrintable(file);
    }
    QDir::setCurrent(before);
}

TEST_F(ReaderProcess, ADocumentComesOverAsItWas)
{
    const Outline before(m_scene.document());
    const Outline after(read(streamed(m_scene.document())));
    EXPECT_EQ(after.names, before.names);
    EXPECT_EQ(after.colours, before.colours);
    EXPECT_EQ(after.triangles, before.triangles);
    EXPECT_EQ(after.parts, before.parts);
}

TEST_F(ReaderProcess, WhatCameOverDamagedIsNoDocument)
{
    const olScene::Document mesh =
        imported(olImportJob::of(written("m.obj", "v 0 0 0\nv 1 0 0\nv 0 1 0\nv 1 1 0\nf 1 2 3\nf 2 4 3\n")));
    const QByteArray whole = streamed(mesh);
    ASSERT_FALSE(read(whole).IsNull());
    for (int length = 0; length < whole.size(); length += 3)
        EXPECT_TRUE(read(whole.left(length)).IsNull()) << length;
    // A changed byte may be a changed colour; it must only bring nothing down.
    for (int at = 0; at < whole.size(); ++at) {
        for (const char wrong : {'\xff', '\x7f', '\0'}) {
            QByteArray changed = whole;
            changed[at] = wrong;
            (void)read(changed);
        }
    }
}
