#ifndef ADDINERTIALSENSORDLG_H
#define ADDINERTIALSENSORDLG_H

#include <QDialog>
#include <QList>
#include <QString>
#include <QTimer>

class IOManager;
struct BackendVersions;
class Ui_AddSenorDialog;

// Lets the controller's first transceiver (or its USB port) look for
// sensors, one radio channel per timer tick so that the dialog repaints and
// Cancel is seen between channels, and adds the accepted sensors, each on
// the first free body.
class AddInertialSensorDlg : public QDialog
{
    Q_OBJECT

public:
    // One sensor found by a scan or already known to the controller.
    struct Sensor
    {
        QString identity;         // not used by this dialog
        QString vendor;
        QString model;
        QString serial;           // tells sensors apart, quotes included
        QString model_desc;
        QString vendor_desc;
        bool already_added = false;
        int channel = 0;          // 0: found over USB
    };

    // What the entries of the scan-mode combo stand for, kept beside their
    // texts so that translating them changes nothing.
    enum ScanMode { DefaultChannels, SingleChannel, AllChannels, Usb };

    AddInertialSensorDlg(IOManager* io, QDialog* parent, BackendVersions* versions);
    ~AddInertialSensorDlg() override;

    void about_to_exit();
    int getNumTransceiver() const;
    QList<Sensor> get_added_sensors();

public slots:
    int update_and_exec();
    void reject() override;

private slots:
    void on_comboBox_scanMode_currentIndexChanged(const QString& text);
    void on_comboBox_channel_currentIndexChanged(const QString& text);
    void on_pushButton_scan_clicked();
    void on_pushButton_cancel_clicked();
    void on_pushButton_apply_clicked();
    void on_pushButton_exit_clicked();
    void on_checkBox_acceptAll_stateChanged(int state);
    void on_tableWidget_cellClicked(int row, int column);
    void scan_channels();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void update_comboBox_scanMode();
    void setup_table();
    void update_table(QList<Sensor> sensors);
    void add_sensor_to_foundList(int count);
    void set_channel_label(const QString& text);
    void set_buttons_after_scan();
    void updateProgress(int value);
    void enable_if_possible_pushButton_apply(bool enable);

    int scan_mode() const;
    int scan_mode_index(int mode) const;
    void show_scan_label(const QString& text);
    // Ends the tick's work on an error: the label says why, the scan stops.
    void stop_scan(const QString& label);
    bool reset_scan_channels();
    // 1 free, 0 taken, -1 the controller could not say (already reported).
    int body_is_free(int body);
    // The first free body, raising the body count up to the maximum when
    // none is: 0 when there is none, -1 when the controller failed (reported).
    int find_free_body(int bodies, int max_bodies);
    void report(const char* text) const;

    Ui_AddSenorDialog* ui;
    IOManager* io;
    QDialog* parent_dialog;
    BackendVersions* backend_versions;

    QList<Sensor> found;
    QList<Sensor> added;
    QList<int> channels;
    int channel_cursor = 0;
    int channels_done = 0;
    QString transceiver;
    bool abort_scan = false;
    bool scanning = false;
    bool in_tick = false;
    bool channel_combo_was_enabled = false;
    bool accept_all_guard = true;
    int lowest_channel = 2;
    int highest_channel = 81;
    QTimer scan_timer;
};

#endif // ADDINERTIALSENSORDLG_H
