#include "ConversationView.h"

#include <QGraphicsRectItem>
#include <QGraphicsSimpleTextItem>
#include <QLabel>
#include <QMouseEvent>
#include <QPainterPath>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

const double ZOOM_STEP = 1.25;
const int NODE_ROLE = 0;

// A curve through two control points with its head along the last stretch.
QPainterPath arrow(QPointF from, QPointF control1, QPointF control2, QPointF to)
{
    QPainterPath path(from);
    path.cubicTo(control1, control2, to);
    const QPointF along = to - control2;
    const double angle = std::atan2(along.y(), along.x() + 0.0001);
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
    // Scrolling a large conversation repaints only what comes into view, without saving painter state
    // for every one of thousands of items.
    setViewportUpdateMode(QGraphicsView::MinimalViewportUpdate);
    setOptimizationFlags(QGraphicsView::DontSavePainterState | QGraphicsView::DontAdjustForAntialiasing);
    setCacheMode(QGraphicsView::CacheBackground);
    setTransformationAnchor(QGraphicsView::AnchorUnderMouse);
    legend = new QLabel(this);
    legend->setObjectName(QStringLiteral("conversationLegend"));
    legend->setTextFormat(Qt::RichText);
    legend->setStyleSheet(QStringLiteral("QLabel { background: rgba(255,255,255,220); border: 1px solid #999; padding: 4px; }"));
    const auto swatch = [](const QColor& colour, const QString& text) {
        return QStringLiteral("<span style='background:%1'>&nbsp;&nbsp;&nbsp;&nbsp;</span> %2").arg(colour.name(), text);
    };
    ConversationGraph::Node sample;
    QStringList rows;
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
        rows.append(swatch(colourOf(sample), words));
    }
    // Rows joined, not ended, by breaks: a break after the last would leave an empty row in the box.
    legend->setText(rows.join(QStringLiteral("<br>")));
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

// A graph shown again after an edit keeps the place the user looks at; the first one starts at the top,
// with the first line.
void ConversationView::showGraph(const ConversationGraph& graph)
{
    const bool first = shown.nodes().isEmpty();
    const QPointF centre = mapToScene(viewport()->rect().center());
    shown = graph;
    scene()->clear();
    const auto& nodes = shown.nodes();
    for (const ConversationGraph::Edge& edge : shown.edges())
        addEdge(nodes.at(edge.from), nodes.at(edge.to));
    for (int i = 0; i < nodes.size(); ++i)
        addNode(i, nodes.at(i));
    scene()->setSceneRect(scene()->itemsBoundingRect().adjusted(-40, -40, 40, 40));
    if (!first)
        centerOn(centre);
    else if (!nodes.isEmpty())
        centerOn(nodes.first().position.x(), nodes.first().position.y() + viewport()->height() / 2.0 - 60);
}

// Arrows down leave a box at its foot and enter the next at its head. An arrow back up (to an earlier
// line or an end marker above or beside) leaves and enters on the right and bows out to the right, so
// it does not run through the boxes of the rows between them.
void ConversationView::addEdge(const ConversationGraph::Node& from, const ConversationGraph::Node& to)
{
    const double half = ConversationGraph::NODE_HEIGHT / 2;
    QPainterPath path;
    if (to.layer > from.layer) {
        const QPointF start = from.position + QPointF(0, half);
        const QPointF end = to.position - QPointF(0, half);
        const double middle = (start.y() + end.y()) / 2;
        path = arrow(start, QPointF(start.x(), middle), QPointF(end.x(), middle), end);
    } else {
        const double right = (to.kind == ConversationGraph::Kind::End ? 0.25 : 0.5) * ConversationGraph::NODE_WIDTH;
        const QPointF start = from.position + QPointF(ConversationGraph::NODE_WIDTH / 2, 0);
        const QPointF end = to.position + QPointF(right, 0);
        const double bulge = std::max(start.x(), end.x()) + 30 + std::abs(start.y() - end.y()) / 6;
        path = arrow(start, QPointF(bulge, start.y()), QPointF(bulge, end.y()), end);
    }
    auto* item = scene()->addPath(path, QPen(QColor(0x55, 0x55, 0x55), 1.2));
    item->setZValue(-1);
}

void ConversationView::addNode(int position, const ConversationGraph::Node& node)
{
    const QRectF box(-ConversationGraph::NODE_WIDTH / 2, -ConversationGraph::NODE_HEIGHT / 2,
                     ConversationGraph::NODE_WIDTH, ConversationGraph::NODE_HEIGHT);
    // Ends are round markers, lines boxes.
    const QPen pen(Qt::black, node.kind == ConversationGraph::Kind::Npc ? 1.5 : 1);
    QAbstractGraphicsShapeItem* rect = nullptr;
    if (node.kind == ConversationGraph::Kind::End)
        rect = scene()->addEllipse(box.adjusted(box.width() / 4, 0, -box.width() / 4, 0), pen, QBrush(colourOf(node)));
    else
        rect = scene()->addRect(box, pen, QBrush(colourOf(node)));
    rect->setPos(node.position);
    rect->setData(NODE_ROLE, position);
    rect->setFlag(QGraphicsItem::ItemIsSelectable);
    const QString number = node.kind == ConversationGraph::Kind::End ? QString() : QStringLiteral("%1  ").arg(node.line);
    auto* text = new QGraphicsSimpleTextItem(number + node.label, rect);
    QFont font = text->font();
    font.setPointSizeF(8.5);
    text->setFont(font);
    const QFontMetricsF metrics(font);
    const double room = node.kind == ConversationGraph::Kind::End ? box.width() / 2 - 10 : box.width() - 10;
    text->setText(metrics.elidedText(text->text(), Qt::ElideRight, room));
    text->setPos(-std::min(room, metrics.horizontalAdvance(text->text())) / 2, -metrics.height() / 2);
    if (node.kind != ConversationGraph::Kind::End)
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
            // A box in sight stays where it is; only one out of sight is scrolled to.
            ensureVisible(item, 20, 20);
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

void ConversationView::showLegend(bool shown)
{
    legend->setVisible(shown);
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

// The view selects the box under the mouse before the line opens: opening it may scroll the view, and
// the press must not then select whatever box has come under the mouse instead.
void ConversationView::mousePressEvent(QMouseEvent* event)
{
    int position = -1;
    for (QGraphicsItem* item = itemAt(event->pos()); item != nullptr && position < 0; item = item->parentItem())
        if (item->data(NODE_ROLE).isValid())
            position = item->data(NODE_ROLE).toInt();
    QGraphicsView::mousePressEvent(event);
    if (position < 0)
        return;
    const ConversationGraph::Node node = shown.nodes().at(position);
    if (node.kind != ConversationGraph::Kind::End)
        emit lineActivated(node.kind == ConversationGraph::Kind::Pc, node.line);
}

void ConversationView::resizeEvent(QResizeEvent* event)
{
    QGraphicsView::resizeEvent(event);
    legend->move(width() - legend->width() - 8 - (verticalScrollBar()->isVisible() ? verticalScrollBar()->width() : 0), 8);
}
