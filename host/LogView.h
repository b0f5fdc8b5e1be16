#ifndef LOGVIEW_H
#define LOGVIEW_H

#include <QPlainTextEdit>

#include <deque>

class QTextCursor;

// A read-only log that keeps its last few thousand entries. The same entry
// arriving again in a row (a poll failing every second) is counted on its
// line instead of filling the view.
//
// Entries are collected and shown together once control is back in the
// event loop, or when the view is shown if it is out of sight (a tab in the
// background): an action of a thousand exchanges then costs the view one
// layout instead of a thousand, or none.
class LogView : public QPlainTextEdit
{
    Q_OBJECT

public:
    static constexpr int DefaultMaximumEntries = 5000;

    explicit LogView(QWidget* parent = nullptr);

    // Prefix every entry with the time it arrived.
    void set_timestamps(bool on) { timestamps = on; }
    void append_entry(const QString& text, bool emphasised = false);
    // The entries as shown, oldest first (waiting ones included).
    QStringList entries() const;
    // The entries as they were appended: no time, no repeat count.
    QStringList texts() const;
    // Shows the entries collected so far now.
    void flush();

protected:
    void showEvent(QShowEvent* event) override;

private:
    struct Entry
    {
        QString text;
        QString time;
        bool emphasised = false;
    };

    QString decorate(const Entry& entry) const;

    bool timestamps = false;
    QString last_text;
    int repeats = 0;
    // Appends one entry the slow way: its own block, its own format.
    void insert_single(QTextCursor& cursor, const Entry& entry, bool replace_last);
    // Appends plain lines in one insertion.
    void insert_plain(QTextCursor& cursor, QString* lines);

    void flush_if_shown();

    std::deque<Entry> waiting;
    bool flush_queued = false;
};

#endif // LOGVIEW_H
