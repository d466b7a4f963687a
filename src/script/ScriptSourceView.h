#pragma once

#include "ScriptCompiler.h"

#include <QPointer>
#include <QWidget>

#include <vector>

class QLabel;
class QListWidget;
class QPushButton;
class QTimer;
class ScriptDocument;
class ScriptSourceEdit;
class SourceFindBar;

// The Script tab's Source view: the open script as text, checked as one types (mistakes underlined
// and listed; a click on one goes there), and applied to the document as one undoable step.
// The text follows the document while it holds no edits of its own; edits are never dropped without
// asking.
class ScriptSourceView : public QWidget
{
    Q_OBJECT

public:
    explicit ScriptSourceView(QWidget* parent = nullptr);

    void setDocument(ScriptDocument* document);
    void setReadOnly(bool readOnly);
    // The text holds edits not applied to the document.
    bool isEdited() const { return edited; }
    // Compiles the text into the document; false (with the mistakes shown) when it does not compile.
    bool apply();
    // Writes the text again from the document, dropping its edits.
    void revert();
    // Before the view is left: asks what to do with unapplied edits; false when the user stays.
    bool settle();

    ScriptSourceEdit* editor() const { return edit; }
    QListWidget* diagnosticsList() const { return list; }
    SourceFindBar* findBar() const { return finder; }
    // Checks the text now (it is otherwise checked a moment after typing stops).
    void check();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void documentChanged();
    void textEdited();
    void regenerate();
    void showDiagnostics(const std::vector<arcanum::ScriptCompiler::Diagnostic>& diagnostics);
    void goToDiagnostic(int row);
    void updateState();
    arcanum::ScriptCompiler::Result compiled() const;

    QPointer<ScriptDocument> document;
    ScriptSourceEdit* edit;
    SourceFindBar* finder;
    QListWidget* list;
    QLabel* state;
    QPushButton* applyButton;
    QPushButton* revertButton;
    QTimer* checkTimer;
    bool edited = false;
    // The document changed while the text held edits.
    bool stale = false;
    // The document changed while the view was hidden.
    bool outdated = false;
    // Set while the view fills the editor or applies, so neither counts as an edit.
    bool filling = false;
};
