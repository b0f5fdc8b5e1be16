#include "InertialStatusBar.h"

InertialStatusBar::InertialStatusBar(IOManager* io, QWidget* parent, BackendVersions* versions)
    : QToolBar(parent), io(io), backend_versions(versions)
{
}

void InertialStatusBar::about_to_exit()
{
}
