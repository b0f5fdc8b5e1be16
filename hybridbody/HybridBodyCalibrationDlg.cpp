#include "HybridBodyCalibrationDlg.h"

#include <QKeyEvent>
#include <QRegularExpression>

#include "HybridBodyCalibrationHelpDlg.h"
#include "HybridBodyResultCalibrationDlg.h"
#include "calibration/CalibrationProgressDlg.h"
#include "module/ControllerChecks.h"
#include "module/ControllerText.h"
#include "module/HybridBodyCheck.h"
#include "module/IOManager.h"
#include "module/ListLimits.h"
#include "module/SensorIdentity.h"
#include "module/VersionGate.h"
#include "ui_HybridBodyDialog.h"

namespace {

const char ReceiverName[] = "HybridBodyCalibration";
const QString OpenRequest = QStringLiteral("OpenHybridBodyCalibration");
using ControllerWords::None;
using ControllerWords::Err;
const QString Wait = QStringLiteral("wait");
using ControllerWords::CommandDone;

QString body_id(int number)
{
    return QStringLiteral("standard b%1").arg(number, 2, 10, QLatin1Char('0'));
}

} // namespace

QString HybridBodyCalibrationDlg::SensorInfo::vendorModelSerial() const
{
    return QStringLiteral("%1 %2 '%3'").arg(vendor, model, serial);
}

HybridBodyCalibrationDlg::HybridBodyCalibrationDlg(IOManager* io, QWidget* parent, BackendVersions* versions)
    : QDialog(parent),
      ui(new Ui_HybridBodyDialog),
      io(io),
      versions(versions),
      receiver_registered(false),
      config_locked(false),
      dialog_enabled(false),
      lock_icon(QStringLiteral(":/lock.png")),
      sensor_enabled_icon(QStringLiteral(":/inertial_en"))
{
    ui->setupUi(this);
    if (io) {
        io->register_receiver(ReceiverName, this);
        receiver_registered = true;
    }
    // Queued: the host may deliver while it is still busy with another
    // module's dialog.
    connect(this, &HybridBodyCalibrationDlg::openHybridBodyCalibrationDialog, this,
            &HybridBodyCalibrationDlg::onReceiveOpenHybridBodyCalibrationDialog, Qt::QueuedConnection);
}

HybridBodyCalibrationDlg::~HybridBodyCalibrationDlg()
{
    // The host must not keep delivering to a receiver that dies with us.
    if (receiver_registered)
        io->unregister_receiver(ReceiverName, this);
    delete ui;
}

void HybridBodyCalibrationDlg::about_to_exit()
{
    ui->label_graphic->stop();
    if (receiver_registered)
        io->unregister_receiver(ReceiverName, this);
    receiver_registered = false;
}

int HybridBodyCalibrationDlg::transmit_message(int type, const char* sender, const char* text)
{
    if (!sender)
        return 1;
    if (type != 1 || !text)
        return 0;
    const QString message = QString::fromLatin1(text);
    if (message.startsWith(OpenRequest))
        emit openHybridBodyCalibrationDialog(QString::fromLatin1(sender),
                                             message.section(QLatin1Char(' '), 1, -1, QString::SectionSkipEmpty));
    return 0;
}

// --- questions ---------------------------------------------------------------

bool HybridBodyCalibrationDlg::is_config_locked()
{
    return ControllerChecks::configLocked(io, versions);
}

bool HybridBodyCalibrationDlg::is_inertial_available()
{
    return ControllerChecks::inertialAvailable(io, versions);
}

bool HybridBodyCalibrationDlg::is_tracking_available()
{
    // Controllers before 0.17 cannot be asked and always track.
    if (!VersionGate::available(versions, 0, 17))
        return true;
    char reply[IOManager::ReplyCapacity] = "";
    return io->get_string(reply, "tracking available") == 0 && ControllerText::reply(reply) == QLatin1String("yes");
}

bool HybridBodyCalibrationDlg::is_hybrid_body_available()
{
    return HybridBodyCheck::available(io, this);
}

bool HybridBodyCalibrationDlg::is_room_calibrated()
{
    char reply[IOManager::ReplyCapacity] = "";
    if (io->get_string(reply, "cal available inertial_handeye") != 0)
        report(tr("Could not get calibration information"));
    return ControllerText::reply(reply) != QLatin1String("no");
}

double HybridBodyCalibrationDlg::getSensorDelay(const QString& identity)
{
    if (!VersionGate::available(versions, 1, 21))
        return 0.0;
    double delay = 0.0;
    if (io->get_double(&delay, "inertial new_sensor_delay %s", ControllerText::latin(identity).constData()) != 0)
        return 0.0;
    return delay;
}

// --- opening -----------------------------------------------------------------

int HybridBodyCalibrationDlg::update_and_exec()
{
    // Already open (the menu and a message can both ask): no second run.
    if (isVisible()) {
        raise();
        activateWindow();
        return result();
    }
    config_locked = is_config_locked();
    const bool inertial = is_inertial_available();
    bool hybrid = false;
    QString refusal;
    if (!VersionGate::available(versions, 1, 12))
        refusal = tr("This controller does not support hybrid sensors - please update your controller");
    else if (!inertial)
        refusal = tr("Hybrid Tracking is not available");
    else if (!(hybrid = is_hybrid_body_available()))
        refusal = tr("No hybrid body is available");
    else if (!is_tracking_available())
        refusal = tr("Tracking is not available");
    else if (!is_room_calibrated())
        refusal = tr("No valid room calibration");
    enableDialog(refusal.isEmpty(), refusal);

    update_comboBox(inertial && hybrid);
    on_comboBox_body_activated(ui->comboBox_body->currentIndex());
    if (!requester.isEmpty() && dialog_enabled)
        select_requested_body();

    ui->label_graphic->start();
    const int result = exec();
    // Nobody sees the picture any more.
    ui->label_graphic->stop();
    return result;
}

void HybridBodyCalibrationDlg::onReceiveOpenHybridBodyCalibrationDialog(QString requester, QString body)
{
    this->requester = requester;
    requested_body = body;
    if (!isVisible()) {
        update_and_exec();
        return;
    }
    // Open already: the request only chooses the body.
    if (dialog_enabled)
        select_requested_body();
    raise();
    activateWindow();
}

void HybridBodyCalibrationDlg::select_requested_body()
{
    static const QRegularExpression separators(QStringLiteral("[ |]"));
    const QStringList words = requested_body.split(separators, Qt::SkipEmptyParts);
    // "b02" as the body is written in queries, or the bare number.
    QString number = words.value(1);
    if (number.startsWith(QLatin1Char('b')))
        number.remove(0, 1);
    const QString wanted = QStringLiteral("%1 b%2").arg(words.value(0)).arg(number.toInt(), 2, 10, QLatin1Char('0'));
    for (int i = 0; i < sensors.size(); ++i) {
        if (sensors.at(i).body_id == wanted) {
            ui->comboBox_body->setCurrentIndex(i);
            on_comboBox_body_activated(i);
            return;
        }
    }
}

void HybridBodyCalibrationDlg::update_comboBox(bool fill)
{
    ui->comboBox_body->clear();
    sensors.clear();
    if (!fill)
        return;
    int count = 0;
    if (io->get_int(&count, "standard number_of_bodies") != 0) {
        report(tr("Error: Unable to get number of bodies"));
        return;
    }
    count = ListLimits::bounded(count);
    for (int number = 1; number <= count; ++number) {
        SensorInfo info;
        info.body_id = body_id(number);
        const QByteArray body = ControllerText::latin(info.body_id);
        char reply[IOManager::ReplyCapacity] = "";
        if (io->get_string(reply, "body inertial_sensor %s", body.constData()) != 0) {
            report(tr("Could not get information of sensor: ") + info.body_id);
            continue;
        }
        const SensorIdentity identity = SensorIdentity::parse(ControllerText::reply(reply));
        if (!identity.isValid())
            continue;   // "none", or nothing a query could name
        const QByteArray sensor = ControllerText::latin(identity.line());
        bool present = false;
        if (io->get_bool(&present, "inertial sensor_present %s", sensor.constData()) != 0)
            report(tr("Error: Unable to info inertial sensor is present"));
        if (!present)
            continue;

        info.vendor = identity.vendor();
        info.model = identity.model();
        info.serial = identity.deviceId();
        const QByteArray vendor = ControllerText::latin(info.vendor);
        const QByteArray model = ControllerText::latin(info.model);
        reply[0] = '\0';
        io->get_string(reply, "inertial sensor_vendor_desc %s", vendor.constData());
        info.vendor_desc = ControllerText::withoutDoubleQuotes(ControllerText::reply(reply));
        reply[0] = '\0';
        io->get_string(reply, "inertial sensor_model_desc %s %s", vendor.constData(), model.constData());
        info.model_desc = ControllerText::withoutDoubleQuotes(ControllerText::reply(reply));
        if (io->get_bool(&info.active, "body active %s", body.constData()) != 0)
            report(tr("Could not get active status of body: ") + info.body_id);
        if (io->get_bool(&info.calibrated, "body calibrated %s", body.constData()) != 0)
            report(tr("Could not get calibration status of body: ") + info.body_id);
        reply[0] = '\0';
        if (io->get_string(reply, "body desc %s", body.constData()) != 0)
            report(tr("Could not get description of sensor: ") + info.body_id);
        const QString description = ControllerText::withoutDoubleQuotes(ControllerText::reply(reply));

        // "standard body 02 (right hand)"
        QString text = tr("%1 body %2").arg(info.body_id.section(QLatin1Char(' '), 0, 0),
                                            info.body_id.section(QLatin1Char(' '), 1).mid(1));
        if (!description.isEmpty())
            text += QStringLiteral(" (%1)").arg(description);
        ui->comboBox_body->addItem(sensor_enabled_icon, text);
        sensors.append(info);
    }
}

void HybridBodyCalibrationDlg::enableDialog(bool enable, const QString& message)
{
    setWindowIcon(config_locked ? lock_icon : parentWidget() ? parentWidget()->windowIcon() : QIcon());
    dialog_enabled = enable && !config_locked;
    if (dialog_enabled)
        ui->label_error->clear();
    else
        ui->label_error->setText(ControllerText::red(message));
    ui->label_error->setVisible(!dialog_enabled);
    ui->comboBox_body->setEnabled(dialog_enabled);
    ui->pushButton_calibrate->setEnabled(dialog_enabled);
}

void HybridBodyCalibrationDlg::on_comboBox_body_activated(int index)
{
    if (index < 0 || index >= sensors.size()) {
        ui->label_deviceId->clear();
        ui->label_vendor->clear();
        ui->label_model->clear();
        ui->pushButton_calibrate->setEnabled(false);
        return;
    }
    const SensorInfo& info = sensors.at(index);
    ui->label_deviceId->setText(info.serial);
    ui->label_vendor->setText(info.vendor_desc);
    ui->label_model->setText(info.model_desc);
    // A refused or locked dialog keeps its reason whichever body is shown.
    if (!dialog_enabled)
        return;
    const bool ready = info.calibrated && info.active;
    // An inactive body is one the cameras do not look for; an uncalibrated
    // one has no optical frame to calibrate against.
    ui->label_error->setText(ready ? QString()
                                   : ControllerText::red(info.calibrated ? tr("Body is not optical calibrated")
                                                                         : QString()));
    ui->label_error->setVisible(!ready);
    ui->pushButton_calibrate->setEnabled(ready);
}

// --- the calibration ---------------------------------------------------------

void HybridBodyCalibrationDlg::on_pushButton_calibrate_clicked()
{
    const int index = ui->comboBox_body->currentIndex();
    if (!ui->pushButton_calibrate->isEnabled() || index < 0 || index >= sensors.size())
        return;
    const SensorInfo info = sensors.at(index);
    const QString identity = info.vendorModelSerial();
    const QByteArray sensor = ControllerText::latin(identity);
    const QByteArray body = ControllerText::latin(info.body_id);

    try_stop_tracking();
    if (io->set_value("inertial sensor_handeye_calibrate %s yes", sensor.constData()) != 0)
        report(tr("Could not set hybrid calibration of sensor: ") + identity);
    if (info.calibrated && io->set_value("body active %s yes", body.constData()) != 0)
        report(tr("Could not set body settings: ") + info.body_id);
    try_start_tracking();

    char reply[IOManager::ReplyCapacity] = "";
    const bool asked = io->get_string(reply, "status active") == 0;
    const QString activity = ControllerText::reply(reply);
    if (!asked || activity == Err) {
        report(tr("Error: Cannot start hybrid calibration"));
        return;
    }
    if (activity == Wait) {
        report(tr("Error: Cannot start hybrid calibration. Maybe camera is disconnected"));
        return;
    }

    CalibrationProgressDlg progress(io, this, versions, false);
    if (progress.update_and_execute(QStringLiteral("inertial_handeye")) == Accepted) {
        double residual = 0.0;
        if (io->get_double(&residual, "inertial new_sensor_handeye_residual %s", sensor.constData()) != 0) {
            report(tr("Error: Cannot activate hybrid calibration"));
            hide();
            return;
        }
        HybridBodyResultCalibrationDlg result(io, this, {info.vendor, info.model, info.serial},
                                              ui->comboBox_body->currentText(), ui->label_vendor->text(),
                                              ui->label_model->text(), residual, getSensorDelay(identity));
        // Only a discarded result gives an uncalibrated body its flag back;
        // a refused accept leaves the controller as it decided.
        if (result.update_and_execute() == 0 && !info.calibrated
            && io->set_value("body active %s no", body.constData()) != 0)
            report(tr("Could not restore body settings: ") + info.body_id);
    }
    if (io->set_value("inertial sensor_handeye_calibrate %s no", sensor.constData()) != 0)
        report(tr("Could not reset hybrid calibration status of sensor: ") + identity);
    try_start_tracking();
}

void HybridBodyCalibrationDlg::try_stop_tracking()
{
    char reply[IOManager::ReplyCapacity] = "";
    if (io->get_string(reply, "status active") != 0)
        return;
    const QString activity = ControllerText::reply(reply);
    if (activity == None || activity == Err)
        return;
    char answer[IOManager::ReplyCapacity] = "";
    if (io->send_command(answer, "norvane tracking stop") != 0 || ControllerText::reply(answer) != CommandDone)
        report(tr("Could not stop tracking"));
}

void HybridBodyCalibrationDlg::try_start_tracking()
{
    char reply[IOManager::ReplyCapacity] = "";
    io->get_string(reply, "status active");
    const QString activity = ControllerText::reply(reply);
    if (activity != None && activity != Err)
        return;
    char answer[IOManager::ReplyCapacity] = "";
    if (io->send_command(answer, "norvane tracking start") != 0 || ControllerText::reply(answer) != CommandDone)
        report(tr("Could not start tracking"));
}

// --- help and closing --------------------------------------------------------

void HybridBodyCalibrationDlg::on_pushButton_help_clicked()
{
    HybridBodyCalibrationHelpDlg help(this);
    help.startTimer();
    help.exec();
    help.stopTimer();
}

void HybridBodyCalibrationDlg::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F3) {
        on_pushButton_calibrate_clicked();
        return;
    }
    QDialog::keyPressEvent(event);
}

void HybridBodyCalibrationDlg::reject()
{
    // Exit, Escape and the window's close button all end here.
    try_stop_tracking();
    if (!requester.isEmpty()) {
        io->show_message(ControllerText::latin(requester).constData(), ReceiverName, 1, "reopen");
        requester.clear();
    }
    requested_body.clear();
    QDialog::reject();
}

void HybridBodyCalibrationDlg::report(const QString& text)
{
    ControllerText::report(io, text);
}
