#include <QtTest>

#include "ModalDialogHelper.h"
#include "statusbar/BatteryBar.h"
#include "statusbar/TemperatureBar.h"

// The two bars' thresholds differ on purpose (battery green from 20,
// temperature from 95); these tables pin both at their boundaries.
class tst_Bars : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void battery_data();
    void battery();
    void temperature_data();
    void temperature();
    void temperatureTextLeavesValue();
    void bothStartAtZero();
};

void tst_Bars::cleanup()
{
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_Bars::battery_data()
{
    QTest::addColumn<double>("fraction");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("chunk");
    QTest::addColumn<QString>("border");

    QTest::newRow("0.195 is 19, red") << 0.195 << 19 << "#FF0000;" << "red";
    QTest::newRow("0.2 is 20, green") << 0.2 << 20 << "#4CFF00;" << "black";
    QTest::newRow("0.0 is red") << 0.0 << 0 << "#FF0000;" << "red";
    QTest::newRow("0.999 is 99, square chunk") << 0.999 << 99 << "#4CFF00;" << "black";
    QTest::newRow("1.5 is 100, rounded") << 1.5 << 100 << "#4CFF00; border-radius: 2px;" << "black";
    QTest::newRow("negative is unknown") << -0.01 << 0 << "#FFFFFF; border-radius: 2px;" << "white";
    QTest::newRow("absurd is full") << 2e9 << 100 << "#4CFF00; border-radius: 2px;" << "black";
}

void tst_Bars::battery()
{
    QFETCH(double, fraction);
    QFETCH(int, value);
    QFETCH(QString, chunk);
    QFETCH(QString, border);

    BatteryBar bar;
    bar.setValue(fraction);
    QCOMPARE(bar.value(), value);
    QVERIFY2(bar.styleSheet().endsWith("BatteryBar::chunk { background-color: " + chunk + " }"),
             qPrintable(bar.styleSheet()));
    QVERIFY(bar.styleSheet().contains("border-top: 2px solid " + border + ";"));
    QVERIFY(bar.styleSheet().startsWith(
        QStringLiteral("BatteryBar { color: %1;").arg(border == "white" ? "white" : "black")));
}

void tst_Bars::temperature_data()
{
    QTest::addColumn<double>("input");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("chunk");
    QTest::addColumn<QString>("colour");

    QTest::newRow("94.9 is 94, red") << 94.9 << 94 << "#FF0000;" << "black";
    QTest::newRow("95.0 is 95, green") << 95.0 << 95 << "#4CFF00;" << "black";
    QTest::newRow("99.9 is 99, green") << 99.9 << 99 << "#4CFF00;" << "black";
    QTest::newRow("100 rounded") << 100.0 << 100 << "#4CFF00; border-radius: 2px;" << "black";
    QTest::newRow("-1 is unknown") << -1.0 << 0 << "#FF0000;" << "white";
    QTest::newRow("-0.5 truncates to 0") << -0.5 << 0 << "#FF0000;" << "black";
}

void tst_Bars::temperature()
{
    QFETCH(double, input);
    QFETCH(int, value);
    QFETCH(QString, chunk);
    QFETCH(QString, colour);

    TemperatureBar bar;
    bar.setValue(input);
    QCOMPARE(bar.value(), value);
    QVERIFY2(bar.styleSheet().endsWith("QProgressBar::chunk { background-color: " + chunk + " }"),
             qPrintable(bar.styleSheet()));
    QVERIFY(bar.styleSheet().startsWith("TemperatureBar { color: " + colour + ";"));
}

void tst_Bars::temperatureTextLeavesValue()
{
    TemperatureBar bar;
    bar.setValue(40);
    bar.setTemperature(23.46);
    QCOMPARE(bar.format(), QString("23.5") + QChar(0x00B0) + "C");
    QCOMPARE(bar.value(), 40);
    QCOMPARE(bar.text(), QString("23.5") + QChar(0x00B0) + "C");
}

void tst_Bars::bothStartAtZero()
{
    BatteryBar battery;
    TemperatureBar temperature;
    QCOMPARE(battery.value(), 0);
    QCOMPARE(temperature.value(), 0);
    QCOMPARE(battery.minimum(), 0);
    QCOMPARE(battery.maximum(), 100);
    QCOMPARE(temperature.minimum(), 0);
    QCOMPARE(temperature.maximum(), 100);
}

QTEST_MAIN(tst_Bars)
#include "tst_Bars.moc"
