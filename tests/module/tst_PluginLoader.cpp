#include <QtTest>

#include <QAction>
#include <QPluginLoader>
#include <QWidget>

#include "FakeController.h"
#include "module/BackendVersions.h"
#include "module/ModuleInterface.h"

// Loads the built plug-in the way a host does and checks what it hands out.
class tst_PluginLoader : public QObject
{
    Q_OBJECT

private slots:
    void loadAndCast();
    void instanceIsShared();
};

void tst_PluginLoader::loadAndCast()
{
    QPluginLoader loader(QStringLiteral(PLUGIN_FILE));
    QVERIFY2(loader.load(), qPrintable(loader.errorString()));
    QCOMPARE(loader.metaData().value("IID").toString(),
             QStringLiteral("com.norvane.frontend.ModuleInterface/0.2.0"));
    auto* module = qobject_cast<ModuleInterface*>(loader.instance());
    QVERIFY(module);

    FakeController fake;
    BackendVersions versions;
    versions.major = 1;
    versions.minor = 21;
    QWidget parent;
    module->set_param("CommandManager", QVariant::fromValue<IOManager*>(&fake));
    module->set_param("ModuleParent", QVariant::fromValue<QWidget*>(&parent));
    module->set_param("BackendVersions", QVariant::fromValue<BackendVersions*>(&versions));

    const QList<_GuiElement*> elements = module->get_gui_elements();
    QCOMPARE(elements.size(), 4);
    QStringList texts;
    for (const _GuiElement* element : elements)
        texts << (element->action ? element->action->text() : QStringLiteral("<status>"));
    QCOMPARE(texts, QStringList({"In&ertial Sensor", "&Hybrid Body",
                                 "In&ertial Sensor Calibration", "<status>"}));
    QCOMPARE(elements.at(3)->element_type, 1);
    QCOMPARE(elements.at(3)->widget->metaObject()->className(), "InertialStatusBar");
    QVERIFY(fake.receiver("InertialModule"));

    // The module's own images are registered by loading the plug-in.
    QVERIFY(!QIcon(QStringLiteral(":/lock.png")).isNull());
    QVERIFY(!QImage(QStringLiteral(":/handeye_frame_0026.png")).isNull());

    module->about_to_exit_module();
    module->exit_module();
    QVERIFY(parent.findChildren<QWidget*>().isEmpty());
    QVERIFY(loader.unload());
}

void tst_PluginLoader::instanceIsShared()
{
    QPluginLoader loader(QStringLiteral(PLUGIN_FILE));
    QObject* first = loader.instance();
    QVERIFY(first);
    QCOMPARE(loader.instance(), first);
    QVERIFY(loader.unload());
}

QTEST_MAIN(tst_PluginLoader)
#include "tst_PluginLoader.moc"
