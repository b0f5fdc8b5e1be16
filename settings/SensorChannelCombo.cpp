#include "SensorChannelCombo.h"

#include <QSignalBlocker>
#include <QStringList>

#include "InertialSettingsDlg.h"
#include "module/ControllerText.h"
#include "module/IOManager.h"

namespace {

constexpr int ChannelTimeoutMs = 10000;

} // namespace

SensorChannelCombo::SensorChannelCombo(IOManager* io, InertialSettingsDlg* dialog, const QString& sensor)
    : QComboBox(dialog), io(io), dialog(dialog), sensor_identity(sensor)
{
    connect(this, SIGNAL(currentIndexChanged(QString)), this, SLOT(onCurrentIndexChanged(QString)));
}

void SensorChannelCombo::showChannel(int channel)
{
    const QSignalBlocker quiet(this);
    int index = findData(channel);
    if (index < 0 && channel > 0) {
        addItem(QString::number(channel), channel);
        index = count() - 1;
    }
    setCurrentIndex(index);
}

void SensorChannelCombo::onCurrentIndexChanged(const QString& text)
{
    if (!user_action || !io)
        return;
    bool numeric = false;
    const int channel = text.toInt(&numeric);
    if (!numeric)
        return;

    const QByteArray line = sensor_identity.toLatin1();
    int old_channel = -1;
    if (io->get_int(&old_channel, "inertial sensor_radio_channel %s", line.constData()) != 0) {
        report(tr("Error: Unable to get radio channel of sensor"));
        old_channel = -1;
    }
    if (old_channel == channel)
        return;

    io->set_timeout(false, ChannelTimeoutMs, true);
    if (io->set_value("inertial sensor_radio_channel %s %d", line.constData(), channel) != 0)
        report(tr("Error: Unable to set radio channel of sensor"));

    if (dialog && !sensor_identity.isEmpty()) {
        // A channel that no transceiver works on any more reaches nobody:
        // do not offer it again.
        QStringList in_use;
        dialog->getChannelsOfDongles(in_use);
        const QString old_text = QString::number(old_channel);
        if (!in_use.contains(old_text)) {
            const int index = findText(old_text);
            if (index >= 0) {
                const QSignalBlocker quiet(this);
                removeItem(index);
            }
        }
        // The rebuild replaces this combo: nothing of it may be touched after.
        dialog->update_table();
    }
}

void SensorChannelCombo::report(const QString& text)
{
    ControllerText::report(io, text);
}
