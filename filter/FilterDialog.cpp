#include "FilterDialog.h"

#include <QIcon>
#include <QScopedValueRollback>

#include <cmath>

#include "FilterHelp.h"
#include "module/ControllerText.h"
#include "module/IOManager.h"
#include "module/ListLimits.h"
#include "module/VersionGate.h"
#include "ui_FilterDialog.h"

namespace {

// The controller speaks of prediction in seconds, the user in whole
// milliseconds. An absurd reply must not overflow the conversion.
constexpr double MsPerSecond = 1000.0;
constexpr double MaxPredictionMs = 3600.0 * MsPerSecond;

using ControllerWords::Yes;
using ControllerWords::No;
using ControllerWords::None;

int to_ms(double seconds)
{
    const double ms = seconds * MsPerSecond;
    if (std::isnan(ms))
        return 0;
    return int(qBound(-MaxPredictionMs, ms, MaxPredictionMs));   // whole milliseconds, truncated
}

// The user's own settings live in custom presets; the others bring theirs.
bool is_custom(const QString& preset)
{
    return preset.contains(QLatin1String("preset6d_")) && preset.contains(QLatin1String("_custom"));
}

// A hybrid filter takes its smoothing from the inertial sensor: no strength.
bool is_hybrid_custom(const QString& preset)
{
    return is_custom(preset) && preset.contains(QLatin1String("hybrid"));
}

} // namespace

// The same six lines, and their failures, serve presets and modes.
struct FilterDialog::ChoiceQueries
{
    const char* count;
    const char* id;
    const char* available;
    const char* desc;
    const char* current;
    const char* set;
    const char* count_failure;
    const char* id_failure;
    const char* available_failure;
    const char* desc_failure;
    const char* current_failure;
    const char* set_failure;
};

const FilterDialog::ChoiceQueries FilterDialog::Presets = {
    "filter6d number_of_presets", "filter6d preset_id t%02d", "body filter6d_preset_available %s %s",
    "filter6d preset_desc %s", "body filter6d_preset %s", "body filter6d_preset %s %s",
    QT_TR_NOOP("Error: Unable to get number of filter 6d presets"),
    QT_TR_NOOP("Error: Unable to get filter 6d preset id"),
    QT_TR_NOOP("Error: Unable to get filter 6d preset id available"),
    QT_TR_NOOP("Error: Unable to get filter 6d preset description"),
    QT_TR_NOOP("Error: Unable to get filter 6d preset for body %1"),
    QT_TR_NOOP("Error: Unable to set filter 6d preset for body %1"),
};

const FilterDialog::ChoiceQueries FilterDialog::Modes = {
    "filter6d number_of_modes", "filter6d mode_id t%02d", "body filter6d_mode_available %s %s",
    "filter6d mode_desc %s", "body filter6d_mode %s", "body filter6d_mode %s %s",
    QT_TR_NOOP("Error: Unable to get number of filter 6d modes"),
    QT_TR_NOOP("Error: Unable to get filter 6d mode id"),
    QT_TR_NOOP("Error: Unable to get filter 6d mode id available"),
    QT_TR_NOOP("Error: Unable to get filter 6d mode description"),
    QT_TR_NOOP("Error: Unable to get filter 6d mode for body %1"),
    QT_TR_NOOP("Error: Unable to set filter 6d mode for body %1"),
};

FilterDialog::FilterDialog(IOManager* io, QWidget* parent, BackendVersions* versions)
    : QDialog(parent),
      ui(new Ui_FilterDialog),
      io(io),
      backend_versions(versions)
{
    ui->setupUi(this);
}

FilterDialog::~FilterDialog()
{
    delete ui;
}

void FilterDialog::report(const QString& text) const
{
    ControllerText::report(io, text);
}

QString FilterDialog::body() const
{
    return ui->comboBox_body->currentData().toString();
}

// --- opening -----------------------------------------------------------------

int FilterDialog::update_and_exec(int type, int row)
{
    react = false;
    const bool available = filter_available(type);
    const bool config_locked = getConfigLocked();
    // The lock image tells why nothing can be changed; otherwise the
    // window shows whatever its parent shows.
    setWindowIcon(config_locked ? QIcon(QStringLiteral(":/lock.png")) : QIcon());
    if (!available || config_locked) {
        enableDialog(false, type);
        return exec();
    }

    enableDialog(true, StandardBodies);
    presets_and_modes = VersionGate::available(backend_versions, 1, 21);
    update_comboBox_body(type, row);
    if (ui->comboBox_body->count() == 0) {
        enableDialog(false, type);
        ui->label_error->setText(ControllerText::red(
            type == Wands ? tr("No wand is calibrated") : tr("No standard body is calibrated")));
    } else {
        fill_body(true);
    }
    react = true;
    ui->comboBox_body->setFocus();
    return exec();
}

bool FilterDialog::filter_available(int type)
{
    if (!VersionGate::available(backend_versions, 1, 12))
        return false;
    const char* path = type == StandardBodies ? "filter6d available standard"
                       : type == Wands        ? "filter6d available wand"
                                              : nullptr;
    char reply[IOManager::ReplyCapacity];
    return path && io->get_string(reply, path) == 0 && ControllerText::reply(reply) == Yes;
}

bool FilterDialog::getConfigLocked()
{
    if (!VersionGate::available(backend_versions, 1, 9))
        return false;
    char reply[IOManager::ReplyCapacity];
    return io->get_string(reply, "config is_changeable") == 0 && ControllerText::reply(reply) == No;
}

void FilterDialog::enableDialog(bool enable, int type)
{
    for (QWidget* control : std::initializer_list<QWidget*>{
             ui->comboBox_body, ui->checkBox_active, ui->comboBox_preset,
             ui->doubleSpinBox_strength, ui->spinBox_prediction, ui->comboBox_mode})
        control->setEnabled(enable);
    if (enable)
        ui->label_error->clear();
    else if (type == StandardBodies)
        ui->label_error->setText(ControllerText::red(tr("6DOF filter for standard bodies not available")));
    else if (type == Wands)
        ui->label_error->setText(ControllerText::red(tr("6DOF filter for wands not available")));
    else
        ui->label_error->setText(ControllerText::red(tr("6DOF filter not available")));
}

// --- bodies --------------------------------------------------------------------

void FilterDialog::update_comboBox_body(int type, int row)
{
    const bool wands = type == Wands;
    const char* kind = wands ? "wand" : "standard";
    QComboBox* bodies = ui->comboBox_body;
    bodies->clear();
    body_has_sensor.clear();

    int count = 0;
    if ((wands ? io->get_int(&count, "wand number_of_devices")
               : io->get_int(&count, "body number_of_bodies standard")) != 0) {
        report(tr("Error: Unable to get number of bodies"));
        return;
    }
    char reply[IOManager::ReplyCapacity];
    for (int b = 1; b <= ListLimits::bounded(count); ++b) {
        bool calibrated = false;
        if (io->get_bool(&calibrated, "body calibrated %s b%.2d", kind, b) != 0) {
            report(tr("Error: Unable to get calibration info of body"));
            continue;
        }
        if (!calibrated)
            continue;
        const QString number = QStringLiteral("%1").arg(b, 2, 10, QLatin1Char('0'));
        const QString address = QLatin1String(kind) + QStringLiteral(" b") + number;
        body_has_sensor[address] = io->get_string(reply, "body inertial_sensor %s b%.2d", kind, b) == 0
                                   && ControllerText::reply(reply) != None;
        QString text = wands ? tr("Wand body %1").arg(number) : tr("standard body %1").arg(number);
        if (io->get_string(reply, "body desc %s b%.2d", kind, b) == 0) {
            const QString desc = ControllerText::withoutDoubleQuotes(ControllerText::reply(reply));
            if (!desc.isEmpty())
                text = desc + QStringLiteral(" (") + text + QLatin1Char(')');
        }
        bodies->addItem(text, address);
    }
    const QString requested = QLatin1String(kind) + QStringLiteral(" b%1").arg(row + 1, 2, 10, QLatin1Char('0'));
    // A body that is not offered (no longer calibrated) leaves the first one shown.
    bodies->setCurrentIndex(qMax(0, bodies->findData(requested)));
}

void FilterDialog::fill_body(bool with_limits)
{
    const QString address = body();
    activate_checkbox_active(address);
    update_checkbox_active();
    update_combobox_preset_list_02(address);
    update_combobox_preset();
    if (with_limits)
        setup_spinBox_strength();
    update_doubleSpinBox_strength();
    if (with_limits)
        setup_spinBox_prediction();
    update_spinBox_prediction();
    update_comboBox_mode_list_02(address);
    update_comboBox_mode();
}

void FilterDialog::on_comboBox_body_currentIndexChanged(int index)
{
    if (!react || index < 0)
        return;
    QScopedValueRollback<bool> filling(react, false);
    fill_body(false);
}

// --- active --------------------------------------------------------------------

void FilterDialog::activate_checkbox_active(const QString& body)
{
    // A hybrid body's filter is part of its sensor fusion: it stays on.
    ui->checkBox_active->setVisible(!body_has_sensor.value(body));
}

void FilterDialog::update_checkbox_active()
{
    char reply[IOManager::ReplyCapacity] = {};
    const QByteArray address = ControllerText::latin(body());
    const bool read = io->get_string(reply, "body filter6d_enabled %s", address.constData()) == 0;
    if (!read)
        report(tr("Error: Unable to get filter info of body"));
    // Unknown counts as off: nothing that depends on it can then be edited.
    ui->checkBox_active->setChecked(read && ControllerText::reply(reply) == Yes);
}

void FilterDialog::on_checkBox_active_stateChanged(int state)
{
    if (!react)
        return;
    const QByteArray address = ControllerText::latin(body());
    if (io->set_value("body filter6d_enabled %s %s", address.constData(),
                      state == Qt::Checked ? "yes" : "no") != 0) {
        report(tr("Error: Unable to activate/deactivate filter 6d for body %1").arg(body()));
        return;
    }
    QScopedValueRollback<bool> filling(react, false);
    update_combobox_preset();
    update_doubleSpinBox_strength();
    update_spinBox_prediction();
    update_comboBox_mode();
}

bool FilterDialog::active_and_custom() const
{
    return ui->checkBox_active->isChecked() && is_custom(ui->comboBox_preset->currentData().toString());
}

// --- presets and modes ------------------------------------------------------------

void FilterDialog::fill_choices(QComboBox* combo, const ChoiceQueries& queries, const QString& body)
{
    combo->clear();
    if (!presets_and_modes)
        return;
    int count = 0;
    if (io->get_int(&count, queries.count) != 0) {
        report(tr(queries.count_failure));
        return;
    }
    const QByteArray address = ControllerText::latin(body);
    char reply[IOManager::ReplyCapacity];
    for (int t = 1; t <= ListLimits::bounded(count); ++t) {
        if (io->get_string(reply, queries.id, t) != 0) {
            report(tr(queries.id_failure));
            continue;
        }
        const QString id = ControllerText::reply(reply);
        const QByteArray id_word = ControllerText::latin(id);
        bool offered = false;
        if (io->get_bool(&offered, queries.available, address.constData(), id_word.constData()) != 0) {
            report(tr(queries.available_failure));
            continue;
        }
        if (!offered)
            continue;
        // Without its description the choice is still one the user can make.
        QString text = id;
        if (io->get_string(reply, queries.desc, id_word.constData()) == 0)
            text = ControllerText::withoutDoubleQuotes(ControllerText::reply(reply));
        else
            report(tr(queries.desc_failure));
        combo->addItem(text, id);
    }
}

void FilterDialog::select_current_choice(QComboBox* combo, const ChoiceQueries& queries)
{
    char reply[IOManager::ReplyCapacity];
    const QByteArray address = ControllerText::latin(body());
    if (!presets_and_modes) {
        combo->setCurrentIndex(-1);
        return;
    }
    if (io->get_string(reply, queries.current, address.constData()) != 0) {
        report(tr(queries.current_failure).arg(body()));
        // Showing the first entry would claim a choice the controller did not make.
        combo->setCurrentIndex(-1);
        return;
    }
    combo->setCurrentIndex(combo->findData(ControllerText::reply(reply)));
}

bool FilterDialog::set_choice(QComboBox* combo, const ChoiceQueries& queries)
{
    const QByteArray address = ControllerText::latin(body());
    const QByteArray id = ControllerText::latin(combo->currentData().toString());
    if (io->set_value(queries.set, address.constData(), id.constData()) != 0) {
        report(tr(queries.set_failure).arg(body()));
        return false;
    }
    return true;
}

void FilterDialog::update_combobox_preset_list_02(const QString& body)
{
    fill_choices(ui->comboBox_preset, Presets, body);
}

void FilterDialog::update_combobox_preset()
{
    select_current_choice(ui->comboBox_preset, Presets);
}

void FilterDialog::on_comboBox_preset_currentIndexChanged(int index)
{
    if (!react || index < 0 || !set_choice(ui->comboBox_preset, Presets))
        return;
    // A standard preset has just set strength, prediction and mode.
    QScopedValueRollback<bool> filling(react, false);
    update_doubleSpinBox_strength();
    update_spinBox_prediction();
    update_comboBox_mode();
}

void FilterDialog::update_comboBox_mode_list_02(const QString& body)
{
    fill_choices(ui->comboBox_mode, Modes, body);
}

void FilterDialog::update_comboBox_mode()
{
    select_current_choice(ui->comboBox_mode, Modes);
    ui->comboBox_mode->setEnabled(active_and_custom());
}

void FilterDialog::on_comboBox_mode_currentIndexChanged(int index)
{
    if (react && index >= 0)
        set_choice(ui->comboBox_mode, Modes);
}

// --- strength and prediction ---------------------------------------------------

double FilterDialog::read_limit(const char* path)
{
    double limit = 0.0;
    return io->get_double(&limit, path) == 0 ? limit : 0.0;
}

void FilterDialog::setup_spinBox_strength()
{
    const double minimum = read_limit("filter6d limit strength_min");
    const double maximum = read_limit("filter6d limit strength_max");
    ui->doubleSpinBox_strength->setRange(minimum, maximum);
}

bool FilterDialog::read_real(const char* path, const char* failure, double* value)
{
    const QByteArray address = ControllerText::latin(body());
    if (io->get_double(value, path, address.constData()) == 0)
        return true;
    report(tr(failure).arg(body()));
    return false;
}

bool FilterDialog::write_real(const char* path, double value, const char* failure)
{
    const QByteArray address = ControllerText::latin(body());
    if (io->set_value(path, address.constData(), value) == 0)
        return true;
    report(tr(failure).arg(body()));
    return false;
}

void FilterDialog::update_doubleSpinBox_strength()
{
    double strength = 0.0;
    if (read_real("body filter6d_strength %s", QT_TR_NOOP("Error: Unable to get filter 6d strength for body %1"),
                  &strength))
        ui->doubleSpinBox_strength->setValue(strength);
    strength_shown = ui->doubleSpinBox_strength->value();
    activate_controls_strength();
}

void FilterDialog::activate_controls_strength()
{
    ui->doubleSpinBox_strength->setEnabled(
        active_and_custom() && !is_hybrid_custom(ui->comboBox_preset->currentData().toString()));
}

void FilterDialog::on_doubleSpinBox_strength_editingFinished()
{
    const double strength = ui->doubleSpinBox_strength->value();
    if (react && strength != strength_shown
        && write_real("body filter6d_strength %s %f", strength,
                      QT_TR_NOOP("Error: Unable to set filter 6d strength for body %1")))
        strength_shown = strength;
}

void FilterDialog::setup_spinBox_prediction()
{
    const double minimum = read_limit("filter6d limit prediction_min");
    const double maximum = read_limit("filter6d limit prediction_max");
    ui->spinBox_prediction->setRange(to_ms(minimum), to_ms(maximum));
}

void FilterDialog::update_spinBox_prediction()
{
    double prediction = 0.0;
    if (read_real("body filter6d_prediction %s", QT_TR_NOOP("Error: Unable to get filter 6d prediction for body %1"),
                  &prediction))
        ui->spinBox_prediction->setValue(to_ms(prediction));
    prediction_shown = ui->spinBox_prediction->value();
    ui->spinBox_prediction->setEnabled(active_and_custom());
}

void FilterDialog::on_spinBox_prediction_editingFinished()
{
    const int prediction = ui->spinBox_prediction->value();
    if (react && prediction != prediction_shown
        && write_real("body filter6d_prediction %s %f", prediction / MsPerSecond,
                      QT_TR_NOOP("Error: Unable to set filter 6d prediction for body %1")))
        prediction_shown = prediction;
}

// --- buttons ---------------------------------------------------------------------

void FilterDialog::on_pushButton_help_clicked()
{
    FilterHelp help(this);
    help.exec();
}

void FilterDialog::on_pushButton_exit_clicked()
{
    accept();
}
