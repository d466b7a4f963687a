#pragma once

#include "DialogueFileNew.h"

#include <QHash>
#include <QPointF>
#include <QString>
#include <QVector>

// A dialogue as a graph laid out in layers that read top-down from the first line: NPC lines lead to
// the PC responses that follow them in the file, a response leads to the line its response field names,
// an NPC line with a response line of its own goes on with that line, and the game's own codes (0 and
// below) end the conversation. Knows nothing of widgets; lays out thousands of lines in milliseconds.
class ConversationGraph
{
public:
    enum class Kind { Npc, Pc, End };
    // Problem: the line has errors; Note: it has only notes (the game reads it).
    enum Mark { Unreached = 1, Dangling = 2, Duplicate = 4, Problem = 8, Note = 16 };

    struct Node
    {
        Kind kind = Kind::Npc;
        int line = 0; // the line number, or the game code of an end marker
        QString label; // the first words of the text
        int marks = 0;
        int layer = 0;
        QPointF position; // the centre of the node
    };
    struct Edge
    {
        int from = 0; // node positions in nodes()
        int to = 0;
    };

    static constexpr double NODE_WIDTH = 190;
    static constexpr double NODE_HEIGHT = 46;

    static ConversationGraph build(const arcanum::DialogueFileNew& dialogue);

    const QVector<Node>& nodes() const { return nodeList; }
    const QVector<Edge>& edges() const { return edgeList; }
    // The node of an NPC or PC line, or the first end marker of a code; -1 when there is none.
    int find(Kind kind, int line) const;

private:
    void addLines(const arcanum::DialogueFileNew& dialogue);
    void addEdges(const arcanum::DialogueFileNew& dialogue);
    void markUnnamed(const arcanum::DialogueFileNew& dialogue);
    int endNode(int code);
    void leadTo(int from, int to);
    // The nodes each node's arrows lead to.
    QVector<QVector<int>> successors() const;
    void markDuplicates();
    void assignLayers();
    void markNotes(const arcanum::DialogueFileNew& dialogue);
    void placeLayers();

    QVector<Node> nodeList;
    QVector<Edge> edgeList;
    // The first node of each kind and number.
    QHash<quint64, int> byLine;
};
