#ifndef TOURRUNNER_H
#define TOURRUNNER_H

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

class MainWindow;
class QAction;
class QWidget;

// Walks through what the modules offer and takes pictures: every module menu
// entry is triggered in turn, each modal window it opens (the dialog, or a
// message box in its place) is saved as a PNG once it had time to fill in
// and is then closed; last comes the main window.
class TourRunner : public QObject
{
    Q_OBJECT

public:
    static constexpr int DefaultSettleMs = 1200;
    static constexpr int DefaultPatienceMs = 30000;

    TourRunner(MainWindow* window, const QString& folder, QObject* parent = nullptr);

    // How long a window is left to fill in before its picture is taken.
    void set_settle_time(int milliseconds) { settle_ms = milliseconds; }
    // How long a window may take to appear or the tour may wait on one.
    void set_patience(int milliseconds) { patience_ms = milliseconds; }

    // Runs the whole tour; call it from the event loop (the modal windows
    // need one). True when every entry gave a picture and all were saved.
    bool run();

    QStringList saved_files() const { return saved; }
    QStringList problems() const { return trouble; }

    // "In&ertial Sensor Calibration" -> "inertial-sensor-calibration".
    static QString file_stem(const QString& action_text);

private:
    void visit(QAction* action);
    void poll();
    bool save(QWidget* widget, const QString& stem);

    MainWindow* window;
    QString folder;
    int settle_ms = DefaultSettleMs;
    int patience_ms = DefaultPatienceMs;

    QTimer watcher;
    QString current_stem;
    int captured = 0;
    QPointer<QWidget> candidate;
    QElapsedTimer candidate_since;
    QElapsedTimer visit_clock;
    QStringList saved;
    QStringList trouble;
};

#endif // TOURRUNNER_H
