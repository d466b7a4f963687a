// The conversation graph: which lines lead where, the marks of suspicious lines and the layered layout.
#include "ConversationGraph.h"
#include "ConversationView.h"

#include <QSignalSpy>
#include <QTextStream>
#include <QtTest>

using Graph = ConversationGraph;

namespace {

arcanum::DialogueFileNew dialogueOf(QString text)
{
    arcanum::DialogueFileNew dialogue;
    QTextStream stream(&text);
    dialogue.read(stream);
    dialogue.sortLines();
    return dialogue;
}

// NPC 1 offers 2, 3 and 4; 2 leads to NPC 10, 3 ends, 4 leads to a line the file does not have.
// NPC 20 is reached by nothing and shares its number with NPC line 20 again.
const char* const CONVERSATION = "{1}{Hello there, traveller, what brings you}{}{}{}{}{}\n"
                                 "{2}{Work.}{}{1}{}{10}{}\n"
                                 "{3}{Bye.}{}{1}{}{0}{}\n"
                                 "{4}{Huh?}{}{1}{}{99}{}\n"
                                 "{10}{Good.}{}{}{}{}{}\n"
                                 "{20}{Orphan}{}{}{}{}{}\n"
                                 "{20}{Twin}{}{}{}{}{}\n";

// NPC 1 goes on with NPC 5 by its own response line; NPC 5 offers a response ending in game code -2 and
// a join naming NPC 8 (so 8 is not unreached); NPC 9 goes on with a missing line; response 11 has an
// opcode the game does not know.
const char* const FLOWS = "{1}{Start}{}{}{}{5}{}\n"
                          "{5}{Middle}{}{}{}{}{}\n"
                          "{6}{Leave}{}{1}{}{-2}{}\n"
                          "{7}{Join}{}{1}{}{0}{jo 8 9}\n"
                          "{8}{Joined}{}{}{}{}{}\n"
                          "{9}{Lost}{}{}{}{77}{}\n"
                          "{10}{Alone}{}{}{}{}{}\n"
                          "{11}{Odd}{}{1}{}{0}{zz 1}\n";

} // namespace

class TestDialogueGraph : public QObject
{
    Q_OBJECT

private slots:
    void marks_data()
    {
        QTest::addColumn<bool>("pc");
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("marks");
        QTest::addColumn<int>("layer");
        QTest::newRow("first line") << false << 1 << 0 << 0;
        QTest::newRow("response") << true << 2 << 0 << 1;
        QTest::newRow("ending response") << true << 3 << 0 << 1;
        QTest::newRow("response to a missing line") << true << 4 << int(Graph::Dangling) << 1;
        QTest::newRow("reached line") << false << 10 << 0 << 2;
        QTest::newRow("unreached duplicate") << false << 20 << int(Graph::Unreached | Graph::Duplicate) << 3;
    }

    void marks()
    {
        QFETCH(bool, pc);
        QFETCH(int, line);
        QFETCH(int, marks);
        QFETCH(int, layer);
        const Graph graph = Graph::build(dialogueOf(QString::fromLatin1(CONVERSATION)));
        const int node = graph.find(pc ? Graph::Kind::Pc : Graph::Kind::Npc, line);
        QVERIFY(node >= 0);
        QCOMPARE(graph.nodes().at(node).marks, marks);
        QCOMPARE(graph.nodes().at(node).layer, layer);
    }

    // Lines the game reads with only a note (an empty response, no blank after a code) are no problem.
    void noteOnlyLinesAreMarkedAsNotes()
    {
        const Graph graph = Graph::build(dialogueOf(QStringLiteral("{1}{Hi}{}{}{}{}{}\n"
                                                                   "{2}{Bye.}{}{1}{}{}{}\n"
                                                                   "{3}{Pay.}{}{1}{}{0}{$$5}\n"
                                                                   "{4}{Odd.}{}{1}{zz 1}{0}{}\n")));
        QCOMPARE(graph.nodes().at(graph.find(Graph::Kind::Pc, 2)).marks, int(Graph::Note));
        QCOMPARE(graph.nodes().at(graph.find(Graph::Kind::Pc, 3)).marks, int(Graph::Note));
        QCOMPARE(graph.nodes().at(graph.find(Graph::Kind::Pc, 4)).marks, int(Graph::Problem));
        QVERIFY(ConversationView::colourOf(graph.nodes().at(graph.find(Graph::Kind::Pc, 2)))
                != ConversationView::colourOf(graph.nodes().at(graph.find(Graph::Kind::Pc, 4))));
    }

    void flowMarks_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("marks");
        QTest::newRow("reached by an NPC line's response line") << int(Graph::Kind::Npc) << 5 << 0;
        QTest::newRow("named by a join") << int(Graph::Kind::Npc) << 8 << 0;
        QTest::newRow("named by a join, leads nowhere") << int(Graph::Kind::Npc) << 9 << int(Graph::Dangling);
        QTest::newRow("nothing leads here") << int(Graph::Kind::Npc) << 10 << int(Graph::Unreached);
        QTest::newRow("line with problems") << int(Graph::Kind::Pc) << 11 << int(Graph::Problem);
        QTest::newRow("end") << int(Graph::Kind::End) << 0 << 0;
        QTest::newRow("game code") << int(Graph::Kind::End) << -2 << 0;
    }

    void flowMarks()
    {
        QFETCH(int, kind);
        QFETCH(int, line);
        QFETCH(int, marks);
        const Graph graph = Graph::build(dialogueOf(QString::fromLatin1(FLOWS)));
        const int node = graph.find(Graph::Kind(kind), line);
        QVERIFY(node >= 0);
        QCOMPARE(graph.nodes().at(node).marks, marks);
        // An end marker sits below the response that leads there.
        if (Graph::Kind(kind) == Graph::Kind::End)
            QVERIFY(graph.nodes().at(node).layer > 0);
    }

    void edgesAndEnds()
    {
        const Graph graph = Graph::build(dialogueOf(QString::fromLatin1(CONVERSATION)));
        const auto leads = [&graph](int from, int to) {
            for (const Graph::Edge& edge : graph.edges())
                if (edge.from == from && edge.to == to)
                    return true;
            return false;
        };
        const int npc1 = graph.find(Graph::Kind::Npc, 1);
        for (int pc : {2, 3, 4})
            QVERIFY(leads(npc1, graph.find(Graph::Kind::Pc, pc)));
        QVERIFY(leads(graph.find(Graph::Kind::Pc, 2), graph.find(Graph::Kind::Npc, 10)));
        const int end = graph.find(Graph::Kind::End, 0);
        QVERIFY(end >= 0);
        QVERIFY(leads(graph.find(Graph::Kind::Pc, 3), end));
        QCOMPARE(graph.nodes().at(graph.find(Graph::Kind::Npc, 1)).label,
                 QStringLiteral("Hello there, traveller, what brings you"));
    }

    void layersDoNotOverlap()
    {
        QString text;
        // A long conversation: each NPC line offers two responses, one onward and one back to the start.
        for (int i = 0; i < 300; ++i) {
            const int npc = i * 3 + 1;
            text += QStringLiteral("{%1}{Line %1}{}{}{}{}{}\n").arg(npc);
            text += QStringLiteral("{%1}{On}{}{1}{}{%2}{}\n").arg(npc + 1).arg(npc + 3);
            text += QStringLiteral("{%1}{Back}{}{1}{}{1}{}\n").arg(npc + 2);
        }
        const Graph graph = Graph::build(dialogueOf(text));
        QSet<QPair<int, int>> places;
        for (const Graph::Node& node : graph.nodes()) {
            QCOMPARE(node.marks & ~Graph::Dangling, 0);
            QVERIFY2(!places.contains({int(node.position.x()), int(node.position.y())}), "two boxes on one place");
            places.insert({int(node.position.x()), int(node.position.y())});
        }
        // Top-down from the first line: every onward arrow points down.
        QCOMPARE(graph.nodes().at(graph.find(Graph::Kind::Npc, 4)).layer, 2);
    }

    // Every ending response has its own marker one layer below it: no arrow climbs back to a shared one.
    void endsSitUnderTheirResponses()
    {
        QString text;
        for (int i = 0; i < 40; ++i) {
            const int npc = i * 10 + 1;
            text += QStringLiteral("{%1}{Line %1}{}{}{}{}{}\n").arg(npc);
            text += QStringLiteral("{%1}{On}{}{1}{}{%2}{}\n").arg(npc + 1).arg(npc + 10);
            text += QStringLiteral("{%1}{Bye}{}{1}{}{%2}{}\n").arg(npc + 2).arg(i % 2 == 0 ? 0 : -1);
        }
        const Graph graph = Graph::build(dialogueOf(text));
        int ends = 0;
        for (const Graph::Edge& edge : graph.edges()) {
            const Graph::Node& to = graph.nodes().at(edge.to);
            if (to.kind != Graph::Kind::End)
                continue;
            ++ends;
            QCOMPARE(to.layer, graph.nodes().at(edge.from).layer + 1);
        }
        QCOMPARE(ends, 40);
    }

    void clickOpensTheLine()
    {
        ConversationView view;
        view.resize(800, 600);
        view.showGraph(Graph::build(dialogueOf(QString::fromLatin1(CONVERSATION))));
        view.show();
        QSignalSpy opened(&view, &ConversationView::lineActivated);
        view.focusLine(Graph::Kind::Pc, 3);
        const Graph::Node& node = view.graph().nodes().at(view.graph().find(Graph::Kind::Pc, 3));
        QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, view.mapFromScene(node.position));
        QCOMPARE(opened.count(), 1);
        QCOMPARE(opened.first().at(0).toBool(), true);
        QCOMPARE(opened.first().at(1).toInt(), 3);
    }
};

QTEST_MAIN(TestDialogueGraph)
#include "tst_dialogue_graph.moc"
