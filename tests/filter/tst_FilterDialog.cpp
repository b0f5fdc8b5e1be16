#include <QtTest>

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QSpinBox>

#include <functional>

#include "DialogFixture.h"
#include "filter/FilterDialog.h"

using Lines = QList<QByteArray>;

namespace {

// "line=answer|...": bodies 01 (with a sensor) and 03 are calibrated, 02 is not.
const char Script[] = R"(filter6d available standard=yes|filter6d available wand=yes|config is_changeable=yes
body number_of_bodies standard=3|body calibrated standard b01=yes|body desc standard b01="left hand"
body inertial_sensor standard b01=NRV IMU3 '10231'|body calibrated standard b02=no|body calibrated standard b03=yes
body inertial_sensor standard b03=none|body desc standard b03=""|filter6d number_of_presets=3
filter6d preset_id t01=preset6d_default|filter6d preset_id t02=preset6d_custom|filter6d number_of_modes=3
filter6d preset_id t03=preset6d_hybrid_custom|filter6d preset_desc preset6d_default="default"
filter6d preset_desc preset6d_custom="custom"|filter6d preset_desc preset6d_hybrid_custom="hybrid custom"
filter6d mode_id t01=mode6d_standard|filter6d mode_id t02=mode6d_smooth|filter6d mode_id t03=mode6d_hybrid
filter6d mode_desc mode6d_standard="standard"|filter6d mode_desc mode6d_smooth="smooth"
filter6d limit strength_min=0.01|filter6d limit strength_max=0.99|filter6d limit prediction_min=0.005
filter6d limit prediction_max=0.2)";

// Each body's filter: on, custom preset, 0.35, 15.9 ms, smooth; no hybrid mode offered.
const char BodyScript[] = R"(body filter6d_enabled B=yes|body filter6d_preset B=preset6d_custom
body filter6d_strength B=0.35|body filter6d_prediction B=0.0159|body filter6d_mode B=mode6d_smooth
body filter6d_preset_available B preset6d_default=yes|body filter6d_preset_available B preset6d_custom=yes
body filter6d_preset_available B preset6d_hybrid_custom=yes|body filter6d_mode_available B mode6d_standard=yes
body filter6d_mode_available B mode6d_smooth=yes|body filter6d_mode_available B mode6d_hybrid=no)";

const Lines Opening = QByteArray(R"(filter6d available standard|config is_changeable|body number_of_bodies standard
body calibrated standard b01|body inertial_sensor standard b01|body desc standard b01|body calibrated standard b02
body calibrated standard b03|body inertial_sensor standard b03|body desc standard b03
body filter6d_enabled standard b03|filter6d number_of_presets|filter6d preset_id t01
body filter6d_preset_available standard b03 preset6d_default|filter6d preset_desc preset6d_default
filter6d preset_id t02|body filter6d_preset_available standard b03 preset6d_custom
filter6d preset_desc preset6d_custom|filter6d preset_id t03
body filter6d_preset_available standard b03 preset6d_hybrid_custom|filter6d preset_desc preset6d_hybrid_custom
body filter6d_preset standard b03|filter6d limit strength_min|filter6d limit strength_max
body filter6d_strength standard b03|filter6d limit prediction_min|filter6d limit prediction_max
body filter6d_prediction standard b03|filter6d number_of_modes|filter6d mode_id t01
body filter6d_mode_available standard b03 mode6d_standard|filter6d mode_desc mode6d_standard|filter6d mode_id t02
body filter6d_mode_available standard b03 mode6d_smooth|filter6d mode_desc mode6d_smooth|filter6d mode_id t03
body filter6d_mode_available standard b03 mode6d_hybrid|body filter6d_mode standard b03)")
                          .replace('\n', '|').split('|');

const QStringList AllControls = {"body", "active", "preset", "strength", "prediction", "mode"};

} // namespace

class tst_FilterDialog : public QObject, DialogFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void closed_data();
    void closed();
    void openingAndBodyChange();
    void writes_data();
    void writes();
    void readFailures_data();
    void readFailures();

private:
    template <class T = QWidget>
    T* w(const char* name) const { return dlg->findChild<T*>(QLatin1String(name)); }
    // Opens on body row 2 (body 03), runs `steps` inside the modal loop, exits.
    void open(const std::function<void()>& steps, int type = 0);
    QStringList enabled() const;
    QStringList items(const char* combo) const;
    QString chosen(const char* combo) const { return items(combo).join(',') + '/' + w<QComboBox>(combo)->currentText(); }
    void script(QByteArray lines = {});   // "line=answer|...", or the whole system above

    FilterDialog* dlg = nullptr;
};

void tst_FilterDialog::init()
{
    start();
    fake->set_stateful(true);
    dlg = new FilterDialog(fake, owner, &versions);
    script();
}

void tst_FilterDialog::script(QByteArray lines)
{
    if (lines.isEmpty())
        lines = Script + ('|' + QByteArray(BodyScript).replace(" B", " standard b01")) + '|'
                + QByteArray(BodyScript).replace(" B", " standard b03");
    for (const QByteArray& entry : lines.replace('\n', '|').split('|'))
        fake->reply(entry.left(entry.indexOf('=')), entry.mid(entry.indexOf('=') + 1));
}

void tst_FilterDialog::cleanup()
{
    QCOMPARE(fake->unexpected(), Lines());
    finish();
}

void tst_FilterDialog::open(const std::function<void()>& steps, int type)
{
    ModalDialogHelper::when_active("FilterDialog", [this, steps](QWidget*) {
        steps();
        w<QAbstractButton>("pushButton_exit")->click();
    });
    QCOMPARE(dlg->update_and_exec(type, 2), int(QDialog::Accepted));
}

QStringList tst_FilterDialog::enabled() const
{
    QStringList names;
    for (const QString& name : AllControls)
        for (QWidget* control : dlg->findChildren<QWidget*>(QRegularExpression("^[a-zA-Z]+_" + name + '$')))
            if (control->isEnabled() && !control->inherits("QLabel"))
                names << name;
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
    QTest::addColumn<QByteArray>("reply");   // "line=answer"
    QTest::addColumn<Lines>("lines");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("lockIcon");
    const Lines lock = {"config is_changeable"}, standard = Lines{"filter6d available standard"} + lock;
    const Lines wand = Lines{"filter6d available wand"} + lock;
    const QString bodies = "6DOF filter for standard bodies not available", wands = "6DOF filter for wands not available";
    const QByteArray locked = "config is_changeable=no";
    QTest::newRow("locked, standard bodies") << 21 << 0 << locked << standard << bodies << true;
    QTest::newRow("1.9, the first to lock, no filter yet") << 9 << 1 << locked << lock << wands << true;
    QTest::newRow("no filter for wands") << 21 << 1 << QByteArray("filter6d available wand=no") << wand << wands << false;
    QTest::newRow("unknown body type") << 21 << 2 << QByteArray("config is_changeable=yes") << lock
                                       << "6DOF filter not available" << false;
    QTest::newRow("controller 1.8, never locked") << 8 << 0 << locked << Lines() << bodies << false;
    QTest::newRow("no calibrated wand") << 21 << 1 << QByteArray("wand number_of_devices=0")
                                        << wand + Lines{"wand number_of_devices"} << "No wand is calibrated" << false;
    QTest::newRow("1.12, the first with a filter, no calibrated body") << 12 << 0 << QByteArray("body number_of_bodies standard=0")
        << standard + Lines{"body number_of_bodies standard"} << "No standard body is calibrated" << false;
}

void tst_FilterDialog::closed()
{
    QFETCH(int, minor);
    QFETCH(int, type);
    QFETCH(QByteArray, reply);
    QFETCH(Lines, lines);
    QFETCH(QString, text);
    QFETCH(bool, lockIcon);
    versions.minor = minor;
    script(reply);
    open([&] {
        QCOMPARE(enabled(), QStringList());
        QCOMPARE(w<QLabel>("label_error")->text(), "<b><font color=red>" + text + "</font></b>");
        QVERIFY(w("pushButton_help")->isEnabled());
        QCOMPARE(!dlg->windowIcon().isNull(), lockIcon);
    }, type);
    QCOMPARE(fake->lines(), lines);
    // Once the controller allows it, the next opening keeps nothing of this one.
    versions.minor = 21;
    script();
    open([&] {
        QCOMPARE(enabled(), AllControls);
        QCOMPARE(w<QLabel>("label_error")->text() + QString::number(dlg->windowIcon().isNull()), "1");
    });
}

void tst_FilterDialog::openingAndBodyChange()
{
    Lines refill;
    open([&] {
        QCOMPARE(items("comboBox_body"), QStringList({"left hand (standard body 01)", "standard body 03"}));
        QVERIFY(w("checkBox_active")->isVisible() && w<QCheckBox>("checkBox_active")->isChecked());
        QCOMPARE(chosen("comboBox_preset") + " (" + chosen("comboBox_mode") + ')',
                 "default,custom,hybrid custom/custom (standard,smooth/smooth)");
        QCOMPARE(w<QDoubleSpinBox>("doubleSpinBox_strength")->value(), 0.35);
        auto* ms = w<QSpinBox>("spinBox_prediction");
        QCOMPARE(QList<int>({ms->minimum(), ms->maximum(), ms->value()}), QList<int>({5, 200, 15}));
        ms->setFocus();   // leaving untouched boxes writes nothing
        w("doubleSpinBox_strength")->setFocus();
        QCOMPARE(fake->lines(), Opening);
        fake->clear_log();
        w<QComboBox>("comboBox_body")->setCurrentIndex(0);
        QVERIFY(!w("checkBox_active")->isVisible());   // body 01 carries a sensor
        refill = fake->lines();
    });
    Lines expected;
    for (const QByteArray& line : Opening.mid(Opening.indexOf("body filter6d_enabled standard b03")))
        if (!line.startsWith("filter6d limit"))
            expected << QByteArray(line).replace("b03", "b01");
    QCOMPARE(refill, expected);
    QCOMPARE(fake->message_texts(), QStringList());
}

void tst_FilterDialog::writes_data()
{
    QTest::addColumn<QByteArray>("widget");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<Lines>("lines");
    QTest::addColumn<QStringList>("enabledAfter");
    QTest::addColumn<QString>("message");   // empty: the controller accepts the first line
    const Lines refill = {"body filter6d_strength standard b03", "body filter6d_prediction standard b03",
                          "body filter6d_mode standard b03"};
    const QStringList fixed = {"body", "active", "preset"};
    auto rows = [&](const char* name, const char* widget, const QVariant& value, const QByteArray& line,
                    const Lines& then, const QStringList& after, const QString& failure) {
        QTest::newRow(name) << QByteArray(widget) << value << Lines{line} + then << after << QString();
        QTest::addRow("%s, refused", name) << QByteArray(widget) << value << Lines{line} << AllControls
                                           << "Error: Unable to " + failure + " for body standard b03";
    };
    rows("prediction 40 ms", "spinBox_prediction", 40, "body filter6d_prediction standard b03 0.040000", {},
         AllControls, "set filter 6d prediction");
    rows("strength 0.5", "doubleSpinBox_strength", 0.5, "body filter6d_strength standard b03 0.500000", {},
         AllControls, "set filter 6d strength");
    rows("mode", "comboBox_mode", "mode6d_standard", "body filter6d_mode standard b03 mode6d_standard", {},
         AllControls, "set filter 6d mode");
    rows("hybrid custom preset", "comboBox_preset", "preset6d_hybrid_custom",
         "body filter6d_preset standard b03 preset6d_hybrid_custom", refill, fixed + QStringList{"prediction", "mode"},
         "set filter 6d preset");
    rows("standard preset", "comboBox_preset", "preset6d_default", "body filter6d_preset standard b03 preset6d_default",
         refill, fixed, "set filter 6d preset");
    rows("filter off", "checkBox_active", false, "body filter6d_enabled standard b03 no",
         Lines{"body filter6d_preset standard b03"} + refill, fixed, "activate/deactivate filter 6d");
}

void tst_FilterDialog::writes()
{
    QFETCH(QByteArray, widget);
    QFETCH(QVariant, value);
    QFETCH(Lines, lines);
    QFETCH(QStringList, enabledAfter);
    QFETCH(QString, message);
    if (!message.isEmpty())
        fake->fail(lines.first());
    open([&] {
        fake->clear_log();
        QWidget* control = w(widget.constData());
        auto* combo = qobject_cast<QComboBox*>(control);
        const char* property = control->inherits("QCheckBox") ? "checked" : "value";
        if (combo)
            combo->setCurrentIndex(combo->findData(value));
        else if (auto* box = qobject_cast<QCheckBox*>(control))
            box->click();
        else if (control->setProperty(property, value))
            QMetaObject::invokeMethod(control, "editingFinished");
        QCOMPARE(fake->lines(), lines);
        QCOMPARE(enabled(), enabledAfter);
        // Accepted or not, the widget shows what the user chose.
        QCOMPARE(combo ? combo->currentData() : control->property(property), value);
    });
    QCOMPARE(fake->message_texts(), message.isEmpty() ? QStringList() : QStringList(message));
}

void tst_FilterDialog::readFailures_data()
{
    QTest::addColumn<Lines>("failing");
    QTest::addColumn<QString>("shown");   // the presets, the one chosen, the modes, the one chosen
    QTest::addColumn<QStringList>("enabledAfter");
    QTest::addColumn<QStringList>("messages");

    QTest::newRow("choices left out, the rest offered") << Lines{"filter6d preset_id t01",
        "filter6d preset_desc preset6d_custom", "body filter6d_preset_available standard b03 preset6d_hybrid_custom",
        "filter6d number_of_modes", "body filter6d_mode standard b03"} << "preset6d_custom/preset6d_custom (/)"
        << AllControls << QStringList{"Error: Unable to get filter 6d preset id",
        "Error: Unable to get filter 6d preset description", "Error: Unable to get filter 6d preset id available",
        "Error: Unable to get number of filter 6d modes", "Error: Unable to get filter 6d mode for body standard b03"};
    QTest::newRow("the body's filter unknown: nothing claimed") << Lines{"body calibrated standard b02",
        "body filter6d_enabled standard b03", "filter6d number_of_presets", "body filter6d_preset standard b03",
        "body filter6d_strength standard b03", "body filter6d_prediction standard b03", "filter6d mode_id t01",
        "filter6d mode_desc mode6d_smooth", "body filter6d_mode_available standard b03 mode6d_hybrid"}
        << "/ (mode6d_smooth/mode6d_smooth)" << QStringList{"body", "active", "preset"} << QStringList{
        "Error: Unable to get calibration info of body", "Error: Unable to get filter info of body",
        "Error: Unable to get number of filter 6d presets", "Error: Unable to get filter 6d preset for body standard b03",
        "Error: Unable to get filter 6d strength for body standard b03",
        "Error: Unable to get filter 6d prediction for body standard b03", "Error: Unable to get filter 6d mode id",
        "Error: Unable to get filter 6d mode description", "Error: Unable to get filter 6d mode id available"};
}

void tst_FilterDialog::readFailures()
{
    QFETCH(Lines, failing);
    QFETCH(QString, shown);
    QFETCH(QStringList, enabledAfter);
    QFETCH(QStringList, messages);

    for (const QByteArray& line : failing)
        fake->fail(line);
    open([&] {
        QCOMPARE(chosen("comboBox_preset") + " (" + chosen("comboBox_mode") + ')', shown);
        QCOMPARE(enabled(), enabledAfter);
    });
    QCOMPARE(fake->message_texts(), messages);
}

QTEST_MAIN(tst_FilterDialog)
#include "tst_FilterDialog.moc"
