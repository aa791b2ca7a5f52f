#pragma once

#include <QString>

class TDF_Label;

/// The library talks to the standard output, which belongs to the program; from the first call on it is silent.
void olSilenceLibrary();

/// What the library calls a failure in this thread while this lives. Its readers tell of damage in no other way and go
/// on with the rest of the file.
class olLibraryFailures
{
public:
    olLibraryFailures();
    ~olLibraryFailures();
    olLibraryFailures(const olLibraryFailures &) = delete;
    olLibraryFailures &operator=(const olLibraryFailures &) = delete;

    /// Empty where there was none.
    [[nodiscard]] const QString &first() const { return m_first; }
    void add(const QString &text);

private:
    QString m_first;
    olLibraryFailures *m_outer;
};

/// The name of what a document's label holds; empty where it has none.
[[nodiscard]] QString olNameOf(const TDF_Label &label);

/// The same for messages, which say where there is none.
[[nodiscard]] QString olShownNameOf(const TDF_Label &label);
