#include "SettingsCells.h"

#include <QCoreApplication>
#include <QFile>
#include <QTableWidgetItem>

namespace SettingsCells {

const QString None = QStringLiteral("none");
const QString Yes = QStringLiteral("yes");
const QString No = QStringLiteral("no");
const QString WakeOnUsb = QStringLiteral("'wm_usb'");
const QString WakeOnTap = QStringLiteral("'wm_tap'");
const QString WakeByRadio = QStringLiteral("'wm_radio'");
const QString TapAndRadio = WakeOnTap + QLatin1Char(' ') + WakeByRadio;
const char* const ModeProperty = "wakeupMode";
const QString CommandDone = QStringLiteral("norvane ok");

QIcon host_or_own_icon(const QString& host_path, const QString& own_path)
{
    return QIcon(QFile::exists(host_path) ? host_path : own_path);
}

QTableWidgetItem* text_item(const QString& text, Qt::ItemFlags flags)
{
    auto* item = new QTableWidgetItem(text);
    item->setFlags(flags);
    return item;
}

QString list_key(int number)
{
    return QStringLiteral("d%1").arg(number, 2, 10, QLatin1Char('0'));
}

QString not_present_text()
{
    return QCoreApplication::translate("InertialSettingsDlg", "not present");
}

} // namespace SettingsCells
