#include "ConversationGraph.h"

#include "DialogueCheck.h"

#include <QCoreApplication>
#include <QHash>
#include <QQueue>

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
    for (int i = 0; i < nodeList.size(); ++i)
        if (nodeList[i].kind == kind && nodeList[i].line == line)
            return i;
    return -1;
}

void ConversationGraph::addLines(const arcanum::DialogueFileNew& dialogue)
{
    const auto add = [this](Kind kind, const arcanum::DialogueFileNew::Line& line) {
        Node node;
        node.kind = kind;
        node.line = line.index();
        node.label = firstWords(line.text());
        // An edited line is written from its fields: what its read text had is gone.
        const arcanum::DialogueFileNew::LineErrors* errors = line.errors();
        node.marks = errors && errors->hasErrors() && !line.isEdited() ? Problem : 0;
        nodeList.append(node);
    };
    for (const auto& npc : dialogue.npcLines())
        add(Kind::Npc, *npc);
    for (const auto& pc : dialogue.pcLines())
        add(Kind::Pc, *pc);
}

void ConversationGraph::markDuplicates()
{
    QHash<quint64, int> first;
    for (int i = 0; i < nodeList.size(); ++i) {
        // NPC lines and PC responses share one numbering in the file.
        const quint64 number = quint32(nodeList[i].line);
        const auto found = first.constFind(number);
        if (found == first.constEnd()) {
            first.insert(number, i);
            continue;
        }
        nodeList[i].marks |= Duplicate;
        nodeList[*found].marks |= Duplicate;
    }
}

int ConversationGraph::endNode(int code)
{
    const int existing = find(Kind::End, code);
    if (existing >= 0)
        return existing;
    Node node;
    node.kind = Kind::End;
    node.line = code;
    node.label = code == 0 ? QCoreApplication::translate("ConversationGraph", "end") : QCoreApplication::translate("ConversationGraph", "game code %1").arg(code);
    nodeList.append(node);
    return int(nodeList.size()) - 1;
}

void ConversationGraph::addEdges(const arcanum::DialogueFileNew& dialogue)
{
    QHash<quint64, int> byLine;
    for (int i = nodeList.size() - 1; i >= 0; --i)
        byLine.insert(key(nodeList[i].kind, nodeList[i].line), i);
    // Each NPC line offers the responses numbered after it, up to the next NPC line.
    std::map<int, int> npcByNumber;
    for (const auto& npc : dialogue.npcLines())
        npcByNumber.emplace(npc->index(), byLine.value(key(Kind::Npc, npc->index())));
    for (const auto& pc : dialogue.pcLines()) {
        const int from = byLine.value(key(Kind::Pc, pc->index()));
        auto owner = npcByNumber.upper_bound(pc->index());
        if (owner != npcByNumber.begin())
            edgeList.append(Edge{std::prev(owner)->second, from});
        const int target = pc->responseLine();
        if (target <= 0) {
            edgeList.append(Edge{from, endNode(target)});
            continue;
        }
        const int to = byLine.value(key(Kind::Npc, target), -1);
        if (to < 0)
            nodeList[from].marks |= Dangling;
        else
            edgeList.append(Edge{from, to});
    }
}

void ConversationGraph::assignLayers()
{
    QVector<QVector<int>> next(nodeList.size());
    QVector<int> incoming(nodeList.size(), 0);
    for (const Edge& edge : std::as_const(edgeList)) {
        next[edge.from].append(edge.to);
        ++incoming[edge.to];
    }
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
    const int first = nodeList.isEmpty() || nodeList.first().kind != Kind::Npc ? -1 : 0;
    if (first >= 0)
        walk(first);
    for (int i = 0; i < nodeList.size(); ++i) {
        if (layer[i] >= 0)
            continue;
        if (nodeList[i].kind == Kind::Npc && incoming[i] == 0)
            nodeList[i].marks |= Unreached;
        walk(i);
    }
    for (int i = 0; i < nodeList.size(); ++i)
        nodeList[i].layer = layer[i];
}

void ConversationGraph::placeLayers()
{
    std::map<int, QVector<int>> layers;
    for (int i = 0; i < nodeList.size(); ++i)
        layers[nodeList[i].layer].append(i);
    QVector<double> parentX(nodeList.size(), 0);
    QVector<int> parents(nodeList.size(), 0);
    for (auto& [number, members] : layers) {
        // Each node sits under the mean of the nodes that lead to it, which keeps arrows short and straight.
        std::stable_sort(members.begin(), members.end(), [&](int a, int b) {
            const double ax = parents[a] ? parentX[a] / parents[a] : 0;
            const double bx = parents[b] ? parentX[b] / parents[b] : 0;
            return ax < bx;
        });
        const double width = members.size() * (NODE_WIDTH + NODE_GAP);
        for (int slot = 0; slot < members.size(); ++slot) {
            Node& node = nodeList[members[slot]];
            node.position = QPointF(slot * (NODE_WIDTH + NODE_GAP) - width / 2, number * (NODE_HEIGHT + LAYER_GAP));
        }
        for (const Edge& edge : std::as_const(edgeList))
            if (nodeList[edge.from].layer == number) {
                parentX[edge.to] += nodeList[edge.from].position.x();
                ++parents[edge.to];
            }
    }
}
