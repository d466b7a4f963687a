#pragma once

#include <QPlainTextEdit>

class QCompleter;
class QStringListModel;

// The text of a script's source, with completion as one types: inside "(" the number types and
// object names, elsewhere the keywords and the statements of the catalogue (operands filled with
// a default, so a completed line compiles at once). Ctrl+Space asks for completion.
class ScriptSourceEdit : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit ScriptSourceEdit(QWidget* parent = nullptr);

    QCompleter* completer() const { return completion; }
    // What the completion offers at the cursor, and the text it would replace.
    QString completionPrefix(bool& inOperand) const;
    // Opens the list of completions for the text before the cursor (nothing to offer: no list).
    void complete();

signals:
    // Ctrl+F in the text: it opens the view's own find bar, not what the window gives the key.
    void findRequested();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void insertCompletion(const QString& text);
    static QStringList statementCompletions();
    static QStringList operandCompletions();

    QCompleter* completion = nullptr;
    QStringListModel* statements = nullptr;
    QStringListModel* operands = nullptr;
};
