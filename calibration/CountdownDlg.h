#ifndef COUNTDOWNDLG_H
#define COUNTDOWNDLG_H

#include <QDialog>
#include <QTimer>

class Ui_CountdownDialog;

// The seconds the user has before a calibration step begins. Running out
// counts as "Start now"; only Cancel declines.
class CountdownDlg : public QDialog
{
    Q_OBJECT

public:
    explicit CountdownDlg(QWidget* parent);
    ~CountdownDlg() override;

    void setMessage(QString text, int seconds);

public slots:
    void updateCountdown();

private:
    Ui_CountdownDialog* ui;
    QTimer timer;
    int remaining;
};

#endif // COUNTDOWNDLG_H
