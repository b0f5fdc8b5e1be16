#include "InertialCalibrationResultDlg.h"

#include <QHeaderView>
#include <QTableWidgetItem>

#include "ui_InertialCalibrationResultDlgClass.h"

namespace {

constexpr int RowHeight = 20;
constexpr int VendorColumn = 1;

} // namespace

InertialCalibrationResultDlg::InertialCalibrationResultDlg(QWidget* parent)
    : QDialog(parent), ui(new Ui_InertialCalibrationResultDlgClass)
{
    ui->setupUi(this);
    setupTable();
}

InertialCalibrationResultDlg::~InertialCalibrationResultDlg()
{
    delete ui;
}

void InertialCalibrationResultDlg::setupTable()
{
    // The vendor is carried for completeness; the model already names it.
    ui->tableWidget->setColumnHidden(VendorColumn, true);
    QHeaderView* header = ui->tableWidget->horizontalHeader();
    header->setSectionsClickable(false);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setStretchLastSection(true);
    QHeaderView* rows = ui->tableWidget->verticalHeader();
    rows->setMinimumSectionSize(qMin(rows->minimumSectionSize(), RowHeight));
}

void InertialCalibrationResultDlg::appendSensor(const QString& device_id, const QString& vendor,
                                                const QString& model, const QString& name)
{
    const int row = ui->tableWidget->rowCount();
    ui->tableWidget->insertRow(row);
    const QStringList texts{device_id, vendor, model, name};
    for (int column = 0; column < texts.size(); ++column)
        ui->tableWidget->setItem(row, column, new QTableWidgetItem(texts.at(column)));
    ui->tableWidget->setRowHeight(row, RowHeight);
}

void InertialCalibrationResultDlg::on_pushButton_exit_clicked()
{
    close();
}
