#include <QtTest>

#include <QAction>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include "ModalDialogHelper.h"
#include "RecordingModule.h"
#include "ScriptedLink.h"
#include "host/MainWindow.h"
#include "host/TourRunner.h"

// The tour against entries that open a dialog, a message box, a dialog
// that will not close by rejecting, and nothing at all.
class tst_TourRunner : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void fileStem_data();
    void fileStem();
    void picturesOfEveryWindow();
    void unwritableFolder();
};

namespace {

// Escape only stops what it does, as some of the module's dialogs do.
class StubbornDialog : public QDialog
{
public:
    using QDialog::QDialog;
    void reject() override {}
};

} // namespace

void tst_TourRunner::cleanup()
{
    QCOMPARE(ModalDialogHelper::pending(), 0);
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_TourRunner::fileStem_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("stem");

    QTest::newRow("mnemonic inside") << "In&ertial Sensor" << "inertial-sensor";
    QTest::newRow("three words") << "In&ertial Sensor Calibration" << "inertial-sensor-calibration";
    QTest::newRow("mnemonic first") << "&Hybrid Body" << "hybrid-body";
    QTest::newRow("punctuation") << "&Filter (6DOF)..." << "filter-6dof";
    QTest::newRow("nothing usable") << "&..." << "entry";
}

void tst_TourRunner::fileStem()
{
    QFETCH(QString, text);
    QFETCH(QString, stem);
    QCOMPARE(TourRunner::file_stem(text), stem);
}

void tst_TourRunner::picturesOfEveryWindow()
{
    ScriptedLink link;
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    {
        MainWindow window(&link);
        RecordingModule module;
        QAction* dialog_entry = module.add_entry("&Settings", 200, "&Probe Dialog", 1);
        QAction* box_entry = module.add_entry("&Settings", 200, "&Unavailable", 2);
        QAction* stubborn_entry = module.add_entry("&Calibration", 300, "&Stubborn", 1);
        module.add_entry("&Calibration", 300, "&Silent", 2);
        connect(dialog_entry, &QAction::triggered, &window, [&window] {
            QDialog dialog(&window);
            dialog.setWindowTitle(QStringLiteral("Probe"));
            auto* layout = new QVBoxLayout(&dialog);
            layout->addWidget(new QLabel(QStringLiteral("Probe dialog contents")));
            dialog.resize(320, 200);
            dialog.exec();
        });
        connect(box_entry, &QAction::triggered, &window, [&window] {
            QMessageBox::warning(&window, QStringLiteral("Norvane"), QStringLiteral("Not available"));
        });
        connect(stubborn_entry, &QAction::triggered, &window, [&window] {
            StubbornDialog dialog(&window);
            dialog.resize(200, 100);
            dialog.exec();
        });
        window.add_module(&module, QStringLiteral("test"));
        window.show();

        TourRunner tour(&window, dir.filePath("pictures"));
        tour.set_settle_time(50);
        tour.set_patience(1000);
        bool complete = true;
        QTimer::singleShot(0, &window, [&] { complete = tour.run(); });
        QTRY_VERIFY_WITH_TIMEOUT(!tour.saved_files().isEmpty() && tour.saved_files().last().endsWith("main-window.png"),
                                 20000);

        QVERIFY(!complete);
        QCOMPARE(tour.problems(), QStringList{"\"Silent\" opened no window."});
        QStringList names;
        for (const QString& path : tour.saved_files())
            names << QFileInfo(path).fileName();
        QCOMPARE(names, QStringList({"probe-dialog.png", "unavailable.png", "stubborn.png", "main-window.png"}));
        const QImage probe(dir.filePath("pictures/probe-dialog.png"));
        QVERIFY(!probe.isNull());
        QVERIFY(probe.width() >= 320 && probe.height() >= 200);
        QVERIFY(!QImage(dir.filePath("pictures/main-window.png")).isNull());
        QVERIFY(!QApplication::activeModalWidget());
        window.shutdown_modules();
    }
}

void tst_TourRunner::unwritableFolder()
{
    ScriptedLink link;
    QTemporaryDir dir;
    QFile blocker(dir.filePath("file"));
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    MainWindow window(&link);
    TourRunner tour(&window, dir.filePath("file/pictures"));
    QVERIFY(!tour.run());
    QCOMPARE(tour.problems().size(), 1);
    QVERIFY(tour.problems().first().startsWith("Cannot create the folder"));
    QVERIFY(tour.saved_files().isEmpty());
}

QTEST_MAIN(tst_TourRunner)
#include "tst_TourRunner.moc"
