#include "HybridBodyResultCalibrationDlg.h"

#include <QHeaderView>

#include "module/ControllerText.h"
#include "module/IOManager.h"
#include "ui_HybridBodyResultDialog.h"

namespace {

// The result is an offset (three numbers, not shown) followed by the 3 x 3
// rotation, column by column.
constexpr int ResultNumbers = 12;
constexpr int RotationStart = 3;
constexpr int MatrixSize = 3;

} // namespace

HybridBodyResultCalibrationDlg::HybridBodyResultCalibrationDlg(IOManager* io, QWidget* parent, QStringList sensor,
                                                               const QString& name, const QString& vendor,
                                                               const QString& model, double residual, double delay)
    : QDialog(parent),
      ui(new Ui_hybridBodyResultCalibrationDialog),
      io(io),
      sensor(sensor),
      vendor_word(ControllerText::latin(sensor.value(0))),
      model_word(ControllerText::latin(sensor.value(1))),
      serial_word(ControllerText::latin(ControllerText::withoutSingleQuotes(sensor.value(2))))
{
    ui->setupUi(this);
    ui->label_name->setText(name);
    ui->label_vendor->setText(vendor);
    ui->label_model->setText(model);
    ui->label_deviceId->setText(QString::fromLatin1(serial_word));
    ui->label_residual->setText(QString::number(residual, 'f', 2));
    ui->label_sensorDelay->setText(QString::number(delay, 'f', 2));
    setup_table();
    update_table();
    show_details(false);
}

HybridBodyResultCalibrationDlg::~HybridBodyResultCalibrationDlg()
{
    delete ui;
}

int HybridBodyResultCalibrationDlg::update_and_execute()
{
    return exec();
}

void HybridBodyResultCalibrationDlg::setup_table()
{
    QTableWidget* table = ui->tableWidget;
    table->setRowCount(MatrixSize);
    table->setColumnCount(MatrixSize);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    for (int row = 0; row < MatrixSize; ++row) {
        for (int column = 0; column < MatrixSize; ++column) {
            auto* cell = new QTableWidgetItem;
            cell->setFlags(Qt::ItemIsEnabled);
            cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            table->setItem(row, column, cell);
        }
    }
    // Three rows and no more: the table is as high as its contents.
    table->setFixedHeight(table->verticalHeader()->length() + 2 * table->frameWidth());
}

void HybridBodyResultCalibrationDlg::update_table()
{
    if (sensor.size() < 3) {
        ControllerText::report(io, tr("Error: Unable to get hybrid body sensor information"));
        return;
    }
    double values[ResultNumbers] = {};
    if (io->get_doubles(values, ResultNumbers, "inertial new_sensor_handeye %s %s '%s'", vendor_word.constData(),
                        model_word.constData(), serial_word.constData())
        != 0) {
        ControllerText::report(io, tr("Error: Unable to get sensor hybrid calibration result"));
        return;
    }
    for (int i = 0; i < MatrixSize * MatrixSize; ++i)
        ui->tableWidget->item(i % MatrixSize, i / MatrixSize)->setText(QString::number(values[RotationStart + i], 'f', 4));
}

void HybridBodyResultCalibrationDlg::show_details(bool shown)
{
    ui->label_rotationMatrix->setVisible(shown);
    ui->tableWidget->setVisible(shown);
    ui->pushButton_showDetails->setText(shown ? tr("Hide &details") : tr("Show &details"));
}

void HybridBodyResultCalibrationDlg::on_pushButton_showDetails_clicked()
{
    show_details(ui->tableWidget->isHidden());
}

void HybridBodyResultCalibrationDlg::on_pushButton_ok_clicked()
{
    if (sensor.size() < 3) {
        ControllerText::report(io, tr("Error: Unable to set hybrid body calibration"));
        return;
    }
    char reply[IOManager::ReplyCapacity] = "";
    const bool adopted = io->send_command(reply, "norvane inertial accept_new_sensor_handeye %s %s '%s'",
                                          vendor_word.constData(), model_word.constData(), serial_word.constData())
                             == 0
                         && ControllerText::reply(reply) == QLatin1String("norvane ok");
    done(adopted ? 1 : -1);
}

void HybridBodyResultCalibrationDlg::on_pushButton_cancel_clicked()
{
    reject();
}
