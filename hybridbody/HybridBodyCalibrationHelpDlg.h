#ifndef HYBRIDBODYCALIBRATIONHELPDLG_H
#define HYBRIDBODYCALIBRATIONHELPDLG_H

#include <QDialog>

class Ui_HybridBodyHelpDialog;

// What a hybrid body calibration is for and how to move the body, with the
// same animation as the calibration dialog.
class HybridBodyCalibrationHelpDlg : public QDialog
{
    Q_OBJECT

public:
    explicit HybridBodyCalibrationHelpDlg(QWidget* parent);
    ~HybridBodyCalibrationHelpDlg() override;

    // The animation runs only while the help is open.
    void startTimer();
    void stopTimer();

private:
    Ui_HybridBodyHelpDialog* ui;
};

#endif // HYBRIDBODYCALIBRATIONHELPDLG_H
