#include "DlgTextBox.h"

#include <QPlainTextEdit>
#include <QTextDocument>

DlgTextBox::DlgTextBox(QPlainTextEdit* edit_)
    : edit(edit_)
{
}

void DlgTextBox::show(const QString& text_)
{
    edit->setPlainText(text_);
    markApplied();
}

void DlgTextBox::markApplied()
{
    shown = text();
}

bool DlgTextBox::isChanged() const
{
    return text() != shown;
}

// toPlainText() would turn no-break spaces, common in Cyrillic texts, into plain ones.
QString DlgTextBox::text() const
{
    QString raw = edit->document()->toRawText();
    raw.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    return raw;
}
