#ifndef TOURRUNNER_H
#define TOURRUNNER_H

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

class MainWindow;
class QAction;
class QWidget;

// Walks through what the modules offer and takes pictures: every module menu
// entry is triggered in turn, and each modal window it opens is saved as a
// PNG once it had time to fill in. Windows the tour knows (by class) are
// also worked: it presses the buttons that open the dialogs nested in them,
// runs their calibrations, and photographs what appears on the way; any
// other window is photographed and closed. Last comes the main window.
// Pictures are named in English whatever the user's language.
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
    // need one). True when every entry gave a picture, every step found
    // what it worked on and every picture was saved.
    bool run();

    QStringList saved_files() const { return saved; }
    QStringList problems() const { return trouble; }

    // "In&ertial Sensor Calibration" -> "inertial-sensor-calibration".
    static QString file_stem(const QString& action_text);

    struct Step;
    struct Script;

private:
    // What the tour does with one open window.
    struct Visit
    {
        const Script* script = nullptr;
        QString stem;
        int next = 0;
        bool awaiting = false;      // a nested window is due
        int windows_before = 0;
        QElapsedTimer waiting;      // since the current step began waiting
    };

    void visit(QAction* action);
    void poll();
    void adopt(QWidget* modal);
    // Does the next step; false while it still waits.
    bool perform(QWidget* modal, Visit* visit);
    bool expect_window(QWidget* modal, Visit* visit, const Step& step);
    void finish(QWidget* modal);
    bool save(QWidget* widget, const QString& stem);
    void complain(const QString& problem);

    MainWindow* window;
    QString folder;
    int settle_ms = DefaultSettleMs;
    int patience_ms = DefaultPatienceMs;

    QTimer watcher;
    QString entry_stem;
    QString announced_stem;
    int windows_seen = 0;
    int entry_windows = 0;
    QPointer<QWidget> candidate;
    QElapsedTimer candidate_since;
    QElapsedTimer visit_clock;
    QHash<QWidget*, Visit> visits;
    QStringList saved;
    QStringList trouble;
};

#endif // TOURRUNNER_H
