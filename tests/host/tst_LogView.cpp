#include <QtTest>

#include "ModalDialogHelper.h"
#include "host/LogView.h"

class tst_LogView : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void repeatsAreCounted_data();
    void repeatsAreCounted();
    void keepsTheNewest();
    void timestamps();
};

void tst_LogView::cleanup()
{
    QCOMPARE(ModalDialogHelper::pending(), 0);
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_LogView::repeatsAreCounted_data()
{
    QTest::addColumn<QStringList>("appended");
    QTest::addColumn<QStringList>("shown");

    QTest::newRow("single") << QStringList{"a"} << QStringList{"a"};
    QTest::newRow("twice in a row") << QStringList{"a", "a"} << QStringList{"a  (2 times)"};
    QTest::newRow("interrupted") << QStringList{"a", "b", "a"} << QStringList{"a", "b", "a"};
    QTest::newRow("run then other") << QStringList{"a", "a", "a", "b"} << QStringList{"a  (3 times)", "b"};
}

void tst_LogView::repeatsAreCounted()
{
    QFETCH(QStringList, appended);
    QFETCH(QStringList, shown);
    LogView view;
    for (const QString& text : appended)
        view.append_entry(text);
    QCOMPARE(view.entries(), shown);
    QStringList distinct;
    for (const QString& text : appended)
        if (distinct.isEmpty() || distinct.last() != text)
            distinct << text;
    QCOMPARE(view.texts(), distinct);
}

void tst_LogView::keepsTheNewest()
{
    LogView view;
    view.setMaximumBlockCount(3);
    for (int i = 1; i <= 5; ++i)
        view.append_entry(QStringLiteral("entry %1").arg(i), i % 2 == 0);
    QCOMPARE(view.texts(), QStringList({"entry 3", "entry 4", "entry 5"}));
}

void tst_LogView::timestamps()
{
    LogView view;
    view.set_timestamps(true);
    view.append_entry(QStringLiteral("Loaded"));
    QVERIFY2(QRegularExpression("^\\d\\d:\\d\\d:\\d\\d  Loaded$").match(view.entries().first()).hasMatch(),
             qPrintable(view.entries().first()));
    QCOMPARE(view.texts(), QStringList{"Loaded"});
}

QTEST_MAIN(tst_LogView)
#include "tst_LogView.moc"
