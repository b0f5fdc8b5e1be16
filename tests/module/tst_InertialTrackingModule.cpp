#include <QtTest>

#include <QAction>
#include <QPointer>
#include <QWidget>

#include "FakeController.h"
#include "ModalDialogHelper.h"
#include "module/BackendVersions.h"
#include "module/InertialTrackingModule.h"
#include "module/VersionGate.h"

// What the host gets from the module: its name, the four elements it
// places in menus and the status bar, and their life from the first
// get_gui_elements to exit_module.
class tst_InertialTrackingModule : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void elements();
    void lifecycle();
    void setParam_data();
    void setParam();
    void versionGate_data();
    void versionGate();

private:
    void configure(InertialTrackingModule& module);

    FakeController* fake = nullptr;
    BackendVersions versions;
    QWidget* parent = nullptr;
};

void tst_InertialTrackingModule::init()
{
    fake = new FakeController;
    versions = BackendVersions();
    versions.major = 1;
    versions.minor = 21;
    parent = new QWidget;
}

void tst_InertialTrackingModule::cleanup()
{
    delete parent;
    delete fake;
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_InertialTrackingModule::configure(InertialTrackingModule& module)
{
    module.set_param("CommandManager", QVariant::fromValue<IOManager*>(fake));
    module.set_param("ModuleParent", QVariant::fromValue<QWidget*>(parent));
    module.set_param("BackendVersions", QVariant::fromValue<BackendVersions*>(&versions));
    module.set_param("ObserverMode", true);
}

void tst_InertialTrackingModule::elements()
{
    InertialTrackingModule module;
    configure(module);
    QStringList seen{module.get_module_name() + ' ' + module.get_module_version()};
    for (const _GuiElement* e : module.get_gui_elements()) {
        QString entry = QString("%1 %2 %3 %4 %5").arg(e->menu_name).arg(e->menu_position).arg(e->action_position)
                            .arg(e->element_type).arg(e->widget->metaObject()->className());
        if (e->action)
            entry += " | " + e->action->text() + " | " + e->action->statusTip() + " | " + e->action->whatsThis();
        QVERIFY(e->widget->parentWidget() == parent && (!e->action || e->action->parent() == &module));
        seen << entry;
    }
    QCOMPARE(seen, (QStringList{
        "GUI Inertial Tracking v1.3.1",
        "&Settings 200 522 0 InertialSettingsDlg | In&ertial Sensor | Change the Inertial Sensor settings"
        " | Change the Inertial Sensor settings",
        "&Calibration 300 720 0 HybridBodyCalibrationDlg | &Hybrid Body | Calibrate a Hybrid Body | Calibrate a Hybrid Body",
        "&Calibration 300 420 0 InertialCalibrationDlg | In&ertial Sensor Calibration | Calibrate a inertial sensor"
        " | Calibrate a inertial sensor",
        " -1 -1 1 InertialStatusBar"}));
    module.exit_module();
}

void tst_InertialTrackingModule::lifecycle()
{
    fake->reply("inertial available", "yes");
    fake->reply("inertial number_of_sensors", "2");
    fake->reply("inertial warmup", "yes");
    fake->reply("inertial warmup_status", "0.5");
    InertialTrackingModule module;
    configure(module);
    const QList<_GuiElement*> elements = module.get_gui_elements();
    const int children = parent->children().size();
    QCOMPARE(module.get_gui_elements(), elements);   // built once
    QCOMPARE(parent->children().size(), children);
    QVERIFY(fake->receiver("InertialModule") && fake->receiver("HybridBodyCalibration"));

    QList<QPointer<QWidget>> widgets;
    for (const _GuiElement* element : elements)
        widgets << element->widget;
    auto* status = elements.at(3)->widget;
    module.about_to_exit_module();
    QVERIFY(!fake->receiver("InertialModule") && !fake->receiver("HybridBodyCalibration"));
    // The status bar stops polling: no timer of it runs on.
    for (QTimer* timer : status->findChildren<QTimer*>())
        QVERIFY2(!timer->isActive(), qPrintable(timer->objectName()));
    module.exit_module();
    for (int i = 0; i < widgets.size(); ++i)
        QVERIFY(widgets.at(i).isNull() && !elements.at(i)->widget);
    QVERIFY(parent->findChildren<QWidget*>().isEmpty());
    module.exit_module();   // nothing left to delete
    QCOMPARE(module.get_gui_elements().size(), 4);   // built anew after an exit
    module.exit_module();
}

void tst_InertialTrackingModule::setParam_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("io manager as a number") << "CommandManager" << QVariant(42);
    QTest::newRow("versions as text") << "BackendVersions" << QVariant(QStringLiteral("1.21.0"));
    QTest::newRow("parent as a number") << "ModuleParent" << QVariant(7);
    QTest::newRow("unknown key") << "SomethingElse" << QVariant(true);
    QTest::newRow("observer mode as text") << "ObserverMode" << QVariant(QStringLiteral("yes"));
}

// A parameter of the wrong type clears what it stands for: without the io
// manager nothing registers, without versions every gated feature is off,
// without the parent the dialogs have none.
void tst_InertialTrackingModule::setParam()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);

    InertialTrackingModule module;
    configure(module);
    module.set_param(key, value);
    fake->reply("inertial available", "yes");
    fake->reply("inertial number_of_sensors", "2");
    fake->reply("inertial warmup", "no");
    const QList<_GuiElement*> elements = module.get_gui_elements();
    QCOMPARE(fake->receiver("InertialModule") == nullptr, key == "CommandManager");
    QCOMPARE(elements.at(0)->widget->parentWidget() == nullptr, key == "ModuleParent");
    QCOMPARE(fake->lines().isEmpty(), key == "CommandManager" || key == "BackendVersions");
    module.exit_module();
}

void tst_InertialTrackingModule::versionGate_data()
{
    QTest::addColumn<QList<int>>("version");   // major, minor, patch
    QTest::addColumn<QList<int>>("gate");      // major, minor
    QTest::addColumn<bool>("available");

    QTest::newRow("1.12.-1 passes 1.12") << QList<int>{1, 12, -1} << QList<int>{1, 12} << true;
    QTest::newRow("1.12.-2 fails 1.12") << QList<int>{1, 12, -2} << QList<int>{1, 12} << false;
    QTest::newRow("1.11.99 fails 1.12") << QList<int>{1, 11, 99} << QList<int>{1, 12} << false;
    QTest::newRow("1.13.0 passes 1.12") << QList<int>{1, 13, 0} << QList<int>{1, 12} << true;
    QTest::newRow("2.0.0 passes 1.21") << QList<int>{2, 0, 0} << QList<int>{1, 21} << true;
    QTest::newRow("0.99.9 fails 1.4") << QList<int>{0, 99, 9} << QList<int>{1, 4} << false;
}

void tst_InertialTrackingModule::versionGate()
{
    QFETCH(QList<int>, version);
    QFETCH(QList<int>, gate);
    QFETCH(bool, available);

    versions.major = version.at(0);
    versions.minor = version.at(1);
    versions.patch = version.at(2);
    QCOMPARE(VersionGate::available(&versions, gate.at(0), gate.at(1)), available);
    QVERIFY(!VersionGate::available(nullptr, 0, 0));
}

QTEST_MAIN(tst_InertialTrackingModule)
#include "tst_InertialTrackingModule.moc"
