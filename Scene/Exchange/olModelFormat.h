#pragma once

#include "Model/olScene.h"
#include "State/olResult.h"

#include <QString>
#include <QStringList>

#include <vector>

class Message_ProgressRange;
class QFile;
struct olImportJob;

/// A format of model files: what it holds, how it is recognised, read and written. Each stands in a file of its own
/// under Formats/.
struct olModelFormat {
    /// What a file of the format can hold, in bits.
    enum Content : unsigned {
        Surfaces = 1 << 0,
        Meshes = 1 << 1,
        Colors = 1 << 2,
        Opacity = 1 << 3,
        Textures = 1 << 4,
        /// Groups of parts.
        Structure = 1 << 5,
        Curves = 1 << 6,
        /// Corners of triangles with colours of their own.
        CornerColors = 1 << 7,
        /// Of parts.
        Names = 1 << 8,
        /// What parts are made of, with its density.
        Substances = 1 << 9,
        Layers = 1 << 10,
        /// Parts that are there but not seen.
        Hidden = 1 << 11,
        /// How long its unit is, and which way is up.
        UnitAndUp = 1 << 12,
    };

    const char *name;

    /// Under which the format's module writes its import options.
    const char *optionsType;

    /// In lower case; the first is the usual one.
    QStringList suffixes;

    unsigned content;

    /// Looks at the open file before it is read. Says what is wrong with it in half a sentence; what is merely odd
    /// becomes a remark.
    olResult<> (*check)(QFile &file, QStringList &remarks);

    /// Reads the file into an empty document, just as the file has it. Says why it could not in half a sentence. May
    /// throw what the library throws.
    olResult<> (*read)(const olImportJob &job, const olScene::Document &document, const Message_ProgressRange &progress,
                       QStringList &remarks);

    /// Writes a document that holds nothing but what the format can hold. Whether it could; may throw too. Null for a
    /// format that is only read.
    bool (*write)(const olScene::Document &document, const QString &file, QStringList &remarks);

    [[nodiscard]] bool holds(Content what) const { return (content & what) != 0; }

    [[nodiscard]] static const std::vector<olModelFormat> &all();

    /// By the suffix; null for a file that is of none of these.
    [[nodiscard]] static const olModelFormat *ofFile(const QString &file);

    /// One sentence for a file whose suffix is of no format: that there is no reader (or writer) for it, and which
    /// there are.
    [[nodiscard]] static QString noReader(const QString &file);
    [[nodiscard]] static QString noWriter(const QString &file);

    /// For a file dialog: of what can be read, or of what can be written.
    [[nodiscard]] static QString filter(bool isWritten);
};
