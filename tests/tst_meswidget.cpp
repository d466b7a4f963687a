// The message editor page, driven offscreen: the table over the document, the text box, the source
// line, undo of every edit, encodings that would damage a file, and the file on disk after each save.
#include "Document.h"
#include "EncodingBox.h"
#include "EncodingChecks.h"
#include "FormatChecks.h"
#include "MesDocument.h"
#include "MesWidget.h"
#include "ScriptedAnswerer.h"
#include "UndoChecks.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QToolButton>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QUndoStack>
#include <QWheelEvent>
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

QByteArray cp1251(const QString& text)
{
    return QTextCodec::codecForName("Windows-1251")->fromUnicode(text);
}

} // namespace

class TestMesWidget : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;
    std::unique_ptr<MesWidget> page;

    QString path(const QString& name) const { return dir.filePath(name); }

    template <typename T>
    T* child(const char* name) const
    {
        T* widget = page->findChild<T*>(QString::fromLatin1(name));
        if (!widget)
            qFatal("no child %s", name);
        return widget;
    }

    QTableView* table() const { return child<QTableView>("table"); }
    QAbstractItemModel* model() const { return table()->model(); }
    QPlainTextEdit* itemView() const { return child<QPlainTextEdit>("itemView"); }

    QString open(const QString& name, const QByteArray& bytes)
    {
        FormatChecks::writeFile(path(name), bytes);
        if (!page->openFile(path(name)))
            qFatal("could not open %s", qPrintable(name));
        return path(name);
    }

    void selectCell(int row, int column) { table()->setCurrentIndex(model()->index(row, column)); }

    QAction* action(const char* name) const { return child<QAction>(name); }

    // Answers the page's number question with text, keeping what the page offered.
    static std::function<int(QDialog&)> typing(const QString& text, QString* offered = nullptr)
    {
        return [text, offered](QDialog& dialog) {
            auto& input = static_cast<QInputDialog&>(dialog);
            if (offered)
                *offered = input.textValue();
            input.setTextValue(text);
            return int(QDialog::Accepted);
        };
    }

    QByteArray savedBytes()
    {
        ScriptedAnswerer answers;
        answers.buttons << QMessageBox::Yes;
        if (!page->save())
            return QByteArray("<not saved>");
        return FormatChecks::readFile(page->document()->path());
    }

private slots:
    // The game's code pages first, then each codec once under one name, sorted.
    void encodingListPutsTheGamesCodePagesFirst()
    {
        const QStringList names = EncodingBox::encodingList();
        QCOMPARE(names.mid(0, 4), QStringList({"windows-1251", "windows-1252", "windows-1250", "UTF-8"}));
        QSet<QByteArray> codecs;
        for (const QString& name : names) {
            const QByteArray codec = QTextCodec::codecForName(name.toLatin1())->name();
            QVERIFY2(!codecs.contains(codec), qPrintable(name));
            codecs.insert(codec);
        }
        QVERIFY(names.contains(QStringLiteral("KOI8-R")));
        const QStringList rest = names.mid(7);
        QVERIFY(std::is_sorted(rest.begin(), rest.end(), [](const QString& a, const QString& b) {
            return QString::compare(a, b, Qt::CaseInsensitive) < 0;
        }));
    }

    void initTestCase() { QVERIFY(dir.isValid()); }
    void init() { page = std::make_unique<MesWidget>(); }
    void cleanup() { page.reset(); }

    void tableShowsTheDocument()
    {
        open(QStringLiteral("items.mes"), MESSAGES);
        QCOMPARE(model()->rowCount(), 4);
        QCOMPARE(model()->columnCount(), 3);
        QCOMPARE(model()->data(model()->index(1, 0)).toString(), QStringLiteral("101"));
        QCOMPARE(model()->data(model()->index(1, 1)).toString(), QStringLiteral("Steam pistol"));
        QCOMPARE(model()->data(model()->index(1, 2)).toString(), QStringLiteral("  // needs bullets"));
        QCOMPARE(child<QPlainTextEdit>("editCommentary")->toPlainText(), QStringLiteral("// Test items\n"));
        // The row that cannot be read shows its text and cannot be edited.
        QCOMPARE(model()->data(model()->index(3, 1)).toString(), QStringLiteral("{x}{broken}"));
        QCOMPARE(model()->data(model()->index(3, 0)).toString(), QString()); // no number could be read
        QVERIFY(!(model()->flags(model()->index(3, 1)) & Qt::ItemIsEditable));
        QVERIFY(!(model()->flags(model()->index(0, 0)) & Qt::ItemIsEditable));
        QVERIFY2(page->document()->damage().contains(QStringLiteral("entry 4 (line 6)")), qPrintable(page->document()->damage()));
    }

    void dialogueAsTable()
    {
        open(QStringLiteral("talk.dlg"), DIALOGUE);
        QCOMPARE(model()->columnCount(), 8);
        QCOMPARE(model()->data(model()->index(1, 4)).toString(), QStringLiteral("qu 5 2"));
    }

    void everyEditUndoes_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<int>("steps");
        QTest::newRow("cell text") << "cell" << 1;
        QTest::newRow("comment") << "comment" << 1;
        QTest::newRow("typing in the text box merges") << "typing" << 1;
        QTest::newRow("two cells") << "two cells" << 2;
        QTest::newRow("header") << "header" << 1;
    }

    void everyEditUndoes()
    {
        QFETCH(QString, kind);
        QFETCH(int, steps);
        open(QStringLiteral("items.mes"), MESSAGES);
        const auto edit = [&] {
            if (kind == QLatin1String("cell")) {
                model()->setData(model()->index(0, 1), QStringLiteral("Oil lantern"));
            } else if (kind == QLatin1String("comment")) {
                model()->setData(model()->index(0, 2), QStringLiteral(" // new"));
            } else if (kind == QLatin1String("typing")) {
                selectCell(0, 1);
                itemView()->setFocus();
                itemView()->moveCursor(QTextCursor::End);
                QTest::keyClicks(itemView(), QStringLiteral(", old"));
            } else if (kind == QLatin1String("two cells")) {
                model()->setData(model()->index(0, 1), QStringLiteral("One"));
                model()->setData(model()->index(1, 1), QStringLiteral("Two"));
            } else {
                child<QPlainTextEdit>("editCommentary")->setPlainText(QStringLiteral("// Changed\n"));
            }
        };
        QVERIFY(checkUndoRedo(*page->document(), edit, steps));
    }

    void sourceLineFollowsTheCell()
    {
        open(QStringLiteral("items.mes"), MESSAGES);
        selectCell(0, 1);
        QCOMPARE(child<QLineEdit>("completeLine")->text(), QStringLiteral("{100}{Rusty dagger}\n"));
        model()->setData(model()->index(0, 1), QStringLiteral("Oil lantern"));
        QCOMPARE(child<QLineEdit>("completeLine")->text(), QStringLiteral("{100}{Oil lantern}\n"));
        QCOMPARE(itemView()->toPlainText(), QStringLiteral("Oil lantern"));
        QCOMPARE(page->document()->undoStack()->undoText(), QStringLiteral("Edit text of 100"));
        page->document()->undoStack()->undo();
        QCOMPARE(child<QLineEdit>("completeLine")->text(), QStringLiteral("{100}{Rusty dagger}\n"));
    }

    void savingTwiceWritesTheSameBytes()
    {
        const QString file = open(QStringLiteral("items.mes"), MESSAGES);
        model()->setData(model()->index(0, 1), QStringLiteral("Oil lantern"));
        ScriptedAnswerer answers;
        answers.buttons << QMessageBox::Yes << QMessageBox::Yes;
        QVERIFY(page->save());
        const QByteArray first = FormatChecks::readFile(file);
        QVERIFY(first.contains("{100}{Oil lantern}\r\n"));
        QVERIFY(first.startsWith("// Test items\r\n{100}"));
        model()->setData(model()->index(1, 1), QStringLiteral("Pistol"));
        QVERIFY(page->save());
        QVERIFY(FormatChecks::readFile(file).startsWith("// Test items\r\n{100}"));
        QVERIFY(!page->document()->isModified());
        QVERIFY(!child<QPushButton>("saveButton")->isEnabled());
    }

    void declinedOverwriteWritesNothing()
    {
        const QString file = open(QStringLiteral("items.mes"), MESSAGES);
        model()->setData(model()->index(0, 1), QStringLiteral("Oil lantern"));
        ScriptedAnswerer answers;
        answers.buttons << QMessageBox::No;
        QTest::mouseClick(child<QPushButton>("saveButton"), Qt::LeftButton);
        QCOMPARE(answers.last(QStringLiteral("question"))->text, QStringLiteral("Overwrite items.mes?"));
        QCOMPARE(FormatChecks::readFile(file), MESSAGES);
        QVERIFY(page->document()->isModified());
    }

    void saveAsShowsTheNewFile()
    {
        open(QStringLiteral("items.mes"), MESSAGES);
        model()->setData(model()->index(0, 1), QStringLiteral("Oil lantern"));
        ScriptedAnswerer answers;
        answers.fileNames << path(QStringLiteral("copy.mes"));
        QTest::mouseClick(child<QPushButton>("saveAsButton"), Qt::LeftButton);
        QVERIFY(answers.last(QStringLiteral("save"))->text.startsWith(path(QStringLiteral("items.mes"))));
        QCOMPARE(page->document()->path(), path(QStringLiteral("copy.mes")));
        QVERIFY(FormatChecks::readFile(path(QStringLiteral("copy.mes"))).contains("{100}{Oil lantern}"));
        QCOMPARE(FormatChecks::readFile(path(QStringLiteral("items.mes"))), MESSAGES);
    }

    void failedSaveKeepsTheEdits()
    {
        open(QStringLiteral("items.mes"), MESSAGES);
        model()->setData(model()->index(0, 1), QStringLiteral("Oil lantern"));
        ScriptedAnswerer answers;
        answers.fileNames << dir.filePath(QStringLiteral("missing/folder/x.mes"));
        QVERIFY(!page->saveAs());
        QVERIFY(answers.last(QStringLiteral("message"))->text.startsWith(QStringLiteral("Could not save")));
        QVERIFY(page->document()->isModified());
        QCOMPARE(page->document()->path(), path(QStringLiteral("items.mes")));
    }

    void windows1251ReadAsUtf8IsNotDamaged()
    {
        const QByteArray russian = QByteArrayLiteral("{1}{") + cp1251(QStringLiteral("Меч")) + "}\r\n{2}{"
                                   + cp1251(QStringLiteral("Щит")) + "}\r\n{3}{Shield}\r\n";
        const QString file = open(QStringLiteral("ru.mes"), russian);
        // The strip over the page says so (EncodingChecks); the damage banner is for the entries.
        QVERIFY(page->document()->damage().isEmpty());
        model()->setData(model()->index(2, 1), QStringLiteral("Buckler"));
        ScriptedAnswerer answers;
        answers.buttons << QMessageBox::Yes << QMessageBox::Cancel;
        QVERIFY(!page->save());
        QVERIFY2(answers.last(QStringLiteral("question"))->text.startsWith(
            QStringLiteral("Saving in UTF-8 would change 2 lines that were not edited")), qPrintable(answers.last(QStringLiteral("question"))->text));
        QCOMPARE(FormatChecks::readFile(file), russian);

        // Another encoding for a modified file asks first; Cancel keeps the file and its edit as they are.
        answers.buttons << QMessageBox::Cancel;
        child<QComboBox>("encodingSelect")->setCurrentText(QStringLiteral("windows-1251"));
        QCOMPARE(answers.last(QStringLiteral("question"))->text, QStringLiteral("Save changes to ru.mes?"));
        QCOMPARE(child<QComboBox>("encodingSelect")->currentText(), QStringLiteral("UTF-8"));
        QVERIFY(page->document()->isModified());
        // In the file's own encoding the same edit saves and every Cyrillic byte stays.
        answers.buttons << QMessageBox::Discard;
        child<QComboBox>("encodingSelect")->setCurrentText(QStringLiteral("windows-1251"));
        QCOMPARE(page->mesDocument()->codec()->name(), QByteArray("windows-1251"));
        QCOMPARE(model()->data(model()->index(0, 1)).toString(), QStringLiteral("Меч"));
        model()->setData(model()->index(2, 1), QStringLiteral("Buckler"));
        answers.buttons << QMessageBox::Yes;
        QVERIFY(page->save());
        QCOMPARE(FormatChecks::readFile(file), QByteArray(russian).replace("Shield", "Buckler"));

        // A copy saved under another name opens in the same encoding.
        answers.fileNames << path(QStringLiteral("ru-copy.mes"));
        QVERIFY(page->saveAs());
        page = std::make_unique<MesWidget>();
        QVERIFY(page->openFile(path(QStringLiteral("ru-copy.mes"))));
        QCOMPARE(page->mesDocument()->codec()->name(), QByteArray("windows-1251"));
    }

    void suggestedEncodingReadsTheFile()
    {
        const QByteArray russian = QByteArrayLiteral("// ") + cp1251(QStringLiteral("Оружие")) + "\r\n{1}{"
                                   + cp1251(QStringLiteral("Ржавый кинжал")) + "}\r\n{2}{Shield}\r\n";
        EncodingChecks::suggestionReadsTheFile([] { return std::make_unique<MesWidget>(); },
                                               path(QStringLiteral("weapons.mes")), russian, "windows-1251");
    }

    // Find in game files opens a file at an entry through this.
    void goToEntrySelectsTheNumber()
    {
        open(QStringLiteral("items.mes"), MESSAGES);
        QVERIFY(page->goToEntry(110));
        QCOMPARE(table()->currentIndex().row(), 2);
        QCOMPARE(itemView()->toPlainText(), QStringLiteral("A dagger.\n\tNotched."));
        QVERIFY(!page->goToEntry(105));
        QVERIFY(!page->goToEntry(-1));
        QCOMPARE(table()->currentIndex().row(), 2);
    }

    // The number offered is the first free one after the selected entry; the new entry lands in number
    // order, is selected, and its text is typed in the box below: two undo steps, the file on disk exact.
    void addEntryThenTypeItsText()
    {
        open(QStringLiteral("items.mes"), MESSAGES);
        selectCell(0, 1);
        ScriptedAnswerer answers;
        QString offered;
        answers.dialogs << typing(QStringLiteral("105"), &offered);
        QTest::mouseClick(child<QToolButton>("buttonAddEntry"), Qt::LeftButton);
        QCOMPARE(offered, QStringLiteral("102"));
        QCOMPARE(model()->rowCount(), 5);
        QCOMPARE(table()->currentIndex(), model()->index(2, 1));
        QVERIFY(!itemView()->isReadOnly());
        itemView()->setFocus();
        QTest::keyClicks(itemView(), QStringLiteral("Lantern"));
        QCOMPARE(page->document()->undoStack()->count(), 2);
        QCOMPARE(child<QLineEdit>("completeLine")->text(), QStringLiteral("{105}{Lantern}\n"));
        QCOMPARE(savedBytes(), QByteArray(MESSAGES).replace("{110}", "{105}{Lantern}\r\n{110}"));
    }

    void refusedNumbersSayWhy_data()
    {
        QTest::addColumn<QString>("tool");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("message");
        QTest::newRow("add: in use") << "actionAddEntry" << "101" << "Number 101 is already in use in items.mes.";
        QTest::newRow("add: too large") << "actionAddEntry" << "2147483648"
                                        << "2147483648 is outside 0 … 2147483647: a message file cannot hold that number.";
        QTest::newRow("add: negative") << "actionAddEntry" << "-3" << "-3 is outside 0 … 2147483647";
        QTest::newRow("add: not a number") << "actionAddEntry" << "twelve" << "“twelve” is not a number.";
        QTest::newRow("duplicate: in use") << "actionDuplicateEntry" << "110" << "Number 110 is already in use";
        QTest::newRow("renumber: in use") << "actionRenumberEntry" << "100" << "Number 100 is already in use";
        QTest::newRow("renumber: too large") << "actionRenumberEntry" << "4294967296" << "4294967296 is outside";
        QTest::newRow("go to: absent") << "actionGoToEntry" << "999" << "items.mes has no entry 999.";
    }

    // Bad numbers are refused with a message naming them; nothing changes and nothing is written.
    void refusedNumbersSayWhy()
    {
        QFETCH(QString, tool);
        QFETCH(QString, typed);
        QFETCH(QString, message);
        const QString file = open(QStringLiteral("items.mes"), MESSAGES);
        selectCell(1, 1);
        ScriptedAnswerer answers;
        answers.dialogs << typing(typed);
        action(qPrintable(tool))->trigger();
        QVERIFY(answers.last(QStringLiteral("message")));
        QVERIFY2(answers.last(QStringLiteral("message"))->text.startsWith(message),
                 qPrintable(answers.last(QStringLiteral("message"))->text));
        QCOMPARE(page->document()->undoStack()->count(), 0);
        QCOMPARE(model()->rowCount(), 4);
        QCOMPARE(table()->currentIndex(), model()->index(1, 1));
        QCOMPARE(FormatChecks::readFile(file), MESSAGES);
    }

    void duplicateRenumberAndDeleteSelected()
    {
        open(QStringLiteral("items.mes"), MESSAGES);
        selectCell(1, 1);
        ScriptedAnswerer answers;
        QString offered;
        answers.dialogs << typing(QStringLiteral("102"), &offered) << typing(QStringLiteral("7"), &offered);
        action("actionDuplicateEntry")->trigger();
        QCOMPARE(offered, QStringLiteral("102"));
        QCOMPARE(model()->data(model()->index(2, 2)).toString(), QStringLiteral("  // needs bullets"));
        action("actionRenumberEntry")->trigger();
        QCOMPARE(offered, QStringLiteral("102"));
        QCOMPARE(model()->data(model()->index(2, 0)).toString(), QStringLiteral("7"));
        QCOMPARE(child<QLabel>("entryStatus")->text(), QStringLiteral("Entry 102 is now 7"));
        // Rows 0 and 4 (the unreadable line) go in one step.
        table()->selectionModel()->select(model()->index(0, 1), QItemSelectionModel::ClearAndSelect);
        table()->selectionModel()->select(model()->index(4, 1), QItemSelectionModel::Select);
        action("actionDeleteEntries")->trigger();
        QCOMPARE(model()->rowCount(), 3);
        QCOMPARE(child<QLabel>("entryStatus")->text(), QStringLiteral("2 entries deleted"));
        QCOMPARE(page->document()->undoStack()->undoText(), QStringLiteral("Delete 2 entries"));
        QCOMPARE(savedBytes(), QByteArrayLiteral("// Test items\r\n{101}{Steam pistol}  // needs bullets\r\n"
                                                 "{7}{Steam pistol}  // needs bullets\r\n{110}{A dagger.\r\n\tNotched.}\r\n"));
        page->document()->undoStack()->undo();
        QCOMPARE(model()->rowCount(), 5);
        QCOMPARE(model()->data(model()->index(4, 1)).toString(), QStringLiteral("{x}{broken}"));
    }

    void goToAsksForTheNumber()
    {
        open(QStringLiteral("items.mes"), MESSAGES);
        ScriptedAnswerer answers;
        answers.dialogs << typing(QStringLiteral("110"));
        action("actionGoToEntry")->trigger();
        QCOMPARE(table()->currentIndex().row(), 2);
        QCOMPARE(answers.count(QStringLiteral("message")), 0);
    }

    // Sorting is one step and keeps the selected entry selected.
    void sortKeepsTheSelection()
    {
        open(QStringLiteral("mixed.mes"), QByteArrayLiteral("{30}{Helm}\r\n{10}{Sword}\r\n{20}{Shield}\r\n"));
        selectCell(1, 1);
        action("actionSortEntries")->trigger();
        QCOMPARE(table()->currentIndex(), model()->index(0, 1));
        QCOMPARE(itemView()->toPlainText(), QStringLiteral("Sword"));
        QCOMPARE(page->document()->undoStack()->count(), 1);
        action("actionSortEntries")->trigger();
        QCOMPARE(child<QLabel>("entryStatus")->text(), QStringLiteral("The entries are already in number order"));
        QCOMPARE(page->document()->undoStack()->count(), 1);
        QCOMPARE(savedBytes(), QByteArrayLiteral("{10}{Sword}\r\n{20}{Shield}\r\n{30}{Helm}\r\n"));
    }

    // The bar finds in texts and comments, shows the match in the text box, and replaces all in one step.
    void findAndReplaceThroughTheBar()
    {
        open(QStringLiteral("items.mes"), MESSAGES);
        page->showFind(true);
        child<QLineEdit>("findText")->setText(QStringLiteral("DAGGER"));
        QTest::mouseClick(child<QToolButton>("findNext"), Qt::LeftButton);
        QCOMPARE(table()->currentIndex(), model()->index(0, 1));
        QCOMPARE(itemView()->textCursor().selectedText(), QStringLiteral("dagger"));
        QCOMPARE(child<QLabel>("findStatus")->text(), QStringLiteral("Entry 100 — matches in the file: 2"));
        QTest::mouseClick(child<QToolButton>("findNext"), Qt::LeftButton);
        QCOMPARE(table()->currentIndex(), model()->index(2, 1));
        // With case the capitals find nothing.
        child<QCheckBox>("matchCase")->setChecked(true);
        QTest::mouseClick(child<QToolButton>("findNext"), Qt::LeftButton);
        QCOMPARE(child<QLabel>("findStatus")->text(), QStringLiteral("No match for “DAGGER”"));
        child<QCheckBox>("matchCase")->setChecked(false);
        child<QLineEdit>("replaceText")->setText(QStringLiteral("knife"));
        QTest::mouseClick(child<QToolButton>("replaceAll"), Qt::LeftButton);
        QCOMPARE(child<QLabel>("findStatus")->text(), QStringLiteral("Matches replaced: 2; cells changed: 2"));
        QCOMPARE(page->document()->undoStack()->count(), 1);
        QCOMPARE(itemView()->toPlainText(), QStringLiteral("A knife.\n\tNotched."));
        QCOMPARE(savedBytes(), QByteArray(MESSAGES).replace("dagger", "knife"));
    }

    // Replace takes the match shown and moves on; the replacement is not found again.
    void replaceOneAtATime()
    {
        open(QStringLiteral("items.mes"), QByteArrayLiteral("{1}{cat cat}\r\n{2}{cat}\r\n"));
        page->showFind(true);
        child<QLineEdit>("findText")->setText(QStringLiteral("cat"));
        child<QLineEdit>("replaceText")->setText(QStringLiteral("cats"));
        auto* replace = child<QToolButton>("replaceOne");
        QTest::mouseClick(replace, Qt::LeftButton); // finds the first
        QCOMPARE(page->document()->undoStack()->count(), 0);
        QTest::mouseClick(replace, Qt::LeftButton);
        QTest::mouseClick(replace, Qt::LeftButton);
        QCOMPARE(model()->data(model()->index(0, 1)).toString(), QStringLiteral("cats cats"));
        QCOMPARE(table()->currentIndex(), model()->index(1, 1));
        QCOMPARE(page->document()->undoStack()->count(), 2);
    }

    void toolsFollowTheSelection()
    {
        QVERIFY(!action("actionAddEntry")->isEnabled());
        QVERIFY(!action("actionFindInFile")->isEnabled());
        open(QStringLiteral("items.mes"), MESSAGES);
        QVERIFY(action("actionAddEntry")->isEnabled());
        QVERIFY(action("actionSortEntries")->isEnabled());
        QVERIFY(!action("actionDuplicateEntry")->isEnabled());
        selectCell(0, 1);
        QVERIFY(action("actionDuplicateEntry")->isEnabled());
        QVERIFY(action("actionDeleteEntries")->isEnabled());
        selectCell(3, 1);
        QVERIFY(!action("actionDuplicateEntry")->isEnabled());
        QVERIFY(!action("actionRenumberEntry")->isEnabled());
        QVERIFY(action("actionDeleteEntries")->isEnabled());
    }

    void wheelLeavesUnfocusedControlsAlone()
    {
        open(QStringLiteral("items.mes"), MESSAGES);
        page->show();
        auto* encodings = child<QComboBox>("encodingSelect");
        const QString before = encodings->currentText();
        QWheelEvent wheel(QPointF(5, 5), encodings->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(encodings, &wheel);
        QCOMPARE(encodings->currentText(), before);
    }
};

QTEST_MAIN(TestMesWidget)
#include "tst_meswidget.moc"
