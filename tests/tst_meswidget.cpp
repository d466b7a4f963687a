// The message editor page, driven offscreen: cells, the text box, the source line, reload and save.
#include "FormatChecks.h"
#include "MesWidget.h"
#include "ScriptedAnswerer.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

#include <memory>

namespace {

const QByteArray MESSAGES = QByteArrayLiteral("// Test items\r\n"
                                              "{100}{Rusty dagger}\r\n"
                                              "{101}{Steam pistol}  // needs bullets\r\n"
                                              "{110}{A dagger.\r\n\tNotched.}\r\n"
                                              "{x}{broken}\r\n");

const QByteArray DIALOGUE = QByteArrayLiteral("{1}{Hello.}{}{5}{}{10}{}\r\n"
                                              "{10}{Bye.}{1}{-3}{qu 5 2}{0}{} // last\r\n");

} // namespace

class TestMesWidget : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;
    std::unique_ptr<MesWidget> page;

    QString path(const QString& name) const { return dir.filePath(name); }

    template<typename T>
    T* child(const char* name) const
    {
        T* widget = page->findChild<T*>(QString::fromLatin1(name));
        if (!widget)
            qFatal("no child %s", name);
        return widget;
    }

    QTableWidget* table() const { return child<QTableWidget>("table"); }
    QPlainTextEdit* itemView() const { return child<QPlainTextEdit>("itemView"); }
    QLineEdit* completeLine() const { return child<QLineEdit>("completeLine"); }
    QPushButton* button(const char* name) const { return child<QPushButton>(name); }

    QString open(const QString& name, const QByteArray& bytes)
    {
        FormatChecks::writeFile(path(name), bytes);
        page->loadMes(path(name));
        return path(name);
    }

    void clickCell(int row, int column)
    {
        QTableWidgetItem* item = table()->item(row, column);
        QVERIFY(item);
        table()->scrollToItem(item);
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, table()->visualItemRect(item).center());
    }

    // Types into the text box at its end, as a user who clicked there would.
    void typeInItemView(const QString& text)
    {
        itemView()->moveCursor(QTextCursor::End);
        QTest::keyClicks(itemView(), text);
    }

private slots:
    void initTestCase() { QVERIFY(dir.isValid()); }

    void init()
    {
        page = std::make_unique<MesWidget>(nullptr, QStringLiteral("UTF-8"));
        page->resize(900, 600);
        page->show();
        QVERIFY(QTest::qWaitForWindowExposed(page.get()));
    }

    void cleanup() { page.reset(); }

    void emptyPage()
    {
        QCOMPARE(page->windowTitle(), QStringLiteral("Form"));
        for (const char* name : {"editCommentary", "table", "itemView", "completeLine", "encodingLabel",
                                 "encodingSelect", "reloadButton", "saveButton"})
            QVERIFY2(!child<QWidget>(name)->isEnabled(), name);
        QVERIFY(button("saveAsButton")->isEnabled());
        QCOMPARE(child<QLabel>("encodingLabel")->text(), QStringLiteral("File encoding:"));
        QCOMPARE(button("reloadButton")->text(), QStringLiteral("Reload file"));
        QCOMPARE(button("saveButton")->text(), QStringLiteral("Save"));
        QCOMPARE(button("saveAsButton")->text(), QStringLiteral("Save As..."));
        QCOMPARE(child<QPlainTextEdit>("editCommentary")->font().family(), QStringLiteral("DejaVu Sans Mono"));
    }

    void encodingChoices()
    {
        auto* combo = child<QComboBox>("encodingSelect");
        QCOMPARE(combo->count(), static_cast<int>(MesWidget::encodingList().size()));
        QCOMPARE(combo->itemText(combo->count() - 1), MesWidget::encodingList().last());
        const QList<QByteArray> available = QTextCodec::availableCodecs();
        for (const QString& name : MesWidget::encodingList())
            QVERIFY(available.contains(name.toLatin1()));
        QCOMPARE(combo->currentIndex(), 0); // left where filling put it
        QCOMPARE(page->getCodec()->mibEnum(), 106);

        MesWidget unknown(nullptr, QStringLiteral("no such codec"));
        QCOMPARE(unknown.getCodec()->mibEnum(), 106);
        QCOMPARE(unknown.findChild<QComboBox*>(QStringLiteral("encodingSelect"))->currentText().toUpper(),
                 QStringLiteral("UTF-8"));
    }

    void messageTable()
    {
        const QString file = open(QStringLiteral("items.mes"), MESSAGES);
        QCOMPARE(page->getFilename(), file);
        QVERIFY(table()->isEnabled());
        QVERIFY(!button("saveButton")->isEnabled());
        QVERIFY(!button("reloadButton")->isEnabled());
        QCOMPARE(child<QPlainTextEdit>("editCommentary")->toPlainText(), QStringLiteral("// Test items\n"));
        QCOMPARE(table()->rowCount(), 4);
        QCOMPARE(table()->columnCount(), 3);
        QStringList titles;
        for (int column = 0; column < 3; ++column)
            titles << table()->horizontalHeaderItem(column)->text();
        QCOMPARE(titles, QStringList({"#", "Item 1", "Comment"}));

        QTableWidgetItem* index = table()->item(1, 0);
        QCOMPARE(index->text(), QStringLiteral("101"));
        QCOMPARE(index->flags(), Qt::NoItemFlags);
        QVERIFY(index->font().bold());
        QCOMPARE(index->toolTip(), QStringLiteral("Index: 101"));
        QCOMPARE(table()->item(1, 1)->text(), QStringLiteral("Steam pistol"));
        QCOMPARE(table()->item(1, 1)->toolTip(), QStringLiteral("Index: 101"));
        QCOMPARE(table()->item(1, 2)->text(), QStringLiteral("  // needs bullets"));
        QVERIFY(table()->item(1, 2)->toolTip().isEmpty());
        QCOMPARE(table()->item(2, 1)->text(), QStringLiteral("A dagger.\n\tNotched."));
    }

    void dialogueTable()
    {
        open(QStringLiteral("talk.dlg"), DIALOGUE);
        QCOMPARE(table()->columnCount(), 8);
        QStringList titles;
        for (int column = 0; column < 8; ++column)
            titles << table()->horizontalHeaderItem(column)->text();
        QCOMPARE(titles, QStringList({"#", "Text", "Gender or female line", "Int. Test", "Condition", "Response",
                                      "Result", "Comment"}));
        // The number's tool tip is the comment's, not "Line number 10".
        QCOMPARE(table()->item(1, 0)->toolTip(), QStringLiteral(" // last"));
        QCOMPARE(table()->item(1, 7)->text(), QStringLiteral(" // last"));
        QCOMPARE(table()->item(0, 3)->toolTip(), QStringLiteral("Minimum: 55"));
        QCOMPARE(table()->item(1, 2)->toolTip(), QStringLiteral("female only"));
        QCOMPARE(table()->item(1, 5)->text(), QStringLiteral("0"));
    }

    void editInItemView()
    {
        const QString file = open(QStringLiteral("edit.mes"), MESSAGES);
        clickCell(1, 1);
        QCOMPARE(itemView()->toPlainText(), QStringLiteral("Steam pistol"));
        QVERIFY(!itemView()->isReadOnly());
        QCOMPARE(completeLine()->text(), QStringLiteral("{101}{Steam pistol}  // needs bullets\n"));

        typeInItemView(QStringLiteral(" Mk II"));
        QCOMPARE(table()->item(1, 1)->text(), QStringLiteral("Steam pistol Mk II"));
        QCOMPARE(page->getModel()->getEntryAt(1)->getItemAt(0), QStringLiteral("Steam pistol Mk II"));
        QCOMPARE(completeLine()->text(), QStringLiteral("{101}{Steam pistol Mk II}  // needs bullets\n"));
        QVERIFY(page->isModified());
        QVERIFY(button("saveButton")->isEnabled());
        QVERIFY(button("reloadButton")->isEnabled());

        clickCell(1, 2);
        QCOMPARE(itemView()->toPlainText(), QStringLiteral("  // needs bullets"));
        itemView()->selectAll();
        QTest::keyClicks(itemView(), QStringLiteral(" // loud"));
        QCOMPARE(page->getModel()->getEntryAt(1)->getComment(), QStringLiteral(" // loud"));

        // Saved and read back, only the edited line differs.
        ScriptedAnswerer answers;
        answers.buttons << QMessageBox::Yes;
        QTest::mouseClick(button("saveButton"), Qt::LeftButton);
        QCOMPARE(answers.last(QStringLiteral("question"))->title, QStringLiteral("Save"));
        QCOMPARE(answers.last(QStringLiteral("question"))->text, QStringLiteral("Overwrite file?"));
        QCOMPARE(answers.last(QStringLiteral("question"))->defaultButton, QMessageBox::No);
        QVERIFY(!page->isModified());
        QByteArray expected = MESSAGES;
        expected.replace("{101}{Steam pistol}  // needs bullets", "{101}{Steam pistol Mk II} // loud");
        QCOMPARE(FormatChecks::readFile(file), expected);
        page->loadMes(file);
        QCOMPARE(table()->item(1, 1)->text(), QStringLiteral("Steam pistol Mk II"));
    }

    void editInTable()
    {
        open(QStringLiteral("cell.mes"), MESSAGES);
        clickCell(0, 1);
        table()->item(0, 1)->setText(QStringLiteral("Sharp dagger"));
        QCOMPARE(itemView()->toPlainText(), QStringLiteral("Sharp dagger"));
        QCOMPARE(page->getModel()->getEntryAt(0)->getItemAt(0), QStringLiteral("Sharp dagger"));
        QVERIFY(page->isModified());

        // Keyboard moves bring the new cell into the text box.
        table()->setCurrentCell(2, 1);
        QCOMPARE(itemView()->toPlainText(), QStringLiteral("A dagger.\n\tNotched."));
        QCOMPARE(completeLine()->text(), QStringLiteral("{110}{A dagger.\n\tNotched.}\n"));

        // Typed into the cell's own editor and left with the arrow key: saved, and the text box follows.
        table()->setCurrentCell(1, 1);
        table()->editItem(table()->item(1, 1));
        QWidget* editor = QApplication::focusWidget();
        QVERIFY(editor && editor != table());
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, QStringLiteral("Brass pistol"));
        QTest::keyClick(editor, Qt::Key_Down);
        QCOMPARE(page->getModel()->getEntryAt(1)->getItemAt(0), QStringLiteral("Brass pistol"));
        QCOMPARE(table()->currentRow(), 2);
        QCOMPARE(itemView()->toPlainText(), QStringLiteral("A dagger.\n\tNotched."));
        typeInItemView(QStringLiteral("!"));
        QCOMPARE(page->getModel()->getEntryAt(2)->getItemAt(0), QStringLiteral("A dagger.\n\tNotched.!"));
        QCOMPARE(page->getModel()->getEntryAt(1)->getItemAt(0), QStringLiteral("Brass pistol"));
    }

    void readOnlyCells()
    {
        open(QStringLiteral("flags.mes"), MESSAGES);
        QTableWidgetItem* index = table()->item(0, 0);
        QVERIFY(!(index->flags() & Qt::ItemIsEditable));
        QVERIFY(!(index->flags() & Qt::ItemIsSelectable));
        QTest::mouseDClick(table()->viewport(), Qt::LeftButton, {}, table()->visualItemRect(index).center());
        QVERIFY(!table()->isPersistentEditorOpen(index));
        QCOMPARE(table()->item(0, 0)->text(), QStringLiteral("100"));

        // A line that could not be read is written back as read; its cells take no edits.
        clickCell(3, 1);
        QVERIFY(!(table()->item(3, 1)->flags() & Qt::ItemIsEditable));
        QVERIFY(itemView()->isReadOnly());
        QCOMPARE(completeLine()->text(), QStringLiteral("{x}{broken}\n"));
        QVERIFY(completeLine()->toolTip().contains(QStringLiteral("Index could not be parsed")));
    }

    void headerEdit()
    {
        const QString file = open(QStringLiteral("header.mes"), MESSAGES);
        auto* header = child<QPlainTextEdit>("editCommentary");
        header->moveCursor(QTextCursor::End);
        QTest::keyClicks(header, QStringLiteral("// more"));
        QCOMPARE(page->getModel()->getHeader(), QStringLiteral("// Test items\n// more"));
        QVERIFY(page->isModified());
        QVERIFY(page->saveFile(file));
        QVERIFY(FormatChecks::readFile(file).startsWith("// Test items\r\n// more\r\n{100}"));
    }

    void encodingChangeReloadsFromDisk()
    {
        QTextCodec* cp1251 = QTextCodec::codecForName("Windows-1251");
        const QString russian = QStringLiteral("\u0421\u0442\u0430\u0440\u044B\u0439 \u043C\u0435\u0447");
        open(QStringLiteral("ru.mes"), cp1251->fromUnicode(QStringLiteral("{1}{") + russian + QStringLiteral("}\r\n")));
        QVERIFY(table()->item(0, 1)->text() != russian);
        clickCell(0, 1);
        typeInItemView(QStringLiteral("edit"));
        QVERIFY(page->isModified());

        ScriptedAnswerer answers;
        auto* combo = child<QComboBox>("encodingSelect");
        combo->setCurrentIndex(combo->findText(QString::fromLatin1(cp1251->name())));
        QCOMPARE(page->getCodec(), cp1251);
        QCOMPARE(table()->item(0, 1)->text(), russian);
        QVERIFY(!page->isModified());
        QVERIFY(answers.asked.isEmpty());
    }

    void reloadAsksFirst()
    {
        open(QStringLiteral("reload.mes"), MESSAGES);
        clickCell(0, 1);
        typeInItemView(QStringLiteral("!"));
        ScriptedAnswerer answers;
        answers.buttons << QMessageBox::No << QMessageBox::Yes;
        QTest::mouseClick(button("reloadButton"), Qt::LeftButton);
        QCOMPARE(answers.last(QStringLiteral("question"))->title, QStringLiteral("Reload"));
        QCOMPARE(answers.last(QStringLiteral("question"))->text,
                 QStringLiteral("Really reload? You will lose all changes made"));
        QCOMPARE(table()->item(0, 1)->text(), QStringLiteral("Rusty dagger!"));
        QTest::mouseClick(button("reloadButton"), Qt::LeftButton);
        QCOMPARE(table()->item(0, 1)->text(), QStringLiteral("Rusty dagger"));
        QVERIFY(!page->isModified());
        QVERIFY(completeLine()->text().isEmpty());
    }

    void saveDeclined()
    {
        const QString file = open(QStringLiteral("declined.mes"), MESSAGES);
        clickCell(0, 1);
        typeInItemView(QStringLiteral("!"));
        ScriptedAnswerer answers;
        answers.buttons << QMessageBox::No;
        QTest::mouseClick(button("saveButton"), Qt::LeftButton);
        QCOMPARE(FormatChecks::readFile(file), MESSAGES);
        QVERIFY(page->isModified());
    }

    void saveAsShowsTheNewFile()
    {
        const QString file = open(QStringLiteral("original.dlg"), DIALOGUE);
        clickCell(1, 1);
        typeInItemView(QStringLiteral("!"));
        ScriptedAnswerer answers;
        QTest::mouseClick(button("saveAsButton"), Qt::LeftButton); // cancelled
        QCOMPARE(answers.count(QStringLiteral("save")), 1);
        QCOMPARE(answers.last(QStringLiteral("save"))->title, QStringLiteral("Save file"));
        QCOMPARE(answers.last(QStringLiteral("save"))->text,
                 QStringLiteral(".|Arcanum Mes files (*.mes);;Arcanum Dialogue files (*.dlg);;All files (*.*)"));
        QVERIFY(page->isModified());
        QCOMPARE(page->getFilename(), file);

        const QString copy = path(QStringLiteral("copy.dlg"));
        answers.fileNames << copy;
        QTest::mouseClick(button("saveAsButton"), Qt::LeftButton);
        QCOMPARE(page->getFilename(), copy);
        QVERIFY(!page->isModified());
        QCOMPARE(table()->columnCount(), 8);
        QCOMPARE(table()->item(1, 1)->text(), QStringLiteral("Bye.!"));
        QCOMPARE(FormatChecks::readFile(file), DIALOGUE);
        QByteArray expected = DIALOGUE;
        expected.replace("{Bye.}", "{Bye.!}").append(" // last");
        QCOMPARE(FormatChecks::readFile(copy), expected);
    }

    void failedSaveKeepsTheEdits()
    {
        open(QStringLiteral("kept.mes"), MESSAGES);
        clickCell(0, 1);
        typeInItemView(QStringLiteral("!"));
        ScriptedAnswerer answers;
        const QString target = path(QStringLiteral("missing/dir/kept.mes"));
        answers.fileNames << target;
        QTest::mouseClick(button("saveAsButton"), Qt::LeftButton);
        const ScriptedAnswerer::Asked* box = answers.last(QStringLiteral("message"));
        QVERIFY(box);
        QCOMPARE(box->icon, QMessageBox::Critical);
        QCOMPARE(box->title, QStringLiteral("Error saving file"));
        QCOMPARE(box->text, QStringLiteral("Could not save file to %1: unknown reason").arg(target));
        QVERIFY(page->isModified());
        QVERIFY(button("saveButton")->isEnabled());
        QVERIFY(button("reloadButton")->isEnabled());
        QCOMPARE(page->getFilename(), path(QStringLiteral("kept.mes")));
        QCOMPARE(table()->item(0, 1)->text(), QStringLiteral("Rusty dagger!"));
    }

    void failedLoadDisablesThePage()
    {
        open(QStringLiteral("good.mes"), MESSAGES);
        page->loadMes(path(QStringLiteral("absent.mes")));
        QVERIFY(!table()->isEnabled());
        QCOMPARE(table()->rowCount(), 0);
        QVERIFY(button("saveAsButton")->isEnabled());
        // Typing with nothing loaded goes nowhere and breaks nothing.
        itemView()->setPlainText(QStringLiteral("stray"));
        page->saveChangeToMem(5, 1);
        page->saveChangeToMemImpl(QStringLiteral("x"), 0, 1);
    }

    void damagedFilesOpen()
    {
        for (const QByteArray& bytes : {QByteArray(2000, '\0'), QByteArray("}{\n{{\n{1}}{\n{"),
                                        FormatChecks::randomBytes(3000, 5, true)}) {
            open(QStringLiteral("damaged.dlg"), bytes);
            open(QStringLiteral("damaged.mes"), bytes);
            for (int row = 0; row < table()->rowCount(); ++row)
                table()->setCurrentCell(row, 1);
        }
    }
};

QTEST_MAIN(TestMesWidget)
#include "tst_meswidget.moc"
