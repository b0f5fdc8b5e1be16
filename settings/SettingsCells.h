#ifndef SETTINGSCELLS_H
#define SETTINGSCELLS_H

#include <QIcon>
#include <QString>
#include <Qt>

class QTableWidgetItem;

// What the parts of the "Settings" page share: the controller's words they
// compare replies with, the item roles and sizes of the sensor table, and
// the few ways they make its cells.
namespace SettingsCells {

constexpr int RowHeight = 20;
constexpr int DeviceIdPadding = 15;
// Warm-up, wake-up modes and radio channels: the controller answers these slowly.
constexpr int SlowAnswerTimeoutMs = 10000;
constexpr int SleepTimeoutOfWakeOnTouch = 10;

// Column 3 of a sensor row: what its flags are while the sensor is present.
constexpr int NameFlagsRole = Qt::UserRole + 3;
// Column 3 of a sensor row: the body's description as the controller has it.
constexpr int NameTextRole = Qt::UserRole + 4;

constexpr Qt::Alignment RightCentred = Qt::AlignRight | Qt::AlignVCenter;  // 130

extern const QString None;
extern const QString Yes;
extern const QString No;
extern const QString WakeOnUsb;
extern const QString WakeOnTap;
extern const QString WakeByRadio;
extern const QString TapAndRadio;
extern const char* const ModeProperty;
extern const QString CommandDone;

// The status lamps belong to the host; a host without them still gets the
// module's own.
QIcon host_or_own_icon(const QString& host_path, const QString& own_path);
QTableWidgetItem* text_item(const QString& text, Qt::ItemFlags flags);
// "d01": how the controller indexes its lists, counted from 1.
QString list_key(int number);
QString not_present_text();

} // namespace SettingsCells

#endif // SETTINGSCELLS_H
