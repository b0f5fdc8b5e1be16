#include <QtTest>

#include <QComboBox>
#include <QPushButton>
#include <QSpinBox>

#include "HostHarness.h"
#include "ModalDialogHelper.h"
#include "filter/FilterDialog.h"
#include "host/InProcessLink.h"
#include "host/MainWindow.h"
#include "simulator/SimulatedController.h"

// The filter dialog on norvane-host's own link to the simulator's default
// scenario, where body 03 ("head") uses the medium prediction preset.
class tst_FilterEndToEnd : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void chosenPresetReachesTheController();
};

void tst_FilterEndToEnd::cleanup()
{
    QCOMPARE(ModalDialogHelper::pending(), 0);
    ModalDialogHelper::clear_pending();
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_FilterEndToEnd::chosenPresetReachesTheController()
{
    HostHarness::Options options;
    options.plugin_file = QStringLiteral(PLUGIN_FILE);
    HostHarness host(options);
    QVERIFY2(host.ok(), qPrintable(host.error()));
    const int start_messages = host.messages().size();   // the host's own start-up notes
    auto ask = [&](const QByteArray& path) {
        return host.simulator()->handle("norvane get " + path).line.mid(QByteArray("norvane set " + path).size() + 1);
    };
    FilterDialog dialog(host.link(), host.window(), host.window()->backend_versions());
    QString help_title;
    ModalDialogHelper::when_active("FilterDialog", [&](QWidget*) {
        auto* presets = dialog.findChild<QComboBox*>("comboBox_preset");
        QCOMPARE(presets->currentText(), "medium prediction");
        presets->setCurrentIndex(presets->findText("custom"));
        auto* prediction = dialog.findChild<QSpinBox*>("spinBox_prediction");
        prediction->setValue(40);
        QTest::keyClick(prediction, Qt::Key_Return);
        ModalDialogHelper::when_active("FilterHelp", [&](QWidget* help) {
            help_title = help->windowTitle();
            help->findChild<QPushButton*>("pushButton_exit")->click();
        });
        dialog.findChild<QPushButton*>("pushButton_help")->click();
        dialog.findChild<QPushButton*>("pushButton_exit")->click();
    });
    QCOMPARE(dialog.update_and_exec(FilterDialog::StandardBodies, 2), int(QDialog::Accepted));
    QCOMPARE(help_title, "Help Filter");
    QCOMPARE(ask("body filter6d_preset standard b03"), QByteArray("preset6d_custom"));
    QCOMPARE(ask("body filter6d_prediction standard b03"), QByteArray("0.04"));
    QCOMPARE(host.messages().mid(start_messages), QStringList());
}

QTEST_MAIN(tst_FilterEndToEnd)
#include "tst_FilterEndToEnd.moc"
