#include "ConversationView.h"

#include <QGraphicsRectItem>
#include <QGraphicsSimpleTextItem>
#include <QLabel>
#include <QMouseEvent>
#include <QPainterPath>
#include <QScrollBar>
#include <QWheelEvent>

#include <cmath>

namespace {

const double ZOOM_STEP = 1.25;
const int NODE_ROLE = 0;

QPainterPath arrow(QPointF from, QPointF to)
{
    QPainterPath path(from);
    const double middle = (from.y() + to.y()) / 2;
    path.cubicTo(QPointF(from.x(), middle), QPointF(to.x(), middle), to);
    const double angle = std::atan2(to.y() - middle, to.x() - to.x() + 0.0001);
    const double size = 7;
    path.moveTo(to);
    path.lineTo(to - QPointF(size * std::cos(angle - 0.45), size * std::sin(angle - 0.45)));
    path.moveTo(to);
    path.lineTo(to - QPointF(size * std::cos(angle + 0.45), size * std::sin(angle + 0.45)));
    return path;
}

} // namespace

ConversationView::ConversationView(QWidget* parent)
    : QGraphicsView(parent)
{
    setObjectName(QStringLiteral("conversationView"));
    setScene(new QGraphicsScene(this));
    setRenderHint(QPainter::Antialiasing);
    setDragMode(QGraphicsView::ScrollHandDrag);
    setViewportUpdateMode(QGraphicsView::MinimalViewportUpdate);
    setTransformationAnchor(QGraphicsView::AnchorUnderMouse);
    legend = new QLabel(this);
    legend->setObjectName(QStringLiteral("conversationLegend"));
    legend->setTextFormat(Qt::RichText);
    legend->setStyleSheet(QStringLiteral("QLabel { background: rgba(255,255,255,220); border: 1px solid #999; padding: 4px; }"));
    const auto swatch = [](const QColor& colour, const QString& text) {
        return QStringLiteral("<span style='background:%1'>&nbsp;&nbsp;&nbsp;&nbsp;</span> %2<br>").arg(colour.name(), text);
    };
    ConversationGraph::Node sample;
    QString text;
    for (const auto& [kind, marks, words] :
         std::vector<std::tuple<ConversationGraph::Kind, int, QString>>{
             {ConversationGraph::Kind::Npc, 0, tr("NPC line")},
             {ConversationGraph::Kind::Pc, 0, tr("PC response")},
             {ConversationGraph::Kind::End, 0, tr("end of conversation or game code")},
             {ConversationGraph::Kind::Npc, ConversationGraph::Unreached, tr("nothing leads here")},
             {ConversationGraph::Kind::Pc, ConversationGraph::Dangling, tr("leads to a missing line")},
             {ConversationGraph::Kind::Npc, ConversationGraph::Duplicate, tr("number used twice")},
             {ConversationGraph::Kind::Npc, ConversationGraph::Problem, tr("line has problems")},
             {ConversationGraph::Kind::Npc, ConversationGraph::Note, tr("line has notes (the game reads it)")}}) {
        sample.kind = kind;
        sample.marks = marks;
        text += swatch(colourOf(sample), words);
    }
    legend->setText(text);
    legend->adjustSize();
}

QColor ConversationView::colourOf(const ConversationGraph::Node& node)
{
    if (node.marks & ConversationGraph::Problem)
        return QColor(0xf2, 0x9b, 0x9b);
    if (node.marks & ConversationGraph::Duplicate)
        return QColor(0xd9, 0xa6, 0xf2);
    if (node.marks & ConversationGraph::Dangling)
        return QColor(0xf7, 0xc3, 0x7c);
    if (node.marks & ConversationGraph::Unreached)
        return QColor(0xf5, 0xe5, 0x7a);
    if (node.marks & ConversationGraph::Note)
        return QColor(0x9f, 0xe3, 0xe8);
    switch (node.kind) {
    case ConversationGraph::Kind::Npc:
        return QColor(0xc8, 0xdc, 0xf5);
    case ConversationGraph::Kind::Pc:
        return QColor(0xd4, 0xf0, 0xd0);
    case ConversationGraph::Kind::End:
        break;
    }
    return QColor(0xdd, 0xdd, 0xdd);
}

void ConversationView::showGraph(const ConversationGraph& graph)
{
    shown = graph;
    scene()->clear();
    const auto& nodes = shown.nodes();
    for (const ConversationGraph::Edge& edge : shown.edges())
        addEdge(nodes.at(edge.from), nodes.at(edge.to));
    for (int i = 0; i < nodes.size(); ++i)
        addNode(i, nodes.at(i));
    scene()->setSceneRect(scene()->itemsBoundingRect().adjusted(-40, -40, 40, 40));
}

void ConversationView::addEdge(const ConversationGraph::Node& from, const ConversationGraph::Node& to)
{
    const double half = ConversationGraph::NODE_HEIGHT / 2;
    const QPointF start = from.position + QPointF(0, half);
    // A line that leads back up enters its target from above like every other arrow.
    const QPointF end = to.position - QPointF(0, half);
    auto* item = scene()->addPath(arrow(start, end), QPen(QColor(0x55, 0x55, 0x55), 1.2));
    item->setZValue(-1);
}

void ConversationView::addNode(int position, const ConversationGraph::Node& node)
{
    const QRectF box(-ConversationGraph::NODE_WIDTH / 2, -ConversationGraph::NODE_HEIGHT / 2,
                     ConversationGraph::NODE_WIDTH, ConversationGraph::NODE_HEIGHT);
    auto* rect = scene()->addRect(box, QPen(Qt::black, node.kind == ConversationGraph::Kind::Npc ? 1.5 : 1),
                                  QBrush(colourOf(node)));
    rect->setPos(node.position);
    rect->setData(NODE_ROLE, position);
    rect->setFlag(QGraphicsItem::ItemIsSelectable);
    const QString number = node.kind == ConversationGraph::Kind::End ? QString() : QStringLiteral("%1  ").arg(node.line);
    auto* text = new QGraphicsSimpleTextItem(number + node.label, rect);
    QFont font = text->font();
    font.setPointSizeF(8.5);
    text->setFont(font);
    const QFontMetricsF metrics(font);
    text->setText(metrics.elidedText(text->text(), Qt::ElideRight, box.width() - 10));
    text->setPos(box.left() + 5, -metrics.height() / 2);
    rect->setToolTip(number + node.label);
}

void ConversationView::focusLine(ConversationGraph::Kind kind, int line)
{
    const int position = shown.find(kind, line);
    if (position < 0)
        return;
    scene()->clearSelection();
    for (QGraphicsItem* item : scene()->items())
        if (item->data(NODE_ROLE).isValid() && item->data(NODE_ROLE).toInt() == position) {
            item->setSelected(true);
            centerOn(item);
        }
}

void ConversationView::zoomIn()
{
    scale(ZOOM_STEP, ZOOM_STEP);
}

void ConversationView::zoomOut()
{
    scale(1 / ZOOM_STEP, 1 / ZOOM_STEP);
}

void ConversationView::fitAll()
{
    fitInView(scene()->sceneRect(), Qt::KeepAspectRatio);
}

void ConversationView::wheelEvent(QWheelEvent* event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QGraphicsView::wheelEvent(event);
        return;
    }
    event->angleDelta().y() > 0 ? zoomIn() : zoomOut();
    event->accept();
}

void ConversationView::mousePressEvent(QMouseEvent* event)
{
    for (QGraphicsItem* item = itemAt(event->pos()); item != nullptr; item = item->parentItem()) {
        if (!item->data(NODE_ROLE).isValid())
            continue;
        const ConversationGraph::Node& node = shown.nodes().at(item->data(NODE_ROLE).toInt());
        if (node.kind != ConversationGraph::Kind::End)
            emit lineActivated(node.kind == ConversationGraph::Kind::Pc, node.line);
        break;
    }
    QGraphicsView::mousePressEvent(event);
}

void ConversationView::resizeEvent(QResizeEvent* event)
{
    QGraphicsView::resizeEvent(event);
    legend->move(width() - legend->width() - 8 - (verticalScrollBar()->isVisible() ? verticalScrollBar()->width() : 0), 8);
}
