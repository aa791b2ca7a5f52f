#include "BareForms.h"
#include "Dialog/olPreferencesDialog.h"
#include "Groups.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"
#include "Support/Allocations.h"
#include "Support/BenchHost.h"

#include <KConfigDialog>
#include <KConfigSkeleton>
#include <KSharedConfig>
#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QSettings>
#include <benchmark/benchmark.h>

namespace
{

constexpr int repeats = 3;

/// Waits until a widget was painted.
class Painting : public QObject
{
public:
    void of(QWidget &widget)
    {
        widget.installEventFilter(this);
        m_isDone = false;
        while (!m_isDone)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_isDone = m_isDone || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool m_isDone = false;
};

olPreferencesEntry &module(const QString &name)
{
    olPreferencesEntry *found = olPreferencesRegistry::the().find(name);
    require(found, "there is no such module");
    return *found;
}

enum class Opening { First, Second };

/// From nothing to the first page painted, in a host that has started but never shown a dialog; or once more. The
/// memory is that of host, modules and dialog.
void openDialog(benchmark::State &state, Opening opening)
{
    const QString page = QStringLiteral("Render Options");
    std::unique_ptr<BenchHost> host;
    std::unique_ptr<olPreferencesDialog> dialog;
    std::size_t before = 0;
    const auto open = [&] {
        if (!dialog)
            dialog = std::make_unique<olPreferencesDialog>(host->session());
        dialog->open(page);
        Painting().of(*module(page).page());
    };
    measure(
        state, open,
        [&] {
            before = heapInUse();
            QSettings().clear();
            host = std::make_unique<BenchHost>();
            QApplication::processEvents();
            if (opening == Opening::Second) {
                open();
                dialog->close();
                QApplication::processEvents();
            }
        },
        [&] {
            state.counters["memory"] = double(heapInUse() - before);
            dialog.reset();
            host.reset();
        });
}

/// The same forms in the dialog that programs of KDE have, with no setting behind any control: it cannot do with less.
void openKConfigDialog(benchmark::State &state, Opening opening)
{
    std::unique_ptr<KConfigDialog> dialog;
    KConfigSkeleton skeleton(KSharedConfig::openConfig(QString(), KConfig::SimpleConfig));
    QWidget *shown = nullptr;
    std::size_t before = 0;
    const auto open = [&] {
        if (!dialog) {
            dialog = std::make_unique<KConfigDialog>(nullptr, QStringLiteral("preferences"), &skeleton);
            for (auto &form : BareForms::all()) {
                const bool isShown = form->objectName() == QLatin1String("olRenderOptionsPreferencesGUI");
                QWidget *page = form.release(); // the dialog's own from here on
                auto *item = dialog->addPage(page, QStringLiteral("Page"));
                if (isShown) {
                    dialog->setCurrentPage(item);
                    shown = page;
                }
            }
            require(shown, "the form is not among them");
        }
        dialog->show();
        Painting().of(*shown);
    };
    measure(
        state, open,
        [&] {
            before = heapInUse();
            if (opening == Opening::Second) {
                open();
                dialog->close();
                QApplication::processEvents();
            }
        },
        [&] {
            state.counters["memory"] = double(heapInUse() - before);
            dialog.reset();
        });
}

/// A host with the dialog open, for questions to its search.
struct OpenDialog {
    OpenDialog()
    {
        dialog.open(QStringLiteral("Camera"));
        QApplication::processEvents();
    }

    BenchHost host;
    olPreferencesDialog dialog{host.session()};
    QLineEdit &field = *dialog.findChild<QLineEdit *>(QStringLiteral("search"));
};

/// From the text in the field to the answer on the screen.
void search(benchmark::State &state, OpenDialog &open, const QString &text)
{
    measure(
        state,
        [&] {
            open.field.setText(text);
            QApplication::processEvents();
        },
        [&] {
            open.field.clear();
            QApplication::processEvents();
        });
}

} // namespace

std::shared_ptr<void> registerDialog()
{
    for (const auto &[name, opening] : {std::pair("first", Opening::First), std::pair("second", Opening::Second)}) {
        benchmark::RegisterBenchmark((std::string("dialog/") + name).c_str(), openDialog, opening)
            ->UseManualTime()
            ->Iterations(repeats);
        benchmark::RegisterBenchmark((std::string("KConfigDialog/") + name).c_str(), openKConfigDialog, opening)
            ->UseManualTime()
            ->Iterations(repeats);
    }
    return {};
}

std::shared_ptr<void> registerSearch()
{
    auto open = std::make_shared<OpenDialog>();
    for (const char *text : {"t", "tolerance", "import mesh", "RenderOptions", "qqq"}) {
        benchmark::RegisterBenchmark(
            (std::string("search/") + text).c_str(),
            [open, text = QString::fromLatin1(text)](benchmark::State &state) { search(state, *open, text); })
            ->UseManualTime()
            ->Iterations(2 * repeats);
    }
    return open;
}
