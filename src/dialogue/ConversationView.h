#pragma once

#include "ConversationGraph.h"

#include <QGraphicsView>

class QLabel;

// The conversation graph on screen: boxes for lines, arrows for where they lead, colours for lines
// nothing leads to, responses leading nowhere, duplicate numbers and lines with problems. A click on a
// box asks the page to open that line.
class ConversationView : public QGraphicsView
{
    Q_OBJECT

public:
    explicit ConversationView(QWidget* parent = nullptr);

    void showGraph(const ConversationGraph& graph);
    const ConversationGraph& graph() const { return shown; }
    // Selects a line's box and scrolls it into sight.
    void focusLine(ConversationGraph::Kind kind, int line);
    static QColor colourOf(const ConversationGraph::Node& node);

public slots:
    void zoomIn();
    void zoomOut();
    void fitAll();
    // The legend lies over a corner of the view; hidden, nothing under it is covered.
    void showLegend(bool shown);

signals:
    void lineActivated(bool pc, int line);

protected:
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void addEdge(const ConversationGraph::Node& from, const ConversationGraph::Node& to);
    void addNode(int position, const ConversationGraph::Node& node);

    ConversationGraph shown;
    QLabel* legend = nullptr;
};
