#ifndef FILTERHELP_H
#define FILTERHELP_H

#include <QDialog>

class Ui_FilterHelpClass;

// What strength, prediction and mode of the 6DOF filter do, for a user
// choosing between them in the filter dialog.
class FilterHelp : public QDialog
{
    Q_OBJECT

public:
    explicit FilterHelp(QWidget* parent = nullptr);
    ~FilterHelp() override;

private slots:
    void on_pushButton_exit_clicked();

private:
    Ui_FilterHelpClass* ui;
};

#endif // FILTERHELP_H
