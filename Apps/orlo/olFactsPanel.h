#pragma once

#include "Model/olShapeFacts.h"

#include <QHash>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <optional>
#include <vector>

class QFormLayout;
class QLabel;
class TopoDS_TShape;
class olScene;

/// What is selected, or else the whole scene, in numbers. Measures a little at a time while it is in sight, and what
/// stands in the scene many times once.
class olFactsPanel : public QWidget
{
    Q_OBJECT

public:
    /// The scene is not owned and must outlive the panel, which follows it.
    explicit olFactsPanel(olScene &scene, QWidget *parent = nullptr);

    /// Parts and levels of detail as the view names them; none for the whole scene.
    void showFacts(const QStringList &ids);

    [[nodiscard]] bool isMeasuring() const { return m_timer.isActive(); }

protected:
    void showEvent(QShowEvent *event) override;

private:
    struct Sum {
        Bnd_Box box;
        olShapeFacts facts;
        int parts = 0;
        int openParts = 0;
    };

    QLabel *addRow(QFormLayout &rows, const QString &title, const QString &hint);
    void begin();
    void measure();
    bool measureNext();
    void add(const TopoDS_Shape &part, const olShapeFacts &facts);
    void showSum(const Sum &sum, bool isWhole);

    olScene &m_scene;
    QStringList m_ids;
    QHash<const TopoDS_TShape *, olShapeFacts> m_known;
    std::vector<TopoDS_Shape> m_parts;
    std::size_t m_next = 0;
    std::optional<olShapeMeasuring> m_measuring;
    Sum m_sum;
    bool m_isStale = true;
    QTimer m_timer;

    QLabel *m_what;
    QLabel *m_size;
    QLabel *m_box;
    QLabel *m_volume;
    QLabel *m_area;
    QLabel *m_triangles;
    QLabel *m_count;
};
