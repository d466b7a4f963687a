#include "ScriptSourceView.h"

#include "Prompt.h"
#include "ScriptDecompiler.h"
#include "ScriptDocument.h"
#include "ScriptSourceEdit.h"
#include "ScriptSourceHighlighter.h"
#include "SourceFindBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSplitter>
#include <QTextBlock>
#include <QTimer>
#include <QUndoStack>
#include <QVBoxLayout>

using arcanum::ScriptCompiler;

namespace {
constexpr int CheckDelayMs = 400;
}

ScriptSourceView::ScriptSourceView(QWidget* parent)
    : QWidget(parent)
    , edit(new ScriptSourceEdit(this))
    , finder(new SourceFindBar(edit, this))
    , list(new QListWidget(this))
    , state(new QLabel(this))
    , applyButton(new QPushButton(tr("Apply"), this))
    , revertButton(new QPushButton(tr("Revert"), this))
    , checkTimer(new QTimer(this))
{
    setObjectName(QStringLiteral("sourceView"));
    edit->setObjectName(QStringLiteral("editSource"));
    list->setObjectName(QStringLiteral("listDiagnostics"));
    state->setObjectName(QStringLiteral("labelSourceState"));
    applyButton->setObjectName(QStringLiteral("buttonApplySource"));
    revertButton->setObjectName(QStringLiteral("buttonRevertSource"));
    applyButton->setToolTip(tr("Compile the source into the script, as one step that Undo takes back"));
    revertButton->setToolTip(tr("Write the source again from the script, dropping the edits"));
    state->setWordWrap(true);
    list->setWordWrap(true);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    new ScriptSourceHighlighter(edit->document());

    auto* tools = new QHBoxLayout;
    tools->addWidget(state, 1);
    tools->addWidget(revertButton);
    tools->addWidget(applyButton);
    auto* splitter = new QSplitter(Qt::Vertical, this);
    splitter->addWidget(edit);
    splitter->addWidget(list);
    splitter->setStretchFactor(0, 4);
    splitter->setStretchFactor(1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(tools);
    layout->addWidget(splitter, 1);
    layout->addWidget(finder);

    checkTimer->setSingleShot(true);
    checkTimer->setInterval(CheckDelayMs);
    connect(checkTimer, &QTimer::timeout, this, &ScriptSourceView::check);
    connect(edit, &QPlainTextEdit::textChanged, this, &ScriptSourceView::textEdited);
    connect(applyButton, &QPushButton::clicked, this, &ScriptSourceView::apply);
    connect(revertButton, &QPushButton::clicked, this, [this] {
        if (!edited
            || Prompt::question(this, tr("Revert the source"), tr("Drop the edits not applied to the script?"),
                                QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
                == QMessageBox::Yes)
            revert();
    });
    connect(list, &QListWidget::itemActivated, this,
            [this](QListWidgetItem* item) { goToDiagnostic(list->row(item)); });
    connect(list, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) { goToDiagnostic(list->row(item)); });
    connect(edit, &ScriptSourceEdit::findRequested, finder, &SourceFindBar::open);
    updateState();
}

void ScriptSourceView::setDocument(ScriptDocument* shown)
{
    if (document)
        disconnect(document, nullptr, this, nullptr);
    document = shown;
    if (document) {
        // Forms record their edits without a changed() of their own: every step of the stack counts.
        connect(document, &Document::changed, this, &ScriptSourceView::documentChanged);
        connect(document->undoStack(), &QUndoStack::indexChanged, this, &ScriptSourceView::documentChanged);
    }
    regenerate();
}

void ScriptSourceView::setReadOnly(bool readOnly)
{
    edit->setReadOnly(readOnly);
    updateState();
}

void ScriptSourceView::documentChanged()
{
    if (filling)
        return;
    if (edited) {
        stale = true;
        updateState();
        return;
    }
    // Hidden behind the rows, the text is written when the view is shown again.
    if (!isVisible()) {
        outdated = true;
        return;
    }
    regenerate();
}

void ScriptSourceView::showEvent(QShowEvent* event)
{
    if (outdated && !edited)
        regenerate();
    QWidget::showEvent(event);
}

void ScriptSourceView::regenerate()
{
    const QScopedValueRollback<bool> guard(filling, true);
    const int line = edit->textCursor().blockNumber();
    edit->setPlainText(document ? QString::fromStdString(arcanum::ScriptDecompiler::decompile(document->script()))
                                : QString());
    QTextCursor cursor(edit->document()->findBlockByNumber(std::min(line, edit->document()->blockCount() - 1)));
    edit->setTextCursor(cursor);
    edited = false;
    stale = false;
    outdated = false;
    checkTimer->stop();
    showDiagnostics({});
}

void ScriptSourceView::revert()
{
    regenerate();
}

void ScriptSourceView::textEdited()
{
    if (filling)
        return;
    edited = true;
    checkTimer->start();
    updateState();
}

ScriptCompiler::Result ScriptSourceView::compiled() const
{
    const QByteArray text = edit->toPlainText().toUtf8();
    ScriptCompiler::Result result = ScriptCompiler::compile(std::string_view(text.constData(), size_t(text.size())));
    const int number = document ? document->script().getId() : -1;
    if (result.ok() && result.number >= 0 && number >= 0 && result.number != number)
        result.diagnostics.push_back({result.numberLine, result.numberColumn,
                                      tr("the source is script %1 but the open file is script %2")
                                          .arg(result.number)
                                          .arg(number)
                                          .toStdString()});
    return result;
}

void ScriptSourceView::check()
{
    checkTimer->stop();
    showDiagnostics(compiled().diagnostics);
}

bool ScriptSourceView::apply()
{
    checkTimer->stop();
    if (!document || edit->isReadOnly())
        return false;
    const ScriptCompiler::Result result = compiled();
    showDiagnostics(result.diagnostics);
    if (!result.ok())
        return false;
    {
        // The text stays as written (comments, spacing): it is what the document now holds.
        const QScopedValueRollback<bool> guard(filling, true);
        document->replaceContent(result.header, result.lines, tr("Apply source"));
    }
    edited = false;
    stale = false;
    updateState();
    return true;
}

bool ScriptSourceView::settle()
{
    if (!edited)
        return true;
    const QMessageBox::StandardButton answer
        = Prompt::question(this, tr("Unapplied source"),
                           tr("The source holds edits not yet applied to the script. Apply them first?"),
                           QMessageBox::Apply | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Apply);
    if (answer == QMessageBox::Discard) {
        revert();
        return true;
    }
    return answer == QMessageBox::Apply && apply();
}

void ScriptSourceView::showDiagnostics(const std::vector<ScriptCompiler::Diagnostic>& diagnostics)
{
    list->clear();
    QList<QTextEdit::ExtraSelection> marks;
    QTextCharFormat underline;
    underline.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    underline.setUnderlineColor(Qt::red);
    for (const ScriptCompiler::Diagnostic& d : diagnostics) {
        auto* item = new QListWidgetItem(
            tr("Line %1, column %2: %3").arg(d.line).arg(d.column).arg(QString::fromStdString(d.message)), list);
        item->setData(Qt::UserRole, d.line);
        item->setData(Qt::UserRole + 1, d.column);
        item->setForeground(Qt::darkRed);
        const QTextBlock block = edit->document()->findBlockByNumber(d.line - 1);
        if (!block.isValid())
            continue;
        // What the mistake covers, else from the column to the end of its word; at least one character.
        const QString text = block.text();
        const int start = std::min(d.column - 1, int(text.size()));
        int end = start + d.length;
        if (d.length <= 0)
            while (end < text.size() && !text.at(end).isSpace())
                ++end;
        QTextCursor cursor(block);
        cursor.setPosition(block.position() + start);
        cursor.setPosition(block.position() + std::min(std::max(end, start + 1), int(text.size())),
                           QTextCursor::KeepAnchor);
        marks.append({cursor, underline});
    }
    edit->setExtraSelections(marks);
    list->setVisible(!diagnostics.empty());
    updateState();
}

void ScriptSourceView::goToDiagnostic(int row)
{
    const QListWidgetItem* item = list->item(row);
    if (!item)
        return;
    const QTextBlock block = edit->document()->findBlockByNumber(item->data(Qt::UserRole).toInt() - 1);
    if (!block.isValid())
        return;
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor,
                        std::min(item->data(Qt::UserRole + 1).toInt() - 1, int(block.text().size())));
    edit->setTextCursor(cursor);
    edit->setFocus();
}

void ScriptSourceView::updateState()
{
    const bool usable = document && !edit->isReadOnly();
    applyButton->setEnabled(usable && edited);
    revertButton->setEnabled(document && edited);
    if (!document)
        state->setText(tr("No script"));
    else if (list->count() > 0)
        state->setText(tr("The source does not compile; mistakes: %1").arg(list->count()));
    else if (stale)
        state->setText(
            tr("The script changed since this source was written: Apply replaces those changes, Revert takes them"));
    else if (edited)
        state->setText(tr("Edited: Apply compiles the source into the script"));
    else
        state->setText(tr("The source of the script as it stands"));
}
