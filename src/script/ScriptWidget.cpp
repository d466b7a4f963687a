#include "ScriptWidget.h"

#include "FormatRegistry.h"

#include "DialogNewStatement.h"
#include "DialogSaveScript.h"
#include "Prompt.h"
#include "SaveGuard.h"
#include "ScriptDocument.h"
#include "ScriptSourceView.h"
#include "TokensWidget.h"
#include "WheelGuard.h"
#include "ui_ScriptWidget.h"

#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTabWidget>

#include <utility>

using arcanum::Script;

namespace {
// Keeps the rows at the top of the scroll area however few there are.
constexpr int FillerHeight = 1200;
const int DESCRIPTION_MERGE_ID = 2001;
const int OPERAND_MERGE_ID = 2002;
constexpr int LAST_SCRIPT = 99999;
} // namespace

ScriptWidget::ScriptWidget(QWidget* parent)
    : Page(parent)
    , ui(std::make_unique<Ui::ScriptWidget>())
{
    ui->setupUi(this);
    QFont bold = ui->labelHeader->font();
    bold.setBold(true);
    ui->labelHeader->setFont(bold);
    ui->labelHeader->setMinimumWidth(ui->labelHeader->fontMetrics().horizontalAdvance(tr("No script")));
    buildViews();
    WheelGuard::install(this);
    updateControls();
}

void ScriptWidget::buildViews()
{
    views = new QTabWidget(this);
    views->setObjectName(QStringLiteral("tabViews"));
    views->setDocumentMode(true);
    const int at = ui->verticalLayout->indexOf(ui->scrollArea);
    ui->verticalLayout->removeWidget(ui->scrollArea);
    views->addTab(ui->scrollArea, tr("Lines"));
    source = new ScriptSourceView(views);
    views->addTab(source, tr("Source"));
    views->setTabToolTip(1, tr("The script as text: edit, check and apply it"));
    ui->verticalLayout->insertWidget(at, views, 1);
    connect(views, &QTabWidget::currentChanged, this, &ScriptWidget::viewChanged);
}

void ScriptWidget::viewChanged(int index)
{
    const int left = std::exchange(shownView, index);
    if (left == views->indexOf(source) && index != left && !source->settle())
        views->setCurrentIndex(left); // the user stays with the source
}

bool ScriptWidget::commitPending()
{
    return !source->isEdited() || source->settle();
}

ScriptWidget::~ScriptWidget() = default;

QStringList ScriptWidget::suffixes() const
{
    return arcanum::FormatRegistry::byKind(arcanum::FileFormat::Kind::Script)->suffixes;
}

QString ScriptWidget::fileFilter() const
{
    return tr("Arcanum scripts (*.scr);;All files (*)");
}

std::unique_ptr<Document> ScriptWidget::fromBytes(const QString& path, const QByteArray& bytes, QString& error) const
{
    return ScriptDocument::fromBytes(path, bytes, error);
}

ScriptDocument* ScriptWidget::scriptDocument() const
{
    return static_cast<ScriptDocument*>(document());
}

void ScriptWidget::showDocument()
{
    if (ScriptDocument* shown = scriptDocument()) {
        // An undo or redo puts back a whole state: rows and header are built again from it.
        connect(shown, &Document::changed, this, [this] {
            updateHeader();
            updateCode();
        });
        connect(shown, &Document::modifiedChanged, this, &ScriptWidget::updateControls);
    }
    source->setDocument(scriptDocument());
    updateHeader();
    updateCode();
    // Another script starts at its first line.
    ui->scrollArea->verticalScrollBar()->setValue(0);
}

bool ScriptWidget::readOnly() const
{
    return ui->checkReadOnly->isChecked();
}

void ScriptWidget::recordEdit(const QString& text, int mergeId, int key)
{
    scriptDocument()->recordEdit(text, mergeId, key);
    updateControls();
}

void ScriptWidget::linesChanged(const QString& text)
{
    recordEdit(text);
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
    if (scriptDocument() == nullptr) {
        updateControls();
        return;
    }
    const Script& script = scriptDocument()->script();
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
    row->setTokens(tokens, line, type, scriptDocument()->script().lineTotal());
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
    const ScriptDocument* shown = scriptDocument();
    ui->editDesc->setText(shown ? QString::fromLatin1(shown->script().getHeader().desc()) : QString());
}

// Read-only keeps the script from being changed: rows, description, new lines and Save.
void ScriptWidget::updateControls()
{
    const ScriptDocument* shown = scriptDocument();
    const bool loaded = shown != nullptr;
    const bool modified = loaded && shown->isModified();
    ui->labelCaption->setVisible(loaded);
    ui->labelHeader->setText(loaded ? QString::number(shown->script().getId()) : tr("No script"));
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
    scriptDocument()->beginEdit();
    scriptDocument()->script().addCondition(code);
    linesChanged(tr("Add IF line"));
}

void ScriptWidget::addDO(Script::Opcode code)
{
    scriptDocument()->beginEdit();
    scriptDocument()->script().addAction(code);
    linesChanged(tr("Add DO line"));
}

void ScriptWidget::on_buttonSave_clicked()
{
    save();
}

void ScriptWidget::on_editDesc_textEdited(const QString& text)
{
    if (updating || scriptDocument() == nullptr)
        return;
    scriptDocument()->beginEdit();
    scriptDocument()->script().getHeader().setDesc(text.toLatin1().toStdString());
    recordEdit(tr("Edit description"), DESCRIPTION_MERGE_ID);
}

void ScriptWidget::on_checkReadOnly_stateChanged(int)
{
    source->setReadOnly(readOnly());
    updateCode();
}

void ScriptWidget::onLineToUp(TokensWidget* row)
{
    scriptDocument()->beginEdit();
    scriptDocument()->script().moveLineUp(row->getLine());
    linesChanged(tr("Move line %1 up").arg(row->getLine() + 1));
}

void ScriptWidget::onLineToDown(TokensWidget* row)
{
    scriptDocument()->beginEdit();
    scriptDocument()->script().moveLineDown(row->getLine());
    linesChanged(tr("Move line %1 down").arg(row->getLine() + 1));
}

void ScriptWidget::onLineToDelete(TokensWidget* row)
{
    scriptDocument()->beginEdit();
    scriptDocument()->script().deleteLine(row->getLine());
    linesChanged(tr("Delete line %1").arg(row->getLine() + 1));
}

void ScriptWidget::onLineToChange(TokensWidget* row)
{
    Script::Statement* statement = scriptDocument()->script().getStatement(row->getLine(), row->getlineType());
    if (!statement)
        return;
    const int type = row->getlineType() == Script::LineIf ? DialogNewStatement::Condition : DialogNewStatement::Action;
    const int code = chooseStatement(type, statement->code);
    if (code < 0 || code == statement->code)
        return;
    scriptDocument()->beginEdit();
    statement->code = code;
    statement->clearParameters();
    linesChanged(tr("Change statement of line %1").arg(row->getLine() + 1));
}

void ScriptWidget::onTokenChanged(TokensWidget* row)
{
    if (updating)
        return;
    Script::Statement* statement = scriptDocument()->script().getStatement(row->getLine(), row->getlineType());
    if (!statement)
        return;
    scriptDocument()->beginEdit();
    Script::unloadTokens(row->getTokens(), *statement);
    recordEdit(tr("Edit operand of line %1").arg(row->getLine() + 1), OPERAND_MERGE_ID,
               row->getLine() * 4 + int(row->getlineType()));
}

bool ScriptWidget::saveAs()
{
    ScriptDocument* shown = scriptDocument();
    if (shown == nullptr)
        return false;
    if (!commitPending())
        return false;
    const QString folder = QFileInfo(shown->path()).absolutePath();
    QSet<int> used = ScriptDocument::numbersIn(folder);
    if (listedScripts)
        for (const QString& name : listedScripts())
            if (const int number = ScriptDocument::numberOf(name); number >= 0)
                used.insert(number);
    // The first free number after this script's, going round past 99999.
    int offered = shown->script().getId();
    for (int tries = 0; tries < LAST_SCRIPT; ++tries) {
        offered = offered >= LAST_SCRIPT ? 1 : offered + 1;
        if (!used.contains(offered))
            break;
    }
    DialogSaveScript dialog(offered, ScriptDocument::nameOf(QFileInfo(shown->path()).fileName()), this);
    if (Prompt::run(dialog) != QDialog::Accepted)
        return false;
    QString error;
    const QString file = ScriptDocument::fileNameFor(dialog.numberText(), dialog.name(), used, error);
    if (file.isEmpty()) {
        Prompt::message(this, QMessageBox::Warning, tr("Save script as"), error);
        return false;
    }
    return SaveGuard::save(this, shown, QDir(folder).filePath(file));
}

QList<QWidget*> ScriptWidget::fileControls() const
{
    return {ui->buttonSave};
}
