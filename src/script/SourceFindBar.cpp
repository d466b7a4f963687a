#include "SourceFindBar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QToolButton>

SourceFindBar::SourceFindBar(QPlainTextEdit* textEditor, QWidget* parent)
    : QWidget(parent)
    , editor(textEditor)
    , findText(new QLineEdit(this))
    , replaceText(new QLineEdit(this))
    , note(new QLabel(this))
{
    setObjectName(QStringLiteral("findBar"));
    findText->setObjectName(QStringLiteral("editFind"));
    replaceText->setObjectName(QStringLiteral("editReplace"));
    findText->setPlaceholderText(tr("Find"));
    replaceText->setPlaceholderText(tr("Replace with"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 2, 0, 2);
    layout->addWidget(findText, 2);
    const auto button = [&](const QString& name, const QString& text, const QString& tip) {
        auto* made = new QPushButton(text, this);
        made->setObjectName(name);
        made->setToolTip(tip);
        made->setAutoDefault(false);
        return made;
    };
    QPushButton* previous
        = button(QStringLiteral("buttonFindPrevious"), tr("Previous"), tr("Find the previous place (Shift+Enter)"));
    QPushButton* next = button(QStringLiteral("buttonFindNext"), tr("Next"), tr("Find the next place (Enter)"));
    layout->addWidget(previous);
    layout->addWidget(next);
    layout->addWidget(replaceText, 2);
    QPushButton* one
        = button(QStringLiteral("buttonReplace"), tr("Replace"), tr("Replace the found text and find the next"));
    QPushButton* all = button(QStringLiteral("buttonReplaceAll"), tr("Replace all"), tr("Replace every place at once"));
    layout->addWidget(one);
    layout->addWidget(all);
    layout->addWidget(note);
    auto* close = new QToolButton(this);
    close->setText(QStringLiteral("×"));
    close->setToolTip(tr("Close (Escape)"));
    layout->addWidget(close);
    connect(previous, &QPushButton::clicked, this, [this] { findNext(true); });
    connect(next, &QPushButton::clicked, this, [this] { findNext(); });
    connect(findText, &QLineEdit::returnPressed, this, [this] { findNext(); });
    connect(one, &QPushButton::clicked, this, &SourceFindBar::replace);
    connect(all, &QPushButton::clicked, this, &SourceFindBar::replaceAll);
    connect(close, &QToolButton::clicked, this, [this] {
        hide();
        editor->setFocus();
    });
    findText->installEventFilter(this);
    replaceText->installEventFilter(this);
    hide();
}

bool SourceFindBar::eventFilter(QObject* watched, QEvent* event)
{
    const bool isFind = (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress)
        && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Find);
    if (!isFind)
        return QWidget::eventFilter(watched, event);
    event->accept();
    if (event->type() == QEvent::KeyPress)
        open();
    return true;
}

void SourceFindBar::open()
{
    const QString selected = editor->textCursor().selectedText();
    if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator))
        findText->setText(selected);
    show();
    findText->setFocus();
    findText->selectAll();
}

bool SourceFindBar::findNext(bool backward)
{
    note->clear();
    if (findText->text().isEmpty())
        return false;
    const QTextDocument::FindFlags flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (editor->find(findText->text(), flags))
        return true;
    // Round the end of the text once.
    const QTextCursor saved = editor->textCursor();
    QTextCursor wrapped(editor->document());
    wrapped.movePosition(backward ? QTextCursor::End : QTextCursor::Start);
    editor->setTextCursor(wrapped);
    if (editor->find(findText->text(), flags))
        return true;
    editor->setTextCursor(saved);
    note->setText(tr("Not found"));
    return false;
}

bool SourceFindBar::selectionMatches() const
{
    return editor->textCursor().selectedText().compare(findText->text(), Qt::CaseInsensitive) == 0;
}

void SourceFindBar::replace()
{
    if (!findText->text().isEmpty() && selectionMatches())
        editor->textCursor().insertText(replaceText->text());
    findNext();
}

int SourceFindBar::replaceAll()
{
    note->clear();
    if (findText->text().isEmpty())
        return 0;
    int count = 0;
    QTextCursor edit(editor->document());
    edit.beginEditBlock();
    QTextCursor found = editor->document()->find(findText->text(), 0);
    while (!found.isNull()) {
        found.insertText(replaceText->text());
        ++count;
        found = editor->document()->find(findText->text(), found.position());
    }
    edit.endEditBlock();
    note->setText(tr("%n replaced", nullptr, count));
    return count;
}

void SourceFindBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        hide();
        editor->setFocus();
        return;
    }
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && (event->modifiers() & Qt::ShiftModifier)) {
        findNext(true);
        return;
    }
    QWidget::keyPressEvent(event);
}
