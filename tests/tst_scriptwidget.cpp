// The Script tab driven offscreen: rows per line, operand editors, statement changes, line tools, Save.
#include "DialogNewStatement.h"
#include "DialogNumType.h"
#include "DialogSaveScript.h"
#include "FlowLayout.h"
#include "FormatChecks.h"
#include "ScriptDocument.h"
#include "ScriptWidget.h"
#include "UndoChecks.h"
#include "ScriptedAnswerer.h"
#include "TokenEditorNum.h"
#include "TokenEditorObj.h"
#include "TokensWidget.h"

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtEndian>
#include <QtTest>

using arcanum::Script;
using token_controls::TokenEditorNum;
using token_controls::TokenEditorObj;

namespace {

// Answers the next statement or type list by choosing row.
std::function<int(QDialog&)> chooseRow(int row)
{
    return [row](QDialog& dialog) {
        auto* list = dialog.findChild<QListWidget*>();
        list->setCurrentRow(row);
        return int(QDialog::Accepted);
    };
}

qint32 int32At(const QByteArray& bytes, int offset)
{
    return qFromLittleEndian<qint32>(bytes.constData() + offset);
}

// Offset of a statement's field in the file: line, statement (0 IF, 1 THEN, 2 ELSE), then within it.
int offsetOf(int line, int statement, int within)
{
    return Script::HeaderSize + line * Script::LineSize + statement * Script::StatementSize + within;
}

} // namespace

class TestScriptWidget : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;

    // Line 0: IF Triggerer has at least 50 gold THEN dialog 120 ELSE do nothing;
    // line 1: DO float line 7 above Attachee; line 2: DO return and SKIP default.
    QString writeGuard(const QString& name = QStringLiteral("00012guard.scr"))
    {
        Script script;
        script.getHeader().setDesc("Guard");
        script.addCondition(2);
        Script::Statement* condition = script.getStatement(0, Script::LineIf);
        condition->types = {Script::Triggerer, Script::Number};
        condition->values = {555, 50};
        Script::Statement* then = script.getStatement(0, Script::LineThen);
        then->code = 4;
        then->types[0] = Script::Number;
        then->values[0] = 120;
        script.addAction(23);
        Script::Statement* floatLine = script.getStatement(1, Script::LineDo);
        floatLine->types = {Script::Number, Script::Attachee};
        floatLine->values = {7, 999};
        script.addAction(1);
        const QString path = dir.filePath(name);
        script.save(path);
        return path;
    }

    static QStringList keywords(const ScriptWidget& page)
    {
        QStringList out;
        for (TokensWidget* row : page.rows())
            out << row->findChild<QLabel*>(QStringLiteral("labelType"))->text();
        return out;
    }

    static QStringList sentence(TokensWidget* row)
    {
        QStringList out;
        for (QWidget* control : row->findChild<QWidget*>(QStringLiteral("flowArea"))->findChildren<QWidget*>(
                 QString(), Qt::FindDirectChildrenOnly)) {
            if (auto* label = qobject_cast<QLabel*>(control))
                out << label->text();
            else if (auto* obj = qobject_cast<TokenEditorObj*>(control))
                out << QLatin1Char('[') + obj->currentText() + QLatin1Char(']');
            else if (auto* num = qobject_cast<TokenEditorNum*>(control))
                out << QStringLiteral("[%1 %2]").arg(num->typeButton()->text()).arg(num->valueBox()->value());
        }
        return out;
    }

    static bool openScript(ScriptWidget& page, const QString& path)
    {
        ScriptedAnswerer quiet; // a file that cannot be read is reported in a message box
        return page.openFile(path);
    }

    static Script& script(ScriptWidget& page) { return page.scriptDocument()->script(); }

    // A folder of its own holding the guard as 00012guard.scr and another script, 00013other.scr.
    QString scriptFolder(const QString& folder)
    {
        QDir(dir.path()).mkpath(folder);
        const QString guard = writeGuard(folder + QStringLiteral("/00012guard.scr"));
        QFile::copy(guard, dir.filePath(folder + QStringLiteral("/00013other.scr")));
        return dir.filePath(folder);
    }

    // Answers the Save As question with a number and a name, keeping what the dialog offered.
    static std::function<int(QDialog&)> saveUnder(const QString& number, const QString& name,
                                                  QString* offered = nullptr)
    {
        return [number, name, offered](QDialog& dialog) {
            auto* numberEdit = dialog.findChild<QLineEdit*>(QStringLiteral("scriptNumber"));
            auto* nameEdit = dialog.findChild<QLineEdit*>(QStringLiteral("scriptName"));
            if (offered)
                *offered = numberEdit->text() + QLatin1Char('|') + nameEdit->text() + QLatin1Char('|')
                           + dialog.findChild<QLabel*>(QStringLiteral("scriptFileName"))->text();
            numberEdit->setText(number);
            nameEdit->setText(name);
            return int(QDialog::Accepted);
        };
    }

    static void saveWith(ScriptWidget& page, ScriptedAnswerer& answers, QMessageBox::StandardButton answer)
    {
        answers.buttons.enqueue(answer);
        QTest::mouseClick(page.findChild<QPushButton*>(QStringLiteral("buttonSave")), Qt::LeftButton);
    }

private slots:
    void linesBecomeRows()
    {
        ScriptWidget page;
        QVERIFY(openScript(page, writeGuard()));
        QCOMPARE(page.rows().size(), 5);
        QCOMPARE(keywords(page), QStringList({"IF  ", "THEN", "ELSE", "", ""}));
        QList<int> lines;
        QList<bool> tools;
        for (TokensWidget* row : page.rows()) {
            lines << row->getLine();
            tools << (row->findChild<QWidget*>(QStringLiteral("LineToolsWidget")) != nullptr);
        }
        QCOMPARE(lines, QList<int>({0, 0, 0, 1, 2}));
        QCOMPARE(tools, QList<bool>({true, false, false, true, true}));
        QCOMPARE(page.findChild<QLabel*>(QStringLiteral("labelHeader"))->text(), QStringLiteral("12"));
        QCOMPARE(page.findChild<QLineEdit*>(QStringLiteral("editDesc"))->text(), QStringLiteral("Guard"));
        QCOMPARE(page.document()->path(), dir.filePath(QStringLiteral("00012guard.scr")));
    }

    void rowsReadAsSentences()
    {
        ScriptWidget page;
        QVERIFY(openScript(page, writeGuard()));
        QCOMPARE(sentence(page.rows().at(0)), QStringList({"[Triggerer]", " has at least ", "[Number 50]", " gold"}));
        QCOMPARE(sentence(page.rows().at(1)), QStringList({"dialog ", "[Number 120]"}));
        QCOMPARE(sentence(page.rows().at(2)), QStringList({"do nothing"}));
        QCOMPARE(sentence(page.rows().at(3)), QStringList({"float line ", "[Number 7]", " above ", "[Attachee]"}));
        auto* spin = page.rows().at(0)->findChild<QSpinBox*>();
        QCOMPARE(spin->minimum(), -2000000);
        QCOMPARE(spin->maximum(), 2000000);
        QCOMPARE(page.rows().at(0)->findChild<TokenEditorObj*>()->count(), Script::ObjectTypeCount);
    }

    void rowsMeasureInThePageFont()
    {
        QWidget window;
        window.setFont(QFont(QStringLiteral("DejaVu Sans"), 22));
        ScriptWidget page(&window);
        QVERIFY(openScript(page, writeGuard()));
        auto* keyword = page.rows().at(2)->findChild<QLabel*>(QStringLiteral("labelType"));
        QCOMPARE(keyword->font().pointSize(), 22);
        QVERIFY(keyword->width() >= keyword->fontMetrics().horizontalAdvance(QStringLiteral("ELSE")));
    }

    void spinEditReachesFileAfterSave()
    {
        const QString path = writeGuard();
        ScriptWidget page;
        QVERIFY(openScript(page, path));
        auto* save = page.findChild<QPushButton*>(QStringLiteral("buttonSave"));
        QVERIFY(!save->isEnabled());
        page.rows().at(0)->findChild<QSpinBox*>()->setValue(75);
        QVERIFY(save->isEnabled());
        QCOMPARE(script(page).getStatement(0, Script::LineIf)->values[1], 75);

        ScriptedAnswerer answers;
        saveWith(page, answers, QMessageBox::No);
        QCOMPARE(answers.last(QStringLiteral("question"))->text, QStringLiteral("Overwrite 00012guard.scr?"));
        QCOMPARE(answers.last(QStringLiteral("question"))->title, QStringLiteral("Save"));
        QCOMPARE(answers.last(QStringLiteral("question"))->defaultButton, QMessageBox::No);
        QCOMPARE(int32At(FormatChecks::readFile(path), offsetOf(0, 0, 16)), 50);
        QVERIFY(save->isEnabled());

        saveWith(page, answers, QMessageBox::Yes);
        const QByteArray bytes = FormatChecks::readFile(path);
        QCOMPARE(int32At(bytes, offsetOf(0, 0, 16)), 75);
        QCOMPARE(int32At(bytes, offsetOf(0, 0, 12)), 555); // the object's unused value is kept
        QVERIFY(!save->isEnabled());
        QVERIFY(!page.document()->isModified());
    }

    void untouchedSaveKeepsBytes()
    {
        QByteArray file = FormatChecks::readFile(writeGuard());
        file.replace(8 + 6, 5, "\x01junk"); // bytes after the description's end
        file[60] = '\x33';
        const QString path = dir.filePath(QStringLiteral("00013kept.scr"));
        FormatChecks::writeFile(path, file);
        ScriptWidget page;
        QVERIFY(openScript(page, path));
        page.rows().at(3)->findChild<QSpinBox*>()->setValue(8);
        page.rows().at(3)->findChild<QSpinBox*>()->setValue(7);
        ScriptedAnswerer answers;
        saveWith(page, answers, QMessageBox::Yes);
        QCOMPARE(FormatChecks::readFile(path), file);
    }

    void failedSaveKeepsEdits()
    {
        QVERIFY(QDir(dir.path()).mkpath(QStringLiteral("gone")));
        ScriptWidget page;
        QVERIFY(openScript(page, writeGuard(QStringLiteral("gone/00015guard.scr"))));
        QVERIFY(QDir(dir.filePath(QStringLiteral("gone"))).removeRecursively());
        page.rows().at(0)->findChild<QSpinBox*>()->setValue(3);
        ScriptedAnswerer answers;
        saveWith(page, answers, QMessageBox::Yes);
        QVERIFY(answers.last(QStringLiteral("message"))->text.startsWith(QStringLiteral("Could not save")));
        QVERIFY(page.document()->isModified());
        QVERIFY(page.findChild<QPushButton*>(QStringLiteral("buttonSave"))->isEnabled());
    }

    void numberTypeButtonChangesType()
    {
        ScriptWidget page;
        QVERIFY(openScript(page, writeGuard()));
        ScriptedAnswerer answers;
        answers.dialogs.enqueue([](QDialog& dialog) {
            auto* list = dialog.findChild<QListWidget*>(QStringLiteral("listTypes"));
            if (dialog.windowTitle() != QStringLiteral("Number type") || list->currentRow() != Script::Number)
                return int(QDialog::Rejected);
            list->setCurrentRow(Script::LocalVar);
            return int(QDialog::Accepted);
        });
        auto* editor = page.rows().at(0)->findChild<TokenEditorNum*>();
        QTest::mouseClick(editor->typeButton(), Qt::LeftButton);
        QCOMPARE(editor->typeButton()->text(), QStringLiteral("Local Var"));
        QCOMPARE(int(script(page).getStatement(0, Script::LineIf)->types[1]), int(Script::LocalVar));
        QVERIFY(page.document()->isModified());

        answers.dialogs.enqueue([](QDialog&) { return int(QDialog::Rejected); });
        QTest::mouseClick(editor->typeButton(), Qt::LeftButton);
        QCOMPARE(editor->typeButton()->text(), QStringLiteral("Local Var"));
    }

    void objectComboKeepsValues()
    {
        ScriptWidget page;
        QVERIFY(openScript(page, writeGuard()));
        page.rows().at(3)->findChild<TokenEditorObj*>()->setCurrentIndex(Script::Player);
        const Script::Statement* statement = script(page).getStatement(1, Script::LineDo);
        QCOMPARE(int(statement->types[1]), int(Script::Player));
        QCOMPARE(statement->values[1], 999);
        QCOMPARE(statement->values[0], 7);
    }

    void changingStatementClearsOperands()
    {
        ScriptWidget page;
        QVERIFY(openScript(page, writeGuard()));
        ScriptedAnswerer answers;
        QTest::mouseDClick(page.rows().at(0), Qt::RightButton);
        QCOMPARE(answers.count(QStringLiteral("dialog")), 0);

        answers.dialogs.enqueue(chooseRow(31)); // condition 32: "(obj) is at location X:(num) Y:(num)"
        QTest::mouseDClick(page.rows().at(0), Qt::LeftButton);
        const Script::Statement* condition = script(page).getStatement(0, Script::LineIf);
        QCOMPARE(condition->code, 32);
        QCOMPARE(condition->types, (std::array<quint8, 8>{}));
        QCOMPARE(condition->values, (std::array<qint32, 8>{}));
        QCOMPARE(sentence(page.rows().at(0)),
                 QStringList({"[Triggerer]", " is at location X:", "[Counter 0]", " Y:", "[Counter 0]"}));

        answers.dialogs.enqueue(chooseRow(10)); // the ELSE row gets the action list: 10 is "(num) = (num)"
        QTest::mouseDClick(page.rows().at(2), Qt::LeftButton);
        QCOMPARE(script(page).getStatement(0, Script::LineElse)->code, 10);
        QCOMPARE(page.rows().size(), 5);
    }

    void cancelledChangeKeepsStatement()
    {
        ScriptWidget page;
        QVERIFY(openScript(page, writeGuard()));
        ScriptedAnswerer answers;
        int openedOn = -1;
        answers.dialogs.enqueue([&openedOn](QDialog& dialog) {
            openedOn = dialog.findChild<QListWidget*>()->currentRow();
            return int(QDialog::Rejected);
        });
        QTest::mouseDClick(page.rows().at(3), Qt::LeftButton);
        QCOMPARE(openedOn, 23); // the list opens on the statement's own code
        QCOMPARE(script(page).getStatement(1, Script::LineDo)->values[0], 7);
        QVERIFY(!page.document()->isModified());
    }

    void readOnlyDisablesRowsAndSave()
    {
        ScriptWidget page;
        QVERIFY(openScript(page, writeGuard()));
        auto* save = page.findChild<QPushButton*>(QStringLiteral("buttonSave"));
        auto* readOnly = page.findChild<QCheckBox*>(QStringLiteral("checkReadOnly"));
        QCOMPARE(readOnly->text(), QStringLiteral("RO"));
        QCOMPARE(readOnly->toolTip(), QStringLiteral("Read-only"));
        page.rows().at(0)->findChild<QSpinBox*>()->setValue(1);
        QVERIFY(save->isEnabled());
        readOnly->setChecked(true);
        QVERIFY(!save->isEnabled());
        for (TokensWidget* row : page.rows())
            QVERIFY(!row->isEnabled());
        QVERIFY(page.findChild<QLineEdit*>(QStringLiteral("editDesc"))->isReadOnly());
        QVERIFY(!page.findChild<QPushButton*>(QStringLiteral("buttonNewIF"))->isEnabled());
        readOnly->setChecked(false);
        QVERIFY(save->isEnabled());
        QVERIFY(page.rows().at(0)->isEnabled());
    }

    // Save As offers the next free number and the script's name, writes the script (with its unsaved
    // edits) under the new number and shows that file; the old file stays as it was.
    void saveAsStartsANewScript()
    {
        const QString folder = scriptFolder(QStringLiteral("saveas"));
        const QString original = folder + QStringLiteral("/00012guard.scr");
        const QByteArray before = FormatChecks::readFile(original);
        ScriptWidget page;
        QVERIFY(openScript(page, original));
        page.findChild<QLineEdit*>(QStringLiteral("editDesc"))->setText(QStringLiteral("Gatekeeper"));
        QTest::keyClick(page.findChild<QLineEdit*>(QStringLiteral("editDesc")), Qt::Key_A);
        ScriptedAnswerer answers;
        QString offered;
        answers.dialogs << saveUnder(QStringLiteral("42"), QStringLiteral("gatekeeper"), &offered);
        QVERIFY(page.saveAs());
        QCOMPARE(offered, QStringLiteral("14|guard|00014guard.scr"));
        const QString created = folder + QStringLiteral("/00042gatekeeper.scr");
        QCOMPARE(page.document()->path(), created);
        QVERIFY(!page.document()->isModified());
        QCOMPARE(page.findChild<QLabel*>(QStringLiteral("labelHeader"))->text(), QStringLiteral("42"));
        QCOMPARE(script(page).getId(), 42);
        QCOMPARE(FormatChecks::readFile(original), before);
        QByteArray written;
        QString error;
        QVERIFY(page.document()->serialize(written, error));
        QCOMPARE(FormatChecks::readFile(created), written);
        QVERIFY(written.contains("Gatekeepera"));
        // The line tools keep their state: a new line can be added and deleted in the new file.
        QVERIFY(page.findChild<QPushButton*>(QStringLiteral("buttonNewIF"))->isEnabled());
        QVERIFY(page.findChild<QPushButton*>(QStringLiteral("buttonNewDO"))->isEnabled());
        QCOMPARE(page.rows().size(), 5);
        QVERIFY(page.rows().at(0)->isEnabled());
    }

    void saveAsRefuses_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("message");
        QTest::newRow("its own number") << "12" << "copy" << "Script number 12 is already in use.";
        QTest::newRow("another script's number") << "00013" << "copy" << "Script number 13 is already in use.";
        QTest::newRow("a number listed in the game") << "77" << "copy" << "Script number 77 is already in use.";
        QTest::newRow("zero") << "0" << "copy" << "0 is outside 1 … 99999: a script number has five digits.";
        QTest::newRow("six digits") << "100000" << "copy" << "100000 is outside 1 … 99999";
        QTest::newRow("not a number") << "twelve" << "copy" << "“twelve” is not a number.";
        QTest::newRow("no name") << "50" << " " << "“” cannot be a script's name";
        QTest::newRow("a folder in the name") << "50" << "a/b" << "“a/b” cannot be a script's name";
    }

    // A refused Save As says why, writes no file and keeps the page on the old file.
    void saveAsRefuses()
    {
        QFETCH(QString, number);
        QFETCH(QString, name);
        QFETCH(QString, message);
        const QString folder = scriptFolder(QStringLiteral("refused"));
        const QStringList files = QDir(folder).entryList(QDir::Files);
        ScriptWidget page;
        page.setListedScripts([] { return QStringList{QStringLiteral("00077archived.scr")}; });
        QVERIFY(openScript(page, folder + QStringLiteral("/00012guard.scr")));
        ScriptedAnswerer answers;
        answers.dialogs << saveUnder(number, name);
        QVERIFY(!page.saveAs());
        QVERIFY(answers.last(QStringLiteral("message")));
        QVERIFY2(answers.last(QStringLiteral("message"))->text.startsWith(message),
                 qPrintable(answers.last(QStringLiteral("message"))->text));
        QCOMPARE(QDir(folder).entryList(QDir::Files), files);
        QCOMPARE(page.document()->path(), folder + QStringLiteral("/00012guard.scr"));
        // Cancelling asks nothing more and writes nothing.
        QVERIFY(!page.saveAs());
        QCOMPARE(answers.count(QStringLiteral("message")), 1);
    }

    void saveAsFileNames_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("file");
        QTest::newRow("padded to five digits") << "7" << "door" << "00007door.scr";
        QTest::newRow("the largest") << " 99999 " << "end" << "99999end.scr";
        QTest::newRow("the suffix is not doubled") << "1" << "start.SCR" << "00001start.scr";
        QTest::newRow("spaces inside are kept") << "300" << " old man " << "00300old man.scr";
    }

    void saveAsFileNames()
    {
        QFETCH(QString, number);
        QFETCH(QString, name);
        QFETCH(QString, file);
        QString error;
        QCOMPARE(ScriptDocument::fileNameFor(number, name, {}, error), file);
        QCOMPARE(ScriptDocument::numberOf(file), number.trimmed().toInt());
    }

    void newLinesAppend()
    {
        ScriptWidget page;
        QVERIFY(openScript(page, writeGuard()));
        ScriptedAnswerer answers;
        answers.dialogs.enqueue(chooseRow(51));
        QTest::mouseClick(page.findChild<QPushButton*>(QStringLiteral("buttonNewIF")), Qt::LeftButton);
        answers.dialogs.enqueue(chooseRow(141));
        QTest::mouseClick(page.findChild<QPushButton*>(QStringLiteral("buttonNewDO")), Qt::LeftButton);
        answers.dialogs.enqueue([](QDialog&) { return int(QDialog::Rejected); });
        QTest::mouseClick(page.findChild<QPushButton*>(QStringLiteral("buttonNewDO")), Qt::LeftButton);

        const Script& listed = script(page);
        QCOMPARE(listed.lineTotal(), 5);
        QCOMPARE(listed.getHeader().lineCount, 5);
        QCOMPARE(listed.getLines().at(3).condition.code, 52);
        QCOMPARE(listed.getLines().at(4).condition.code, 0);
        QCOMPARE(listed.getLines().at(4).thenAction.code, 141);
        QCOMPARE(keywords(page).mid(5), QStringList({"IF  ", "THEN", "ELSE", ""}));
        QVERIFY(page.document()->isModified());
    }

    void lineToolsMoveAndDelete()
    {
        ScriptWidget page;
        QVERIFY(openScript(page, writeGuard()));
        const auto click = [&page](int row, const char* button) {
            QTest::mouseClick(page.rows().at(row)->findChild<QToolButton*>(QString::fromLatin1(button)), Qt::LeftButton);
        };
        click(3, "buttonUp"); // the DO line moves above the IF line
        QCOMPARE(keywords(page), QStringList({"", "IF  ", "THEN", "ELSE", ""}));
        click(0, "buttonUp"); // already first
        QCOMPARE(script(page).getLines().at(0).thenAction.code, 23);
        click(1, "buttonDown");
        click(2, "buttonDown"); // already last
        QCOMPARE(script(page).getLines().at(2).condition.code, 2);
        click(0, "buttonDelete");
        QCOMPARE(script(page).lineTotal(), 2);
        QCOMPARE(script(page).getHeader().lineCount, 2);
        QCOMPARE(keywords(page), QStringList({"", "IF  ", "THEN", "ELSE"}));
        QVERIFY(page.document()->isModified());
    }

    void descriptionEdits()
    {
        ScriptWidget page;
        QVERIFY(openScript(page, writeGuard()));
        auto* edit = page.findChild<QLineEdit*>(QStringLiteral("editDesc"));
        edit->clear();
        QTest::keyClicks(edit, QString(45, QLatin1Char('w')));
        QCOMPARE(script(page).getHeader().desc(), std::string(40, 'w'));
        QVERIFY(page.findChild<QPushButton*>(QStringLiteral("buttonSave"))->isEnabled());
    }

    void failedLoadShowsNoScript()
    {
        ScriptWidget page;
        QVERIFY(!openScript(page, dir.filePath(QStringLiteral("guard.scr"))));
        QCOMPARE(page.findChild<QLabel*>(QStringLiteral("labelHeader"))->text(), QStringLiteral("No script"));
        QVERIFY(page.rows().isEmpty());
        QVERIFY(!page.document());
        QVERIFY(page.findChild<QLineEdit*>(QStringLiteral("editDesc"))->text().isEmpty());
        for (const char* name : {"buttonNewDO", "buttonNewIF", "buttonSave"})
            QVERIFY(!page.findChild<QPushButton*>(QString::fromLatin1(name))->isEnabled());
    }

    void damagedCodesShowAsUnknown()
    {
        QByteArray file = FormatChecks::readFile(writeGuard());
        qToLittleEndian<qint32>(77, file.data() + offsetOf(0, 0, 0));
        qToLittleEndian<qint32>(-3, file.data() + offsetOf(0, 1, 0));
        file[offsetOf(1, 1, 5)] = char(30); // the object type of "float line (num) above (obj)"
        const QString path = dir.filePath(QStringLiteral("00014damaged.scr"));
        FormatChecks::writeFile(path, file);
        ScriptWidget page;
        QVERIFY(openScript(page, path));
        QCOMPARE(sentence(page.rows().at(0)), QStringList({"unknown condition 77"}));
        QCOMPARE(sentence(page.rows().at(1)), QStringList({"unknown action -3"}));
        auto* combo = page.rows().at(3)->findChild<TokenEditorObj*>();
        QCOMPARE(combo->currentText(), QStringLiteral("unknown object type 30"));
        page.rows().at(3)->findChild<QSpinBox*>()->setValue(9);
        QCOMPARE(int(script(page).getStatement(1, Script::LineDo)->types[1]), 30);
    }

    void everyEditUndoes_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<int>("steps");
        QTest::newRow("operand, typed twice") << "operand" << 1;
        QTest::newRow("description, typed") << "description" << 1;
        QTest::newRow("new DO line") << "new line" << 1;
        QTest::newRow("move line down") << "move" << 1;
        QTest::newRow("delete line") << "delete" << 1;
        QTest::newRow("change statement") << "statement" << 1;
        QTest::newRow("operand, then delete") << "operand and delete" << 2;
    }

    void everyEditUndoes()
    {
        QFETCH(QString, kind);
        QFETCH(int, steps);
        ScriptWidget page;
        QVERIFY(openScript(page, writeGuard()));
        ScriptedAnswerer answers;
        qsizetype rowsAfterEdit = 0;
        const auto click = [](TokensWidget* row, const char* name) {
            QTest::mouseClick(row->findChild<QAbstractButton*>(QString::fromLatin1(name)), Qt::LeftButton);
        };
        const auto edit = [&] {
            if (kind.startsWith(QLatin1String("operand"))) {
                page.rows().at(0)->findChild<QSpinBox*>()->setValue(7);
                page.rows().at(0)->findChild<QSpinBox*>()->setValue(75);
            }
            if (kind == QLatin1String("description")) {
                auto* description = page.findChild<QLineEdit*>(QStringLiteral("editDesc"));
                description->setFocus();
                QTest::keyClicks(description, QStringLiteral(" now"));
            } else if (kind == QLatin1String("new line")) {
                answers.dialogs.enqueue([](QDialog&) { return int(QDialog::Accepted); });
                QTest::mouseClick(page.findChild<QPushButton*>(QStringLiteral("buttonNewDO")), Qt::LeftButton);
            } else if (kind == QLatin1String("move")) {
                click(page.rows().at(0), "buttonDown");
            } else if (kind.endsWith(QLatin1String("delete"))) {
                click(page.rows().at(0), "buttonDelete");
            } else if (kind == QLatin1String("statement")) {
                answers.dialogs.enqueue([](QDialog& dialog) {
                    static_cast<DialogNewStatement&>(dialog).setCode(5);
                    return int(QDialog::Accepted);
                });
                emit page.rows().at(3)->lineToChange(page.rows().at(3));
            }
            rowsAfterEdit = page.rows().size();
        };
        QVERIFY(checkUndoRedo(*page.document(), edit, steps));
        QCOMPARE(page.rows().size(), rowsAfterEdit); // the listing follows the redone state
    }

    void damagedScriptsSayWhy_data()
    {
        QTest::addColumn<int>("cut");
        QTest::addColumn<QString>("reason");
        QTest::newRow("short") << 200 << "its header counts 3 lines (460 bytes) but the file ends at byte 200";
        QTest::newRow("long") << -10 << "but the file holds 470 bytes: 10 bytes after the last line";
    }

    void damagedScriptsSayWhy()
    {
        QFETCH(int, cut);
        QFETCH(QString, reason);
        QByteArray file = FormatChecks::readFile(writeGuard());
        file = cut > 0 ? file.left(cut) : file + QByteArray(-cut, 'x');
        const QString path = dir.filePath(QStringLiteral("00016cut.scr"));
        FormatChecks::writeFile(path, file);
        ScriptWidget page;
        QVERIFY(openScript(page, path));
        QVERIFY2(page.document()->damage().contains(reason), qPrintable(page.document()->damage()));
    }

    // Damage speaks of the file: a line added to a whole script is no missing line, before or after a save.
    void addedLinesAreNoDamage()
    {
        ScriptWidget page;
        page.setConfirmOverwrite(false);
        QVERIFY(openScript(page, writeGuard()));
        QCOMPARE(page.document()->damage(), QString());
        ScriptedAnswerer answers;
        answers.dialogs.enqueue([](QDialog&) { return int(QDialog::Accepted); });
        QTest::mouseClick(page.findChild<QPushButton*>(QStringLiteral("buttonNewDO")), Qt::LeftButton);
        QCOMPARE(page.scriptDocument()->script().getHeader().lineCount, 4);
        QCOMPARE(page.document()->damage(), QString());
        QVERIFY(page.save());
        QCOMPARE(page.document()->damage(), QString());
    }

    void randomBytesAreNotAScript()
    {
        QByteArray noise = FormatChecks::readFile(writeGuard());
        for (int i = Script::HeaderSize; i < noise.size(); ++i)
            noise[i] = char((i * 7919 + 13) % 251);
        const QString path = dir.filePath(QStringLiteral("00017noise.scr"));
        FormatChecks::writeFile(path, noise);
        ScriptWidget page;
        QVERIFY(openScript(page, path));
        QVERIFY2(page.document()->damage().contains(QStringLiteral("probably not a script")),
                 qPrintable(page.document()->damage()));
    }

    void statementLists()
    {
        DialogNewStatement actions(DialogNewStatement::Action);
        auto* list = actions.findChild<QListWidget*>(QStringLiteral("listStatements"));
        QCOMPARE(list->count(), 142);
        QCOMPARE(list->item(102)->text(), QString::fromStdString(Script::actionString(102)));
        actions.setCode(115);
        QCOMPARE(actions.code(), 115);
        QTest::keyClicks(actions.findChild<QLineEdit*>(QStringLiteral("editFilter")), QStringLiteral("STEAL 100"));
        QCOMPARE(actions.code(), 115);
        QTest::keyClicks(actions.findChild<QLineEdit*>(QStringLiteral("editFilter")), QStringLiteral("x"));
        QCOMPARE(actions.code(), -1);

        DialogNewStatement conditions(DialogNewStatement::Condition);
        QCOMPARE(conditions.findChild<QListWidget*>()->count(), 52);
        conditions.findChild<QListWidget*>()->setCurrentRow(0);
        QCOMPARE(conditions.code(), 1);
        conditions.setCode(0);
        QCOMPARE(conditions.code(), 1);

        DialogNumType types(9);
        QCOMPARE(types.findChild<QListWidget*>()->count(), 7);
        QCOMPARE(types.numType(), -1);
    }

    void flowLayoutWraps()
    {
        QWidget area;
        auto* flow = new FlowLayout(&area, 4);
        for (int i = 0; i < 3; ++i) {
            auto* box = new QWidget(&area);
            box->setFixedSize(100, 20);
            flow->addWidget(box);
        }
        QVERIFY(flow->hasHeightForWidth());
        QCOMPARE(flow->heightForWidth(400), 20);
        QCOMPARE(flow->heightForWidth(308), 20);
        QCOMPARE(flow->heightForWidth(307), 20 + 4 + 20);
        QCOMPARE(flow->heightForWidth(150), 3 * 20 + 2 * 4);
        QCOMPARE(flow->heightForWidth(50), 3 * 20 + 2 * 4); // an item wider than the row still gets one

        flow->setGeometry(QRect(0, 0, 250, 44));
        QCOMPARE(flow->itemAt(1)->geometry(), QRect(104, 0, 100, 20));
        QCOMPARE(flow->itemAt(2)->geometry(), QRect(0, 24, 100, 20));
    }
};

QTEST_MAIN(TestScriptWidget)
#include "tst_scriptwidget.moc"
