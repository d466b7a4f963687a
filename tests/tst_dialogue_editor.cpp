// The Dialogue tab driven offscreen: trees, opening lines, editing them and saving as.
#include "ConversationGraph.h"
#include "ConversationView.h"
#include "DialogueEditWidget.h"
#include "Document.h"
#include "EncodingChecks.h"
#include "UndoChecks.h"

#include <QUndoStack>
#include "DialogueTestsWidget.h"
#include "DlgNpcLineEditWidget.h"
#include "DlgPcLineEditWidget.h"
#include "FormatChecks.h"
#include "ScriptedAnswerer.h"

#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

#include <memory>

namespace {

const QString SAMPLE = QStringLiteral(LOREKA_SOURCE_DIR "/examples/sample-game/damaged/sample_dialogue_damaged.dlg");

// Line 6 of the sample as the editor should write it after the edit of editAndSaveAs().
const QByteArray LINE_6 = QByteArrayLiteral("\t{6}{Here is what I owe you.}{}{5}{$$ 100, gf 12 1}{40}{$$ -100, gv 7 1}\r\n");
const QByteArray LINE_6_EDITED =
    QByteArrayLiteral("\t{6}{Here is what I owe you. All of it.}{}{5}{$$ -150, gf 12 1}{40}{$$ -100, gv 7 1}\r\n");

// The texts of a tree's items, depth first, children indented by two blanks.
QStringList outline(const QTreeWidget* tree, int column)
{
    QStringList lines;
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* item = tree->topLevelItem(i);
        lines << item->text(column);
        for (int j = 0; j < item->childCount(); ++j)
            lines << QStringLiteral("  ") + item->child(j)->text(column);
    }
    return lines;
}

QTreeWidgetItem* findItem(QTreeWidget* tree, const QString& text, int column)
{
    const QList<QTreeWidgetItem*> items = tree->findItems(text, Qt::MatchStartsWith | Qt::MatchRecursive, column);
    return items.isEmpty() ? nullptr : items.first();
}

} // namespace

class TestDialogueEditor : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;
    QByteArray sample;
    std::unique_ptr<DialogueEditWidget> page;

    template <typename T>
    T* child(const char* name) const
    {
        T* widget = page->findChild<T*>(QString::fromLatin1(name));
        if (!widget)
            qFatal("no child %s", name);
        return widget;
    }

    QTreeWidget* treeNPC() const { return child<QTreeWidget>("treeNPC"); }
    QTreeWidget* treePC() const { return child<QTreeWidget>("treePC"); }
    DlgPcLineEditWidget* pcForm() const { return child<DlgPcLineEditWidget>("pcForm"); }
    DlgNpcLineEditWidget* npcForm() const { return child<DlgNpcLineEditWidget>("npcForm"); }
    QWidget* currentForm() const { return child<QStackedWidget>("stackForms")->currentWidget(); }

    QString write(const QString& name, const QByteArray& bytes) const
    {
        const QString path = dir.filePath(name);
        FormatChecks::writeFile(path, bytes);
        return path;
    }

    QString loadSample(const QString& name = QStringLiteral("sample.dlg"))
    {
        const QString path = write(name, sample);
        openFile(path);
        return path;
    }

    bool openFile(const QString& path)
    {
        ScriptedAnswerer quiet; // a file that cannot be read is reported in a message box
        return page->openFile(path);
    }

    bool saveTo(const QString& target)
    {
        ScriptedAnswerer answers;
        answers.fileNames << target;
        return page->saveAs();
    }

    void doubleClick(QTreeWidget* tree, QTreeWidgetItem* item)
    {
        QVERIFY(item);
        tree->scrollToItem(item);
        const QPoint centre = tree->visualItemRect(item).center();
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, centre);
        QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, centre);
    }

    DialogueTestsWidget* testRow(int position) const
    {
        QLayout* layout = pcForm()->findChild<QLayout*>(QStringLiteral("testsLayout"));
        return qobject_cast<DialogueTestsWidget*>(layout->itemAt(position)->widget());
    }

    // Types into a text box at its end, as a user who clicked there would.
    static void typeAtEnd(QPlainTextEdit* edit, const QString& text)
    {
        edit->moveCursor(QTextCursor::End);
        QTest::keyClicks(edit, text);
    }

private slots:
    void initTestCase()
    {
        QVERIFY(dir.isValid());
        sample = FormatChecks::readFile(SAMPLE);
        QVERIFY(sample.contains(LINE_6));
    }

    void init()
    {
        page = std::make_unique<DialogueEditWidget>();
        page->resize(1200, 800);
        page->show();
        QVERIFY(QTest::qWaitForWindowExposed(page.get()));
    }

    void cleanup() { page.reset(); }

    void emptyPage()
    {
        QCOMPARE(child<QLabel>("labelCurrentFile")->text(), QStringLiteral("None"));
        QVERIFY(child<QPushButton>("buttonOpenFile")->isEnabled());
        for (const char* name : {"buttonSaveAs", "treeNPC", "treePC", "radioNPC", "radioPC", "pcForm", "npcForm"})
            QVERIFY2(!child<QWidget>(name)->isEnabled(), name);
        QCOMPARE(child<QPushButton>("buttonOpenFile")->text(), QStringLiteral("Open file..."));
        QCOMPARE(child<QPushButton>("buttonSaveAs")->text(), QStringLiteral("Save as..."));
        QCOMPARE(child<QPushButton>("buttonPrevious")->text(), QStringLiteral("Last Selected"));
        QCOMPARE(child<QPushButton>("buttonForward")->text(), QStringLiteral("Forward"));
        QCOMPARE(treeNPC()->headerItem()->text(0), QStringLiteral("Response lines"));
        QCOMPARE(treePC()->headerItem()->text(0), QStringLiteral("Response"));
        QCOMPARE(treePC()->headerItem()->text(1), QStringLiteral("Line"));
        QCOMPARE(treeNPC()->columnCount(), 2);
        QVERIFY(!treeNPC()->isSortingEnabled());
        // Until the choice first changes, both trees show.
        QVERIFY(child<QRadioButton>("radioPC")->isChecked());
        QVERIFY(treeNPC()->isVisible());
        QVERIFY(treePC()->isVisible());
        page->saveLineEditChangesToMem(); // nothing to apply to
        page->fillTrees();
        QCOMPARE(treeNPC()->topLevelItemCount(), 0);
    }

    void sampleTrees()
    {
        loadSample();
        QCOMPARE(child<QLabel>("labelCurrentFile")->text(), QStringLiteral("sample.dlg"));
        QVERIFY(treeNPC()->isEnabled());
        QVERIFY(!child<QLabel>("labelUnread")->isVisible());
        QStringList npcIndices;
        for (const QString& text : outline(treeNPC(), 0))
            npcIndices << text.section(QLatin1Char(':'), 0, 0).trimmed();
        const QStringList expected = {"1",  "PC 2",  "PC 3", "PC 4", "PC 5",  "PC 6",  "PC 7", "10",   "PC 11",
                                      "20", "PC 21", "PC 22", "30",  "40",  "PC 41", "PC 42", "50", "PC 51"};
        QCOMPARE(npcIndices, expected);
        QCOMPARE(treeNPC()->topLevelItem(0)->child(2)->text(0),
                 QStringLiteral("PC 4: I seek my brother, a gnome named Tobbin."));
        QCOMPARE(treeNPC()->topLevelItem(0)->child(2)->text(1), QStringLiteral("→ 30"));
        QCOMPARE(treeNPC()->topLevelItem(1)->text(0),
                 QStringLiteral("10: There is always work for willing hands. …"));
        QVERIFY(treeNPC()->topLevelItem(1)->text(1).isEmpty());
        // The last NPC line lists the PC lines after it; Windows-1251 texts arrive as Cyrillic.
        QCOMPARE(treeNPC()->topLevelItem(5)->child(0)->text(0), QString::fromUtf8("PC 51: Спасибо."));

        QCOMPARE(outline(treePC(), 1), QStringList({"2", "3", "4", "5", "6", "7", "11", "21", "22", "41", "42", "51"}));
        QCOMPARE(outline(treePC(), 0).first(), QStringLiteral("10"));
        QCOMPARE(treePC()->topLevelItem(0)->text(2), QStringLiteral("I am looking for work."));
        // Lines with problems stand out and say why.
        QTreeWidgetItem* broken = findItem(treePC(), QStringLiteral("41"), 1);
        QVERIFY(broken);
        QVERIFY(broken->foreground(1).color() != treePC()->topLevelItem(0)->foreground(1).color());
        QVERIFY(broken->toolTip(1).contains(QStringLiteral("opcode &#x27;zz&#x27; is unknown"))
                || broken->toolTip(1).contains(QStringLiteral("opcode 'zz' is unknown")));
    }

    void pcLineBeforeEveryNpcLine()
    {
        openFile(write(QStringLiteral("early.dlg"), "\t{1}{Early.}{}{1}{}{2}{}\r\n"
                                                          "{2}{Hello.}{}{}{}{}{}\r\n"
                                                          "\t{2}{Same index.}{}{1}{}{0}{}\r\n"
                                                          "\t{3}{Bye.}{}{1}{}{0}{}\r\n"
                                                          "{5}{Later.}{}{}{}{}{}\r\n"));
        QCOMPARE(outline(treeNPC(), 0), QStringList({"2: Hello.", "  PC 3: Bye.", "5: Later."}));
        QCOMPARE(outline(treePC(), 1), QStringList({"1", "2", "3"}));
    }

    void openLinesByDoubleClick()
    {
        loadSample();
        QCOMPARE(currentForm()->objectName(), QStringLiteral("pageNoLine"));
        doubleClick(treeNPC(), treeNPC()->topLevelItem(1));
        QCOMPARE(currentForm(), npcForm());
        QCOMPARE(npcForm()->getOriginalLine()->index(), 10);
        QCOMPARE(npcForm()->findChild<QPlainTextEdit*>(QStringLiteral("maleText"))->toPlainText(),
                 QStringLiteral("There is always work for willing hands.\nSee the foreman at the docks."));
        QCOMPARE(treeNPC()->currentItem(), treeNPC()->topLevelItem(1));

        // Opening the next line applies this one's change and rebuilds the trees under the click.
        auto* maleText = npcForm()->findChild<QPlainTextEdit*>(QStringLiteral("maleText"));
        maleText->moveCursor(QTextCursor::Start);
        QTest::keyClicks(maleText, QStringLiteral("Well. "));
        doubleClick(treeNPC(), treeNPC()->topLevelItem(0)->child(4));
        QCOMPARE(page->getModel()->getNPCLine(10)->text(),
                 QStringLiteral("Well. There is always work for willing hands.\nSee the foreman at the docks."));
        QCOMPARE(treeNPC()->topLevelItem(1)->text(0), QStringLiteral("10: Well. There is always work for willing hands. …"));
        QCOMPARE(currentForm(), pcForm());
        QCOMPARE(pcForm()->getOriginalLine()->index(), 6);
        QVERIFY(child<QLabel>("labelOpenLine")->text().contains(QStringLiteral("answered by NPC line <a href='40'>40</a>")));
        QCOMPARE(treePC()->currentItem()->text(1), QStringLiteral("6"));
        QVERIFY(!child<QLabel>("labelLineErrors")->isVisible());

        doubleClick(treePC(), findItem(treePC(), QStringLiteral("41"), 1));
        QCOMPARE(pcForm()->getOriginalLine()->index(), 41);
        QVERIFY(child<QLabel>("labelLineErrors")->isVisible());
        QVERIFY(child<QLabel>("labelLineErrors")->text().contains(QStringLiteral("opcode &#x27;zz&#x27; is unknown"))
                || child<QLabel>("labelLineErrors")->text().contains(QStringLiteral("opcode 'zz' is unknown")));
        QVERIFY(page->hasChanges());
    }

    void editAndSaveAs()
    {
        const QString source = loadSample();
        doubleClick(treePC(), findItem(treePC(), QStringLiteral("6"), 1));
        QCOMPARE(pcForm()->getOriginalLine()->index(), 6);
        typeAtEnd(pcForm()->findChild<QPlainTextEdit*>(QStringLiteral("text")), QStringLiteral(" All of it."));
        DialogueTestsWidget* money = testRow(0);
        money->findChild<QSpinBox*>(QStringLiteral("spin1"))->setValue(150);
        money->findChild<QComboBox*>(QStringLiteral("combo1"))->setCurrentIndex(1);
        QVERIFY(page->hasChanges());
        QVERIFY(child<QLabel>("labelModified")->isVisible());

        ScriptedAnswerer answers;
        const QString target = dir.filePath(QStringLiteral("saved.dlg"));
        answers.fileNames << target;
        QTest::mouseClick(child<QPushButton>("buttonSaveAs"), Qt::LeftButton);
        QCOMPARE(answers.count(QStringLiteral("message")), 0);
        QCOMPARE(answers.last(QStringLiteral("save"))->title, QStringLiteral("Save As"));
        QCOMPARE(answers.last(QStringLiteral("save"))->text,
                 source + QStringLiteral("|Arcanum Dialogue files (*.dlg);;All files (*.*)"));

        QByteArray expected = sample;
        expected.replace(LINE_6, LINE_6_EDITED);
        QCOMPARE(FormatChecks::readFile(target), expected);
        QCOMPARE(FormatChecks::readFile(source), sample);
        // The page now shows the saved file, with the edited line open again.
        QCOMPARE(page->document()->path(), target);
        QCOMPARE(child<QLabel>("labelCurrentFile")->text(), QStringLiteral("saved.dlg"));
        QVERIFY(!page->hasChanges());
        QCOMPARE(pcForm()->getOriginalLine()->text(), QStringLiteral("Here is what I owe you. All of it."));
        QCOMPARE(pcForm()->getOriginalLine().data(), page->getModel()->getPCLine(6).data());
    }

    // Opening every line and touching its form writes the file back byte for byte.
    void untouchedRoundTrip()
    {
        loadSample();
        arcanum::DialogueFileNew* model = page->getModel();
        for (const auto& line : model->npcLines()) {
            QVERIFY(page->openNpcLine(line->index()));
            auto* text = npcForm()->findChild<QPlainTextEdit*>(QStringLiteral("maleText"));
            typeAtEnd(text, QStringLiteral("x"));
            QTest::keyClick(text, Qt::Key_Backspace);
        }
        for (const auto& line : model->pcLines()) {
            QVERIFY(page->openPcLine(line->index()));
            auto* text = pcForm()->findChild<QPlainTextEdit*>(QStringLiteral("text"));
            typeAtEnd(text, QStringLiteral("x"));
            QTest::keyClick(text, Qt::Key_Backspace);
        }
        QVERIFY(page->hasChanges());
        const QString target = dir.filePath(QStringLiteral("roundtrip.dlg"));
        QVERIFY(saveTo(target));
        QVERIFY(!page->hasChanges());
        QCOMPARE(FormatChecks::readFile(target), sample);
    }

    void loadWhileModified_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("opens");
        QTest::addColumn<bool>("written");
        QTest::newRow("save") << int(QMessageBox::Save) << true << true;
        QTest::newRow("discard") << int(QMessageBox::Discard) << true << false;
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << false;
    }

    void loadWhileModified()
    {
        QFETCH(int, answer);
        QFETCH(bool, opens);
        QFETCH(bool, written);
        const QString source = loadSample();
        const arcanum::DialogueFileNew* model = page->getModel();
        QVERIFY(page->openPcLine(2));
        typeAtEnd(pcForm()->findChild<QPlainTextEdit*>(QStringLiteral("text")), QStringLiteral("!"));
        QVERIFY(page->hasChanges());

        ScriptedAnswerer answers;
        answers.buttons << QMessageBox::StandardButton(answer) << QMessageBox::Yes;
        const QString other = write(QStringLiteral("other.dlg"), "{1}{Hi.}{}{}{}{}{}\r\n");
        QCOMPARE(page->openFile(other), opens);
        QCOMPARE(answers.asked.first().text, QStringLiteral("Save changes to sample.dlg?"));
        QCOMPARE(FormatChecks::readFile(source) != sample, written);
        if (opens) {
            QCOMPARE(treeNPC()->topLevelItemCount(), 1);
            QVERIFY(!page->hasChanges());
            QCOMPARE(currentForm()->objectName(), QStringLiteral("pageNoLine"));
        } else {
            QCOMPARE(page->getModel(), model);
            QCOMPARE(pcForm()->getOriginalLine()->index(), 2);
            QVERIFY(page->hasChanges());
        }
    }

    void formEditsUndo_data()
    {
        QTest::addColumn<int>("lines");
        QTest::newRow("one line") << 1;
        QTest::newRow("three lines") << 3;
    }

    void formEditsUndo()
    {
        QFETCH(int, lines);
        loadSample();
        QVERIFY(checkUndoRedo(*page->document(), [&] {
            const auto& pcLines = page->getModel()->pcLines();
            QVERIFY(pcLines.size() >= lines);
            for (int i = 0; i < lines; ++i) {
                QVERIFY(page->openPcLine(pcLines.at(i)->index()));
                typeAtEnd(pcForm()->findChild<QPlainTextEdit*>(QStringLiteral("text")), QStringLiteral(" Yes."));
            }
            QVERIFY(page->openNpcLine(1)); // leaving the last line applies its form
        }, lines));
        QCOMPARE(page->document()->undoStack()->undoText().left(10), QStringLiteral("Edit PC li"));
    }

    void conversationGraphOpensLines()
    {
        loadSample();
        QTest::mouseClick(child<QPushButton>("buttonGraph"), Qt::LeftButton);
        auto* view = page->findChild<ConversationView*>();
        QVERIFY(view);
        QVERIFY(view->window()->isVisible());
        const ConversationGraph& graph = view->graph();
        QVERIFY(graph.find(ConversationGraph::Kind::Npc, 40) >= 0);
        emit view->lineActivated(false, 40);
        QCOMPARE(currentForm()->objectName(), QStringLiteral("npcForm"));
        QCOMPARE(npcForm()->getOriginalLine()->index(), 40);
        // An applied edit shows in the graph at once.
        emit view->lineActivated(true, 7);
        typeAtEnd(pcForm()->findChild<QPlainTextEdit*>(QStringLiteral("text")), QStringLiteral(" Friend."));
        QVERIFY(page->openNpcLine(1));
        const int node = view->graph().find(ConversationGraph::Kind::Pc, 7);
        QCOMPARE(view->graph().nodes().at(node).label, QStringLiteral("Farewell. Friend."));
        // The legend can be put away, so it covers no box.
        auto* legend = view->findChild<QLabel*>(QStringLiteral("conversationLegend"));
        QVERIFY(legend->isVisible());
        QTest::mouseClick(view->window()->findChild<QPushButton*>(QStringLiteral("buttonLegend")), Qt::LeftButton);
        QVERIFY(!legend->isVisible());
        view->window()->close();
    }

    void openFileButton()
    {
        const QString path = write(QStringLiteral("button.dlg"), sample);
        ScriptedAnswerer answers;
        answers.fileNames << path;
        QTest::mouseClick(child<QPushButton>("buttonOpenFile"), Qt::LeftButton);
        QCOMPARE(answers.last(QStringLiteral("open"))->title, QStringLiteral("Open"));
        QCOMPARE(page->document()->path(), path);
        // Cancelling the chooser keeps the file.
        QTest::mouseClick(child<QPushButton>("buttonOpenFile"), Qt::LeftButton);
        QCOMPARE(page->document()->path(), path);
        QCOMPARE(answers.count(QStringLiteral("message")), 0);
    }

    void loadFailure()
    {
        loadSample();
        ScriptedAnswerer answers;
        const QString missing = dir.filePath(QStringLiteral("missing.dlg"));
        QVERIFY(!page->openFile(missing));
        const ScriptedAnswerer::Asked* message = answers.last(QStringLiteral("message"));
        QVERIFY(message);
        QCOMPARE(message->title, QStringLiteral("Cannot open file"));
        QVERIFY(message->text.startsWith(QStringLiteral("Could not open %1: ").arg(missing)));
        QCOMPARE(message->icon, QMessageBox::Warning);
        // The page goes on showing the file it had.
        QCOMPARE(child<QLabel>("labelCurrentFile")->text(), QStringLiteral("sample.dlg"));
        QVERIFY(page->openPcLine(2));
    }

    void saveFailure()
    {
        loadSample();
        QVERIFY(page->openNpcLine(30));
        typeAtEnd(npcForm()->findChild<QPlainTextEdit*>(QStringLiteral("maleText")), QStringLiteral("!"));
        ScriptedAnswerer answers;
        const QString target = dir.filePath(QStringLiteral("no/such/folder/out.dlg"));
        answers.fileNames << target;
        QTest::mouseClick(child<QPushButton>("buttonSaveAs"), Qt::LeftButton);
        const ScriptedAnswerer::Asked* message = answers.last(QStringLiteral("message"));
        QVERIFY(message);
        QCOMPARE(message->title, QStringLiteral("Save failed"));
        QVERIFY(message->text.startsWith(QStringLiteral("Could not save %1: ").arg(target)));
        QVERIFY(page->hasChanges());
        QVERIFY(page->document()->path().endsWith(QStringLiteral("sample.dlg")));
        // The edit went into the model all the same.
        QCOMPARE(page->getModel()->getNPCLine(30)->text(), QStringLiteral("Tobbin? He left for Tarant last week.!"));
    }

    void sortByChoice()
    {
        loadSample();
        QTest::mouseClick(child<QRadioButton>("radioNPC"), Qt::LeftButton);
        QVERIFY(treeNPC()->isVisible());
        QVERIFY(!treePC()->isVisible());
        QTest::mouseClick(child<QRadioButton>("radioPC"), Qt::LeftButton);
        QVERIFY(!treeNPC()->isVisible());
        QVERIFY(treePC()->isVisible());
    }

    // UTF-8 read in the game's code page leaves "И" (0xD0 0x98) unreadable: the strip offers UTF-8.
    void suggestedEncodingReadsTheFile()
    {
        const QByteArray utf8 = QStringLiteral("{1}{Иди за мной.}{}{}{}{}{}\r\n\r\n").toUtf8();
        EncodingChecks::suggestionReadsTheFile([] { return std::make_unique<DialogueEditWidget>(); },
                                               dir.filePath(QStringLiteral("follow.dlg")), utf8, "UTF-8");
    }

    void unreadRestIsReported()
    {
        const QByteArray bytes = "{1}{Hello.}{}{}{}{}{}\r\n{2}{Broken}{}\r\n";
        const QString path = write(QStringLiteral("broken.dlg"), bytes);
        QVERIFY(openFile(path));
        QVERIFY(child<QLabel>("labelUnread")->isVisible());
        QVERIFY(page->document()->damage().contains(QStringLiteral("from file line 2 on")));
        QVERIFY(child<QLabel>("labelUnread")->text().contains(QStringLiteral("{2}{Broken}{}")));
        QCOMPARE(treeNPC()->topLevelItemCount(), 1);
        const QString target = dir.filePath(QStringLiteral("broken-saved.dlg"));
        QVERIFY(saveTo(target));
        QCOMPARE(FormatChecks::readFile(target), QByteArray(bytes + "\r\n"));
    }
};

QTEST_MAIN(TestDialogueEditor)
#include "tst_dialogue_editor.moc"
