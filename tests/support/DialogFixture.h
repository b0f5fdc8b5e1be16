#ifndef DIALOGFIXTURE_H
#define DIALOGFIXTURE_H

#include <QtTest>

#include <QDialog>

#include "FakeController.h"
#include "ModalDialogHelper.h"
#include "module/BackendVersions.h"

// What every dialog test starts from (start() in its init()): the scripted
// controller, the version record of a current controller (1.21) and a parent
// window. finish() in its cleanup() deletes them, the dialogs with the
// parent, and fails when a modal action never found its dialog or a window
// leaked.
struct DialogFixture
{
    FakeController* fake = nullptr;
    BackendVersions versions;
    QDialog* owner = nullptr;   // parent of the dialogs under test

    void start()
    {
        fake = new FakeController;
        versions = BackendVersions();
        versions.major = 1;
        versions.minor = 21;
        owner = new QDialog;
    }

    void finish()
    {
        delete owner;
        delete fake;
        owner = nullptr;
        fake = nullptr;
        const int pending = ModalDialogHelper::pending();
        ModalDialogHelper::clear_pending();
        QCOMPARE(pending, 0);
        QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
    }
};

#endif // DIALOGFIXTURE_H
