#include "olFactsPanel.h"

#include "Model/olScene.h"

#include <TDocStd_Document.hxx>
#include <TopoDS_TShape.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFPrs_DocumentExplorer.hxx>

#include <QElapsedTimer>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QScrollArea>
#include <QSet>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace
{

/// How long it keeps everything else waiting, in milliseconds.
constexpr int slice = 12;

/// As exact as a model is drawn, and not in powers of ten.
QString number(double value)
{
    constexpr int digits = 6;
    constexpr double least = 1e-5;
    const double size = std::abs(value);
    const int whole = size < 1 ? 1 : int(std::floor(std::log10(size))) + 1;
    // What comes to nothing has no sign.
    QString text = QLocale().toString(size < least ? 0.0 : value, 'f', std::max(digits - whole, 0));
    const QString point = QLocale().decimalPoint();
    while (text.contains(point) && (text.endsWith(QLocale().zeroDigit()) || text.endsWith(point)))
        text.chop(1);
    return text;
}

QString place(const gp_Pnt &point)
{
    return olFactsPanel::tr("(%1, %2, %3)").arg(number(point.X()), number(point.Y()), number(point.Z()));
}

} // namespace

olFactsPanel::olFactsPanel(olScene &scene, QWidget *parent) : QWidget(parent), m_scene(scene)
{
    auto *content = new QWidget;
    auto *rows = new QFormLayout(content);
    rows->setRowWrapPolicy(QFormLayout::WrapLongRows);
    m_what = new QLabel;
    m_what->setWordWrap(true);
    m_what->setTextFormat(Qt::PlainText);
    rows->addRow(m_what);
    m_size = addRow(*rows, tr("Size:"), tr("Along x, y and z, in millimetres"));
    m_box = addRow(*rows, tr("Bounding box:"), tr("Its lowest and its highest corner, in millimetres"));
    m_volume = addRow(*rows, tr("Volume:"), tr("Of the surfaces themselves; of meshes, of their triangles"));
    m_area = addRow(*rows, tr("Area:"), tr("Of the surfaces themselves; of meshes, of their triangles"));
    m_triangles = addRow(*rows, tr("Triangles:"), tr("With which it is drawn and exported"));
    m_count = addRow(*rows, tr("Parts:"), tr("Each as often as it stands in the scene"));

    auto *area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(content);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);

    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &olFactsPanel::measure);
    connect(&m_scene, &olScene::changed, this, [this] {
        m_known.clear();
        showFacts({});
    });
    showSum({}, false);
}

QLabel *olFactsPanel::addRow(QFormLayout &rows, const QString &title, const QString &hint)
{
    auto *value = new QLabel;
    value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    value->setTextFormat(Qt::PlainText);
    value->setWordWrap(true);
    value->setToolTip(hint);
    rows.addRow(title, value);
    return value;
}

void olFactsPanel::showFacts(const QStringList &ids)
{
    m_ids = ids;
    m_isStale = true;
    begin();
}

void olFactsPanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    begin();
}

void olFactsPanel::begin()
{
    m_timer.stop();
    m_measuring.reset();
    m_parts.clear();
    if (!m_isStale || !isVisible())
        return;
    m_sum = {};
    m_next = 0;
    QSet<QString> wanted;
    // A level of detail is its part, drawn more coarsely.
    for (const QString &id : qAsConst(m_ids))
        wanted.insert(id.section(QLatin1Char('#'), 0, 0));
    // The library goes through all that is there to find a single one.
    for (XCAFPrs_DocumentExplorer explorer(m_scene.document(), XCAFPrs_DocumentExplorerFlags_OnlyLeafNodes);
         explorer.More(); explorer.Next()) {
        const XCAFPrs_DocumentNode &node = explorer.Current();
        if (wanted.isEmpty() || wanted.contains(QString::fromLatin1(node.Id.ToCString())))
            m_parts.push_back(XCAFDoc_ShapeTool::GetShape(node.RefLabel).Moved(node.Location));
    }
    m_timer.start();
}

void olFactsPanel::measure()
{
    QElapsedTimer time;
    time.start();
    bool isMore = true;
    while (isMore && time.elapsed() < slice)
        isMore = measureNext();
    showSum(m_sum, !isMore);
    if (isMore)
        return;
    m_isStale = false;
    m_timer.stop();
}

bool olFactsPanel::measureNext()
{
    if (m_next == m_parts.size())
        return false;
    const TopoDS_Shape &part = m_parts[m_next];
    const TopoDS_TShape *shape = part.TShape().get();
    const auto known = m_known.constFind(shape);
    if (known != m_known.constEnd()) {
        add(part, *known);
        return true;
    }
    if (!m_measuring)
        m_measuring.emplace(part.Located(TopLoc_Location()));
    if (m_measuring->step())
        return true;
    m_known.insert(shape, m_measuring->facts());
    m_measuring.reset();
    return true;
}

void olFactsPanel::add(const TopoDS_Shape &part, const olShapeFacts &facts)
{
    m_sum.box.Add(olDrawnBox(part));
    m_sum.facts.area += facts.area;
    m_sum.facts.triangles += facts.triangles;
    if (facts.isClosed)
        m_sum.facts.volume += facts.volume;
    else
        ++m_sum.openParts;
    ++m_sum.parts;
    ++m_next;
}

void olFactsPanel::showSum(const Sum &sum, bool isWhole)
{
    const QString pending = m_timer.isActive() && !isWhole ? tr("measuring...") : QString();
    const bool isSelection = !m_ids.isEmpty();
    m_what->setText(m_scene.isEmpty() ? tr("Nothing is open.")
                    : isSelection     ? tr("What is selected:")
                                      : tr("The whole scene:"));
    const bool hasBox = isWhole && !sum.box.IsVoid();
    const gp_Pnt low = hasBox ? sum.box.CornerMin() : gp_Pnt();
    const gp_Pnt high = hasBox ? sum.box.CornerMax() : gp_Pnt();
    m_size->setText(hasBox
                        ? tr("%1 \u00d7 %2 \u00d7 %3 mm")
                              .arg(number(high.X() - low.X()), number(high.Y() - low.Y()), number(high.Z() - low.Z()))
                        : pending);
    m_box->setText(hasBox ? tr("%1 to %2").arg(place(low), place(high)) : pending);
    const bool hasParts = isWhole && sum.parts > 0;
    const QString volume = tr("%1 mm\u00b3").arg(number(sum.facts.volume));
    m_volume->setText(!hasParts                    ? pending
                      : sum.openParts == 0         ? volume
                      : sum.openParts == sum.parts ? tr("none: it is not closed")
                      : sum.openParts == 1
                          ? tr("%1; one of the parts is not closed and not in it").arg(volume)
                          : tr("%1; %n of the parts are not closed and not in it", nullptr, sum.openParts).arg(volume));
    m_area->setText(hasParts ? tr("%1 mm\u00b2").arg(number(sum.facts.area)) : pending);
    m_triangles->setText(hasParts ? QLocale().toString(sum.facts.triangles) : pending);
    m_count->setText(hasParts ? QLocale().toString(sum.parts) : pending);
}
