#include <QtTest>

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableWidget>

#include "ModalDialogHelper.h"
#include "settings/ChannelComboBox.h"

// The grid is the whole point of this combo: which cell holds which channel,
// what the user may pick and what the program's own setting must not report.
class tst_ChannelComboBox : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void grid_data();
    void grid();
    void setChannelAnnouncesOnce_data();
    void setChannelAnnouncesOnce();
    void limitsDropChannelOutside();
    void marks();
    void popupShowsWholeGrid();
    void choice_data();
    void choice();
    void mouseChoice();
    void emptyCellChangesNothing();
    void escapeKeepsChannel();
    void typedDigitsPickChannel();
    void wheelChangesNothing();

private:
    // Opens the popup, goes to the channel's cell (or the given empty cell)
    // and commits it with Return, as a keyboard user would.
    static void pick(ChannelComboBox& combo, int row, int column);
};

void tst_ChannelComboBox::cleanup()
{
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
    QCOMPARE(ModalDialogHelper::pending(), 0);
}

void tst_ChannelComboBox::pick(ChannelComboBox& combo, int row, int column)
{
    combo.showPopup();
    QTableWidget* table = combo.table();
    QVERIFY(table->isVisible());
    table->setCurrentCell(row, column);
    QTest::keyClick(table, Qt::Key_Return);
    QVERIFY(!table->isVisible());
    QCoreApplication::processEvents();
}

void tst_ChannelComboBox::grid_data()
{
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("minWas");     // limits and columns in force afterwards
    QTest::addColumn<int>("maxWas");
    QTest::addColumn<int>("columnsWas");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QPoint>("first");    // (column, row) of the lowest channel
    QTest::addColumn<QPoint>("last");     // (column, row) of the highest channel
    QTest::addColumn<int>("empty");

    // -1 leaves the setting at its default (2..25 in 10 columns).
    QTest::newRow("defaults 2..25, 10 columns") << -1 << -1 << -1 << 2 << 25 << 10 << 3 << QPoint(1, 0) << QPoint(4, 2) << 6;
    QTest::newRow("2..81, 10 columns") << 2 << 81 << -1 << 2 << 81 << 10 << 9 << QPoint(1, 0) << QPoint(0, 8) << 10;
    QTest::newRow("max a multiple of the columns") << 1 << 20 << 4 << 1 << 20 << 4 << 5 << QPoint(0, 0) << QPoint(3, 4) << 0;
    QTest::newRow("single channel 1") << 1 << 1 << -1 << 1 << 1 << 10 << 1 << QPoint(0, 0) << QPoint(0, 0) << 9;
    QTest::newRow("one column") << 5 << 5 << 1 << 5 << 5 << 1 << 5 << QPoint(0, 4) << QPoint(0, 4) << 4;
    QTest::newRow("columns wider than the channels") << 3 << 7 << 12 << 3 << 7 << 12 << 1 << QPoint(2, 0) << QPoint(6, 0) << 7;
    QTest::newRow("min 0 rejected") << 0 << 5 << -1 << 2 << 25 << 10 << 3 << QPoint(1, 0) << QPoint(4, 2) << 6;
    QTest::newRow("negative min rejected") << -3 << 5 << -1 << 2 << 25 << 10 << 3 << QPoint(1, 0) << QPoint(4, 2) << 6;
    QTest::newRow("min above max rejected") << 9 << 3 << -1 << 2 << 25 << 10 << 3 << QPoint(1, 0) << QPoint(4, 2) << 6;
    QTest::newRow("absurd max rejected") << 2 << 2000000000 << -1 << 2 << 25 << 10 << 3 << QPoint(1, 0) << QPoint(4, 2) << 6;
    QTest::newRow("zero columns rejected") << -1 << -1 << 0 << 2 << 25 << 10 << 3 << QPoint(1, 0) << QPoint(4, 2) << 6;
    QTest::newRow("negative columns rejected") << -1 << -1 << -4 << 2 << 25 << 10 << 3 << QPoint(1, 0) << QPoint(4, 2) << 6;
    QTest::newRow("absurd columns rejected") << 2 << 81 << 100000 << 2 << 81 << 10 << 9 << QPoint(1, 0) << QPoint(0, 8) << 10;
}

void tst_ChannelComboBox::grid()
{
    QFETCH(int, min);
    QFETCH(int, max);
    QFETCH(int, columns);
    QFETCH(int, minWas);
    QFETCH(int, maxWas);
    QFETCH(int, columnsWas);
    QFETCH(int, rows);
    QFETCH(QPoint, first);
    QFETCH(QPoint, last);
    QFETCH(int, empty);

    ChannelComboBox combo;
    if (min != -1 || max != -1)
        combo.setChannelLimits(min, max);
    if (columns != -1)
        combo.setNumberOfColumns(columns);

    QCOMPARE(combo.minimumChannel(), minWas);
    QCOMPARE(combo.maximumChannel(), maxWas);
    QCOMPARE(combo.numberOfColumns(), columnsWas);
    QTableWidget* table = combo.table();
    QCOMPARE(table->rowCount(), rows);
    QCOMPARE(table->columnCount(), columnsWas);
    QCOMPARE(combo.count(), rows);
    QCOMPARE(table->item(first.y(), first.x())->text(), QString::number(minWas));
    QCOMPARE(table->item(last.y(), last.x())->text(), QString::number(maxWas));

    int empties = 0;
    for (int r = 0; r < table->rowCount(); ++r) {
        for (int c = 0; c < table->columnCount(); ++c) {
            const QTableWidgetItem* cell = table->item(r, c);
            QVERIFY(cell);
            QCOMPARE(cell->flags(), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
            if (cell->text().isEmpty()) {
                ++empties;
                QVERIFY(!cell->data(Qt::UserRole).isValid());
            } else {
                QCOMPARE(cell->data(Qt::UserRole).toInt(), cell->text().toInt());
            }
        }
    }
    QCOMPARE(empties, empty);
}

void tst_ChannelComboBox::setChannelAnnouncesOnce_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("announced");

    QTest::newRow("another row") << 3 << 17 << "17" << 1;
    QTest::newRow("same row, another column") << 2 << 5 << "5" << 1;
    QTest::newRow("same column, another row") << 12 << 22 << "22" << 1;
    QTest::newRow("the same channel") << 17 << 17 << "17" << 0;
    QTest::newRow("below the minimum shows nothing") << 17 << 1 << "" << 1;
    QTest::newRow("above the maximum shows nothing") << 17 << 26 << "" << 1;
    QTest::newRow("nothing to nothing") << -1 << 0 << "" << 0;
}

void tst_ChannelComboBox::setChannelAnnouncesOnce()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QString, shown);
    QFETCH(int, announced);

    ChannelComboBox combo(nullptr, "vendor dongle '7'");
    combo.setUserAction(true);
    combo.setChannel(from);
    QSignalSpy texts(&combo, SIGNAL(currentIndexChanged(QString)));
    QSignalSpy chosen(&combo, &ChannelComboBox::transceiverChannelChosen);

    combo.setChannel(to);

    QCOMPARE(combo.currentText(), shown);
    QCOMPARE(combo.channel(), shown.isEmpty() ? -1 : to);
    QCOMPARE(texts.count(), announced);
    if (announced)
        QCOMPARE(texts.first().first().toString(), shown);
    QCOMPARE(chosen.count(), 0);
}

void tst_ChannelComboBox::limitsDropChannelOutside()
{
    ChannelComboBox combo;
    combo.setChannel(20);
    QSignalSpy texts(&combo, &QComboBox::currentTextChanged);

    combo.setChannelLimits(2, 81);   // channel 20 moves to another cell
    QCOMPARE(combo.currentText(), QString("20"));
    QCOMPARE(combo.channel(), 20);
    QCOMPARE(texts.count(), 0);

    combo.setChannelLimits(2, 10);
    QCOMPARE(combo.currentText(), QString());
    QCOMPARE(combo.channel(), -1);
    QCOMPARE(texts.count(), 1);
}

void tst_ChannelComboBox::marks()
{
    ChannelComboBox combo;
    QTableWidget* table = combo.table();
    const QBrush free = QApplication::palette().brush(QPalette::Active, QPalette::Base);
    const QBrush busy = QApplication::palette().brush(QPalette::Disabled, QPalette::Base);
    QVERIFY(free != busy);
    auto cell = [&](int channel) { return table->item((channel - 1) / 10, (channel - 1) % 10); };

    combo.setMarkSuggestedChannel(7);
    QCOMPARE(cell(7)->background(), QBrush(Qt::green));
    QCOMPARE(cell(7)->font().weight(), 75);
    QCOMPARE(cell(8)->font().weight(), table->font().weight());

    combo.setMarkedChannels({3, 14, 25});
    for (int channel : {3, 14, 25}) {
        QCOMPARE(cell(channel)->background(), busy);
        QCOMPARE(cell(channel)->flags(), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    }
    QCOMPARE(cell(4)->background(), free);
    QCOMPARE(cell(7)->background(), QBrush(Qt::green));   // the suggestion survives

    combo.setMarkedChannels({4});
    QCOMPARE(cell(3)->background(), free);
    QCOMPARE(cell(4)->background(), busy);

    combo.setMarkSuggestedChannel(9);
    QCOMPARE(cell(7)->background(), free);
    QCOMPARE(cell(7)->font().weight(), table->font().weight());
    QCOMPARE(cell(9)->background(), QBrush(Qt::green));

    combo.setChannelLimits(2, 40);   // a rebuild keeps both marks
    auto wide = [&](int channel) { return combo.table()->item((channel - 1) / 10, (channel - 1) % 10); };
    QCOMPARE(wide(9)->background(), QBrush(Qt::green));
    QCOMPARE(wide(4)->background(), busy);
    QCOMPARE(wide(33)->background(), free);
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
    QVERIFY(table->isVisible());
    QCOMPARE(table->window()->pos(), combo.mapToGlobal(QPoint(0, 0)));
    QCOMPARE(table->currentItem()->text(), QString("35"));
    const QRect viewport = table->viewport()->rect();
    for (int r = 0; r < table->rowCount(); ++r)
        for (int c = 0; c < table->columnCount(); ++c) {
            const QRect cell = table->visualItemRect(table->item(r, c));
            QVERIFY2(viewport.contains(cell), qPrintable(QString("cell %1,%2").arg(r).arg(c)));
            QVERIFY(cell.width() >= table->fontMetrics().horizontalAdvance("81"));
        }
    QCOMPARE(table->verticalScrollBar()->maximum(), 0);
    QCOMPARE(table->horizontalScrollBar()->maximum(), 0);
    combo.hidePopup();
    QCoreApplication::processEvents();
    QCOMPARE(combo.currentText(), QString("35"));
}

void tst_ChannelComboBox::choice_data()
{
    QTest::addColumn<bool>("userAction");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("channel");

    QTest::newRow("user, another row") << true << 12 << 2 << 2 << 23;
    QTest::newRow("user, same row") << true << 12 << 1 << 8 << 19;
    QTest::newRow("user, first choice") << true << -1 << 0 << 1 << 2;
    QTest::newRow("while filled by the program") << false << 12 << 2 << 2 << 23;
}

void tst_ChannelComboBox::choice()
{
    QFETCH(bool, userAction);
    QFETCH(int, from);
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(int, channel);

    ChannelComboBox combo(nullptr, "vendor dongle '7'");
    combo.setChannel(from);
    combo.setUserAction(userAction);
    QSignalSpy texts(&combo, SIGNAL(currentIndexChanged(QString)));
    QSignalSpy chosen(&combo, &ChannelComboBox::transceiverChannelChosen);

    pick(combo, row, column);

    QCOMPARE(combo.channel(), channel);
    QCOMPARE(combo.currentText(), QString::number(channel));
    QCOMPARE(texts.count(), 1);
    QCOMPARE(texts.first().first().toString(), QString::number(channel));
    if (userAction) {
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(chosen.first().at(0).toString(), QString("vendor dongle '7'"));
        QCOMPARE(chosen.first().at(1).toInt(), channel);
    } else {
        QCOMPARE(chosen.count(), 0);
    }
}

void tst_ChannelComboBox::mouseChoice()
{
    QWidget window;
    ChannelComboBox combo(&window, "d01");
    combo.setUserAction(true);
    combo.setChannel(12);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QSignalSpy chosen(&combo, &ChannelComboBox::transceiverChannelChosen);

    combo.showPopup();
    QTableWidget* table = combo.table();
    const QPoint target = table->visualItemRect(table->item(1, 6)).center();
    QTest::mouseMove(table->viewport(), target);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, target);
    QCoreApplication::processEvents();

    QVERIFY(!table->isVisible());
    QCOMPARE(combo.currentText(), QString("17"));
    QCOMPARE(chosen.count(), 1);
    QCOMPARE(chosen.first().at(1).toInt(), 17);
}

void tst_ChannelComboBox::emptyCellChangesNothing()
{
    ChannelComboBox combo(nullptr, "d01");
    combo.setUserAction(true);
    combo.setChannel(12);
    QSignalSpy chosen(&combo, &ChannelComboBox::transceiverChannelChosen);

    pick(combo, 2, 7);   // cell 28, beyond channel 25

    QCOMPARE(combo.channel(), 12);
    QCOMPARE(combo.currentText(), QString("12"));
    QCOMPARE(chosen.count(), 0);
}

void tst_ChannelComboBox::escapeKeepsChannel()
{
    ChannelComboBox combo(nullptr, "d01");
    combo.setUserAction(true);
    combo.setChannel(12);
    QSignalSpy texts(&combo, &QComboBox::currentTextChanged);
    QSignalSpy chosen(&combo, &ChannelComboBox::transceiverChannelChosen);

    combo.showPopup();
    combo.table()->setCurrentCell(0, 6);
    QTest::keyClick(combo.table(), Qt::Key_Escape);
    QVERIFY(!combo.table()->isVisible());
    QCoreApplication::processEvents();

    QCOMPARE(combo.currentText(), QString("12"));
    QCOMPARE(combo.channel(), 12);
    QCOMPARE(texts.count(), 0);
    QCOMPARE(chosen.count(), 0);
}

void tst_ChannelComboBox::typedDigitsPickChannel()
{
    ChannelComboBox combo;
    combo.setChannelLimits(2, 81);
    combo.setChannel(35);
    combo.setFocus();

    QTest::keyClick(&combo, Qt::Key_4);   // opens the grid on channel 4
    QVERIFY(combo.table()->isVisible());
    QCOMPARE(combo.table()->currentItem()->text(), QString("4"));
    QTest::keyClick(combo.table(), Qt::Key_7);
    QCOMPARE(combo.table()->currentItem()->text(), QString("47"));
    QTest::keyClick(combo.table(), Qt::Key_9);   // 479 is no channel: start again
    QCOMPARE(combo.table()->currentItem()->text(), QString("9"));
    QTest::keyClick(combo.table(), Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(combo.channel(), 9);
}

void tst_ChannelComboBox::wheelChangesNothing()
{
    QWidget window;
    ChannelComboBox combo(&window, "d01");
    combo.setUserAction(true);
    combo.setChannel(12);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QSignalSpy chosen(&combo, &ChannelComboBox::transceiverChannelChosen);

    QWheelEvent wheel(QPointF(5, 5), QPointF(combo.mapToGlobal(QPoint(5, 5))), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&combo, &wheel);
    QTest::keyClick(&combo, Qt::Key_A);

    QCOMPARE(combo.channel(), 12);
    QCOMPARE(combo.currentText(), QString("12"));
    QCOMPARE(chosen.count(), 0);
}

QTEST_MAIN(tst_ChannelComboBox)
#include "tst_ChannelComboBox.moc"
