#include <QtTest>

#include <QDoubleSpinBox>

#include <clocale>
#include <cstdio>

#include "HostHarness.h"
#include "ModalDialogHelper.h"
#include "simulator/SimModel.h"
#include "simulator/SimulatedController.h"

// The host under a comma-decimal locale (LC_ALL=de_DE.UTF-8, set by CTest):
// the settings dialog's frequency still goes out as "120.000000".
class tst_HostLocale : public QObject
{
    Q_OBJECT

private slots:
    void frequency_under_a_german_locale();
};

void tst_HostLocale::frequency_under_a_german_locale()
{
    char german[8];
    std::snprintf(german, sizeof german, "%.1f", 1.5);   // QApplication adopted the environment's locale
    if (QByteArray(german) != "1,5")
        QSKIP("the locale de_DE.UTF-8 is not installed here (locale-gen de_DE.UTF-8)");
    HostHarness host(HostHarness::Options{PLUGIN_FILE});
    QVERIFY2(host.ok(), qPrintable(host.error()));
    // Modules read replies with sscanf: the host keeps numbers in C.
    QCOMPARE(std::setlocale(LC_NUMERIC, nullptr), "C");
    // Lines are C whatever a module or library makes of the process locale.
    std::setlocale(LC_ALL, "");
    ModalDialogHelper::when_active("InertialSettingsDlg", [](QWidget* dialog) {
        dialog->findChild<QDoubleSpinBox*>("doubleSpinBox_frequency")->setValue(120.0);
        ModalDialogHelper::close(dialog);
    });
    host.action("In&ertial Sensor")->trigger();
    std::setlocale(LC_NUMERIC, "C");
    QCOMPARE(host.simulator()->model().frequency, 120.0);
    QVERIFY2(!host.window()->traffic_log()->texts().filter("norvane set inertial frequency 120.000000  ->  norvane ok").isEmpty(),
             qPrintable(host.window()->traffic_log()->texts().join('\n')));
}

QTEST_MAIN(tst_HostLocale)
#include "tst_HostLocale.moc"
