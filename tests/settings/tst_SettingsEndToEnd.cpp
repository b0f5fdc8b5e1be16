#include <QtTest>

#include <QAction>
#include <QComboBox>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

#include "HostHarness.h"
#include "ModalDialogHelper.h"
#include "simulator/SimulatedController.h"

// The settings dialog of the loaded plug-in, opened from the host's menu, on
// the simulator's default scenario: transceivers 70011 and 70012, radio
// sensors 10231 and 10232 (on body 2) on the first, 10233 (asleep, tap mode)
// and 10234 on the second, and 10235 on cable. One test per thing a user
// does there, each checked on the controller.
class tst_SettingsEndToEnd : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void wakeupModesReachTheSensors();
    void deletedSensorIsGone();
    void bodiesAndPulseReachTheController();
    void hundredthSensorIsListedAndWorks();

private:
    // Opens "In&ertial Sensor", runs `inside` on its table, leaves by Exit.
    void open(const std::function<void(QTableWidget*)>& inside);
    QByteArray ask(const QByteArray& path) const;
    static int row_of(QTableWidget* table, const QString& id);
    static void choose(QComboBox* combo, const QString& text);

    std::unique_ptr<HostHarness> host;
    QStringList startup;
};

void tst_SettingsEndToEnd::init()
{
    HostHarness::Options options;
    options.plugin_file = QStringLiteral(PLUGIN_FILE);
    host = std::make_unique<HostHarness>(options);
    QVERIFY2(host->ok(), qPrintable(host->error()));
    startup = host->messages();
}

void tst_SettingsEndToEnd::cleanup()
{
    // Nothing the dialog did went wrong: the host's own start-up lines only.
    if (!QTest::currentTestFailed())
        QCOMPARE(host->messages(), startup);
    host.reset();
    QCOMPARE(ModalDialogHelper::pending(), 0);
    ModalDialogHelper::clear_pending();
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_SettingsEndToEnd::open(const std::function<void(QTableWidget*)>& inside)
{
    // The plug-in's own class, not one this test links: found by name.
    ModalDialogHelper::when_active("InertialSettingsDlg", [&](QWidget* w) {
        inside(w->findChild<QTableWidget*>("tableWidget"));
        w->findChild<QPushButton*>("pushButton_exit")->click();
    });
    host->action("In&ertial Sensor")->trigger();
}

QByteArray tst_SettingsEndToEnd::ask(const QByteArray& path) const
{
    const QByteArray reply = host->simulator()->handle("norvane get " + path).line;
    return reply.mid(QByteArray("norvane set " + path + ' ').size());
}

int tst_SettingsEndToEnd::row_of(QTableWidget* table, const QString& id)
{
    return table->findItems(id, Qt::MatchExactly).value(0)->row();
}

void tst_SettingsEndToEnd::choose(QComboBox* combo, const QString& text)
{
    combo->showPopup();
    combo->view()->setCurrentIndex(combo->model()->index(combo->findText(text), 0));
    QTest::keyClick(combo->view(), Qt::Key_Return);
}

void tst_SettingsEndToEnd::wakeupModesReachTheSensors()
{
    QString page;
    open([&](QTableWidget* table) {
        choose(qobject_cast<QComboBox*>(table->cellWidget(row_of(table, "10232"), 6)), "wake on tap");
        page = table->window()->findChild<QComboBox*>("comboBox_mode")->currentText();
    });
    QCOMPARE(ask("inertial sensor_wakeup_mode NRV IMU3 '10232'") + ask("inertial sensor_sleep_timeout NRV IMU3 '10232'"),
             QByteArray("'wm_tap'10"));
    QCOMPARE(ask("inertial sensor_wakeup_mode NRV IMU3 '10231'"), QByteArray("'wm_radio'"));   // its neighbour's own
    QCOMPARE(page, QString("(mixed)"));

    // For every sensor at once: those that are awake and offer the mode.
    open([&](QTableWidget* table) { choose(table->window()->findChild<QComboBox*>("comboBox_mode"), "wake by radio"); });
    for (const char* serial : {"10231", "10232", "10234"})
        QCOMPARE(ask(QByteArray("inertial sensor_wakeup_mode NRV IMU3 '") + serial + "'"), QByteArray("'wm_radio'"));
    QCOMPARE(ask("inertial sensor_wakeup_mode NRV IMU3 '10233'"), QByteArray("'wm_tap'"));
    QCOMPARE(ask("inertial sensor_wakeup_mode NRV IMU3C '10235'"), QByteArray("'wm_usb'"));
    QVERIFY(host->messages().join('\n').contains("Error: Unable to reach sensor NRV IMU3 '10233'"));
    startup = host->messages();
}

void tst_SettingsEndToEnd::deletedSensorIsGone()
{
    QString question;
    QStringList ids;
    open([&](QTableWidget* table) {
        QTableWidgetItem* remove = table->item(row_of(table, "10232"), 11);
        ModalDialogHelper::when_active("QMessageBox", [&](QWidget* w) {
            question = qobject_cast<QMessageBox*>(w)->text();
            ModalDialogHelper::press(w, QMessageBox::Yes);
        });
        table->scrollToItem(remove);
        QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, table->visualItemRect(remove).center());
        for (int row = 0; row < table->rowCount(); ++row)
            ids << table->item(row, 0)->text();
    });
    QCOMPARE(question, QString("Delete sensor NRV IMU3 '10232'?"));
    QCOMPARE(ids, (QStringList{"70011", "10231", "70012", "10234", "10233", "cable connected:", "10235"}));
    QCOMPARE(ask("inertial number_of_sensors") + ' ' + ask("body inertial_sensor standard b02") + ' '
                 + ask("standard number_of_bodies"), QByteArray("4 none 6"));
}

void tst_SettingsEndToEnd::hundredthSensorIsListedAndWorks()
{
    HostHarness::Options options;
    options.plugin_file = QStringLiteral(PLUGIN_FILE);
    options.scenario_file = QStringLiteral(SCENARIO_DIR "/hundred_sensors.json");
    host.reset();   // one host at a time holds the plug-in
    host = std::make_unique<HostHarness>(options);
    QVERIFY2(host->ok(), qPrintable(host->error()));
    startup = host->messages();
    open([&](QTableWidget* table) {
        const QList<QTableWidgetItem*> found = table->findItems("10399", Qt::MatchExactly);   // "inertial sensor d100"
        if (!found.isEmpty())
            choose(qobject_cast<QComboBox*>(table->cellWidget(found.first()->row(), 6)), "wake on tap");
    });
    QCOMPARE(ask("inertial sensor_wakeup_mode NRV IMU3 '10399'"), QByteArray("'wm_tap'"));
}

QTEST_MAIN(tst_SettingsEndToEnd)
#include "tst_SettingsEndToEnd.moc"

void tst_SettingsEndToEnd::bodiesAndPulseReachTheController()
{
    // 10232 moves from body 2 to body 3, which is renamed; the output then follows 10232.
    open([&](QTableWidget* table) {
        QWidget* dialog = table->window();
        auto* bodies = dialog->findChild<QTableWidget*>("tableWidget_bodies");
        QTest::keyClick(dialog, Qt::Key_2);
        dialog->findChild<QTableWidget*>("tableWidget_sensors")->setCurrentCell(1, 0);
        bodies->setCurrentCell(2, 0);
        emit bodies->cellClicked(2, 0);
        dialog->findChild<QPushButton*>("pushButton_select")->click();   // taken off body 2 on the way
        bodies->item(2, 1)->setText("Wand");
        QTest::keyClick(dialog, Qt::Key_3);
        dialog->findChild<QRadioButton*>("radioButton_inertialSensor")->click();
        choose(dialog->findChild<QComboBox*>("comboBox_inertialSensor"), "10232");
    });
    QCOMPARE(ask("inertial body_of_sensor NRV IMU3 '10232'") + '|' + ask("body desc standard b03") + '|'
                 + ask("body inertial_sensor standard b02") + '|' + ask("tracking pulse"),
             QByteArray("standard b03|\"Wand\"|none|inertial_sensor NRV IMU3 '10232'"));
}
