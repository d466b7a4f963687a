#include "ScriptSourceEdit.h"

#include "Script.h"
#include "ScriptSyntax.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QScrollBar>
#include <QStringListModel>
#include <QTextBlock>

using arcanum::Script;
using arcanum::ScriptSyntax;

namespace {
constexpr int MinimumPrefix = 2;
}

ScriptSourceEdit::ScriptSourceEdit(QWidget* parent)
    : QPlainTextEdit(parent)
    , completion(new QCompleter(this))
    , statements(new QStringListModel(statementCompletions(), this))
    , operands(new QStringListModel(operandCompletions(), this))
{
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setLineWrapMode(QPlainTextEdit::NoWrap);
    completion->setWidget(this);
    completion->setCaseSensitivity(Qt::CaseInsensitive);
    completion->setCompletionMode(QCompleter::PopupCompletion);
    completion->setModelSorting(QCompleter::UnsortedModel);
    completion->setMaxVisibleItems(12);
    connect(completion, qOverload<const QString&>(&QCompleter::activated), this, &ScriptSourceEdit::insertCompletion);
}

// Keywords, then every statement with default operands: "dialog (Number 0)".
QStringList ScriptSourceEdit::statementCompletions()
{
    QStringList out{QStringLiteral("IF"), QStringLiteral("THEN"), QStringLiteral("ELSE"), QStringLiteral("DO")};
    const ScriptSyntax& syntax = ScriptSyntax::instance();
    for (const auto* list : {&syntax.conditions(), &syntax.actions()})
        for (const ScriptSyntax::Template& entry : *list) {
            std::string text = entry.pieces[0];
            for (size_t i = 0; i < entry.operands.size(); ++i)
                text += (entry.operands[i] == ScriptSyntax::ObjectMark ? ScriptSyntax::objectOperand(Script::Triggerer)
                                                                       : ScriptSyntax::numberOperand(Script::Number, 0))
                    + entry.pieces[i + 1];
            out << QString::fromStdString(text);
        }
    out.removeDuplicates();
    return out;
}

// The names written after "(": number types (a value follows) and objects (the parenthesis closes).
QStringList ScriptSourceEdit::operandCompletions()
{
    QStringList out;
    for (int type = 0; type < Script::NumTypeCount; ++type)
        out << QString::fromStdString(ScriptSyntax::numberTypeName(type)) + QLatin1Char(' ');
    for (int type = 0; type < Script::ObjectTypeCount; ++type)
        out << QString::fromStdString(ScriptSyntax::objectName(type)) + QLatin1Char(')');
    return out;
}

QString ScriptSourceEdit::completionPrefix(bool& inOperand) const
{
    const QTextCursor cursor = textCursor();
    const QString before = cursor.block().text().left(cursor.positionInBlock());
    const int open = int(before.lastIndexOf(QLatin1Char('(')));
    inOperand = open >= 0 && before.indexOf(QLatin1Char(')'), open) < 0;
    if (inOperand)
        return before.mid(open + 1);
    // A statement starts after a keyword, a label or the start of the line.
    static const QRegularExpression start(
        QStringLiteral("(?i)(?:^\\s*(?:[A-Za-z_]\\w*\\s*:)?|\\b(?:IF|THEN|ELSE|DO)\\b)\\s*"));
    int from = 0;
    auto matches = start.globalMatch(before);
    while (matches.hasNext())
        from = int(matches.next().capturedEnd());
    return before.mid(from);
}

void ScriptSourceEdit::complete()
{
    bool inOperand = false;
    const QString prefix = completionPrefix(inOperand);
    completion->setModel(inOperand ? operands : statements);
    completion->setCompletionPrefix(prefix);
    if (completion->completionCount() == 0
        || (completion->completionCount() == 1 && completion->currentCompletion() == prefix)) {
        completion->popup()->hide();
        return;
    }
    completion->popup()->setCurrentIndex(completion->completionModel()->index(0, 0));
    QRect rect = cursorRect();
    rect.setWidth(completion->popup()->sizeHintForColumn(0)
                  + completion->popup()->verticalScrollBar()->sizeHint().width());
    completion->complete(rect);
}

void ScriptSourceEdit::insertCompletion(const QString& text)
{
    bool inOperand = false;
    const QString prefix = completionPrefix(inOperand);
    QTextCursor cursor = textCursor();
    cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor, int(prefix.size()));
    cursor.insertText(text);
    setTextCursor(cursor);
}

bool ScriptSourceEdit::event(QEvent* event)
{
    // Claimed before the window's shortcuts see the key.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Find)) {
        event->accept();
        return true;
    }
    return QPlainTextEdit::event(event);
}

void ScriptSourceEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Find)) {
        emit findRequested();
        return;
    }
    if (completion->popup()->isVisible()) {
        switch (event->key()) {
        case Qt::Key_Enter:
        case Qt::Key_Return:
        case Qt::Key_Escape:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            event->ignore(); // the popup takes them
            return;
        default:
            break;
        }
    }
    const bool asked = event->key() == Qt::Key_Space && (event->modifiers() & Qt::ControlModifier);
    if (!asked)
        QPlainTextEdit::keyPressEvent(event);
    const bool typed
        = !event->text().isEmpty() && event->text().at(0).isPrint() && !(event->modifiers() & Qt::ControlModifier);
    bool inOperand = false;
    if (asked
        || (typed
            && (completionPrefix(inOperand).trimmed().size() >= MinimumPrefix || event->text() == QLatin1String("("))))
        complete();
    else if (!typed)
        completion->popup()->hide();
}
