#ifndef SETTINGSTESTCASE_H
#define SETTINGSTESTCASE_H

#include <QObject>

#include "module/BackendVersions.h"

class FakeController;

// What every settings dialog suite shares: the module's images, a fresh
// scripted controller of the newest version per test, and the check that
// a test leaves no window and no pending dialog action behind.
class SettingsTestCase : public QObject
{
    Q_OBJECT

protected:
    FakeController* fake = nullptr;
    BackendVersions versions;

private slots:
    void initTestCase();
    void init();
    void cleanup();
};

#endif // SETTINGSTESTCASE_H
