#include "LogView.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTime>

namespace {

// Each line remembers the text it was made from, which the decorations hide.
constexpr int RawTextProperty = QTextFormat::UserProperty + 1;

} // namespace

LogView::LogView(QWidget* parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setMaximumBlockCount(DefaultMaximumEntries);
    QFont fixed = font();
    fixed.setStyleHint(QFont::Monospace);
    fixed.setFamily(QStringLiteral("monospace"));
    setFont(fixed);
}

QString LogView::decorate(const Entry& entry) const
{
    QString line = timestamps ? QStringLiteral("%1  %2").arg(entry.time, entry.text) : entry.text;
    if (repeats > 1)
        line += tr("  (%1 times)").arg(repeats);
    return line;
}

void LogView::append_entry(const QString& text, bool emphasised)
{
    // Older entries than the view keeps would only be dropped again.
    const int kept = maximumBlockCount();
    while (kept > 0 && waiting.size() >= size_t(kept))
        waiting.pop_front();
    waiting.push_back({text, timestamps ? QTime::currentTime().toString(QStringLiteral("HH:mm:ss")) : QString(),
                    emphasised});
    if (!flush_queued) {
        flush_queued = true;
        QMetaObject::invokeMethod(this, &LogView::flush_if_shown, Qt::QueuedConnection);
    }
}

void LogView::flush_if_shown()
{
    flush_queued = false;
    if (isVisible())
        flush();
}

void LogView::showEvent(QShowEvent* event)
{
    flush();
    QPlainTextEdit::showEvent(event);
}

void LogView::flush()
{
    if (waiting.empty())
        return;
    QScrollBar* bar = verticalScrollBar();
    const bool following = bar->value() >= bar->maximum() - 2;

    QTextCursor cursor(document());
    cursor.beginEditBlock();
    // Lines shown as they came (the traffic) go in together; decorated,
    // emphasised and repeated ones need blocks of their own.
    QString plain;
    for (const Entry& entry : qAsConst(waiting)) {
        const bool repeated = entry.text == last_text && (!document()->isEmpty() || !plain.isEmpty());
        repeats = repeated ? repeats + 1 : 1;
        last_text = entry.text;
        if (!repeated && !entry.emphasised && !timestamps) {
            if (!plain.isEmpty())
                plain += QLatin1Char('\n');
            plain += entry.text;
            continue;
        }
        insert_plain(cursor, &plain);
        insert_single(cursor, entry, repeated);
    }
    insert_plain(cursor, &plain);
    cursor.endEditBlock();
    waiting.clear();

    // Follow the newest entry unless the user scrolled back to read.
    if (following)
        bar->setValue(bar->maximum());
    horizontalScrollBar()->setValue(0);
}

void LogView::insert_single(QTextCursor& cursor, const Entry& entry, bool replace_last)
{
    QTextCharFormat format;
    if (entry.emphasised)
        format.setForeground(QColor(170, 0, 0));
    cursor.movePosition(QTextCursor::End);
    if (replace_last)
        cursor.movePosition(QTextCursor::StartOfBlock, QTextCursor::KeepAnchor);
    else if (!document()->isEmpty() && !document()->lastBlock().text().isEmpty())
        cursor.insertBlock();
    QTextBlockFormat block_format;
    block_format.setProperty(RawTextProperty, entry.text);
    cursor.setBlockFormat(block_format);
    cursor.insertText(decorate(entry), format);
}

void LogView::insert_plain(QTextCursor& cursor, QString* lines)
{
    if (lines->isEmpty())
        return;
    cursor.movePosition(QTextCursor::End);
    // Blocks made from the line feeds take this format: no raw text, the
    // line is its own.
    if (!document()->isEmpty() && !document()->lastBlock().text().isEmpty())
        cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
    else
        cursor.setBlockFormat(QTextBlockFormat());
    cursor.insertText(*lines, QTextCharFormat());
    lines->clear();
}

QStringList LogView::entries() const
{
    const_cast<LogView*>(this)->flush();
    QStringList lines;
    for (QTextBlock block = document()->firstBlock(); block.isValid(); block = block.next())
        if (!block.text().isEmpty())
            lines << block.text();
    return lines;
}

QStringList LogView::texts() const
{
    const_cast<LogView*>(this)->flush();
    QStringList lines;
    for (QTextBlock block = document()->firstBlock(); block.isValid(); block = block.next()) {
        if (block.text().isEmpty())
            continue;
        const QTextBlockFormat format = block.blockFormat();
        lines << (format.hasProperty(RawTextProperty) ? format.property(RawTextProperty).toString() : block.text());
    }
    return lines;
}
