#pragma once

#include <QMenu>

/// The models that were opened last, newest first, to be opened again; remembered from one run to the next.
class olRecentModels : public QMenu
{
    Q_OBJECT

public:
    explicit olRecentModels(QWidget *parent = nullptr);

    /// Puts the files at the top.
    void add(const QStringList &files);

    void remove(const QString &file);

signals:
    void chosen(const QString &file);

private:
    void store(const QStringList &files);
    void fill();
};
