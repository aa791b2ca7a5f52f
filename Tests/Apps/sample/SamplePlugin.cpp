// A preferences plug-in with one of everything, for the tests of what drives plug-ins.

#include "Kernel/olPreferences.h"
#include "KernelServices/olKernelServiceFactory.h"
#include "KernelServices/olPreferencesCategory.h"
#include "KernelServices/olPreferencesService.h"
#include "Utilities/olMessage.h"
#include "Widgets/QOLCollapsibleFrame.h"
#include "Widgets/QOLColorDialog.h"
#include "Widgets/QOLColorManipulator.h"
#include "Widgets/QOLSlider.h"
#include "Widgets/QOLWheelPrec.h"

#include <OpenSG/OSGColor.h>

#include <QtWidgets>

#include <memory>
#include <string>
#include <vector>

namespace
{

/// Tells on the page what signals and answers came, for scripts to show.
class SamplePage : public QWidget
{
public:
    SamplePage()
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(m_tabs);
        m_heard->setAccessibleName(QStringLiteral("Heard"));
        layout->addWidget(m_heard);
        addValues(*addTab("&Values"));
        addLists(*addTab("Lists"));
        addPaths(*addTab("Paths"));
        addBoxes(*addTab("Boxes"));
        new QCheckBox(QStringLiteral("Gone"), addTab("Old"));
        m_tabs->removeTab(m_tabs->count() - 1);
    }

private:
    QWidget *addTab(const char *caption)
    {
        auto *tab = new QWidget;
        new QFormLayout(tab);
        m_tabs->addTab(tab, QString::fromLatin1(caption));
        return tab;
    }

    template <class Control> Control &add(QWidget &place, const char *label)
    {
        auto *control = new Control;
        static_cast<QFormLayout *>(place.layout())->addRow(QString::fromLatin1(label), control);
        return *control;
    }

    QPushButton &addButton(QWidget &place, const char *text)
    {
        auto *button = new QPushButton(QString::fromLatin1(text), &place);
        place.layout()->addWidget(button);
        return *button;
    }

    void hear(const QString &text)
    {
        m_heard->setText(m_heard->text().isEmpty() ? text : m_heard->text() + QLatin1Char(' ') + text);
    }

    void addValues(QWidget &tab)
    {
        auto *tick = new QCheckBox(QStringLiteral("&Tick"), &tab);
        tab.layout()->addWidget(tick);
        connect(tick, &QCheckBox::clicked, this, [this](bool on) { hear(on ? "ticked" : "unticked"); });

        auto &choice = add<QComboBox>(tab, "&Choice");
        choice.addItems({"One", "Two", "Three"});
        static_cast<QStandardItemModel *>(choice.model())->item(2)->setEnabled(false);
        connect(&choice, QOverload<int>::of(&QComboBox::activated), this,
                [this](int item) { hear(QString::number(item)); });

        add<QSpinBox>(tab, "Count");
        add<QDoubleSpinBox>(tab, "Share").setRange(0.0, 1.0);
        add<QOLSlider>(tab, "Opacity").setRange(0.1, 1.0);
        auto &wheel = add<QOLWheelPrec>(tab, "Speed");
        wheel.setMinimum(0.0);
        wheel.setDecimals(2);
        auto &colors = add<QOLColorManipulator>(tab, "Colour");
        connect(&colors, &QOLColorManipulator::colorChanged, this, [this] { hear("coloured"); });

        auto &number = add<QLineEdit>(tab, "Number");
        number.setValidator(new QIntValidator(10, 99, &number));
        connect(&number, &QLineEdit::textEdited, this, [this] { hear("typed"); });
        connect(&number, &QLineEdit::editingFinished, this, [this] { hear("finished"); });
        add<QLineEdit>(tab, "Short").setMaxLength(3);
        add<QPlainTextEdit>(tab, "Notes");
        add<QLineEdit>(tab, "Fixed").setReadOnly(true);

        tab.layout()->addWidget(new QRadioButton(QStringLiteral("Left"), &tab));
        tab.layout()->addWidget(new QRadioButton(QStringLiteral("Right"), &tab));

        auto *extras = new QGroupBox(QStringLiteral("&Extras"), &tab);
        extras->setCheckable(true);
        extras->setChecked(false);
        auto *more = new QCheckBox(QStringLiteral("More"), extras);
        tab.layout()->addWidget(extras);
        auto *toggle = new QCheckBox(QStringLiteral("Hide Extras"), &tab);
        connect(toggle, &QCheckBox::toggled, more, &QWidget::setHidden);
    }

    void addLists(QWidget &tab)
    {
        auto *frame = new QOLCollapsibleFrame(&tab);
        frame->setCaption(QStringLiteral("Rows"));
        new QTableWidget(0, 2, frame);
        addButton(tab, "Add");
        addButton(tab, "Remove").setEnabled(false);
    }

    void addPaths(QWidget &tab)
    {
        auto *tree = new QTreeWidget(&tab);
        tree->setAccessibleName(QStringLiteral("Path Tree"));
        new QTreeWidgetItem(tree, {"a"});
    }

    void addBoxes(QWidget &tab)
    {
        connect(&addButton(tab, "Ask"), &QPushButton::clicked, this, [this] { ask(); });
        connect(&addButton(tab, "Tell"), &QPushButton::clicked, this,
                [this] { QMessageBox::information(this, "Told", "a \\ \"b\"", QMessageBox::Ok); });
        connect(&addButton(tab, "Insist"), &QPushButton::clicked, this, [this] {
            QMessageBox::critical(this, "Insist", "No way out", QMessageBox::Retry | QMessageBox::Save);
            hear("closed");
        });
        connect(&addButton(tab, "Browse"), &QPushButton::clicked, this,
                [] { QFileDialog::getExistingDirectory(nullptr, "Pick \"it\"", QString()); });
        connect(&addButton(tab, "Open Colours"), &QPushButton::clicked, m_colors, &QDialog::open);
    }

    void ask()
    {
        QMessageBox box(QMessageBox::Warning, "Sure?", "First\nsecond", QMessageBox::NoButton, this);
        box.setInformativeText("More of it");
        const auto *yes = box.addButton("&Do It", QMessageBox::AcceptRole);
        box.addButton("&Leave && Go", QMessageBox::RejectRole);
        box.exec();
        hear(box.clickedButton() == yes ? "done" : "left");
    }

    QTabWidget *m_tabs = new QTabWidget(this);
    QLineEdit *m_heard = new QLineEdit(this);
    QOLColorDialog *m_colors = new QOLColorDialog(this);
};

template <class Value> void offer(bool flag, const char *key, const Value &value)
{
    olPreferences::getData().set(key, value, flag);
}

class SampleModule : public olPreferences
{
public:
    SampleModule() : olPreferences("Sample", "Tests") { addPreferencesGUI(m_page.get()); }

    ~SampleModule() override
    {
        subPreferencesGUI(m_page.get());
        getData().remove("Sample float");
    }

    void setDefaults(olMessage &, bool flag) override
    {
        offer(flag, "Sample bool", true);
        offer(flag, "Sample int", -1);
        offer(flag, "Sample uint", 4294967295u);
        offer(flag, "Sample float", 0.1f);
        offer(flag, "Sample double", 0.1);
        offer(flag, "Sample qstring", QString("a\n\"b\""));
        offer(flag, "Sample string", std::string("c:\\d"));
        offer(flag, "Sample strings", std::vector<std::string>{"e", ""});
        offer(flag, "Sample floats", std::vector<float>{0.1f, 1e20f});
        offer(flag, "Sample color", osg::Color3f(0.25f, 0.5f, 1.0f));
        offer(flag, "Sample colors", std::vector<osg::Color3f>(2));
    }

    void applyPreferences() override {}
    void updateGUI() override { QMessageBox::question(m_page.get(), "Filled", ""); }
    void updateData() override {}

private:
    std::unique_ptr<SamplePage> m_page = std::make_unique<SamplePage>();
};

class SampleCategory : public olPreferencesCategory
{
public:
    SampleCategory() : olPreferencesCategory("Sample Service") { registerCategory(); }

    void setDefaults(olMessage &, bool) override { service().setDefaultFloat("Sample range", 1.5f); }
    void applyPreferences() override {}
    void updateGUI() override {}
    void updateData() override {}

private:
    static olPreferencesService &service() { return *olKernelServiceFactory::the<olPreferencesService>(); }
};

} // namespace

extern "C" Q_DECL_EXPORT void initPreferencesPlugin();

void initPreferencesPlugin()
{
    static SampleModule module;
    static SampleCategory category;
}
