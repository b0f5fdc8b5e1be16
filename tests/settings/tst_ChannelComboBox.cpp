#include <QtTest>

#include <QApplication>
#include <QScrollBar>
#include <QTableWidget>

#include "ModalDialogHelper.h"
#include "settings/ChannelComboBox.h"

// The grid of radio channels: which cell holds which channel, and what a
// user's pick reports while the program's own setting does not. Its marks
// are read where the settings dialog scans the channels.
class tst_ChannelComboBox : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void grid_data();
    void grid();
    void pick_data();
    void pick();
    void popupShowsWholeGrid();
};

void tst_ChannelComboBox::cleanup()
{
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_ChannelComboBox::grid_data()
{
    QTest::addColumn<QList<int>>("limits");   // min, max, columns; -1 leaves one alone
    QTest::addColumn<QString>("grid");        // min max columns, rows, then where the first and last channel sit

    const QString defaults = "2 25 10, 3, 2 in 0/1, 25 in 2/4";
    QTest::newRow("defaults: 2 to 25, ten a row") << QList<int>{-1, -1, -1} << defaults;
    QTest::newRow("2 to 81") << QList<int>{2, 81, -1} << "2 81 10, 9, 2 in 0/1, 81 in 8/0";
    QTest::newRow("1 to 20, four a row") << QList<int>{1, 20, 4} << "1 20 4, 5, 1 in 0/0, 20 in 4/3";
    QTest::newRow("one column") << QList<int>{5, 5, 1} << "5 5 1, 5, 5 in 4/0, 5 in 4/0";
    QTest::newRow("columns wider than the channels") << QList<int>{3, 7, 12} << "3 7 12, 1, 3 in 0/2, 7 in 0/6";
    QTest::newRow("255 in as many columns") << QList<int>{255, 255, 255} << "255 255 255, 1, 255 in 0/254, 255 in 0/254";
    QTest::newRow("min 0 refused") << QList<int>{0, 5, -1} << defaults;
    QTest::newRow("min above max refused") << QList<int>{9, 3, -1} << defaults;
    QTest::newRow("max beyond 255 refused") << QList<int>{2, 256, -1} << defaults;
    QTest::newRow("no columns refused") << QList<int>{-1, -1, 0} << defaults;
    QTest::newRow("256 columns refused") << QList<int>{-1, -1, 256} << defaults;
}

void tst_ChannelComboBox::grid()
{
    QFETCH(QList<int>, limits);
    QFETCH(QString, grid);

    ChannelComboBox combo;
    if (limits.at(0) != -1)
        combo.setChannelLimits(limits.at(0), limits.at(1));
    if (limits.at(2) != -1)
        combo.setNumberOfColumns(limits.at(2));
    QTableWidget* table = combo.table();
    QStringList filled;
    for (int row = 0; row < table->rowCount(); ++row)
        for (int column = 0; column < table->columnCount(); ++column) {
            const QTableWidgetItem* item = table->item(row, column);
            QCOMPARE(item->flags(), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
            QCOMPARE(item->data(Qt::UserRole).toInt(), item->text().toInt());   // the channel it stands for
            if (!item->text().isEmpty())
                filled << QString("%1 in %2/%3").arg(item->text()).arg(row).arg(column);
        }
    QCOMPARE(QString("%1 %2 %3, %4, %5, %6").arg(combo.minimumChannel()).arg(combo.maximumChannel())
                 .arg(combo.numberOfColumns()).arg(table->rowCount()).arg(filled.first(), filled.last()), grid);
    QCOMPARE(filled.size(), combo.maximumChannel() - combo.minimumChannel() + 1);
    QCOMPARE(combo.count(), table->rowCount());
}

void tst_ChannelComboBox::pick_data()
{
    QTest::addColumn<bool>("user");
    QTest::addColumn<QString>("keys");     // what the user does in the open grid
    QTest::addColumn<int>("channel");      // then shown
    QTest::addColumn<int>("chosen");       // reported, 0: none
    QTest::addColumn<int>("announced");    // text changes, -1: not counted

    QTest::newRow("another row") << true << "cell 2 2, Return" << 23 << 23 << 1;
    QTest::newRow("same row, opened by the space bar") << true << "space, cell 1 8, Return" << 19 << 19 << 1;
    QTest::newRow("while the program fills it") << false << "cell 2 2, Return" << 23 << 0 << 1;
    QTest::newRow("an empty cell keeps the channel") << true << "cell 2 7, Return" << 12 << 0 << -1;
    QTest::newRow("Escape keeps the channel") << true << "cell 0 6, Escape" << 12 << 0 << 0;
    QTest::newRow("typed 2, 1") << true << "2, 1, Return" << 21 << 21 << 1;
    QTest::newRow("typed 4, 7: no 47, so 7") << true << "4, 7, Return" << 7 << 7 << 1;
    QTest::newRow("a mouse click") << true << "click 1 6" << 17 << 17 << 1;
}

void tst_ChannelComboBox::pick()
{
    QFETCH(bool, user);
    QFETCH(QString, keys);
    QFETCH(int, channel);
    QFETCH(int, chosen);
    QFETCH(int, announced);

    QWidget window;
    ChannelComboBox combo(&window, "NRV Dongle 'T7'");
    combo.setChannel(12);
    combo.setUserAction(user);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QSignalSpy texts(&combo, &QComboBox::currentTextChanged);
    QSignalSpy reported(&combo, &ChannelComboBox::transceiverChannelChosen);
    // The arrows and digits open the grid; a wheel turned over it changes nothing.
    QWheelEvent wheel(QPointF(5, 5), QPointF(combo.mapToGlobal(QPoint(5, 5))), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&combo, &wheel);
    // A letter does nothing; the grid opens on a digit, the space bar or an arrow.
    QTest::keyClick(&combo, Qt::Key_A);
    const bool opener = keys.at(0).isDigit() || keys.startsWith("space");
    QTest::keyClick(&combo, keys.at(0).isDigit() ? Qt::Key(keys.at(0).unicode()) : opener ? Qt::Key_Space : Qt::Key_Down);
    QTableWidget* grid = combo.table();
    QVERIFY(grid->isVisible());
    for (const QString& step : keys.split(", ").mid(opener ? 1 : 0)) {
        const QStringList words = step.split(' ');
        if (words.first() == "cell")
            grid->setCurrentCell(words.at(1).toInt(), words.at(2).toInt());
        else if (words.first() == "click")
            QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier,
                              grid->visualItemRect(grid->item(words.at(1).toInt(), words.at(2).toInt())).center());
        else
            QTest::keyClick(grid, step.size() == 1 ? Qt::Key(step.at(0).unicode())
                                  : step == "Return" ? Qt::Key_Return : Qt::Key_Escape);
    }
    QCoreApplication::processEvents();
    QVERIFY(!grid->isVisible());
    QCOMPARE(combo.currentText() + ' ' + QString::number(combo.channel()), QString("%1 %1").arg(channel));
    if (announced >= 0)
        QCOMPARE(texts.count(), announced);
    QCOMPARE(reported.count(), chosen ? 1 : 0);
    if (chosen)
        QCOMPARE(reported.first().at(0).toString() + ' ' + reported.first().at(1).toString(),
                 "NRV Dongle 'T7' " + QString::number(chosen));
}

void tst_ChannelComboBox::popupShowsWholeGrid()
{
    QWidget window;
    ChannelComboBox combo(&window);
    combo.setChannelLimits(2, 81);
    combo.setChannel(35);
    combo.move(40, 30);
    window.resize(300, 200);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    combo.showPopup();
    QTableWidget* table = combo.table();
    QCOMPARE(table->window()->pos(), combo.mapToGlobal(QPoint(0, 0)));
    QCOMPARE(table->currentItem()->text(), QString("35"));
    for (int row = 0; row < table->rowCount(); ++row)
        for (int column = 0; column < table->columnCount(); ++column) {
            const QRect r = table->visualItemRect(table->item(row, column));
            QVERIFY(table->viewport()->rect().contains(r) && r.width() >= table->fontMetrics().horizontalAdvance("81"));
        }
    QCOMPARE(table->verticalScrollBar()->maximum() + table->horizontalScrollBar()->maximum(), 0);
    combo.hidePopup();
    QCoreApplication::processEvents();
    QCOMPARE(combo.currentText(), QString("35"));
}

QTEST_MAIN(tst_ChannelComboBox)
#include "tst_ChannelComboBox.moc"
