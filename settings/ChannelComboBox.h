#ifndef CHANNELCOMBOBOX_H
#define CHANNELCOMBOBOX_H

#include <QComboBox>
#include <QElapsedTimer>
#include <QList>
#include <QString>

class QTableWidget;
class QTableWidgetItem;

// A combo box whose popup is a grid of radio channel numbers instead of a
// long list: channel k sits in cell k - 1 (row-major), cells outside the
// channel limits stay empty. The controller's suggested channel is green and
// bold, busy channels are greyed but can still be chosen.
//
// The combo never talks to the controller. The program places it on a
// channel with setChannel(); a channel the user picks in the popup is
// reported by transceiverChannelChosen() once setUserAction(true) has been
// called, so that filling the combo is never mistaken for a user's choice.
// currentIndexChanged(QString) / currentTextChanged() carry the channel
// shown, once per change.
class ChannelComboBox : public QComboBox
{
    Q_OBJECT

public:
    // Grids larger than this are refused: nobody picks from thousands of cells.
    static constexpr int LargestChannel = 255;

    explicit ChannelComboBox(QWidget* parent = nullptr, const QString& transceiver = QString());

    // Accepted only when 1 <= min <= max <= LargestChannel.
    void setChannelLimits(int min, int max);
    // Accepted only when 1 <= n <= LargestChannel.
    void setNumberOfColumns(int n);
    void updateTable();

    // Shows the channel's cell; a channel outside the limits shows nothing.
    void setChannel(int channel);
    int channel() const { return current_channel; }
    QString transceiver() const { return transceiver_id; }

    void setMarkSuggestedChannel(int channel);
    void setMarkedChannels(const QList<int>& channels);

    // Off until the owner has filled the combo; while off, a choice in the
    // popup only moves the combo.
    void setUserAction(bool on) { user_action = on; }
    bool isUserAction() const { return user_action; }

    int minimumChannel() const { return min_channel; }
    int maximumChannel() const { return max_channel; }
    int numberOfColumns() const { return columns; }
    QTableWidget* table() const { return grid; }

    void showPopup() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // The user picked a channel other than the current one. Receivers that
    // rebuild the widget holding this combo should connect queued.
    void transceiverChannelChosen(const QString& transceiver, int channel);

public slots:
    void updateCurrentItem(QTableWidgetItem* current, QTableWidgetItem* previous);
    void setChannelOfTransceiver(int index);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QTableWidgetItem* cellOf(int channel) const;
    static int channelOf(const QTableWidgetItem* cell);
    // Shows a cell (or nothing), announcing the change once.
    void display(QTableWidgetItem* cell);
    // Shows a cell without announcing it: the visible channel did not change.
    void displaySilently(QTableWidgetItem* cell);
    void decorate();
    void restoreAfterPopup();
    void fitPopup();

    QTableWidget* grid;
    QTableWidgetItem* current_cell = nullptr;
    int columns = 10;
    int min_channel = 2;
    int max_channel = 25;
    QString transceiver_id;
    int current_channel = -1;
    int suggested_channel = 0;
    QList<int> busy_channels;
    bool user_action = false;
    bool popup_open = false;
    QString typed;
    QElapsedTimer typing;
};

#endif // CHANNELCOMBOBOX_H
