#pragma once

#include "Page.h"
#include "Script.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class QGridLayout;
class QTabWidget;
class ScriptDocument;
class ScriptSourceView;
class TokensWidget;

namespace Ui {
class ScriptWidget;
}

// The Script tab: one script file as a listing of lines, each line an IF row with its THEN and
// ELSE rows or a single DO row, with operands edited in place.
class ScriptWidget : public Page
{
    Q_OBJECT

public:
    explicit ScriptWidget(QWidget* parent = nullptr);
    ~ScriptWidget() override;

    QStringList suffixes() const override;
    QString fileFilter() const override;
    std::unique_ptr<Document> fromBytes(const QString& path, const QByteArray& bytes, QString& error) const override;

    ScriptDocument* scriptDocument() const;
    // The rows currently shown, top to bottom.
    const QList<TokensWidget*>& rows() const { return rowWidgets; }
    ScriptSourceView* sourceView() const { return source; }

    // Writes the script under a new number and name (00042guard.scr) in its folder, asked for in a
    // dialog; a number outside 1 … 99999 or in use is refused with a message. The page then shows the
    // new file. This is how a new script starts.
    bool saveAs() override;
    // The script files the game has besides those in the folder (inside archives): their numbers are in use too.
    void setListedScripts(std::function<QStringList()> names) { listedScripts = std::move(names); }

protected:
    void showDocument() override;
    QList<QWidget*> fileControls() const override;
    // Unapplied source edits are applied or dropped (as the user says) before a save or a replacement.
    bool commitPending() override;

private slots:
    void on_buttonNewIF_pressed();
    void on_buttonNewDO_pressed();
    void on_buttonSave_clicked();
    void on_editDesc_textEdited(const QString& text);
    void on_checkReadOnly_stateChanged(int state);
    void onLineToUp(TokensWidget* row);
    void onLineToDown(TokensWidget* row);
    void onLineToDelete(TokensWidget* row);
    void onLineToChange(TokensWidget* row);
    void onTokenChanged(TokensWidget* row);

private:
    void addIF(arcanum::Script::Ifcode code);
    void addDO(arcanum::Script::Opcode code);
    // The code chosen in the statement list, or -1 when it was cancelled.
    int chooseStatement(int type, int current);
    void addRow(const arcanum::Script::Tokens& tokens, int line, arcanum::Script::LineType type);
    // Records the change made since beginEdit as one step named text.
    void recordEdit(const QString& text, int mergeId = -1, int key = 0);
    // A line was added, moved or deleted: the step is recorded and the listing built again.
    void linesChanged(const QString& text);
    void updateCode();
    void updateHeader();
    void updateControls();
    void clearWidgets();
    bool readOnly() const;
    // The rows and the Source view as two tabs; leaving the source asks about its unapplied edits.
    void buildViews();
    void viewChanged(int index);

    std::unique_ptr<Ui::ScriptWidget> ui;
    // Set while rows and header are filled from the script, so nothing they emit counts as an edit.
    bool updating = false;
    QList<TokensWidget*> rowWidgets;
    QGridLayout* grid = nullptr;
    QWidget* filler = nullptr;
    std::function<QStringList()> listedScripts;
    QTabWidget* views = nullptr;
    ScriptSourceView* source = nullptr;
    int shownView = 0;
};
