#ifndef LOGVIEW_H
#define LOGVIEW_H

#include <QPlainTextEdit>

// A read-only log that keeps its last few thousand entries. The same entry
// arriving again in a row (a poll failing every second) is counted on its
// line instead of filling the view.
class LogView : public QPlainTextEdit
{
    Q_OBJECT

public:
    static constexpr int DefaultMaximumEntries = 5000;

    explicit LogView(QWidget* parent = nullptr);

    // Prefix every entry with the time it arrived.
    void set_timestamps(bool on) { timestamps = on; }
    void append_entry(const QString& text, bool emphasised = false);
    // The entries as shown, oldest first.
    QStringList entries() const;
    // The entries as they were appended: no time, no repeat count.
    QStringList texts() const;

private:
    QString decorate(const QString& text) const;

    bool timestamps = false;
    QString last_text;
    int repeats = 0;
};

#endif // LOGVIEW_H
