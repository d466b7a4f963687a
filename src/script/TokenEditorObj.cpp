#include "TokenEditorObj.h"

#include "Script.h"

#include <QStyleOptionComboBox>
#include <QWheelEvent>

using arcanum::Script;

namespace token_controls {

TokenEditorObj::TokenEditorObj(int objectType, QWidget* parent)
    : QComboBox(parent)
    , type(objectType)
{
    for (int value = 0; value < Script::ObjectTypeCount; ++value)
        addItem(QString::fromStdString(Script::objectTypeToString(static_cast<Script::ObjectType>(value))));
    const bool known = objectType >= 0 && objectType < Script::ObjectTypeCount;
    if (!known)
        addItem(QString::fromStdString(Script::unknownText("object type", objectType)));
    setCurrentIndex(known ? objectType : Script::ObjectTypeCount);
    setMaxVisibleItems(Script::ObjectTypeCount + 1);
    setFocusPolicy(Qt::StrongFocus);
    setToolTip(tr("The object the statement tests or acts on"));

    QPalette white = palette();
    white.setBrush(QPalette::All, QPalette::Button, QBrush(Qt::white));
    setPalette(white);
    connect(this, qOverload<int>(&QComboBox::currentIndexChanged), this, &TokenEditorObj::onIndexChanged);
}

QSize TokenEditorObj::sizeHint() const
{
    ensurePolished();
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QSize content(fontMetrics().horizontalAdvance(currentText()) + 4, fontMetrics().height());
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, content, this);
}

QSize TokenEditorObj::minimumSizeHint() const
{
    return sizeHint();
}

void TokenEditorObj::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

void TokenEditorObj::onIndexChanged(int index)
{
    if (index >= 0 && index < Script::ObjectTypeCount)
        type = index;
    updateGeometry();
    emit edited();
}

} // namespace token_controls
