#include <QtTest>

#include <QAction>
#include <QPointer>

#include <cstring>
#include <new>

#include "FakeController.h"
#include "ModalDialogHelper.h"
#include "module/BackendVersions.h"
#include "module/InertialTrackingModule.h"
#include "module/VersionGate.h"

// What the host gets from the module: its name, the four elements it places
// in menus and the status bar, and their life until exit_module.
class tst_InertialTrackingModule : public QObject
{
    Q_OBJECT

private slots:
    void elements_data();
    void elements();
    void lifecycle();
    void versionGate();
};

void tst_InertialTrackingModule::elements_data()
{
    QTest::addColumn<QString>("key");   // set once more, to a value of the wrong type
    QTest::addColumn<QVariant>("value");

    QTest::newRow("all given") << "ObserverMode" << QVariant(QString("yes"));
    QTest::newRow("io manager as a number: nothing asked or registered") << "CommandManager" << QVariant(42);
    QTest::newRow("versions as text: every gated feature off") << "BackendVersions" << QVariant(QString("1.21"));
    QTest::newRow("parent as a number: no parent") << "ModuleParent" << QVariant(7);
}

void tst_InertialTrackingModule::elements()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);

    FakeController fake;
    fake.reply("inertial available", "yes");
    fake.reply("inertial number_of_sensors", "2");
    fake.reply("inertial warmup", "yes");
    fake.reply("inertial warmup_status", "0.5");
    BackendVersions versions;
    versions.major = 1;
    versions.minor = 21;
    QWidget parent;
    QList<QPointer<QWidget>> widgets;
    {
        InertialTrackingModule module;
        module.set_param("CommandManager", QVariant::fromValue<IOManager*>(&fake));
        module.set_param("ModuleParent", QVariant::fromValue<QWidget*>(&parent));
        module.set_param("BackendVersions", QVariant::fromValue<BackendVersions*>(&versions));
        module.set_param(key, value);
        QStringList seen{module.get_module_name() + ' ' + module.get_module_version()};
        const QList<_GuiElement*> elements = module.get_gui_elements();
        for (const _GuiElement* e : elements) {
            seen << QString("%1 %2 %3 %4 %5").arg(e->menu_name).arg(e->menu_position).arg(e->action_position)
                        .arg(e->element_type).arg(e->widget->metaObject()->className());
            seen.last() += e->action ? " | " + e->action->text() + " | " + e->action->statusTip() + " | "
                                           + e->action->whatsThis()
                                     : " | " + e->widget->windowTitle() + " | " + e->widget->whatsThis();
            QCOMPARE(e->widget->parentWidget() == &parent, key != "ModuleParent");
            QVERIFY(!e->action || e->action->parent() == &module);
            widgets << e->widget;
        }
        QCOMPARE(seen, (QStringList{"GUI Inertial Tracking v1.3.1", "&Settings 200 522 0 InertialSettingsDlg | "
            "In&ertial Sensor | Change the Inertial Sensor settings | Change the Inertial Sensor settings",
            "&Calibration 300 720 0 HybridBodyCalibrationDlg | &Hybrid Body | Calibrate a Hybrid Body | Calibrate a Hybrid Body",
            "&Calibration 300 420 0 InertialCalibrationDlg | In&ertial Sensor Calibration | Calibrate a inertial sensor"
            " | Calibrate a inertial sensor", " -1 -1 1 InertialStatusBar | VEK InertialSensor Status | Displays whether "
            "VEK InertialSensor is available and the warming up status"}));
        QCOMPARE(module.get_gui_elements(), elements);   // built once
        QCOMPARE(fake.receiver("InertialModule") == nullptr, key == "CommandManager");
        QCOMPARE(fake.lines().isEmpty(), key == "CommandManager" || key == "BackendVersions");   // the status bar asks at once
        module.about_to_exit_module();
        QVERIFY(!fake.receiver("InertialModule") && !fake.receiver("HybridBodyCalibration"));
        for (QTimer* timer : elements.at(3)->widget->findChildren<QTimer*>())   // the status bar polls no more
            QVERIFY(!timer->isActive() || key != "ObserverMode");
        module.exit_module();
        for (int i = 0; i < widgets.size(); ++i)
            QVERIFY(widgets.at(i).isNull() && !elements.at(i)->widget);
        module.exit_module();   // nothing left to delete
        QVERIFY(module.get_gui_elements().value(3)->widget);   // built anew after an exit
        module.exit_module();
    }
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList{"QWidget \"\""});   // the parent alone
}

void tst_InertialTrackingModule::lifecycle()
{
    // Closed before it handed anything out, in memory that held something else.
    alignas(InertialTrackingModule) unsigned char memory[sizeof(InertialTrackingModule)];
    std::memset(memory, 0xA5, sizeof memory);
    auto* unused = new (memory) InertialTrackingModule;
    unused->about_to_exit_module();
    unused->exit_module();
    unused->~InertialTrackingModule();
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_InertialTrackingModule::versionGate()
{
    // A patch of -1 passes any patch; minor and major decide before it.
    QStringList passed;
    for (const QList<int>& version : {QList<int>{1, 12, -1}, {1, 12, -2}, {1, 11, 99}, {1, 13, 0}, {2, 0, 0}, {0, 99, 9}}) {
        BackendVersions versions;
        versions.major = version.at(0);
        versions.minor = version.at(1);
        versions.patch = version.at(2);
        passed << QString::number(VersionGate::available(&versions, 1, 12));
    }
    QCOMPARE(passed.join(' '), QString("1 0 0 1 1 0"));
    QVERIFY(!VersionGate::available(nullptr, 0, 0));
}

QTEST_MAIN(tst_InertialTrackingModule)
#include "tst_InertialTrackingModule.moc"
