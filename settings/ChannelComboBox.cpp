#include "ChannelComboBox.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScreen>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QTimer>
#include <QWheelEvent>

namespace {

constexpr Qt::ItemFlags CellFlags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;

bool isNavigationKey(int key)
{
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        return true;
    default:
        return false;
    }
}

bool isDigit(const QString& text)
{
    return text.size() == 1 && text.at(0).isDigit();
}

} // namespace

ChannelComboBox::ChannelComboBox(QWidget* parent, const QString& transceiver)
    : QComboBox(parent), grid(new QTableWidget(1, 1, this)), transceiver_id(transceiver)
{
    for (QHeaderView* header : {grid->horizontalHeader(), grid->verticalHeader()}) {
        header->setSectionResizeMode(QHeaderView::Stretch);
        header->hide();
    }
    // The popup is sized to the whole grid, so scroll bars would only steal room.
    grid->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    grid->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setSelectionBehavior(QAbstractItemView::SelectItems);
    grid->setSelectionMode(QAbstractItemView::SingleSelection);
    setSizePolicy(QSizePolicy::Expanding, sizePolicy().verticalPolicy());

    connect(grid, &QTableWidget::currentItemChanged, this, &ChannelComboBox::updateCurrentItem);
    connect(this, QOverload<int>::of(&QComboBox::activated), this,
            &ChannelComboBox::setChannelOfTransceiver);

    setModel(grid->model());
    setView(grid);
    // Installed after the popup's own filter so that typed digits reach us first.
    grid->installEventFilter(this);
    updateTable();
}

void ChannelComboBox::setChannelLimits(int min, int max)
{
    if (min < 1 || min > max || max > LargestChannel)
        return;
    min_channel = min;
    max_channel = max;
    updateTable();
}

void ChannelComboBox::setNumberOfColumns(int n)
{
    if (n < 1 || n > LargestChannel)
        return;
    columns = n;
    updateTable();
}

void ChannelComboBox::updateTable()
{
    const QString shown = currentText();
    {
        const QSignalBlocker combo_blocker(this);
        const QSignalBlocker grid_blocker(grid);
        grid->clear();
        current_cell = nullptr;
        const int rows = (max_channel + columns - 1) / columns;
        grid->setColumnCount(columns);
        grid->setRowCount(rows);
        for (int k = 0; k < rows * columns; ++k) {
            const int channel = k + 1;
            auto* cell = new QTableWidgetItem;
            cell->setFlags(CellFlags);
            if (channel >= min_channel && channel <= max_channel) {
                cell->setText(QString::number(channel));
                cell->setData(Qt::UserRole, channel);
                cell->setTextAlignment(Qt::AlignCenter);
            }
            grid->setItem(k / columns, k % columns, cell);
        }
        decorate();
    }

    // Rebuilding replaced every cell; tell listeners only if what the combo
    // shows has really changed.
    QTableWidgetItem* cell = cellOf(current_channel);
    if (!cell)
        current_channel = -1;
    if (shown.isEmpty())
        displaySilently(nullptr);
    else
        displaySilently(cell && cell->text() == shown ? cell : grid->item(0, 0));
    display(cell);
    grid->setCurrentItem(cell);
}

void ChannelComboBox::setChannel(int channel)
{
    QTableWidgetItem* cell = cellOf(channel);
    current_channel = cell ? channel : -1;
    display(cell);
    const QSignalBlocker blocker(grid);
    grid->setCurrentItem(cell);
    current_cell = cell;
}

QTableWidgetItem* ChannelComboBox::cellOf(int channel) const
{
    if (channel < min_channel || channel > max_channel)
        return nullptr;
    return grid->item((channel - 1) / columns, (channel - 1) % columns);
}

int ChannelComboBox::channelOf(const QTableWidgetItem* cell)
{
    return cell ? cell->data(Qt::UserRole).toInt() : 0;
}

void ChannelComboBox::display(QTableWidgetItem* cell)
{
    if (!cell) {
        if (currentIndex() >= 0)
            setCurrentIndex(-1);
        return;
    }
    if (currentIndex() == cell->row() && modelColumn() == cell->column())
        return;
    {
        // The combo shows one column of the grid. Switching the column while
        // a row is current would announce a cell the user never chose, so
        // pass through "nothing" quietly and announce only the new cell.
        const QSignalBlocker blocker(this);
        setCurrentIndex(-1);
        setModelColumn(cell->column());
    }
    setCurrentIndex(cell->row());
}

void ChannelComboBox::displaySilently(QTableWidgetItem* cell)
{
    const QSignalBlocker blocker(this);
    if (!cell) {
        setCurrentIndex(-1);
        return;
    }
    setModelColumn(cell->column());
    setCurrentIndex(cell->row());
}

void ChannelComboBox::setMarkSuggestedChannel(int channel)
{
    suggested_channel = channel;
    decorate();
}

void ChannelComboBox::setMarkedChannels(const QList<int>& channels)
{
    busy_channels = channels;
    decorate();
}

void ChannelComboBox::decorate()
{
    const QPalette palette = QApplication::palette();
    const QBrush free_brush = palette.brush(QPalette::Active, QPalette::Base);
    const QBrush busy_brush = palette.brush(QPalette::Disabled, QPalette::Base);
    QFont bold = grid->font();
    bold.setWeight(QFont::Bold);

    for (int row = 0; row < grid->rowCount(); ++row) {
        for (int column = 0; column < grid->columnCount(); ++column) {
            QTableWidgetItem* cell = grid->item(row, column);
            const int channel = channelOf(cell);
            if (channel <= 0)
                continue;
            const bool busy = busy_channels.contains(channel);
            // Kept across a new busy list: both marks come from different
            // queries and neither should erase the other.
            if (channel == suggested_channel) {
                cell->setBackground(QBrush(Qt::green));
                cell->setData(Qt::FontRole, bold);
                cell->setToolTip(busy ? tr("Suggested channel, busy") : tr("Suggested channel"));
            } else {
                cell->setBackground(busy ? busy_brush : free_brush);
                cell->setData(Qt::FontRole, QVariant());
                cell->setToolTip(busy ? tr("Busy channel") : QString());
            }
        }
    }
}

void ChannelComboBox::updateCurrentItem(QTableWidgetItem* current, QTableWidgetItem* previous)
{
    Q_UNUSED(previous)
    current_cell = current;
    // The popup commits a choice as (row, shown column); follow the cell the
    // user is on so that the committed cell is the one under the cursor.
    if (popup_open && current && current->column() != modelColumn()) {
        const QSignalBlocker blocker(this);
        setModelColumn(current->column());
    }
}

void ChannelComboBox::setChannelOfTransceiver(int index)
{
    Q_UNUSED(index)   // a row of the grid; the current cell says which channel
    const int chosen = channelOf(current_cell);
    if (chosen <= 0) {
        display(cellOf(current_channel));
        return;
    }
    current_channel = chosen;
    display(current_cell);
    if (user_action)
        emit transceiverChannelChosen(transceiver_id, chosen);
}

void ChannelComboBox::showPopup()
{
    QComboBox::showPopup();
    popup_open = true;
    {
        // Until the user commits, the combo shows no cell: that way even a
        // cell in the current row is reported as a change when chosen.
        const QSignalBlocker blocker(this);
        setCurrentIndex(-1);
    }
    if (QTableWidgetItem* cell = cellOf(current_channel))
        grid->setCurrentItem(cell);
    typed.clear();
    fitPopup();
}

void ChannelComboBox::fitPopup()
{
    QWidget* popup = grid->window();
    if (popup == window())
        return;

    const QFontMetrics metrics(grid->font());
    const int cell_width =
        metrics.horizontalAdvance(QString::number(max_channel)) + 2 * metrics.averageCharWidth() + 2;
    const int cell_height = metrics.height() + 6;
    grid->horizontalHeader()->setMinimumSectionSize(cell_width);
    grid->verticalHeader()->setMinimumSectionSize(cell_height);

    const int frame = 2 * grid->frameWidth();
    QSize wanted(grid->columnCount() * cell_width + frame, grid->rowCount() * cell_height + frame);
    wanted.rwidth() = qMax(wanted.width(), width());
    popup->resize(popup->size() - grid->size() + wanted);

    QPoint corner = mapToGlobal(QPoint(0, 0));
    if (QScreen* screen = this->screen()) {
        const QRect room = screen->availableGeometry();
        corner.setX(qBound(room.left(), corner.x(), qMax(room.left(), room.right() - popup->width() + 1)));
        corner.setY(qBound(room.top(), corner.y(), qMax(room.top(), room.bottom() - popup->height() + 1)));
    }
    popup->move(corner);
}

void ChannelComboBox::restoreAfterPopup()
{
    if (!popup_open)
        displaySilently(cellOf(current_channel));
}

bool ChannelComboBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != grid)
        return QComboBox::eventFilter(watched, event);

    if (event->type() == QEvent::Hide && popup_open) {
        // The popup closes before a choice is committed, and it can close
        // without one (Escape, a click elsewhere): look after the commit.
        popup_open = false;
        QTimer::singleShot(0, this, &ChannelComboBox::restoreAfterPopup);
    } else if (event->type() == QEvent::KeyPress) {
        const QString text = static_cast<QKeyEvent*>(event)->text();
        if (isDigit(text)) {
            // Typing "47" goes to channel 47; a pause starts a new number.
            if (!typing.isValid() || typing.elapsed() > QApplication::keyboardInputInterval())
                typed.clear();
            typing.restart();
            typed += text;
            QTableWidgetItem* cell = cellOf(typed.toInt());
            if (!cell) {
                typed = text;
                cell = cellOf(typed.toInt());
            }
            if (cell)
                grid->setCurrentItem(cell);
            return true;
        }
    }
    return QComboBox::eventFilter(watched, event);
}

void ChannelComboBox::keyPressEvent(QKeyEvent* event)
{
    // Stepping through a grid row by row is meaningless, and every step would
    // count as a choice: the arrows open the grid instead.
    if (isNavigationKey(event->key()) && event->modifiers() == Qt::NoModifier) {
        showPopup();
        return;
    }
    if (isDigit(event->text())) {
        showPopup();
        QApplication::sendEvent(grid, event);
        return;
    }
    if (!event->text().isEmpty() && event->text().at(0).isPrint() && event->key() != Qt::Key_Space) {
        event->ignore();
        return;
    }
    QComboBox::keyPressEvent(event);
}

void ChannelComboBox::wheelEvent(QWheelEvent* event)
{
    // A combo inside a table must not change a radio channel because the
    // user scrolled past it; the scroll goes to the table.
    event->ignore();
}
