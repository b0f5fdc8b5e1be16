#ifndef INERTIALSTATUSBAR_H
#define INERTIALSTATUSBAR_H

#include <QToolBar>

class IOManager;
struct BackendVersions;

class InertialStatusBar : public QToolBar
{
    Q_OBJECT

public:
    InertialStatusBar(IOManager* io, QWidget* parent, BackendVersions* versions);

    void about_to_exit();

private:
    IOManager* io;
    BackendVersions* backend_versions;
};

#endif // INERTIALSTATUSBAR_H
