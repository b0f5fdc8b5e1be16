#ifndef CONTROLLERPROBE_H
#define CONTROLLERPROBE_H

#include <QByteArray>
#include <QString>

#include "simulator/ManualClock.h"
#include "simulator/SimulatedController.h"

// A simulated controller on a clock the test moves, talked to in scripts of
// steps separated by '|':
//   PATH = VALUE      "norvane get PATH" is answered "norvane set PATH VALUE"
//   LINE -> REPLY     "norvane LINE" is answered REPLY ("ok", "set ..." and
//                     "err ..." start with "norvane ", "err N" alone stands for
//                     any text); a delay, silence or hang-up follows as
//                     " (after N ms)", " (no answer)", " (hangs up)"
//   +SECONDS          time passes
//   load SCENARIO     an example file (NAME.json) or JSON; "load X -> TEXT"
//                     fails with TEXT in the error; "with KEYS" loads the
//                     default scenario with these keys changed
// $S1..$S5 and $T1, $T2 are the default scenario's sensors and transceivers:
// S1 on body 1 (hybrid), S2 on body 2, S3 asleep in tap mode, S4 on no body
// with a low battery, S5 on cable; T1 on channel 35 (measured), T2 on 55.
class ControllerProbe
{
public:
    ControllerProbe();

    // "" when every step went as written, else the first one that did not.
    QString run(const QByteArray& script);
    QByteArray ask(const QByteArray& line) { return controller.handle(expand(line)).line; }
    static QByteArray expand(QByteArray text);
    // A _data table of scripts from "name: script" lines; indented lines go on.
    static void rows(const char* table);

    ManualClock clock;
    SimulatedController controller;
};

#endif // CONTROLLERPROBE_H
