#pragma once

#include "State/olPreferencesEntry.h"
#include "Utilities/olMessage.h"

#include <string>
#include <vector>

class QWidget;
class olTesselationSettings;

/// What a developer would write by hand, without the plug-in's framework, over the very controls of its pages: one
/// loop that fills them from the record, and one that takes them back. The modules must stay as long as it is used.
class HandWritten
{
public:
    HandWritten();

    void fill() const;
    void takeBack() const;

    [[nodiscard]] std::size_t settings() const { return m_rows.size(); }

private:
    enum class Kind {
        CheckBox,
        GroupBox,
        Index,
        Data,
        Number,
        ComboText,
        Imported,
        InvisibleImported,
        FirstItem,
        SpinBox,
        FloatField,
        DoubleField,
        TextField,
        BytesField,
        Editor,
        FloatSlider,
        DoubleSlider,
        FloatWheel,
        Color,
        GradientColors,
        GradientPositions,
        Paths,
        Tolerances,
        MeshLevels,
        ZeroOrOne,
        Stitching,
        StitchingTolerance,
        Tessellation,
        ChordDeviation,
        NormalTolerance,
        MaxChordLength,
    };

    struct Row {
        std::string key;
        Kind kind;
        QWidget *widget;
        olTesselationSettings *block; ///< null outside one
        olPreferencesEntry *module;
        bool storesAlways; ///< of the modules that never report a key unchanged
        bool isService;
    };

    void addRow(olPreferencesEntry &module, QWidget &widget, const std::string &key);
    static Kind kindOf(const Row &row, const boost::any &value);
    static Kind kindInBlock(const Row &row);

    void show(const Row &row) const;
    void take(const Row &row) const;
    template <class T> [[nodiscard]] const T *read(const Row &row, T &fromService) const;
    template <class T, class Show> void showValue(const Row &row, Show &&show) const;
    template <class T> void store(const Row &row, const T &value) const;

    olMessage &m_record;
    std::vector<Row> m_rows;
    std::vector<olTesselationSettings *> m_blocks;
};
