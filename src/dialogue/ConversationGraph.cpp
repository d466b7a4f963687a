#include "ConversationGraph.h"

#include "DialogueCheck.h"
#include "OpcodeWords.h"

#include <QCoreApplication>
#include <QHash>
#include <QQueue>
#include <QSet>

#include <algorithm>
#include <map>

namespace {

const int LABEL_WORDS = 6;
const double LAYER_GAP = 50;
const double NODE_GAP = 24;

QString firstWords(const QString& text)
{
    const QStringList words = text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QString label = words.mid(0, LABEL_WORDS).join(QLatin1Char(' '));
    if (words.size() > LABEL_WORDS)
        label += QStringLiteral(" …");
    return label;
}

quint64 key(ConversationGraph::Kind kind, int line)
{
    return (quint64(kind) << 32) | quint32(line);
}

} // namespace

ConversationGraph ConversationGraph::build(const arcanum::DialogueFileNew& dialogue)
{
    ConversationGraph graph;
    graph.addLines(dialogue);
    graph.markDuplicates();
    graph.addEdges(dialogue);
    graph.markUnnamed(dialogue);
    graph.assignLayers();
    graph.markNotes(dialogue);
    graph.placeLayers();
    return graph;
}

// A line marked for nothing else but with notes: the game reads it, a stricter reading objects.
void ConversationGraph::markNotes(const arcanum::DialogueFileNew& dialogue)
{
    const arcanum::DialogueCheck check(dialogue);
    for (Node& node : nodeList) {
        if (node.kind == Kind::End || node.marks != 0)
            continue;
        const auto kind = node.kind == Kind::Pc ? arcanum::DialogueCheck::LineKind::Pc : arcanum::DialogueCheck::LineKind::Npc;
        if (check.worstOf(kind, node.line) == arcanum::DialogueCheck::Severity::Note)
            node.marks = Note;
    }
}

int ConversationGraph::find(Kind kind, int line) const
{
    return byLine.value(key(kind, line), -1);
}

void ConversationGraph::addLines(const arcanum::DialogueFileNew& dialogue)
{
    nodeList.reserve(dialogue.npcLines().size() + dialogue.pcLines().size());
    const auto add = [this](Kind kind, const arcanum::DialogueFileNew::Line& line) {
        Node node;
        node.kind = kind;
        node.line = line.index();
        node.label = firstWords(line.text());
        // An edited line is written from its fields: what its read text had is gone.
        const arcanum::DialogueFileNew::LineErrors* errors = line.errors();
        node.marks = errors && errors->hasErrors() && !line.isEdited() ? Problem : 0;
        // The first of twins is the one found.
        const quint64 number = key(kind, node.line);
        if (!byLine.contains(number))
            byLine.insert(number, int(nodeList.size()));
        nodeList.append(node);
    };
    for (const auto& npc : dialogue.npcLines())
        add(Kind::Npc, *npc);
    for (const auto& pc : dialogue.pcLines())
        add(Kind::Pc, *pc);
}

void ConversationGraph::markDuplicates()
{
    QHash<quint32, int> first;
    for (int i = 0; i < nodeList.size(); ++i) {
        // NPC lines and PC responses share one numbering in the file.
        const quint32 number = quint32(nodeList[i].line);
        const auto found = first.constFind(number);
        if (found == first.constEnd()) {
            first.insert(number, i);
            continue;
        }
        nodeList[i].marks |= Duplicate;
        nodeList[*found].marks |= Duplicate;
    }
}

// Each ending response gets a marker of its own right below it: one marker shared by a whole conversation
// would draw arrows from every layer back up to wherever it first sat.
int ConversationGraph::endNode(int code)
{
    Node node;
    node.kind = Kind::End;
    node.line = code;
    node.label = code == 0 ? QCoreApplication::translate("ConversationGraph", "end")
                           : QCoreApplication::translate("ConversationGraph", "game code %1").arg(code);
    if (!byLine.contains(key(Kind::End, code)))
        byLine.insert(key(Kind::End, code), int(nodeList.size()));
    nodeList.append(node);
    return int(nodeList.size()) - 1;
}

void ConversationGraph::addEdges(const arcanum::DialogueFileNew& dialogue)
{
    // An NPC line may go on with an NPC line or a PC response.
    const auto lineNode = [this](int number) {
        const int npc = find(Kind::Npc, number);
        return npc >= 0 ? npc : find(Kind::Pc, number);
    };
    // Each NPC line offers the responses numbered after it, up to the next NPC line.
    std::map<int, int> npcByNumber;
    for (const auto& npc : dialogue.npcLines())
        npcByNumber.emplace(npc->index(), find(Kind::Npc, npc->index()));
    for (const auto& npc : dialogue.npcLines()) {
        if (npc->responseLine() <= 0)
            continue;
        leadTo(find(Kind::Npc, npc->index()), lineNode(npc->responseLine()));
    }
    for (const auto& pc : dialogue.pcLines()) {
        const int from = find(Kind::Pc, pc->index());
        auto owner = npcByNumber.upper_bound(pc->index());
        if (owner != npcByNumber.begin())
            edgeList.append(Edge{std::prev(owner)->second, from});
        const int target = pc->responseLine();
        if (target <= 0) {
            edgeList.append(Edge{from, endNode(target)});
            continue;
        }
        leadTo(from, find(Kind::Npc, target));
    }
}

// A line whose target is not in the file leads nowhere, which is marked on the line instead of drawn.
void ConversationGraph::leadTo(int from, int to)
{
    if (to < 0)
        nodeList[from].marks |= Dangling;
    else
        edgeList.append(Edge{from, to});
}

QVector<QVector<int>> ConversationGraph::successors() const
{
    QVector<QVector<int>> next(nodeList.size());
    for (const Edge& edge : edgeList)
        next[edge.from].append(edge.to);
    return next;
}

// NPC lines but the first that no arrow reaches and no test or result names (a join or an unwait goes
// on with a line too): a script may start the conversation there, or nothing ever shows them.
void ConversationGraph::markUnnamed(const arcanum::DialogueFileNew& dialogue)
{
    QVector<bool> reached(nodeList.size(), false);
    for (const Edge& edge : std::as_const(edgeList))
        reached[edge.to] = true;
    QSet<int> named;
    const auto collect = [&named](const arcanum::DialogueFileNew::OpcodeField& field) {
        for (const arcanum::dlg::TestOrResultData& record : field.records())
            for (int argument : arcanum::dlg::OpcodeWords::lineArguments(record.type))
                named.insert(argument == 0 ? record.value1 : record.value2);
    };
    for (const auto& npc : dialogue.npcLines())
        collect(npc->results());
    for (const auto& pc : dialogue.pcLines()) {
        collect(pc->tests());
        collect(pc->results());
    }
    for (int i = 1; i < nodeList.size(); ++i)
        if (nodeList[i].kind == Kind::Npc && !reached[i] && !named.contains(nodeList[i].line))
            nodeList[i].marks |= Unreached;
}

void ConversationGraph::assignLayers()
{
    const QVector<QVector<int>> next = successors();
    // Breadth first from the first NPC line, then from every line nothing reached, each below the rest.
    QVector<int> layer(nodeList.size(), -1);
    int deepest = -1;
    const auto walk = [&](int start) {
        QQueue<int> queue;
        layer[start] = deepest + 1;
        queue.enqueue(start);
        while (!queue.isEmpty()) {
            const int node = queue.dequeue();
            deepest = std::max(deepest, layer[node]);
            for (int to : std::as_const(next[node]))
                if (layer[to] < 0) {
                    layer[to] = layer[node] + 1;
                    queue.enqueue(to);
                }
        }
    };
    for (int i = 0; i < nodeList.size(); ++i)
        if (layer[i] < 0)
            walk(i);
    for (int i = 0; i < nodeList.size(); ++i)
        nodeList[i].layer = layer[i];
}

void ConversationGraph::placeLayers()
{
    std::map<int, QVector<int>> layers;
    const QVector<QVector<int>> next = successors();
    for (int i = 0; i < nodeList.size(); ++i)
        layers[nodeList[i].layer].append(i);
    QVector<double> parentX(nodeList.size(), 0);
    QVector<int> parents(nodeList.size(), 0);
    for (auto& [number, members] : layers) {
        // Each node sits under the mean of the nodes above that lead to it, which keeps arrows short.
        std::stable_sort(members.begin(), members.end(), [&](int a, int b) {
            const double ax = parents[a] ? parentX[a] / parents[a] : 0;
            const double bx = parents[b] ? parentX[b] / parents[b] : 0;
            return ax < bx;
        });
        const double width = members.size() * (NODE_WIDTH + NODE_GAP);
        for (int slot = 0; slot < members.size(); ++slot) {
            Node& node = nodeList[members[slot]];
            node.position = QPointF(slot * (NODE_WIDTH + NODE_GAP) - width / 2, number * (NODE_HEIGHT + LAYER_GAP));
            for (int to : std::as_const(next[members[slot]]))
                if (nodeList[to].layer > number) {
                    parentX[to] += node.position.x();
                    ++parents[to];
                }
        }
    }
}
