#include <QtTest>

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

#include <functional>

#include "FakeController.h"
#include "ModalDialogHelper.h"
#include "filter/FilterDialog.h"
#include "module/BackendVersions.h"

namespace {

const char* const Controls[] = {"comboBox_body", "checkBox_active", "comboBox_preset",
                                "doubleSpinBox_strength", "spinBox_prediction", "comboBox_mode"};

// Opening on body 03 of a controller whose bodies 01 and 03 are calibrated.
const QList<QByteArray> Opening = {
    "filter6d available standard", "config is_changeable", "body number_of_bodies standard",
    "body calibrated standard b01", "body inertial_sensor standard b01", "body desc standard b01",
    "body calibrated standard b02",
    "body calibrated standard b03", "body inertial_sensor standard b03", "body desc standard b03",
    "body filter6d_enabled standard b03",
    "filter6d number_of_presets",
    "filter6d preset_id t01", "body filter6d_preset_available standard b03 preset6d_default",
    "filter6d preset_desc preset6d_default",
    "filter6d preset_id t02", "body filter6d_preset_available standard b03 preset6d_custom",
    "filter6d preset_desc preset6d_custom",
    "filter6d preset_id t03", "body filter6d_preset_available standard b03 preset6d_hybrid_custom",
    "filter6d preset_desc preset6d_hybrid_custom",
    "body filter6d_preset standard b03",
    "filter6d limit strength_min", "filter6d limit strength_max", "body filter6d_strength standard b03",
    "filter6d limit prediction_min", "filter6d limit prediction_max", "body filter6d_prediction standard b03",
    "filter6d number_of_modes",
    "filter6d mode_id t01", "body filter6d_mode_available standard b03 mode6d_standard",
    "filter6d mode_desc mode6d_standard",
    "filter6d mode_id t02", "body filter6d_mode_available standard b03 mode6d_smooth",
    "filter6d mode_desc mode6d_smooth",
    "filter6d mode_id t03", "body filter6d_mode_available standard b03 mode6d_hybrid",
    "body filter6d_mode standard b03",
};

} // namespace

class tst_FilterDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void closed_data();
    void closed();
    void opening();
    void bodyChangeRefills();
    void writes_data();
    void writes();
    void readFailures_data();
    void readFailures();
    void help();

private:
    template <class T>
    T* w(const char* name) const
    {
        T* widget = dlg->findChild<T*>(QLatin1String(name));
        Q_ASSERT(widget);
        return widget;
    }
    // Opens on body row 2 (body 03), runs `steps` inside the modal loop, exits.
    void open(const std::function<void()>& steps, int type = 0);
    QStringList enabled() const;
    QStringList items(const char* combo) const;

    FakeController* fake = nullptr;
    BackendVersions versions;
    FilterDialog* dlg = nullptr;
};

void tst_FilterDialog::init()
{
    fake = new FakeController;
    fake->set_stateful(true);
    versions = BackendVersions();
    versions.major = 1;
    versions.minor = 21;
    dlg = new FilterDialog(fake, nullptr, &versions);
    const QList<QPair<QByteArray, QByteArray>> controller = {
        {"filter6d available standard", "yes"}, {"filter6d available wand", "yes"},
        {"config is_changeable", "yes"}, {"body number_of_bodies standard", "3"},
        {"body calibrated standard b01", "yes"}, {"body inertial_sensor standard b01", "NRV IMU3 '10231'"},
        {"body desc standard b01", "\"left hand\""}, {"body calibrated standard b02", "no"},
        {"body calibrated standard b03", "yes"}, {"body inertial_sensor standard b03", "none"},
        {"body desc standard b03", "\"\""},
        {"filter6d number_of_presets", "3"}, {"filter6d preset_id t01", "preset6d_default"},
        {"filter6d preset_id t02", "preset6d_custom"}, {"filter6d preset_id t03", "preset6d_hybrid_custom"},
        {"filter6d preset_desc preset6d_default", "\"default\""},
        {"filter6d preset_desc preset6d_custom", "\"custom\""},
        {"filter6d preset_desc preset6d_hybrid_custom", "\"hybrid custom\""},
        {"filter6d number_of_modes", "3"}, {"filter6d mode_id t01", "mode6d_standard"},
        {"filter6d mode_id t02", "mode6d_smooth"}, {"filter6d mode_id t03", "mode6d_hybrid"},
        {"filter6d mode_desc mode6d_standard", "\"standard\""}, {"filter6d mode_desc mode6d_smooth", "\"smooth\""},
        {"filter6d limit strength_min", "0.01"}, {"filter6d limit strength_max", "0.99"},
        {"filter6d limit prediction_min", "0.005"}, {"filter6d limit prediction_max", "0.2"},
    };
    for (const auto& entry : controller)
        fake->reply(entry.first, entry.second);
    for (const QByteArray body : {"standard b01", "standard b03"}) {
        fake->reply("body filter6d_enabled " + body, "yes");
        fake->reply("body filter6d_preset " + body, "preset6d_custom");
        fake->reply("body filter6d_strength " + body, "0.35");
        fake->reply("body filter6d_prediction " + body, "0.0159");
        fake->reply("body filter6d_mode " + body, "mode6d_smooth");
        for (const QByteArray preset : {"preset6d_default", "preset6d_custom", "preset6d_hybrid_custom"})
            fake->reply("body filter6d_preset_available " + body + ' ' + preset, "yes");
        for (const QByteArray mode : {"mode6d_standard", "mode6d_smooth"})
            fake->reply("body filter6d_mode_available " + body + ' ' + mode, "yes");
        fake->reply("body filter6d_mode_available " + body + " mode6d_hybrid", "no");
    }
}

void tst_FilterDialog::cleanup()
{
    delete dlg;
    dlg = nullptr;
    QCOMPARE(fake->unexpected(), QList<QByteArray>());
    delete fake;
    fake = nullptr;
    QCOMPARE(ModalDialogHelper::pending(), 0);
    ModalDialogHelper::clear_pending();
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_FilterDialog::open(const std::function<void()>& steps, int type)
{
    ModalDialogHelper::when_active("FilterDialog", [this, steps](QWidget*) {
        steps();
        w<QPushButton>("pushButton_exit")->click();
    });
    QCOMPARE(dlg->update_and_exec(type, 2), int(QDialog::Accepted));
}

QStringList tst_FilterDialog::enabled() const
{
    QStringList names;
    for (const char* name : Controls)
        if (w<QWidget>(name)->isEnabled())
            names << QString::fromLatin1(name).section('_', 1);
    return names;
}

QStringList tst_FilterDialog::items(const char* combo) const
{
    QStringList texts;
    for (int i = 0; i < w<QComboBox>(combo)->count(); ++i)
        texts << w<QComboBox>(combo)->itemText(i);
    return texts;
}

void tst_FilterDialog::closed_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("available");
    QTest::addColumn<QByteArray>("changeable");
    QTest::addColumn<QList<QByteArray>>("lines");
    QTest::addColumn<QString>("text");
    const QString standard = "6DOF filter for standard bodies not available";
    const QString wands = "6DOF filter for wands not available";
    QTest::newRow("locked, standard bodies") << 21 << 0 << QByteArray("yes") << QByteArray("no")
        << QList<QByteArray>{"filter6d available standard", "config is_changeable"} << standard;
    QTest::newRow("locked, wands") << 21 << 1 << QByteArray("yes") << QByteArray("no")
        << QList<QByteArray>{"filter6d available wand", "config is_changeable"} << wands;
    QTest::newRow("no filter for wands") << 21 << 1 << QByteArray("no") << QByteArray("yes")
        << QList<QByteArray>{"filter6d available wand", "config is_changeable"} << wands;
    QTest::newRow("unknown body type") << 21 << 2 << QByteArray("yes") << QByteArray("yes")
        << QList<QByteArray>{"config is_changeable"} << "6DOF filter not available";
    QTest::newRow("controller 1.11") << 11 << 0 << QByteArray("yes") << QByteArray("yes")
        << QList<QByteArray>{"config is_changeable"} << standard;
    QTest::newRow("controller 1.8, never locked") << 8 << 0 << QByteArray("yes") << QByteArray("no")
        << QList<QByteArray>() << standard;
}

void tst_FilterDialog::closed()
{
    QFETCH(int, type);
    QFETCH(QByteArray, available);
    QFETCH(QByteArray, changeable);
    QFETCH(QList<QByteArray>, lines);
    QFETCH(QString, text);
    QFETCH(int, minor);
    versions.minor = minor;
    fake->reply(type == 1 ? "filter6d available wand" : "filter6d available standard", available);
    fake->reply("config is_changeable", changeable);
    open([&] {
        QCOMPARE(enabled(), QStringList());
        QCOMPARE(w<QLabel>("label_error")->text(), "<b><font color=red>" + text + "</font></b>");
        QVERIFY(w<QPushButton>("pushButton_help")->isEnabled());
    }, type);
    QCOMPARE(fake->lines(), lines);
}

void tst_FilterDialog::opening()
{
    open([&] {
        QCOMPARE(items("comboBox_body"), QStringList({"left hand (standard body 01)", "standard body 03"}));
        QCOMPARE(w<QComboBox>("comboBox_body")->currentData().toString(), "standard b03");
        QVERIFY(w<QCheckBox>("checkBox_active")->isVisible());
        QVERIFY(w<QCheckBox>("checkBox_active")->isChecked());
        QCOMPARE(items("comboBox_preset"), QStringList({"default", "custom", "hybrid custom"}));
        QCOMPARE(w<QComboBox>("comboBox_preset")->currentText(), "custom");
        QCOMPARE(w<QDoubleSpinBox>("doubleSpinBox_strength")->value(), 0.35);
        QCOMPARE(w<QSpinBox>("spinBox_prediction")->minimum(), 5);
        QCOMPARE(w<QSpinBox>("spinBox_prediction")->maximum(), 200);
        QCOMPARE(w<QSpinBox>("spinBox_prediction")->value(), 15);
        QCOMPARE(items("comboBox_mode"), QStringList({"standard", "smooth"}));
        QCOMPARE(w<QComboBox>("comboBox_mode")->currentText(), "smooth");
        QCOMPARE(enabled().size(), 6);
        QCOMPARE(w<QLabel>("label_error")->text(), QString());
        // Leaving untouched boxes writes nothing.
        w<QSpinBox>("spinBox_prediction")->setFocus();
        w<QDoubleSpinBox>("doubleSpinBox_strength")->setFocus();
    });
    QCOMPARE(fake->lines(), Opening);
    QCOMPARE(fake->message_texts(), QStringList());
}

void tst_FilterDialog::bodyChangeRefills()
{
    open([&] {
        fake->clear_log();
        w<QComboBox>("comboBox_body")->setCurrentIndex(0);
        // Body 01 carries a sensor: its filter is not the user's to switch off.
        QVERIFY(!w<QCheckBox>("checkBox_active")->isVisible());
    });
    QList<QByteArray> expected;
    for (const QByteArray& line : Opening.mid(Opening.indexOf("body filter6d_enabled standard b03")))
        if (!line.startsWith("filter6d limit"))
            expected << QByteArray(line).replace("b03", "b01");
    QCOMPARE(fake->lines(), expected);
}

void tst_FilterDialog::writes_data()
{
    QTest::addColumn<QByteArray>("widget");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QList<QByteArray>>("lines");
    QTest::addColumn<QStringList>("enabledAfter");
    QTest::addColumn<QString>("message");   // empty: the controller accepts the first line
    const QList<QByteArray> refill = {"body filter6d_strength standard b03", "body filter6d_prediction standard b03",
                                      "body filter6d_mode standard b03"};
    const QStringList all = {"body", "active", "preset", "strength", "prediction", "mode"};
    auto rows = [&](const char* name, const QByteArray& widget, const QVariant& value, const QByteArray& line,
                    const QList<QByteArray>& then, const QStringList& after, const QString& failure) {
        QTest::newRow(name) << widget << value << QList<QByteArray>{line} + then << after << QString();
        QTest::addRow("%s, refused", name) << widget << value << QList<QByteArray>{line} << all
                                           << "Error: Unable to " + failure + " for body standard b03";
    };
    rows("prediction 40 ms", "spinBox_prediction", 40, "body filter6d_prediction standard b03 0.040000", {}, all,
         "set filter 6d prediction");
    rows("strength 0.5", "doubleSpinBox_strength", 0.5, "body filter6d_strength standard b03 0.500000", {}, all,
         "set filter 6d strength");
    rows("mode", "comboBox_mode", "mode6d_standard", "body filter6d_mode standard b03 mode6d_standard", {}, all,
         "set filter 6d mode");
    rows("hybrid custom preset", "comboBox_preset", "preset6d_hybrid_custom",
         "body filter6d_preset standard b03 preset6d_hybrid_custom", refill,
         {"body", "active", "preset", "prediction", "mode"}, "set filter 6d preset");
    rows("standard preset", "comboBox_preset", "preset6d_default", "body filter6d_preset standard b03 preset6d_default",
         refill, {"body", "active", "preset"}, "set filter 6d preset");
    rows("filter off", "checkBox_active", false, "body filter6d_enabled standard b03 no",
         QList<QByteArray>{"body filter6d_preset standard b03"} + refill, {"body", "active", "preset"},
         "activate/deactivate filter 6d");
}

void tst_FilterDialog::writes()
{
    QFETCH(QByteArray, widget);
    QFETCH(QVariant, value);
    QFETCH(QList<QByteArray>, lines);
    QFETCH(QStringList, enabledAfter);
    QFETCH(QString, message);
    if (!message.isEmpty())
        fake->fail(lines.first());
    open([&] {
        fake->clear_log();
        QWidget* control = w<QWidget>(widget.constData());
        auto* combo = qobject_cast<QComboBox*>(control);
        if (combo) {
            combo->setCurrentIndex(combo->findData(value));
        } else if (qobject_cast<QCheckBox*>(control)) {
            qobject_cast<QCheckBox*>(control)->click();
        } else {
            control->setProperty("value", value);
            QMetaObject::invokeMethod(control, "editingFinished");
        }
        QCOMPARE(fake->lines(), lines);
        QCOMPARE(enabled(), enabledAfter);
        // Accepted or not, the widget shows what the user chose.
        const char* property = qobject_cast<QCheckBox*>(control) ? "checked" : "value";
        QCOMPARE(combo ? combo->currentData() : control->property(property), value);
    });
    QCOMPARE(fake->message_texts(), message.isEmpty() ? QStringList() : QStringList(message));
}

void tst_FilterDialog::readFailures_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QStringList>("presets");
    QTest::addColumn<QString>("mode");
    const QStringList presets = {"default", "custom", "hybrid custom"};
    QTest::newRow("number of bodies") << QByteArray("body number_of_bodies standard")
        << "Error: Unable to get number of bodies" << QStringList() << QString();
    QTest::newRow("calibration of body 01") << QByteArray("body calibrated standard b01")
        << "Error: Unable to get calibration info of body" << presets << "smooth";
    QTest::newRow("filter on or off") << QByteArray("body filter6d_enabled standard b03")
        << "Error: Unable to get filter info of body" << presets << "smooth";
    QTest::newRow("number of presets") << QByteArray("filter6d number_of_presets")
        << "Error: Unable to get number of filter 6d presets" << QStringList() << "smooth";
    QTest::newRow("preset id") << QByteArray("filter6d preset_id t02")
        << "Error: Unable to get filter 6d preset id" << QStringList({"default", "hybrid custom"}) << "smooth";
    QTest::newRow("preset offered") << QByteArray("body filter6d_preset_available standard b03 preset6d_default")
        << "Error: Unable to get filter 6d preset id available" << QStringList({"custom", "hybrid custom"}) << "smooth";
    QTest::newRow("preset description") << QByteArray("filter6d preset_desc preset6d_custom")
        << "Error: Unable to get filter 6d preset description"
        << QStringList({"default", "preset6d_custom", "hybrid custom"}) << "smooth";
    QTest::newRow("preset of the body") << QByteArray("body filter6d_preset standard b03")
        << "Error: Unable to get filter 6d preset for body standard b03" << presets << "smooth";
    QTest::newRow("strength") << QByteArray("body filter6d_strength standard b03")
        << "Error: Unable to get filter 6d strength for body standard b03" << presets << "smooth";
    QTest::newRow("prediction") << QByteArray("body filter6d_prediction standard b03")
        << "Error: Unable to get filter 6d prediction for body standard b03" << presets << "smooth";
    QTest::newRow("number of modes") << QByteArray("filter6d number_of_modes")
        << "Error: Unable to get number of filter 6d modes" << presets << QString();
    QTest::newRow("mode id") << QByteArray("filter6d mode_id t02")
        << "Error: Unable to get filter 6d mode id" << presets << QString();
    QTest::newRow("mode offered") << QByteArray("body filter6d_mode_available standard b03 mode6d_smooth")
        << "Error: Unable to get filter 6d mode id available" << presets << QString();
    QTest::newRow("mode description") << QByteArray("filter6d mode_desc mode6d_smooth")
        << "Error: Unable to get filter 6d mode description" << presets << "mode6d_smooth";
    QTest::newRow("mode of the body") << QByteArray("body filter6d_mode standard b03")
        << "Error: Unable to get filter 6d mode for body standard b03" << presets << QString();
}

void tst_FilterDialog::readFailures()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, message);
    QFETCH(QStringList, presets);
    QFETCH(QString, mode);
    fake->fail(line);
    open([&] {
        QCOMPARE(items("comboBox_preset"), presets);
        QCOMPARE(w<QComboBox>("comboBox_mode")->currentText(), mode);
        QVERIFY(w<QPushButton>("pushButton_exit")->isEnabled());
    });
    QCOMPARE(fake->message_texts(), QStringList(message));
}

void tst_FilterDialog::help()
{
    QString title;
    open([&] {
        ModalDialogHelper::when_active("FilterHelp", [&](QWidget* help) {
            title = help->windowTitle();
            help->findChild<QPushButton*>("pushButton_exit")->click();
        });
        w<QPushButton>("pushButton_help")->click();
    });
    QCOMPARE(title, "Help Filter");
}

QTEST_MAIN(tst_FilterDialog)
#include "tst_FilterDialog.moc"
