#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// A format of model files that can be read and written.
struct olModelFormat {
    enum Id { Step, Iges, Stl, Vrml, Obj, Gltf };

    Id id;
    const char *name;

    /// Under which the format's module writes its import options.
    const char *optionsType;

    /// In lower case; the first is the usual one.
    QStringList suffixes;

    [[nodiscard]] static const std::vector<olModelFormat> &all();

    /// By the suffix; null for a file that is of none of these.
    [[nodiscard]] static const olModelFormat *ofFile(const QString &file);

    /// One sentence for a file whose suffix is of no format: that there is no reader (or writer) for it, and which
    /// there are.
    [[nodiscard]] static QString noReader(const QString &file);
    [[nodiscard]] static QString noWriter(const QString &file);

    /// For a file dialog.
    [[nodiscard]] static QString filter();
};
