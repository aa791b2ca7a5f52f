#pragma once

#include "State/olImportRecord.h"

#include <QWidget>
#include <boost/any.hpp>

#include <functional>
#include <map>
#include <string>
#include <vector>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
struct olImportJob;

/// What of a model with surfaces is read, how fine, and what is tidied up on the way, for one import or for good.
class olImportFineness : public QWidget
{
    Q_OBJECT

public:
    using Values = std::map<std::string, boost::any>;

    /// Why a setting cannot be changed; empty where it can.
    using LockReason = std::function<QString(const std::string &key)>;

    /// Begins as the job has it, whose format decides over the settings behind the options.
    olImportFineness(const olImportJob &job, const LockReason &lockReason, QWidget *parent = nullptr);

    /// Puts what was changed here, and nothing else, into the options of an import.
    void changeIn(olImportRecord &options) const;

    /// The settings that shall be so for good; none where this is for one import alone.
    [[nodiscard]] Values kept() const;

private:
    struct Number {
        double olImportRecord::*option;
        std::string key;
        QDoubleSpinBox *box;
        QLabel *judgement;
    };
    struct Kind {
        bool olImportRecord::*option;
        bool olImportRecord::*invisible;
        std::string key;
        std::string invisibleKey;
        QComboBox *box;
    };
    struct Flag {
        bool olImportRecord::*option;
        std::string key;
        QCheckBox *box;
    };

    void judge() const;

    olImportRecord m_before;
    std::string m_prefix;
    double m_extent = 0.0; ///< 0 where it is not known
    std::vector<Kind> m_kinds;
    std::vector<Number> m_numbers;
    std::vector<Flag> m_flags;
    QCheckBox *m_keep;
};
