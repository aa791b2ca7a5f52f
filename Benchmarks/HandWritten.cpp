#include "HandWritten.h"

#include "Framework/olTypedAccess.h"
#include "KernelServices/olKernelServiceFactory.h"
#include "KernelServices/olPreferencesService.h"
#include "Support/BenchHost.h"
#include "Viewer/olBackgroundTable.h"
#include "Widgets/QOLColorManipulator.h"
#include "Widgets/QOLSlider.h"
#include "Widgets/QOLWheelPrec.h"
#include "Widgets/olTesselationSettings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTableWidget>
#include <QTreeWidget>

#include <map>
#include <set>

namespace
{

using Block = olTesselationSettings;
using Part = Block::Control;

olPreferencesService &service() { return *olKernelServiceFactory::the<olPreferencesService>(); }

template <class Widget> bool is(const QWidget *widget) { return qobject_cast<const Widget *>(widget); }

void showPaths(QTableWidget &table, const std::vector<std::string> &paths)
{
    table.setSortingEnabled(false);
    table.horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    table.setRowCount(0);
    for (const std::string &path : paths) {
        table.insertRow(table.rowCount());
        table.setItem(table.rowCount() - 1, 0, new QTableWidgetItem(QString::fromStdString(path)));
    }
    table.setSortingEnabled(true);
}

void showTolerances(QTreeWidget &list, const std::vector<float> &tolerances)
{
    list.setSortingEnabled(false);
    list.header()->setSortIndicator(-1, Qt::AscendingOrder);
    list.clear();
    for (const float tolerance : tolerances)
        list.addTopLevelItem(new QTreeWidgetItem({QString::number(double(tolerance), 'g', 6)}));
    list.setSortingEnabled(true);
}

std::vector<float> tolerancesOf(const QTreeWidget &list)
{
    std::vector<float> tolerances;
    for (int row = 0; row < list.topLevelItemCount(); ++row)
        tolerances.push_back(list.topLevelItem(row)->text(0).toFloat());
    return tolerances;
}

} // namespace

HandWritten::HandWritten() : m_record(BenchHost::record())
{
    for (olPreferencesEntry *module : BenchHost::modules()) {
        std::map<std::string, QWidget *> controls;
        const auto widgets = module->page()->findChildren<QWidget *>();
        for (QWidget *widget : widgets) {
            const QStringList keys = widget->property("olSettingKeys").toStringList();
            for (const QString &key : keys)
                controls[key.toStdString()] = widget;
        }
        // In the order of the module's own walk; what has no default comes behind.
        for (const olOfferedDefault &offered : module->defaults()) {
            if (QWidget *control = controls[offered.key])
                addRow(*module, *control, offered.key);
            controls.erase(offered.key);
        }
        for (const auto &[key, control] : controls)
            addRow(*module, *control, key);
        if (auto *block = module->page()->findChild<Block *>())
            m_blocks.push_back(block);
    }
}

void HandWritten::addRow(olPreferencesEntry &module, QWidget &widget, const std::string &key)
{
    static const std::set<std::string> storing{"MainWindow", "FileIO", "WRL", "KBX"};
    Row row{key, Kind::CheckBox, &widget, nullptr, &module, false, module.home() == olHome::Service};
    row.storesAlways = storing.count(module.name().toStdString()) != 0;
    for (QWidget *parent = &widget; parent && !row.block; parent = parent->parentWidget())
        row.block = qobject_cast<Block *>(parent);
    row.kind = kindOf(row, module.value(key));
    m_rows.push_back(row);
}

HandWritten::Kind HandWritten::kindInBlock(const Row &row)
{
    const std::pair<Part, Kind> parts[] = {{Part::Stitching, Kind::Stitching},
                                           {Part::StitchingTolerance, Kind::StitchingTolerance},
                                           {Part::Tessellation, Kind::Tessellation},
                                           {Part::ChordDeviation, Kind::ChordDeviation},
                                           {Part::NormalTolerance, Kind::NormalTolerance},
                                           {Part::MaxChordLength, Kind::MaxChordLength}};
    for (const auto &[part, kind] : parts) {
        if (row.block->control(part) == row.widget)
            return kind;
    }
    require(false, "a control of the tessellation block is unknown");
    return Kind::Stitching;
}

HandWritten::Kind HandWritten::kindOf(const Row &row, const boost::any &value)
{
    const QWidget *widget = row.widget;
    const auto holds = [&value](const std::type_info &type) { return value.type() == type; };
    if (row.block)
        return kindInBlock(row);
    if (is<QCheckBox>(widget))
        return holds(typeid(bool)) ? Kind::CheckBox : holds(typeid(int)) ? Kind::MeshLevels : Kind::ZeroOrOne;
    if (is<QGroupBox>(widget))
        return Kind::GroupBox;
    if (is<QSpinBox>(widget))
        return Kind::SpinBox;
    if (is<QPlainTextEdit>(widget))
        return Kind::Editor;
    if (is<QOLSlider>(widget))
        return holds(typeid(float)) ? Kind::FloatSlider : Kind::DoubleSlider;
    if (is<QOLWheelPrec>(widget))
        return Kind::FloatWheel;
    if (is<QOLColorManipulator>(widget))
        return Kind::Color;
    if (is<QTreeWidget>(widget))
        return Kind::Tolerances;
    if (is<QTableWidget>(widget)) {
        return holds(typeid(std::vector<osg::Color3f>)) ? Kind::GradientColors
               : holds(typeid(std::vector<float>))      ? Kind::GradientPositions
                                                        : Kind::Paths;
    }
    if (is<QLineEdit>(widget)) {
        return holds(typeid(float))     ? Kind::FloatField
               : holds(typeid(double))  ? Kind::DoubleField
               : holds(typeid(QString)) ? Kind::TextField
                                        : Kind::BytesField;
    }
    const auto *combo = qobject_cast<const QComboBox *>(widget);
    require(combo, "there is a control of an unknown kind");
    if (holds(typeid(std::string)))
        return Kind::ComboText;
    if (holds(typeid(bool)) && row.isService)
        return Kind::FirstItem;
    if (holds(typeid(bool)))
        return row.key.find("invisible") == std::string::npos ? Kind::Imported : Kind::InvisibleImported;
    if (combo->itemData(0).isValid())
        return Kind::Data;
    return combo->objectName() == QLatin1String("compressionSize") ? Kind::Number : Kind::Index;
}

template <class T> const T *HandWritten::read(const Row &row, T &fromService) const
{
    if (row.isService) {
        if constexpr (std::is_same_v<T, bool>)
            fromService = service().getBool(row.key, false);
        else if constexpr (std::is_same_v<T, int>)
            fromService = service().getInt(row.key, 0);
        else if constexpr (std::is_same_v<T, float>)
            fromService = service().getFloat(row.key, 0.0f);
        return &fromService;
    }
    const auto found = m_record.entries().find(row.key);
    return found == m_record.entries().end() ? nullptr : boost::any_cast<T>(&found->second);
}

template <class T, class Show> void HandWritten::showValue(const Row &row, Show &&show) const
{
    T fromService{};
    if (const T *value = read(row, fromService))
        show(*value);
}

template <class T> void HandWritten::store(const Row &row, const T &value) const
{
    if (row.isService) {
        if constexpr (std::is_same_v<T, bool>)
            service().setBool(row.key, value);
        else if constexpr (std::is_same_v<T, int>)
            service().setInt(row.key, value);
        else if constexpr (std::is_same_v<T, float>)
            service().setFloat(row.key, value);
        return;
    }
    T unused{};
    const T *held = row.storesAlways ? nullptr : read(row, unused);
    if (held && isSameValue(*held, value))
        row.module->setChanged(row.key, false);
    else
        m_record.set(row.key, boost::any(value), true);
}

void HandWritten::fill() const
{
    for (const Row &row : m_rows)
        show(row);
    for (Block *block : m_blocks) {
        block->enableGroups(Block::AllGroups);
        block->updateQualityPreset();
    }
}

void HandWritten::takeBack() const
{
    for (const Row &row : m_rows)
        take(row);
}

void HandWritten::show(const Row &row) const
{
    // Of these three only the one that the row's kind names is ever touched.
    auto *box = static_cast<QCheckBox *>(row.widget);
    auto *combo = static_cast<QComboBox *>(row.widget);
    auto *field = static_cast<QLineEdit *>(row.widget);
    const auto showNumber = [field](double number) { field->setText(QString::number(number, 'g', 6)); };
    switch (row.kind) {
    case Kind::CheckBox:
        return showValue<bool>(row, [&](bool value) { box->setChecked(value); });
    case Kind::MeshLevels:
        return showValue<int>(row, [&](int value) { box->setChecked(value != 0); });
    case Kind::ZeroOrOne:
        return showValue<unsigned>(row, [&](unsigned value) { box->setChecked(value != 0); });
    case Kind::GroupBox:
        return showValue<bool>(row, [&](bool value) { static_cast<QGroupBox *>(row.widget)->setChecked(value); });
    case Kind::Index:
        return showValue<int>(row, [&](int value) { combo->setCurrentIndex(value); });
    case Kind::Data:
        return showValue<int>(row, [&](int value) {
            const QSignalBlocker quiet(combo);
            combo->setCurrentIndex(combo->findData(value));
        });
    case Kind::Number:
        return showValue<int>(row, [&](int value) {
            combo->setCurrentIndex(combo->findText(QString::number(value), Qt::MatchFixedString));
        });
    case Kind::ComboText:
        return showValue<std::string>(
            row, [&](const std::string &value) { combo->setCurrentText(QString::fromStdString(value)); });
    case Kind::Imported:
        return showValue<bool>(
            row, [&](bool value) { combo->setCurrentIndex(value ? std::max(combo->currentIndex(), 1) : 0); });
    case Kind::InvisibleImported:
        return showValue<bool>(row, [&](bool value) {
            if (combo->currentIndex() > 0)
                combo->setCurrentIndex(value ? 2 : 1);
        });
    case Kind::FirstItem:
        return showValue<bool>(row, [&](bool value) { combo->setCurrentIndex(value ? 0 : 1); });
    case Kind::SpinBox:
        return showValue<int>(row, [&](int value) { static_cast<QSpinBox *>(row.widget)->setValue(value); });
    case Kind::FloatField:
        return showValue<float>(row, [&](float value) { showNumber(double(value)); });
    case Kind::DoubleField:
        return showValue<double>(row, showNumber);
    case Kind::TextField:
        return showValue<QString>(row, [&](const QString &value) { field->setText(value); });
    case Kind::BytesField:
        return showValue<std::string>(row,
                                      [&](const std::string &value) { field->setText(QString::fromStdString(value)); });
    case Kind::Editor:
        return showValue<std::string>(row, [&](const std::string &value) {
            static_cast<QPlainTextEdit *>(row.widget)->setPlainText(QString::fromStdString(value));
        });
    case Kind::FloatSlider:
        return showValue<float>(row,
                                [&](float value) { static_cast<QOLSlider *>(row.widget)->setValue(double(value)); });
    case Kind::DoubleSlider:
        return showValue<double>(row, [&](double value) { static_cast<QOLSlider *>(row.widget)->setValue(value); });
    case Kind::FloatWheel:
        return showValue<float>(row,
                                [&](float value) { static_cast<QOLWheelPrec *>(row.widget)->setValue(double(value)); });
    case Kind::Color:
        return showValue<osg::Color3f>(
            row, [&](const osg::Color3f &value) { static_cast<QOLColorManipulator *>(row.widget)->setColor(value); });
    case Kind::GradientColors:
        return showValue<std::vector<osg::Color3f>>(row, [&](const auto &value) {
            olBackgroundTable(*static_cast<QTableWidget *>(row.widget)).setColors(value);
        });
    case Kind::GradientPositions:
        return showValue<std::vector<float>>(row, [&](const auto &value) {
            olBackgroundTable(*static_cast<QTableWidget *>(row.widget)).setPositions(value);
        });
    case Kind::Paths:
        return showPaths(*static_cast<QTableWidget *>(row.widget), {});
    case Kind::Tolerances:
        return showValue<std::vector<float>>(
            row, [&](const auto &value) { showTolerances(*static_cast<QTreeWidget *>(row.widget), value); });
    case Kind::Stitching:
        return showValue<bool>(row, [&](bool value) { row.block->setStitchingEnabled(value); });
    case Kind::StitchingTolerance:
        return showValue<double>(row, [&](double value) { row.block->setStitchingTolerance(value); });
    case Kind::Tessellation:
        return showValue<bool>(row, [&](bool value) { row.block->setTessellationEnabled(value); });
    case Kind::ChordDeviation:
        return showValue<double>(row, [&](double value) { row.block->setChordDeviation(value); });
    case Kind::NormalTolerance:
        return showValue<double>(row, [&](double value) { row.block->setNormalTolerance(value); });
    case Kind::MaxChordLength:
        return showValue<double>(row, [&](double value) { row.block->setMaxChordLength(value); });
    }
}

void HandWritten::take(const Row &row) const
{
    const auto *box = static_cast<const QCheckBox *>(row.widget);
    const auto *combo = static_cast<const QComboBox *>(row.widget);
    const auto *field = static_cast<const QLineEdit *>(row.widget);
    switch (row.kind) {
    case Kind::CheckBox:
        return store(row, box->isChecked());
    case Kind::MeshLevels:
        return store(row, box->isChecked() ? 2 : 0);
    case Kind::ZeroOrOne:
        return store(row, box->isChecked() ? 1u : 0u);
    case Kind::GroupBox:
        return store(row, static_cast<const QGroupBox *>(row.widget)->isChecked());
    case Kind::Index:
        return store(row, combo->currentIndex());
    case Kind::Data:
        return store(row, combo->currentData().toInt());
    case Kind::Number:
        return store(row, combo->currentText().toInt());
    case Kind::ComboText:
        return store(row, combo->currentText().toStdString());
    case Kind::Imported:
        return store(row, combo->currentIndex() != 0);
    case Kind::InvisibleImported:
        return store(row, combo->currentIndex() == 2);
    case Kind::FirstItem:
        return store(row, combo->currentIndex() == 0);
    case Kind::SpinBox:
        return store(row, static_cast<const QSpinBox *>(row.widget)->value());
    case Kind::FloatField:
        return store(row, field->text().toFloat());
    case Kind::DoubleField:
        return store(row, field->text().toDouble());
    case Kind::TextField:
        return store(row, field->text());
    case Kind::BytesField:
        return store(row, field->text().toStdString());
    case Kind::Editor:
        return store(row, static_cast<const QPlainTextEdit *>(row.widget)->toPlainText().toStdString());
    case Kind::FloatSlider:
        return store(row, float(static_cast<const QOLSlider *>(row.widget)->value()));
    case Kind::DoubleSlider:
        return store(row, static_cast<const QOLSlider *>(row.widget)->value());
    case Kind::FloatWheel:
        return store(row, float(static_cast<const QOLWheelPrec *>(row.widget)->value()));
    case Kind::Color:
        return store(row, static_cast<const QOLColorManipulator *>(row.widget)->getColor());
    case Kind::GradientColors:
        return store(row, olBackgroundTable(*static_cast<QTableWidget *>(row.widget)).colors());
    case Kind::GradientPositions:
        return store(row, olBackgroundTable(*static_cast<QTableWidget *>(row.widget)).positions());
    case Kind::Paths: // there are none, and none are kept
        return m_record.remove(row.key);
    case Kind::Tolerances:
        return store(row, tolerancesOf(*static_cast<const QTreeWidget *>(row.widget)));
    case Kind::Stitching:
        return store(row, row.block->isStitchingEnabled());
    case Kind::StitchingTolerance:
        return store(row, row.block->stitchingTolerance());
    case Kind::Tessellation:
        return store(row, row.block->isTessellationEnabled());
    case Kind::ChordDeviation:
        return store(row, row.block->chordDeviation());
    case Kind::NormalTolerance:
        return store(row, row.block->normalTolerance());
    case Kind::MaxChordLength:
        return store(row, row.block->maxChordLength());
    }
}
