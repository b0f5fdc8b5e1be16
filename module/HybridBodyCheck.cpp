#include "HybridBodyCheck.h"

#include <QMessageBox>

#include "ControllerText.h"
#include "IOManager.h"
#include "ListLimits.h"

bool HybridBodyCheck::available(IOManager* io, QWidget* parent)
{
    int count = 0;
    if (io->get_int(&count, "inertial number_of_sensors") != 0)
        count = 0;
    count = ListLimits::bounded(count);
    for (int i = 1; i <= count; ++i) {
        char identity[IOManager::ReplyCapacity] = "";
        if (io->get_string(identity, "inertial sensor d%.2d", i) != 0) {
            QMessageBox::information(parent, tr("Information"), tr("Could not get informations of sensor %1").arg(i),
                                     QMessageBox::Ok);
            continue;
        }
        const QByteArray line = ControllerText::latin(ControllerText::reply(identity));
        char body[IOManager::ReplyCapacity] = "";
        if (io->get_string(body, "inertial body_of_sensor %s", line.constData()) == 0
            && ControllerText::reply(body) != QLatin1String("none"))
            return true;
    }
    return false;
}
