#pragma once

#include "Script.h"

#include <QList>
#include <QString>
#include <QWidget>

#include <memory>

class QGridLayout;
class TokensWidget;

namespace Ui {
class ScriptWidget;
}

// The Script tab: one script file as a listing of lines, each line an IF row with its THEN and
// ELSE rows or a single DO row, with operands edited in place.
class ScriptWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ScriptWidget(QWidget* parent = nullptr);
    ~ScriptWidget() override;

    // Shows the script; a file that cannot be read leaves the page empty ("No script").
    bool loadScript(const QString& path);
    // The file the page shows and saves to.
    QString getPath() const { return path; }
    arcanum::Script* getScript() { return &script; }
    bool isModified() const { return modified; }
    // The rows currently shown, top to bottom.
    const QList<TokensWidget*>& rows() const { return rowWidgets; }
    void clear();

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
    void markModified();
    // A line was added, moved or deleted: the listing is built again.
    void linesChanged();
    void updateCode();
    void updateHeader();
    void updateControls();
    void clearWidgets();
    bool readOnly() const;

    std::unique_ptr<Ui::ScriptWidget> ui;
    arcanum::Script script;
    QString path;
    bool modified = false;
    // Set while rows and header are filled from the script, so nothing they emit counts as an edit.
    bool updating = false;
    QList<TokensWidget*> rowWidgets;
    QGridLayout* grid = nullptr;
    QWidget* filler = nullptr;
};
