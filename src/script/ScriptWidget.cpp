#include "ScriptWidget.h"

#include "DialogNewStatement.h"
#include "Prompt.h"
#include "TokensWidget.h"
#include "ui_ScriptWidget.h"

#include <QGridLayout>
#include <QScopedValueRollback>
#include <QScrollBar>

using arcanum::Script;

namespace {
// Keeps the rows at the top of the scroll area however few there are.
constexpr int FillerHeight = 1200;
} // namespace

ScriptWidget::ScriptWidget(QWidget* parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::ScriptWidget>())
{
    ui->setupUi(this);
    QFont bold = ui->labelHeader->font();
    bold.setBold(true);
    ui->labelHeader->setFont(bold);
    ui->labelHeader->setMinimumWidth(ui->labelHeader->fontMetrics().horizontalAdvance(tr("No script")));
    updateControls();
}

ScriptWidget::~ScriptWidget() = default;

bool ScriptWidget::loadScript(const QString& fullPath)
{
    clear();
    if (!script.load(fullPath)) {
        updateControls();
        return false;
    }
    path = fullPath;
    modified = false;
    updateHeader();
    updateCode();
    return true;
}

void ScriptWidget::clear()
{
    script.clear();
    path.clear();
    modified = false;
    clearWidgets();
    updateHeader();
    updateControls();
}

bool ScriptWidget::readOnly() const
{
    return ui->checkReadOnly->isChecked();
}

void ScriptWidget::markModified()
{
    modified = true;
    updateControls();
}

void ScriptWidget::linesChanged()
{
    markModified();
    updateCode();
}

// The rows go with the widget that holds them, deleted later: the row asking for the rebuild
// may still be on the call stack.
void ScriptWidget::clearWidgets()
{
    rowWidgets.clear();
    filler = nullptr;
    grid = nullptr;
    if (QWidget* old = ui->scrollArea->takeWidget()) {
        old->setParent(this);
        old->hide();
        old->deleteLater();
    }
}

// Rows are built in a widget that is not shown yet and put in place whole, which is far quicker
// for long scripts than adding them one by one to the shown listing.
void ScriptWidget::updateCode()
{
    const QScopedValueRollback<bool> filling(updating, true);
    const int scrolled = ui->scrollArea->verticalScrollBar()->value();
    clearWidgets();
    auto* content = new QWidget(this);
    content->hide();
    content->setObjectName(QStringLiteral("scrollContents"));
    grid = new QGridLayout(content);
    grid->setObjectName(QStringLiteral("gridRows"));
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    const std::vector<Script::Line>& lines = script.getLines();
    for (int i = 0; i < static_cast<int>(lines.size()); ++i) {
        const Script::Line& line = lines[static_cast<size_t>(i)];
        if (line.condition.code != 0) {
            addRow(Script::tokenizeCondition(line.condition), i, Script::LineIf);
            addRow(Script::tokenizeAction(line.thenAction), i, Script::LineThen);
            addRow(Script::tokenizeAction(line.elseAction), i, Script::LineElse);
        } else {
            addRow(Script::tokenizeAction(line.thenAction), i, Script::LineDo);
        }
    }
    filler = new QWidget(content);
    filler->setMinimumHeight(FillerHeight);
    grid->addWidget(filler, static_cast<int>(rowWidgets.size()), 0);
    ui->scrollArea->setWidget(content);
    content->layout()->activate();
    ui->scrollArea->verticalScrollBar()->setValue(scrolled);
    updateControls();
}

void ScriptWidget::addRow(const Script::Tokens& tokens, int line, Script::LineType type)
{
    auto* row = new TokensWidget(grid->parentWidget());
    row->setTokens(tokens, line, type, script.lineTotal());
    row->setEnabled(!readOnly());
    connect(row, &TokensWidget::tokenChanged, this, &ScriptWidget::onTokenChanged);
    connect(row, &TokensWidget::lineToChange, this, &ScriptWidget::onLineToChange);
    if (row->opensLine()) {
        connect(row, &TokensWidget::lineToUp, this, &ScriptWidget::onLineToUp);
        connect(row, &TokensWidget::lineToDelete, this, &ScriptWidget::onLineToDelete);
        connect(row, &TokensWidget::lineToDown, this, &ScriptWidget::onLineToDown);
    }
    grid->addWidget(row, static_cast<int>(rowWidgets.size()), 0);
    rowWidgets.append(row);
}

void ScriptWidget::updateHeader()
{
    const QScopedValueRollback<bool> filling(updating, true);
    const bool loaded = script.getId() != -1;
    ui->editDesc->setText(loaded ? QString::fromLatin1(script.getHeader().desc()) : QString());
}

// Read-only keeps the script from being changed: rows, description, new lines and Save.
void ScriptWidget::updateControls()
{
    const bool loaded = script.getId() != -1;
    ui->labelCaption->setVisible(loaded);
    ui->labelHeader->setText(loaded ? QString::number(script.getId()) : tr("No script"));
    ui->editDesc->setEnabled(loaded);
    ui->editDesc->setReadOnly(readOnly());
    ui->buttonNewDO->setEnabled(loaded && !readOnly());
    ui->buttonNewIF->setEnabled(loaded && !readOnly());
    ui->buttonSave->setEnabled(loaded && modified && !readOnly());
}

int ScriptWidget::chooseStatement(int type, int current)
{
    DialogNewStatement dialog(type, this);
    dialog.setCode(current);
    if (Prompt::run(dialog) != QDialog::Accepted)
        return -1;
    return dialog.code();
}

void ScriptWidget::on_buttonNewIF_pressed()
{
    const int code = chooseStatement(DialogNewStatement::Condition, 1);
    if (code >= 0)
        addIF(code);
}

void ScriptWidget::on_buttonNewDO_pressed()
{
    const int code = chooseStatement(DialogNewStatement::Action, 0);
    if (code >= 0)
        addDO(code);
}

void ScriptWidget::addIF(Script::Ifcode code)
{
    script.addCondition(code);
    linesChanged();
}

void ScriptWidget::addDO(Script::Opcode code)
{
    script.addAction(code);
    linesChanged();
}

void ScriptWidget::on_buttonSave_clicked()
{
    if (Prompt::question(this, tr("Save"), tr("Overwrite file?"), QMessageBox::Yes | QMessageBox::No,
                         QMessageBox::No)
        != QMessageBox::Yes)
        return;
    // An unchanged description keeps whatever bytes follow its end.
    const std::string desc = ui->editDesc->text().toLatin1().toStdString();
    if (desc != script.getHeader().desc())
        script.getHeader().setDesc(desc);
    if (!script.save(path)) {
        qWarning("ScriptWidget::on_buttonSave_clicked(): could not write %s", qUtf8Printable(path));
        Prompt::message(this, QMessageBox::Critical, tr("Save"), tr("Error saving file"));
        return;
    }
    modified = false;
    updateControls();
}

void ScriptWidget::on_editDesc_textEdited(const QString& text)
{
    if (updating)
        return;
    script.getHeader().setDesc(text.toLatin1().toStdString());
    markModified();
}

void ScriptWidget::on_checkReadOnly_stateChanged(int)
{
    updateCode();
}

void ScriptWidget::onLineToUp(TokensWidget* row)
{
    script.moveLineUp(row->getLine());
    linesChanged();
}

void ScriptWidget::onLineToDown(TokensWidget* row)
{
    script.moveLineDown(row->getLine());
    linesChanged();
}

void ScriptWidget::onLineToDelete(TokensWidget* row)
{
    script.deleteLine(row->getLine());
    linesChanged();
}

void ScriptWidget::onLineToChange(TokensWidget* row)
{
    Script::Statement* statement = script.getStatement(row->getLine(), row->getlineType());
    if (!statement)
        return;
    const int type = row->getlineType() == Script::LineIf ? DialogNewStatement::Condition : DialogNewStatement::Action;
    const int code = chooseStatement(type, statement->code);
    if (code >= 0) {
        statement->code = code;
        statement->clearParameters();
        markModified();
    }
    if (modified)
        updateCode();
}

void ScriptWidget::onTokenChanged(TokensWidget* row)
{
    if (updating)
        return;
    Script::Statement* statement = script.getStatement(row->getLine(), row->getlineType());
    if (!statement)
        return;
    Script::unloadTokens(row->getTokens(), *statement);
    markModified();
}
