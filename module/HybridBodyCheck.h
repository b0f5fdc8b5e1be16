#ifndef HYBRIDBODYCHECK_H
#define HYBRIDBODYCHECK_H

#include <QCoreApplication>

class IOManager;
class QWidget;

// Whether any sensor of the controller sits on a body, which is what makes
// a hybrid body: both calibration dialogs have nothing to offer otherwise.
class HybridBodyCheck
{
    Q_DECLARE_TR_FUNCTIONS(HybridBodyCheck)

public:
    // Asks sensor by sensor and stops at the first one on a body. A sensor
    // whose identity cannot be read is told to the user (over `parent`) and
    // passed over; a failed count or body query counts as none.
    static bool available(IOManager* io, QWidget* parent);
};

#endif // HYBRIDBODYCHECK_H
