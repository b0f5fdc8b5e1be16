#include <QtTest>

#include <QAction>
#include <QPointer>

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
    void init();
    void cleanup();
    void elements_data();
    void elements();
    void lifecycle();
    void versionGate_data();
    void versionGate();

private:
    FakeController* fake = nullptr;
    BackendVersions versions;
    QWidget* parent = nullptr;
};

void tst_InertialTrackingModule::init()
{
    fake = new FakeController;
    fake->reply("inertial available", "yes");
    fake->reply("inertial number_of_sensors", "2");
    fake->reply("inertial warmup", "no");
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

void tst_InertialTrackingModule::elements_data()
{
    QTest::addColumn<QString>("key");   // set once more, to a value of the wrong type
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("lost");  // what that takes away

    QTest::newRow("all given") << "ObserverMode" << QVariant(QStringLiteral("yes")) << "";
    QTest::newRow("unknown key") << "SomethingElse" << QVariant(true) << "";
    QTest::newRow("io manager as a number: nothing asked or registered") << "CommandManager" << QVariant(42) << "io";
    QTest::newRow("versions as text: every gated feature off") << "BackendVersions" << QVariant(QString("1.21")) << "versions";
    QTest::newRow("parent as a number: no parent") << "ModuleParent" << QVariant(7) << "parent";
}

void tst_InertialTrackingModule::elements()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QFETCH(QString, lost);

    InertialTrackingModule module;
    module.set_param("CommandManager", QVariant::fromValue<IOManager*>(fake));
    module.set_param("ModuleParent", QVariant::fromValue<QWidget*>(parent));
    module.set_param("BackendVersions", QVariant::fromValue<BackendVersions*>(&versions));
    module.set_param("ObserverMode", true);
    module.set_param(key, value);
    QStringList seen{module.get_module_name() + ' ' + module.get_module_version()};
    for (const _GuiElement* e : module.get_gui_elements()) {
        seen << QString("%1 %2 %3 %4 %5").arg(e->menu_name).arg(e->menu_position).arg(e->action_position)
                    .arg(e->element_type).arg(e->widget->metaObject()->className());
        if (e->action)
            seen.last() += " | " + e->action->text() + " | " + e->action->statusTip() + " | " + e->action->whatsThis();
        QCOMPARE(e->widget->parentWidget() == parent, lost != "parent");
        QVERIFY(!e->action || e->action->parent() == &module);
    }
    QCOMPARE(seen, (QStringList{"GUI Inertial Tracking v1.3.1",
        "&Settings 200 522 0 InertialSettingsDlg | In&ertial Sensor | Change the Inertial Sensor settings"
        " | Change the Inertial Sensor settings",
        "&Calibration 300 720 0 HybridBodyCalibrationDlg | &Hybrid Body | Calibrate a Hybrid Body | Calibrate a Hybrid Body",
        "&Calibration 300 420 0 InertialCalibrationDlg | In&ertial Sensor Calibration | Calibrate a inertial sensor"
        " | Calibrate a inertial sensor", " -1 -1 1 InertialStatusBar"}));
    QCOMPARE(fake->receiver("InertialModule") == nullptr, lost == "io");
    QCOMPARE(fake->lines().isEmpty(), lost == "io" || lost == "versions");   // the status bar asks at once
    module.exit_module();
}

void tst_InertialTrackingModule::lifecycle()
{
    {
        InertialTrackingModule unused;   // closed before it handed anything out
        unused.about_to_exit_module();
        unused.exit_module();
    }
    fake->reply("inertial warmup", "yes");
    fake->reply("inertial warmup_status", "0.5");
    InertialTrackingModule module;
    module.set_param("CommandManager", QVariant::fromValue<IOManager*>(fake));
    module.set_param("ModuleParent", QVariant::fromValue<QWidget*>(parent));
    module.set_param("BackendVersions", QVariant::fromValue<BackendVersions*>(&versions));
    const QList<_GuiElement*> elements = module.get_gui_elements();
    const int children = parent->children().size();
    QCOMPARE(module.get_gui_elements(), elements);   // built once
    QCOMPARE(parent->children().size(), children);
    QVERIFY(fake->receiver("InertialModule") && fake->receiver("HybridBodyCalibration"));
    QList<QPointer<QWidget>> widgets;
    for (const _GuiElement* element : elements)
        widgets << element->widget;

    module.about_to_exit_module();
    QVERIFY(!fake->receiver("InertialModule") && !fake->receiver("HybridBodyCalibration"));
    for (QTimer* timer : elements.at(3)->widget->findChildren<QTimer*>())   // the status bar polls no more
        QVERIFY2(!timer->isActive(), qPrintable(timer->objectName()));
    module.exit_module();
    for (int i = 0; i < widgets.size(); ++i)
        QVERIFY(widgets.at(i).isNull() && !elements.at(i)->widget);
    QVERIFY(parent->findChildren<QWidget*>().isEmpty());
    module.exit_module();   // nothing left to delete
    QVERIFY(module.get_gui_elements().value(3)->widget);   // built anew after an exit
    module.exit_module();
}

void tst_InertialTrackingModule::versionGate_data()
{
    QTest::addColumn<QList<int>>("version");   // major, minor, patch
    QTest::addColumn<bool>("available");       // at 1.12

    QTest::newRow("1.12.-1") << QList<int>{1, 12, -1} << true;
    QTest::newRow("1.12.-2") << QList<int>{1, 12, -2} << false;
    QTest::newRow("1.11.99") << QList<int>{1, 11, 99} << false;
    QTest::newRow("1.13.0") << QList<int>{1, 13, 0} << true;
    QTest::newRow("2.0.0") << QList<int>{2, 0, 0} << true;
    QTest::newRow("0.99.9") << QList<int>{0, 99, 9} << false;
}

void tst_InertialTrackingModule::versionGate()
{
    QFETCH(QList<int>, version);
    QFETCH(bool, available);

    versions.major = version.at(0);
    versions.minor = version.at(1);
    versions.patch = version.at(2);
    QCOMPARE(VersionGate::available(&versions, 1, 12), available);
    QVERIFY(!VersionGate::available(nullptr, 0, 0));
}

QTEST_MAIN(tst_InertialTrackingModule)
#include "tst_InertialTrackingModule.moc"
