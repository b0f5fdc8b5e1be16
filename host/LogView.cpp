#include "LogView.h"

#include <QDateTime>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>

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

QString LogView::decorate(const QString& text) const
{
    QString line = timestamps
                       ? QStringLiteral("%1  %2").arg(QTime::currentTime().toString(QStringLiteral("HH:mm:ss")), text)
                       : text;
    if (repeats > 1)
        line += tr("  (%1 times)").arg(repeats);
    return line;
}

void LogView::append_entry(const QString& text, bool emphasised)
{
    QTextCharFormat format;
    if (emphasised)
        format.setForeground(QColor(170, 0, 0));

    QScrollBar* bar = verticalScrollBar();
    const bool following = bar->value() >= bar->maximum() - 2;
    const bool repeated = text == last_text && !document()->isEmpty();
    repeats = repeated ? repeats + 1 : 1;
    last_text = text;

    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    if (repeated) {
        cursor.movePosition(QTextCursor::StartOfBlock, QTextCursor::KeepAnchor);
    } else if (!document()->isEmpty() && !document()->lastBlock().text().isEmpty()) {
        cursor.insertBlock();
    }
    QTextBlockFormat block_format;
    block_format.setProperty(RawTextProperty, text);
    cursor.setBlockFormat(block_format);
    cursor.insertText(decorate(text), format);

    // Follow the newest entry unless the user scrolled back to read.
    if (following)
        bar->setValue(bar->maximum());
    horizontalScrollBar()->setValue(0);
}

QStringList LogView::entries() const
{
    QStringList lines;
    for (QTextBlock block = document()->firstBlock(); block.isValid(); block = block.next())
        if (!block.text().isEmpty())
            lines << block.text();
    return lines;
}

QStringList LogView::texts() const
{
    QStringList lines;
    for (QTextBlock block = document()->firstBlock(); block.isValid(); block = block.next())
        if (!block.text().isEmpty())
            lines << block.blockFormat().property(RawTextProperty).toString();
    return lines;
}
