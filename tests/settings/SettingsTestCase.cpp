#include "SettingsTestCase.h"

#include <QtTest>

#include "FakeController.h"
#include "ModalDialogHelper.h"
#include "module/InertialTrackingModule.h"

void SettingsTestCase::initTestCase()
{
    InertialTrackingModule::init_resources();
}

void SettingsTestCase::init()
{
    fake = new FakeController;
    versions = BackendVersions();
    versions.major = 1;
    versions.minor = 21;
}

void SettingsTestCase::cleanup()
{
    delete fake;
    fake = nullptr;
    QCOMPARE(ModalDialogHelper::pending(), 0);
    ModalDialogHelper::clear_pending();
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}
