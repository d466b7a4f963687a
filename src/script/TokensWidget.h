#pragma once

#include "Script.h"

#include <QWidget>

#include <memory>

class FlowLayout;

namespace Ui {
class TokensWidget;
}

// One statement of one script line as a sentence: the line number, the keyword (IF, THEN, ELSE;
// none for a DO line), the template's words with an editor in place of each operand, and on the
// row that opens a line the tools to move or delete it.
class TokensWidget : public QWidget
{
    Q_OBJECT

public:
    explicit TokensWidget(QWidget* parent = nullptr);
    ~TokensWidget() override;

    // lineCount sizes the line-number column, so the rows of a script line up.
    void setTokens(arcanum::Script::Tokens tokens, int line, arcanum::Script::LineType type, int lineCount);
    arcanum::Script::Tokens getTokens() const { return tokens; }
    int getLine() const { return line; }
    arcanum::Script::LineType getlineType() const { return type; }
    // IF and DO rows open a line; THEN and ELSE rows continue it.
    bool opensLine() const;

signals:
    void tokenChanged(TokensWidget* row);
    void lineToChange(TokensWidget* row);
    void lineToUp(TokensWidget* row);
    void lineToDown(TokensWidget* row);
    void lineToDelete(TokensWidget* row);

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void clearControls();
    void showLabels(int lineCount, int height);
    QWidget* makeControl(size_t index, int height);
    void addTools();

    std::unique_ptr<Ui::TokensWidget> ui;
    FlowLayout* flow;
    arcanum::Script::Tokens tokens;
    int line = -1;
    arcanum::Script::LineType type = arcanum::Script::LineDo;
};
