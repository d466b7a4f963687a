// Writing new dialogue: adding, deleting and renumbering lines in the model, as undo steps of the
// document and through the page, and moving through the lines opened.
#include "ConversationGraph.h"
#include "ConversationView.h"
#include "DialogueDocument.h"
#include "DialogueEditWidget.h"
#include "DlgNpcLineEditWidget.h"
#include "DlgPcLineEditWidget.h"
#include "FormatChecks.h"
#include "LineHistory.h"
#include "LineNumberDialog.h"
#include "NamedChild.h"
#include "ScriptedAnswerer.h"
#include "UndoChecks.h"

#include <QGraphicsItem>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QUndoStack>
#include <QtTest>

#include <memory>

using arcanum::DialogueFileNew;
using Kind = DialogueFileNew::LineKind;

namespace {

// Line 30 is named by a response line (11), an NPC line's goto and float (10), a join (12, which also
// has an opcode the game does not know, so it is kept as read) and an unwait (20).
QByteArray fileOf(const QStringList& lines)
{
    return (lines.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n\r\n")).toLatin1();
}

const QStringList CONVERSATION = {
    QStringLiteral("{1}{Hello.}{}{}{}{}{}"),
    QStringLiteral("\t{2}{Work?}{}{1}{}{10}{}"),
    QStringLiteral("\t{3}{Bye.}{}{1}{}{0}{}"),
    QStringLiteral("{10}{Good.}{}{}{}{30}{fl 30}"),
    QStringLiteral("\t{11}{Go on.}{}{1}{}{30}{}"),
    QStringLiteral("\t{12}{Join?}{}{1}{}{20}{JO 30 40,  zz 5}"),
    QStringLiteral("{20}{Wait.}{}{}{}{}{uw 30 5}"),
    QStringLiteral("{30}{The end of it.}{}{}{}{}{}"),
    QStringLiteral("{40}{Other.}{}{}{}{}{}"),
};

QStringList inserted(QStringList lines, int at, const QString& line)
{
    lines.insert(at, line);
    return lines;
}

QByteArray bytesOf(const Document& document)
{
    QByteArray bytes;
    QString error;
    document.serialize(bytes, error);
    return bytes;
}

} // namespace

class TestDialogueEditorLines : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;
    std::unique_ptr<DialogueDocument> document;
    std::unique_ptr<DialogueEditWidget> page;

    template <typename T>
    T* child(const char* name) const
    {
        return namedChild<T>(page.get(), name);
    }

    QString openPage(const QByteArray& bytes)
    {
        const QString path = dir.filePath(QStringLiteral("talk.dlg"));
        FormatChecks::writeFile(path, bytes);
        page = std::make_unique<DialogueEditWidget>();
        page->resize(1200, 800);
        page->show();
        ScriptedAnswerer quiet;
        if (!page->openFile(path))
            qFatal("cannot open %s", qPrintable(path));
        return path;
    }

    QByteArray saved(const QString& path)
    {
        ScriptedAnswerer answers;
        answers.fileNames << path;
        if (!page->saveAs())
            return QByteArray("save failed");
        return FormatChecks::readFile(path);
    }

    // The Line number field of the open NPC line's form.
    QSpinBox* lineNumberField() const
    {
        return page->findChild<DlgNpcLineEditWidget*>()->findChild<QSpinBox*>(QStringLiteral("spinLineNumber"));
    }

    // A number typed into the field and finished with Enter.
    static void typeNumber(QSpinBox* field, int number)
    {
        field->setValue(number);
        emit field->editingFinished();
    }

    static std::function<int(QDialog&)> typing(const QString& number)
    {
        return [number](QDialog& dialog) {
            dialog.findChild<QLineEdit*>(QStringLiteral("lineNumber"))->setText(number);
            return int(QDialog::Accepted);
        };
    }

private slots:
    void init() { document = DialogueDocument::fromBytes(QStringLiteral("talk.dlg"), fileOf(CONVERSATION)); }

    void cleanup()
    {
        page.reset();
        document.reset();
    }

    void untouchedFileIsWrittenAsRead() { QCOMPARE(bytesOf(*document), fileOf(CONVERSATION)); }

    // Each edit is one step; undo gives the file as read, redo the edited bytes.
    void editsAreOneStep_data()
    {
        QTest::addColumn<int>("edit");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("add NPC line") << 0 << fileOf(inserted(CONVERSATION, 3, QStringLiteral("{6}{}{}{}{}{}{}")));
        QTest::newRow("add PC response") << 1 << fileOf(inserted(CONVERSATION, 3, QStringLiteral("\t{6}{}{}{0}{}{0}{}")));
        QStringList withoutLine11 = CONVERSATION;
        withoutLine11.removeAt(4);
        QTest::newRow("delete") << 2 << fileOf(withoutLine11);
        QStringList renumbered = CONVERSATION;
        renumbered[3] = QStringLiteral("{10}{Good.}{}{}{}{35}{fl 35}");
        renumbered[4] = QStringLiteral("\t{11}{Go on.}{}{1}{}{35}{}");
        renumbered[5] = QStringLiteral("\t{12}{Join?}{}{1}{}{20}{JO 35 40,  zz 5}");
        renumbered[6] = QStringLiteral("{20}{Wait.}{}{}{}{}{uw 35 5}");
        renumbered[7] = QStringLiteral("{35}{The end of it.}{}{}{}{}{}");
        QTest::newRow("renumber with every reference") << 3 << fileOf(renumbered);
        QTest::newRow("renumber past other lines")
            << 4 << fileOf(CONVERSATION.mid(1) + QStringList{QStringLiteral("{50}{Hello.}{}{}{}{}{}")});
    }

    void editsAreOneStep()
    {
        QFETCH(int, edit);
        QFETCH(QByteArray, expected);
        QVERIFY(checkUndoRedo(*document, [&] {
            QString error;
            switch (edit) {
            case 0:
                QVERIFY(document->addLine(Kind::Npc, document->dialogue().proposedNumber(3), error));
                break;
            case 1:
                QVERIFY(document->addLine(Kind::Pc, document->dialogue().proposedNumber(3), error));
                break;
            case 2:
                QVERIFY(document->deleteLines({{Kind::Pc, 11}}));
                break;
            case 3:
                QVERIFY(document->renumberLine(Kind::Npc, 30, 35, error));
                break;
            case 4:
                QVERIFY(document->renumberLine(Kind::Npc, 1, 50, error));
                break;
            }
        }, 1));
        QCOMPARE(bytesOf(*document), expected);
    }

    void refusedNumbers_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("message");
        QTest::newRow("in use") << QStringLiteral("40") << QStringLiteral("Line 40 is already in use.");
        QTest::newRow("negative") << QStringLiteral("-1") << QStringLiteral("\"-1\" is no line number");
        QTest::newRow("too large") << QStringLiteral("2147483648") << QStringLiteral("\"2147483648\" is no line number");
        QTest::newRow("no number") << QStringLiteral("4a") << QStringLiteral("\"4a\" is no line number");
    }

    void refusedNumbers()
    {
        QFETCH(QString, typed);
        QFETCH(QString, message);
        int number = 0;
        QVERIFY(document->refusedNumber(typed, number).startsWith(message));
        QString error;
        QVERIFY(!document->addLine(Kind::Npc, 40, error));
        QCOMPARE(error, QStringLiteral("Line 40 is already in use."));
        QVERIFY(!document->addLine(Kind::Pc, -1, error));
        QCOMPARE(document->undoStack()->count(), 0);
        QCOMPARE(bytesOf(*document), fileOf(CONVERSATION));
    }

    void renumberRefusals()
    {
        QString error;
        QVERIFY(!document->renumberLine(Kind::Npc, 30, 40, error));
        QCOMPARE(error, QStringLiteral("Line 40 is already in use."));
        QVERIFY(!document->renumberLine(Kind::Npc, 30, 0, error));
        QVERIFY(error.contains(QStringLiteral("ends the conversation")));
        QVERIFY(!document->renumberLine(Kind::Pc, 30, 31, error)); // 30 is no PC line
        QCOMPARE(document->undoStack()->count(), 0);
        QCOMPARE(bytesOf(*document), fileOf(CONVERSATION));
        QVERIFY(document->renumberLine(Kind::Npc, 1, 0, error)); // nothing leads to 1
    }

    // A response belongs to the NPC line numbered last before it.
    void responsesMovedByARenumbering_data()
    {
        QTest::addColumn<bool>("npc");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QList<int>>("moved");
        QTest::newRow("NPC line within its gap") << true << 30 << 35 << QList<int>();
        QTest::newRow("NPC line back before its responses") << true << 10 << 5 << QList<int>();
        QTest::newRow("NPC line past its responses") << true << 10 << 15 << QList<int>{11, 12};
        QTest::newRow("NPC line without responses past others'") << true << 20 << 4 << QList<int>();
        QTest::newRow("response within its NPC line") << false << 11 << 13 << QList<int>();
        QTest::newRow("response to another NPC line") << false << 11 << 25 << QList<int>{11};
    }

    void responsesMovedByARenumbering()
    {
        QFETCH(bool, npc);
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(QList<int>, moved);
        QCOMPARE(document->responsesMovedBy(npc ? Kind::Npc : Kind::Pc, from, to), moved);
    }

    void linesNamingALine()
    {
        QCOMPARE(document->dialogue().linesNaming(30), (QList<int>{10, 11, 12, 20}));
        QCOMPARE(document->dialogue().linesNaming(40), (QList<int>{12}));
        QCOMPARE(document->dialogue().linesNaming(0), QList<int>()); // an end code, not a line
        QCOMPARE(document->dialogue().linesNaming(1), QList<int>());
    }

    // A twin keeps the number: references may mean it, so they stay.
    void renumberingOneOfTwinsKeepsReferences()
    {
        const QByteArray twins = fileOf({QStringLiteral("{1}{A}{}{}{}{}{}"), QStringLiteral("\t{2}{B}{}{1}{}{5}{}"),
                                         QStringLiteral("{5}{C}{}{}{}{}{}"), QStringLiteral("{5}{D}{}{}{}{}{}")});
        document = DialogueDocument::fromBytes(QStringLiteral("twins.dlg"), twins);
        QString error;
        QVERIFY(document->renumberLine(Kind::Npc, 5, 6, error));
        QCOMPARE(bytesOf(*document), fileOf({QStringLiteral("{1}{A}{}{}{}{}{}"), QStringLiteral("\t{2}{B}{}{1}{}{5}{}"),
                                             QStringLiteral("{5}{D}{}{}{}{}{}"), QStringLiteral("{6}{C}{}{}{}{}{}")}));
    }

    void proposedNumbers_data()
    {
        QTest::addColumn<int>("after");
        QTest::addColumn<int>("proposed");
        QTest::newRow("in the gap") << 20 << 25;
        QTest::newRow("no gap: first free above") << 1 << 4;
        QTest::newRow("after the last") << 40 << 41;
        QTest::newRow("nothing selected") << -1 << 41;
    }

    void proposedNumbers()
    {
        QFETCH(int, after);
        QFETCH(int, proposed);
        QCOMPARE(document->dialogue().proposedNumber(after < 0 ? std::nullopt : std::optional<int>(after)), proposed);
        DialogueFileNew full;
        QVERIFY(full.addLine(Kind::Npc, DialogueFileNew::MAXIMUM_LINE));
        QCOMPARE(full.proposedNumber(DialogueFileNew::MAXIMUM_LINE), 0);
    }

    void history()
    {
        LineHistory lines;
        QVERIFY(!lines.canGoBack());
        for (int number : {1, 10, 10, 30})
            lines.visit({0, number});
        QCOMPARE(lines.back()->number, 10);
        QCOMPARE(lines.back()->number, 1);
        QVERIFY(!lines.back());
        QCOMPARE(lines.forward()->number, 10);
        lines.visit({1, 2}); // drops 30 ahead
        QVERIFY(!lines.canGoForward());
        lines.renumber(0, 1, 5);
        QCOMPARE(lines.back()->number, 10);
        QCOMPARE(lines.back()->number, 5);
    }

    // The page: the number typed into the form renumbers the line and every reference, in one step;
    // a number in use is refused with a message and the field shows the line's number again.
    void pageRenumbersFromTheForm()
    {
        const QString path = openPage(fileOf(CONVERSATION));
        QVERIFY(page->openLine(30));
        QSpinBox* spin = lineNumberField();
        {
            ScriptedAnswerer answers;
            typeNumber(spin, 40);
            QCOMPARE(answers.count(QStringLiteral("message")), 1);
            QCOMPARE(answers.last(QStringLiteral("message"))->text, QStringLiteral("Line 40 is already in use."));
            QCOMPARE(spin->value(), 30);
        }
        typeNumber(spin, 35);
        QCOMPARE(page->document()->undoStack()->count(), 1);
        QCOMPARE(page->findChild<DlgNpcLineEditWidget*>()->getOriginalLine()->index(), 35);
        QVERIFY(saved(path).contains("\t{12}{Join?}{}{1}{}{20}{JO 35 40,  zz 5}\r\n"));
        page->document()->undoStack()->undo();
        QCOMPARE(page->findChild<DlgNpcLineEditWidget*>()->getOriginalLine()->index(), 30); // still open
        QCOMPARE(saved(path), fileOf(CONVERSATION));
    }

    // Return finishes the field's editing, and so does the message taking the focus from it: the refusal
    // is said once, and the field shows the line's number again.
    void pageRefusesARenumberingOnce()
    {
        openPage(fileOf(CONVERSATION));
        QVERIFY(page->openLine(30));
        QSpinBox* spin = lineNumberField();
        struct LeavingTheField : ScriptedAnswerer
        {
            QSpinBox* field = nullptr;
            void message(QMessageBox::Icon icon, const QString& title, const QString& text) override
            {
                ScriptedAnswerer::message(icon, title, text);
                if (count(QStringLiteral("message")) == 1)
                    emit field->editingFinished();
            }
        } answers;
        answers.field = spin;
        typeNumber(spin, 40);
        QCOMPARE(answers.count(QStringLiteral("message")), 1);
        QCOMPARE(spin->value(), 30);
        QCOMPARE(page->document()->undoStack()->count(), 0);
    }

    // A number past other lines would give an NPC line's responses to another: asked first, No by default.
    void pageAsksBeforeMovingResponses()
    {
        const QString path = openPage(fileOf(CONVERSATION));
        QVERIFY(page->openLine(10));
        QSpinBox* spin = lineNumberField();
        {
            ScriptedAnswerer answers;
            typeNumber(spin, 15);
            QCOMPARE(answers.count(QStringLiteral("question")), 1);
            QCOMPARE(answers.last(QStringLiteral("question"))->text,
                     QStringLiteral("As line 15, line 10 would change which NPC line offers responses 11, 12. "
                                    "Renumber it anyway?"));
            QCOMPARE(spin->value(), 10);
            QCOMPARE(page->document()->undoStack()->count(), 0);
        }
        ScriptedAnswerer answers;
        answers.buttons << QMessageBox::Yes;
        typeNumber(spin, 15);
        QCOMPARE(page->document()->undoStack()->count(), 1);
        QCOMPARE(page->findChild<DlgNpcLineEditWidget*>()->getOriginalLine()->index(), 15);
    }

    // A new line takes the keyboard: what is typed next is its text.
    void pageAddedLineTakesTheKeyboard()
    {
        const QString path = openPage(fileOf(CONVERSATION));
        page->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(page.get()));
        QVERIFY(page->openLine(20));
        ScriptedAnswerer answers;
        answers.dialogs << typing(QStringLiteral("21"));
        auto* add = child<QPushButton>("buttonAddNpc");
        add->setFocus();
        QTest::mouseClick(add, Qt::LeftButton);
        QVERIFY(QApplication::focusWidget() != nullptr);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Who goes there"));
        QCOMPARE(answers.count(QStringLiteral("dialog")), 1);
        QVERIFY(saved(path).contains("{21}{Who goes there}"));
    }

    // Leaving the page with the keyboard (for the undo history, another window) applies what the form holds.
    void pageAppliesTheFormWhenLeft()
    {
        openPage(fileOf(CONVERSATION));
        page->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(page.get()));
        QVERIFY(page->openLine(40));
        auto* text = page->findChild<QPlainTextEdit*>(QStringLiteral("maleText"));
        text->setFocus();
        text->moveCursor(QTextCursor::End);
        QTest::keyClicks(text, QStringLiteral(" Or not."));
        QCOMPARE(page->document()->undoStack()->count(), 0);
        QLineEdit elsewhere;
        elsewhere.show();
        elsewhere.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&elsewhere));
        elsewhere.setFocus();
        QCOMPARE(page->document()->undoStack()->count(), 1);
        QCOMPARE(page->getModel()->getNPCLine(40)->text(), QStringLiteral("Other. Or not."));
    }

    // Enter in a tree opens the current line, as a double click does.
    void pageEnterOpensTheLine()
    {
        openPage(fileOf(CONVERSATION));
        page->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(page.get()));
        auto* tree = child<QTreeWidget>("treePC");
        tree->setFocus();
        tree->setCurrentItem(tree->findItems(QStringLiteral("12"), Qt::MatchExactly, 1).value(0));
        QTest::keyClick(tree, Qt::Key_Return);
        QVERIFY(page->findChild<DlgPcLineEditWidget*>()->getOriginalLine());
        QCOMPARE(page->findChild<DlgPcLineEditWidget*>()->getOriginalLine()->index(), 12);
        auto* npcTree = child<QTreeWidget>("treeNPC");
        npcTree->setFocus();
        npcTree->setCurrentItem(npcTree->findItems(QStringLiteral("40:"), Qt::MatchStartsWith).value(0));
        QTest::keyClick(npcTree, Qt::Key_Enter);
        QCOMPARE(page->findChild<DlgNpcLineEditWidget*>()->getOriginalLine()->index(), 40);
    }

    // The heading says where a response goes: a line, the end, or a game code.
    void pageHeadingNamesEnds_data()
    {
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("heading");
        QTest::newRow("line") << 11 << QStringLiteral("answered by NPC line");
        QTest::newRow("end") << 3 << QStringLiteral("ends the conversation");
        QTest::newRow("game code") << 5 << QStringLiteral("ends the conversation with game code -1");
    }

    void pageHeadingNamesEnds()
    {
        QFETCH(int, line);
        QFETCH(QString, heading);
        openPage(fileOf(inserted(CONVERSATION, 3, QStringLiteral("\t{5}{Trade.}{}{1}{}{-1}{}"))));
        QVERIFY(page->openPcLine(line));
        QVERIFY2(child<QLabel>("labelOpenLine")->text().contains(heading), qPrintable(child<QLabel>("labelOpenLine")->text()));
    }

    void pageAddsAfterTheSelectedLine()
    {
        const QString path = openPage(fileOf(CONVERSATION));
        QVERIFY(page->openLine(20));
        ScriptedAnswerer answers;
        answers.dialogs << typing(QStringLiteral("30")) << typing(QStringLiteral("x")) << [](QDialog& dialog) {
            // The proposal is still there to take.
            return dialog.findChild<QLineEdit*>(QStringLiteral("lineNumber"))->text() == QStringLiteral("x")
                       ? int(QDialog::Accepted)
                       : int(QDialog::Rejected);
        };
        QTest::mouseClick(child<QPushButton>("buttonAddPc"), Qt::LeftButton);
        QStringList messages;
        for (const ScriptedAnswerer::Asked& asked : answers.asked)
            if (asked.kind == QStringLiteral("message"))
                messages << asked.text;
        QCOMPARE(messages.size(), 3);
        QCOMPARE(messages.first(), QStringLiteral("Line 30 is already in use."));
        QVERIFY(messages.last().startsWith(QStringLiteral("\"x\" is no line number")));
        QCOMPARE(page->document()->undoStack()->count(), 0);

        answers.dialogs << [](QDialog& dialog) {
            // Proposed in the gap after line 20.
            return dialog.findChild<QLineEdit*>(QStringLiteral("lineNumber"))->text() == QStringLiteral("25")
                       ? int(QDialog::Accepted)
                       : int(QDialog::Rejected);
        };
        QTest::mouseClick(child<QPushButton>("buttonAddPc"), Qt::LeftButton);
        QCOMPARE(page->findChild<DlgPcLineEditWidget*>()->getOriginalLine()->index(), 25);
        QCOMPARE(saved(path), fileOf(inserted(CONVERSATION, 7, QStringLiteral("\t{25}{}{}{0}{}{0}{}"))));
    }

    void pageDeleteListsTheLinesLeadingThere()
    {
        const QString path = openPage(fileOf(CONVERSATION));
        QVERIFY(page->openLine(30));
        {
            ScriptedAnswerer answers; // no answer: the default, No
            QTest::mouseClick(child<QPushButton>("buttonDelete"), Qt::LeftButton);
            QCOMPARE(answers.last(QStringLiteral("question"))->text,
                     QStringLiteral("Lines 10, 11, 12, 20 lead to line 30. Delete it anyway?"));
            QCOMPARE(answers.last(QStringLiteral("question"))->defaultButton, QMessageBox::No);
            QCOMPARE(page->document()->undoStack()->count(), 0);
        }
        ScriptedAnswerer answers;
        answers.buttons << QMessageBox::Yes;
        QTest::mouseClick(child<QPushButton>("buttonDelete"), Qt::LeftButton);
        QCOMPARE(page->document()->undoStack()->count(), 1);
        QStringList without30 = CONVERSATION;
        without30.removeAt(7);
        QCOMPARE(saved(path), fileOf(without30));
        // A line nothing leads to goes without a question.
        QVERIFY(page->openLine(1));
        QTest::mouseClick(child<QPushButton>("buttonDelete"), Qt::LeftButton);
        QCOMPARE(answers.count(QStringLiteral("question")), 1);
        QVERIFY(!page->getModel()->getNPCLine(1));
    }

    // An NPC line's responses go with it in the same step: left behind, they would become answers to the
    // NPC line before it.
    void pageDeletesAnNpcLineWithItsResponses()
    {
        const QString path = openPage(fileOf(CONVERSATION));
        QVERIFY(page->openLine(10));
        ScriptedAnswerer answers;
        answers.buttons << QMessageBox::Yes;
        QTest::mouseClick(child<QPushButton>("buttonDelete"), Qt::LeftButton);
        QCOMPARE(answers.last(QStringLiteral("question"))->text,
                 QStringLiteral("Line 2 leads to one of lines 10, 11, 12. Delete them anyway?"));
        QCOMPARE(page->document()->undoStack()->count(), 1);
        QStringList without10 = CONVERSATION;
        without10.erase(without10.begin() + 3, without10.begin() + 6);
        QCOMPARE(saved(path), fileOf(without10));
        page->document()->undoStack()->undo();
        QCOMPARE(saved(path), fileOf(CONVERSATION));
    }

    // Several lines selected in a tree go in one step, after one question listing what leads to any of them.
    void pageDeletesSeveralLines()
    {
        const QString path = openPage(fileOf(CONVERSATION));
        auto* tree = child<QTreeWidget>("treeNPC");
        tree->setFocus();
        tree->setCurrentItem(tree->findItems(QStringLiteral("30:"), Qt::MatchStartsWith).value(0));
        tree->findItems(QStringLiteral("40:"), Qt::MatchStartsWith).value(0)->setSelected(true);
        ScriptedAnswerer answers;
        answers.buttons << QMessageBox::Yes;
        QTest::mouseClick(child<QPushButton>("buttonDelete"), Qt::LeftButton);
        QCOMPARE(answers.last(QStringLiteral("question"))->text,
                 QStringLiteral("Lines 10, 11, 12, 20 lead to lines 30, 40. Delete them anyway?"));
        QCOMPARE(page->document()->undoStack()->count(), 1);
        QCOMPARE(page->document()->undoStack()->undoText(), QStringLiteral("Delete 2 lines"));
        QCOMPARE(saved(path), fileOf(CONVERSATION.mid(0, 7)));
        // The Del key of a tree does the same.
        page->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(page.get()));
        tree->setFocus();
        tree->setCurrentItem(tree->findItems(QStringLiteral("20:"), Qt::MatchStartsWith).value(0));
        QTest::keyClick(tree, Qt::Key_Delete);
        QCOMPARE(answers.last(QStringLiteral("question"))->text, QStringLiteral("Line 12 leads to line 20. Delete it anyway?"));
    }

    // The conversation window follows every edit, its undo included.
    void graphFollowsEdits()
    {
        openPage(fileOf(CONVERSATION));
        QTest::mouseClick(child<QPushButton>("buttonGraph"), Qt::LeftButton);
        auto* view = page->findChild<ConversationView*>();
        QVERIFY(view);
        QVERIFY(page->openLine(30));
        QSpinBox* spin = lineNumberField();
        typeNumber(spin, 35);
        QVERIFY(view->graph().find(ConversationGraph::Kind::Npc, 30) < 0);
        QVERIFY(view->graph().find(ConversationGraph::Kind::Npc, 35) >= 0);
        QCOMPARE(view->graph().nodes().at(view->graph().find(ConversationGraph::Kind::Pc, 11)).marks, 0);
        page->document()->undoStack()->undo();
        QVERIFY(view->graph().find(ConversationGraph::Kind::Npc, 30) >= 0);
        {
            ScriptedAnswerer answers;
            answers.buttons << QMessageBox::Yes;
            QVERIFY(page->openLine(30));
            QTest::mouseClick(child<QPushButton>("buttonDelete"), Qt::LeftButton);
        }
        // Response 11 now leads nowhere.
        QCOMPARE(view->graph().nodes().at(view->graph().find(ConversationGraph::Kind::Pc, 11)).marks,
                 int(ConversationGraph::Dangling));
        view->window()->close();
    }

    // A click on a box opens its line, keeps that box selected and leaves the view where it was; the form
    // left behind is applied first, which lays the graph out again under the click.
    void graphClickKeepsTheView()
    {
        openPage(fileOf(CONVERSATION));
        QVERIFY(page->openLine(1));
        page->findChild<QPlainTextEdit*>(QStringLiteral("maleText"))->setPlainText(QStringLiteral("Hi."));
        QTest::mouseClick(child<QPushButton>("buttonGraph"), Qt::LeftButton);
        auto* view = page->findChild<ConversationView*>();
        view->window()->resize(420, 300);
        QVERIFY(QTest::qWaitForWindowExposed(view->window()));
        const ConversationGraph::Node& node = view->graph().nodes().at(view->graph().find(ConversationGraph::Kind::Pc, 11));
        const QSizeF box(ConversationGraph::NODE_WIDTH, ConversationGraph::NODE_HEIGHT);
        view->ensureVisible(QRectF(node.position - QPointF(box.width() / 2, box.height() / 2), box), 30, 30);
        const QPoint scrolled(view->horizontalScrollBar()->value(), view->verticalScrollBar()->value());
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, view->mapFromScene(node.position));
        QCOMPARE(page->findChild<DlgPcLineEditWidget*>()->getOriginalLine()->index(), 11);
        QCOMPARE(page->getModel()->getNPCLine(1)->text(), QStringLiteral("Hi."));
        QCOMPARE(QPoint(view->horizontalScrollBar()->value(), view->verticalScrollBar()->value()), scrolled);
        const QList<QGraphicsItem*> chosen = view->scene()->selectedItems();
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.first()->data(0).toInt(), view->graph().find(ConversationGraph::Kind::Pc, 11));
        view->window()->close();
    }

    void pageHistoryAndTargets()
    {
        openPage(fileOf(CONVERSATION));
        auto* back = child<QPushButton>("buttonPrevious");
        auto* forward = child<QPushButton>("buttonForward");
        QVERIFY(!back->isEnabled());
        // Double-clicking the Response column of response 11 opens the line it leads to.
        auto* tree = child<QTreeWidget>("treePC");
        QTreeWidgetItem* item = tree->findItems(QStringLiteral("11"), Qt::MatchExactly, 1).value(0);
        QVERIFY(item);
        QVERIFY(page->openLine(1));
        emit tree->itemDoubleClicked(item, 0);
        QCOMPARE(page->findChild<DlgNpcLineEditWidget*>()->getOriginalLine()->index(), 30);
        emit tree->itemDoubleClicked(item, 2);
        QCOMPARE(page->findChild<DlgPcLineEditWidget*>()->getOriginalLine()->index(), 11);
        // The heading's link goes where the response leads.
        emit child<QLabel>("labelOpenLine")->linkActivated(QStringLiteral("30"));
        QCOMPARE(page->findChild<DlgNpcLineEditWidget*>()->getOriginalLine()->index(), 30);
        QVERIFY(back->isEnabled());
        QVERIFY(!forward->isEnabled());
        QTest::mouseClick(back, Qt::LeftButton);
        QCOMPARE(page->findChild<DlgPcLineEditWidget*>()->getOriginalLine()->index(), 11);
        QTest::mouseClick(back, Qt::LeftButton);
        QTest::mouseClick(back, Qt::LeftButton);
        QCOMPARE(page->findChild<DlgNpcLineEditWidget*>()->getOriginalLine()->index(), 1);
        QVERIFY(!back->isEnabled());
        QTest::mouseClick(forward, Qt::LeftButton);
        QCOMPARE(page->findChild<DlgNpcLineEditWidget*>()->getOriginalLine()->index(), 30);
        // A target that is no line of the file says so.
        ScriptedAnswerer answers;
        emit child<QLabel>("labelOpenLine")->linkActivated(QStringLiteral("99"));
        QCOMPARE(answers.count(QStringLiteral("message")), 1);
    }
};

QTEST_MAIN(TestDialogueEditorLines)
#include "tst_dialogue_editor_lines.moc"
