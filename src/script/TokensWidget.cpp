#include "TokensWidget.h"

#include "FlowLayout.h"
#include "LineToolsWidget.h"
#include "TokenEditorNum.h"
#include "TokenEditorObj.h"
#include "ui_TokensWidget.h"

#include <QHash>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QSpinBox>

using arcanum::Script;
using token_controls::TokenEditorNum;
using token_controls::TokenEditorObj;

namespace {

// A size that depends only on the font, measured once on a probe widget of type Probe.
template <typename Probe>
QSize probedSize(const QFont& font)
{
    static QHash<QString, QSize> sizes;
    const auto known = sizes.constFind(font.key());
    if (known != sizes.constEnd())
        return *known;
    Probe probe;
    probe.setFont(font);
    return sizes[font.key()] = probe.sizeHint();
}

// Every row is as tall as an operand editor, so the listing keeps an even pitch.
int editorHeight(const QFont& font)
{
    return probedSize<QSpinBox>(font).height();
}

QString keyword(Script::LineType type)
{
    switch (type) {
    case Script::LineIf:
        return QStringLiteral("IF  ");
    case Script::LineThen:
        return QStringLiteral("THEN");
    case Script::LineElse:
        return QStringLiteral("ELSE");
    case Script::LineDo:
        break;
    }
    return QString();
}

QColor keywordColor(Script::LineType type)
{
    switch (type) {
    case Script::LineIf:
        return QColor(0x1f, 0x4e, 0x9a);
    case Script::LineThen:
        return QColor(0x2e, 0x7d, 0x32);
    case Script::LineElse:
        return QColor(0xa3, 0x3a, 0x1b);
    case Script::LineDo:
        break;
    }
    return QColor(Qt::black);
}

} // namespace

TokensWidget::TokensWidget(QWidget* parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::TokensWidget>())
{
    ui->setupUi(this);
    flow = new FlowLayout(ui->flowArea, 3);
    QSizePolicy keep = ui->labelLine->sizePolicy();
    keep.setRetainSizeWhenHidden(true);
    ui->labelLine->setSizePolicy(keep);
    QSizePolicy policy = sizePolicy();
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

TokensWidget::~TokensWidget() = default;

bool TokensWidget::opensLine() const
{
    return type == Script::LineIf || type == Script::LineDo;
}

void TokensWidget::setTokens(Script::Tokens newTokens, int newLine, Script::LineType newType, int lineCount)
{
    clearControls();
    tokens = std::move(newTokens);
    line = newLine;
    type = newType;
    const int height = editorHeight(font());
    showLabels(lineCount, height);
    for (size_t i = 0; i < tokens.size(); ++i)
        flow->addWidget(makeControl(i, height));
    ui->flowArea->setMinimumHeight(height);
    addTools();
    update();
}

void TokensWidget::clearControls()
{
    while (QLayoutItem* item = flow->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    while (QLayoutItem* item = ui->toolsLayout->takeAt(0)) {
        delete item->widget();
        delete item;
    }
}

void TokensWidget::showLabels(int lineCount, int height)
{
    const int digits = qMax(2, static_cast<int>(QString::number(qMax(lineCount - 1, 0)).size()));
    ui->labelLine->setText(QString::number(line));
    ui->labelLine->setFixedSize(ui->labelLine->fontMetrics().horizontalAdvance(QString(digits, QLatin1Char('0'))), height);
    // Only the first row of a line shows its number; the others keep the column.
    ui->labelLine->setVisible(opensLine());

    ui->labelType->setText(keyword(type));
    ui->labelType->setFixedSize(ui->labelType->fontMetrics().horizontalAdvance(QStringLiteral("ELSE")), height);
    QPalette colored = ui->labelType->palette();
    colored.setColor(QPalette::WindowText, keywordColor(type));
    ui->labelType->setPalette(colored);
}

QWidget* TokensWidget::makeControl(size_t index, int height)
{
    const Script::Token& token = tokens[index];
    switch (token.kind) {
    case Script::Token::Num: {
        auto* editor = new TokenEditorNum(token.numType, token.value, ui->flowArea);
        connect(editor, &TokenEditorNum::edited, this, [this, editor, index]() {
            tokens[index].numType = editor->numType();
            tokens[index].value = editor->value();
            emit tokenChanged(this);
        });
        return editor;
    }
    case Script::Token::Obj: {
        auto* editor = new TokenEditorObj(token.value, ui->flowArea);
        connect(editor, &TokenEditorObj::edited, this, [this, editor, index]() {
            tokens[index].value = editor->objectType();
            emit tokenChanged(this);
        });
        return editor;
    }
    default:
        break;
    }
    const QString text = token.kind == Script::Token::LineNum ? tr("line %1").arg(token.value)
                                                              : QString::fromStdString(token.text);
    auto* label = new QLabel(text, ui->flowArea);
    label->setTextFormat(Qt::PlainText);
    label->setMinimumHeight(height);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return label;
}

// Rows that continue a line keep the tools' room free, so all sentences end at the same edge.
void TokensWidget::addTools()
{
    if (!opensLine()) {
        ui->toolsPlace->setFixedWidth(probedSize<LineToolsWidget>(font()).width());
        return;
    }
    auto* tools = new LineToolsWidget(ui->toolsPlace);
    ui->toolsLayout->addWidget(tools);
    connect(tools, &LineToolsWidget::up, this, [this]() { emit lineToUp(this); });
    connect(tools, &LineToolsWidget::remove, this, [this]() { emit lineToDelete(this); });
    connect(tools, &LineToolsWidget::down, this, [this]() { emit lineToDown(this); });
}

void TokensWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    emit lineToChange(this);
}

// Lines alternate their background and the first row of each draws a rule above it,
// so the IF, THEN and ELSE of one line read as one block.
void TokensWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QColor base = palette().color(QPalette::Base);
    const QColor tint = palette().color(QPalette::Highlight);
    QColor background = base;
    if (line % 2 == 1)
        background.setRgb((base.red() * 15 + tint.red()) / 16, (base.green() * 15 + tint.green()) / 16,
                          (base.blue() * 15 + tint.blue()) / 16);
    painter.fillRect(rect(), background);
    if (opensLine() && line > 0) {
        painter.setPen(palette().color(QPalette::Midlight));
        painter.drawLine(0, 0, width(), 0);
    }
}
