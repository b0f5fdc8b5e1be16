#include <QtTest>

#include <QAction>
#include <QPointer>
#include <QWidget>

#include "FakeController.h"
#include "ModalDialogHelper.h"
#include "calibration/InertialCalibrationDlg.h"
#include "hybridbody/HybridBodyCalibrationDlg.h"
#include "module/BackendVersions.h"
#include "module/InertialTrackingModule.h"
#include "settings/InertialSettingsDlg.h"
#include "statusbar/InertialStatusBar.h"

class tst_InertialTrackingModule : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void nameAndVersion();
    void records_data();
    void records();
    void widgetsAndReceivers();
    void secondCallCreatesNothing();
    void exitTwiceDeletesNothing();
    void aboutToExitUnregisters();
    void setParam_data();
    void setParam();

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
    parent = nullptr;
    delete fake;
    fake = nullptr;
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_InertialTrackingModule::configure(InertialTrackingModule& module)
{
    module.set_param("CommandManager", QVariant::fromValue<IOManager*>(fake));
    module.set_param("ModuleParent", QVariant::fromValue<QWidget*>(parent));
    module.set_param("BackendVersions", QVariant::fromValue<BackendVersions*>(&versions));
    module.set_param("ObserverMode", true);
}

void tst_InertialTrackingModule::nameAndVersion()
{
    InertialTrackingModule module;
    QCOMPARE(module.get_module_name(), QStringLiteral("GUI Inertial Tracking"));
    QCOMPARE(module.get_module_version(), QStringLiteral("v1.3.1"));
}

void tst_InertialTrackingModule::records_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("tip");
    QTest::addColumn<QString>("menu");
    QTest::addColumn<int>("menuPosition");
    QTest::addColumn<int>("actionPosition");
    QTest::addColumn<int>("type");

    QTest::newRow("settings") << 0 << "In&ertial Sensor" << "Change the Inertial Sensor settings"
                              << "&Settings" << 200 << 522 << 0;
    QTest::newRow("hybrid body") << 1 << "&Hybrid Body" << "Calibrate a Hybrid Body"
                                 << "&Calibration" << 300 << 720 << 0;
    QTest::newRow("inertial calibration") << 2 << "In&ertial Sensor Calibration"
                                          << "Calibrate a inertial sensor" << "&Calibration"
                                          << 300 << 420 << 0;
    QTest::newRow("status bar") << 3 << QString() << QString() << QString() << -1 << -1 << 1;
}

void tst_InertialTrackingModule::records()
{
    QFETCH(int, index);
    QFETCH(QString, text);
    QFETCH(QString, tip);
    QFETCH(QString, menu);
    QFETCH(int, menuPosition);
    QFETCH(int, actionPosition);
    QFETCH(int, type);

    InertialTrackingModule module;
    configure(module);
    const QList<_GuiElement*> elements = module.get_gui_elements();
    QCOMPARE(elements.size(), 4);
    const _GuiElement* element = elements.at(index);
    QCOMPARE(element->menu_name, menu);
    QCOMPARE(element->menu_position, menuPosition);
    QCOMPARE(element->action_position, actionPosition);
    QCOMPARE(element->element_type, type);
    QVERIFY(element->widget);
    QCOMPARE(element->widget->parentWidget(), parent);
    if (text.isEmpty()) {
        QVERIFY(!element->action);
    } else {
        QVERIFY(element->action);
        QCOMPARE(element->action->text(), text);
        QCOMPARE(element->action->statusTip(), tip);
        QCOMPARE(element->action->whatsThis(), tip);
        QCOMPARE(element->action->parent(), &module);
    }
    module.exit_module();
}

void tst_InertialTrackingModule::widgetsAndReceivers()
{
    InertialTrackingModule module;
    configure(module);
    const QList<_GuiElement*> elements = module.get_gui_elements();
    QVERIFY(qobject_cast<InertialSettingsDlg*>(elements.at(0)->widget));
    QVERIFY(qobject_cast<HybridBodyCalibrationDlg*>(elements.at(1)->widget));
    QVERIFY(qobject_cast<InertialCalibrationDlg*>(elements.at(2)->widget));
    QVERIFY(qobject_cast<InertialStatusBar*>(elements.at(3)->widget));
    QVERIFY(fake->receiver("InertialModule"));
    QCOMPARE(fake->receiver("HybridBodyCalibration"),
             static_cast<MessageReceiver*>(qobject_cast<HybridBodyCalibrationDlg*>(elements.at(1)->widget)));
    module.exit_module();
}

void tst_InertialTrackingModule::secondCallCreatesNothing()
{
    InertialTrackingModule module;
    configure(module);
    const QList<_GuiElement*> first = module.get_gui_elements();
    const int children = parent->children().size();
    const QList<_GuiElement*> second = module.get_gui_elements();
    QCOMPARE(second, first);
    QCOMPARE(parent->children().size(), children);
    QCOMPARE(module.findChildren<QAction*>().size(), 3);
    module.exit_module();
}

void tst_InertialTrackingModule::exitTwiceDeletesNothing()
{
    InertialTrackingModule module;
    configure(module);
    const QList<_GuiElement*> elements = module.get_gui_elements();
    QList<QPointer<QWidget>> widgets;
    for (const _GuiElement* element : elements)
        widgets << element->widget;
    module.about_to_exit_module();
    module.exit_module();
    for (const QPointer<QWidget>& widget : widgets)
        QVERIFY(widget.isNull());
    for (const _GuiElement* element : elements)
        QVERIFY(!element->widget);
    QVERIFY(parent->findChildren<QWidget*>().isEmpty());
    module.exit_module();   // must not touch anything a second time
    QVERIFY(module.get_gui_elements().size() == 4);   // built anew after an exit
    module.exit_module();
}

void tst_InertialTrackingModule::aboutToExitUnregisters()
{
    InertialTrackingModule module;
    configure(module);
    module.get_gui_elements();
    module.about_to_exit_module();
    QVERIFY(!fake->receiver("InertialModule"));
    QVERIFY(!fake->receiver("HybridBodyCalibration"));
    module.exit_module();
}

void tst_InertialTrackingModule::setParam_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("io manager as int") << "CommandManager" << QVariant(42);
    QTest::newRow("versions as string") << "BackendVersions" << QVariant(QStringLiteral("1.21.0"));
    QTest::newRow("parent as int") << "ModuleParent" << QVariant(7);
    QTest::newRow("unknown key") << "SomethingElse" << QVariant(true);
    QTest::newRow("observer as string") << "ObserverMode" << QVariant(QStringLiteral("yes"));
}

// A parameter of the wrong type clears the member; with the io manager or the
// parent cleared no receiver is registered or the dialogs lose their parent,
// which is what the test can see from outside.
void tst_InertialTrackingModule::setParam()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);

    InertialTrackingModule module;
    configure(module);
    module.set_param(key, value);
    const QList<_GuiElement*> elements = module.get_gui_elements();
    const bool ioCleared = key == QLatin1String("CommandManager");
    const bool parentCleared = key == QLatin1String("ModuleParent");
    QCOMPARE(fake->receiver("InertialModule") == nullptr, ioCleared);
    QCOMPARE(elements.at(0)->widget->parentWidget() == nullptr, parentCleared);
    module.exit_module();
}

QTEST_MAIN(tst_InertialTrackingModule)
#include "tst_InertialTrackingModule.moc"
