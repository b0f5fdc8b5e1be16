#ifndef FILTERDIALOG_H
#define FILTERDIALOG_H

#include <QDialog>
#include <QMap>
#include <QString>

class IOManager;
class QComboBox;
struct BackendVersions;
class Ui_FilterDialog;

// Edits the controller's 6DOF output filter of one body at a time. Every
// change goes to the controller as soon as the user makes it: the dialog
// keeps no copy of the filter that could disagree with the controller's.
class FilterDialog : public QDialog
{
    Q_OBJECT

public:
    // What update_and_exec's type stands for.
    enum BodyType { StandardBodies = 0, Wands = 1 };

    FilterDialog(IOManager* io, QWidget* parent, BackendVersions* versions);
    ~FilterDialog() override;

public slots:
    // Opens on the body of table row `row` (0 is body 01) among the bodies
    // of `type`; returns the dialog's result.
    int update_and_exec(int type, int row);

private slots:
    void on_comboBox_body_currentIndexChanged(int index);
    void on_checkBox_active_stateChanged(int state);
    void on_comboBox_preset_currentIndexChanged(int index);
    void on_doubleSpinBox_strength_editingFinished();
    void on_spinBox_prediction_editingFinished();
    void on_comboBox_mode_currentIndexChanged(int index);
    void on_pushButton_help_clicked();
    void on_pushButton_exit_clicked();

private:
    // Presets and modes are offered, read and set per body alike.
    struct ChoiceQueries;
    static const ChoiceQueries Presets;
    static const ChoiceQueries Modes;

    bool filter_available(int type);
    bool getConfigLocked();
    void enableDialog(bool enable, int type);

    void update_comboBox_body(int type, int row);
    // Everything that belongs to the current body, in the order the user
    // reads it; the limits are the controller's and need reading only once.
    void fill_body(bool with_limits);
    void activate_checkbox_active(const QString& body);
    void update_checkbox_active();
    void update_combobox_preset_list_02(const QString& body);
    void update_combobox_preset();
    // The body's strength or prediction; a failure is reported with the body.
    bool read_real(const char* path, const char* failure, double* value);
    bool write_real(const char* path, double value, const char* failure);
    // A limit the controller cannot give is 0.
    double read_limit(const char* path);
    void setup_spinBox_strength();
    void update_doubleSpinBox_strength();
    void activate_controls_strength();
    void setup_spinBox_prediction();
    void update_spinBox_prediction();
    void update_comboBox_mode_list_02(const QString& body);
    void update_comboBox_mode();

    void fill_choices(QComboBox* combo, const ChoiceQueries& queries, const QString& body);
    void select_current_choice(QComboBox* combo, const ChoiceQueries& queries);
    bool set_choice(QComboBox* combo, const ChoiceQueries& queries);
    QString body() const;
    bool active_and_custom() const;
    void report(const QString& text) const;

    Ui_FilterDialog* ui;
    IOManager* io;
    BackendVersions* backend_versions;

    bool presets_and_modes = false;        // the controller knows them
    QMap<QString, bool> body_has_sensor;   // "standard b03" -> carries one
    // Off while the dialog fills its widgets, so that showing the
    // controller's values never writes them back.
    bool react = false;
    // What the spin boxes showed after the last read or accepted write:
    // leaving an untouched box sends nothing.
    double strength_shown = 0.0;
    int prediction_shown = 0;
};

#endif // FILTERDIALOG_H
