#include <QtTest>

#include <QFile>
#include <QTemporaryDir>

#include "ModalDialogHelper.h"
#include "host/ModuleLoader.h"
#include "module/ModuleInterface.h"

// Which files in a plug-in folder become modules, and what is said about
// the others.
class tst_ModuleLoader : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void init();
    void folderWithStrangers();
    void missingFolder();
    void sameFileLoadsOnce();
    void unloadDeletesModule();

private:
    std::unique_ptr<QTemporaryDir> dir;
};

void tst_ModuleLoader::cleanup()
{
    QCOMPARE(ModalDialogHelper::pending(), 0);
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_ModuleLoader::init()
{
    dir = std::make_unique<QTemporaryDir>();
    QVERIFY(dir->isValid());
}

void tst_ModuleLoader::folderWithStrangers()
{
    QVERIFY(QFile::copy(QStringLiteral(FOREIGN_PLUGIN_FILE), dir->filePath("libforeign.so")));
    QFile garbage(dir->filePath("libgarbage.so"));
    QVERIFY(garbage.open(QIODevice::WriteOnly));
    garbage.write("not a library at all");
    garbage.close();
    QFile notes(dir->filePath("readme.txt"));
    QVERIFY(notes.open(QIODevice::WriteOnly));
    notes.close();

    ModuleLoader loader;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("libforeign.so is not a module"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("libgarbage.so cannot be loaded"));
    QCOMPARE(loader.load_folder(dir->path()), 0);
    const QStringList problems = loader.problems();
    QCOMPARE(problems.size(), 2);   // the text file is not even tried
    QVERIFY2(problems.at(0).startsWith("libforeign.so is not a module of this host: it offers "
                                       "\"com.example.other.host.Extension/1.0\""),
             qPrintable(problems.at(0)));
    QVERIFY(problems.at(0).contains(ModuleInterface_iid));
    // The loader's own reason, whatever its wording, follows the file name.
    QVERIFY2(problems.at(1).startsWith("libgarbage.so cannot be loaded: "), qPrintable(problems.at(1)));
    QVERIFY(problems.at(1).size() > QString("libgarbage.so cannot be loaded: ").size());
    QVERIFY(loader.modules().isEmpty());
}

void tst_ModuleLoader::missingFolder()
{
    ModuleLoader loader;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("nowhere does not exist"));
    QCOMPARE(loader.load_folder(dir->filePath("nowhere")), 0);
    QCOMPARE(loader.problems().size(), 1);
    QVERIFY(loader.problems().first().contains("does not exist"));
}

void tst_ModuleLoader::sameFileLoadsOnce()
{
    ModuleLoader loader;
    ModuleInterface* first = loader.load_file(QStringLiteral(PLUGIN_FILE));
    QVERIFY2(first, qPrintable(loader.problems().join('\n')));
    QCOMPARE(loader.load_file(QStringLiteral(PLUGIN_FILE)), first);
    QCOMPARE(loader.modules().size(), 1);
    QCOMPARE(first->get_module_version(), QStringLiteral("v1.3.1"));
}

void tst_ModuleLoader::unloadDeletesModule()
{
    ModuleLoader loader;
    ModuleInterface* module = loader.load_file(QStringLiteral(PLUGIN_FILE));
    QVERIFY(module);
    QPointer<QObject> instance = dynamic_cast<QObject*>(module);
    QVERIFY(instance);
    loader.unload_all();
    QVERIFY(!instance);
    QVERIFY(loader.modules().isEmpty());
}

QTEST_MAIN(tst_ModuleLoader)
#include "tst_ModuleLoader.moc"
