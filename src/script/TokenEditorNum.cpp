#include "TokenEditorNum.h"

#include "DialogNumType.h"
#include "Prompt.h"
#include "Script.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSpinBox>
#include <QStyleOptionSpinBox>
#include <QToolButton>
#include <QWheelEvent>

using arcanum::Script;

namespace token_controls {

namespace {

// As wide as its number needs rather than as wide as its range, so operands read like words;
// the wheel only turns it once it has focus, so scrolling a script never edits numbers.
class CompactSpinBox : public QSpinBox
{
public:
    using QSpinBox::QSpinBox;

    QSize sizeHint() const override
    {
        ensurePolished();
        const QString widest = text().size() > 4 ? text() : QStringLiteral("0000");
        QStyleOptionSpinBox option;
        initStyleOption(&option);
        const QSize content(fontMetrics().horizontalAdvance(widest) + 4, lineEdit()->sizeHint().height());
        return style()->sizeFromContents(QStyle::CT_SpinBox, &option, content, this);
    }

    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void wheelEvent(QWheelEvent* event) override
    {
        if (hasFocus())
            QSpinBox::wheelEvent(event);
        else
            event->ignore();
    }
};

} // namespace

TokenEditorNum::TokenEditorNum(int numType, int value, QWidget* parent)
    : QWidget(parent)
    , type(numType)
    , number(value)
    , button(new QToolButton(this))
    , spin(new CompactSpinBox(this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(button);
    layout->addWidget(spin);

    QFont small = font();
    small.setFamily(QApplication::font().family());
    small.setPointSize(8);
    button->setFont(small);
    button->setToolTip(tr("Where the number comes from; click to change"));
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    showType();

    spin->setToolTip(tr("The number, or what it selects of the source on the left"));
    spin->setRange(Minimum, Maximum);
    spin->setFocusPolicy(Qt::StrongFocus);
    spin->setValue(value);
    connect(button, &QToolButton::clicked, this, &TokenEditorNum::chooseType);
    connect(spin, qOverload<int>(&QSpinBox::valueChanged), this, &TokenEditorNum::onValueChanged);
}

void TokenEditorNum::showType()
{
    button->setText(QString::fromStdString(Script::numTypeToString(static_cast<Script::NumType>(type & 0xFF))));
}

void TokenEditorNum::chooseType()
{
    DialogNumType dialog(type, this);
    if (Prompt::run(dialog) != QDialog::Accepted || dialog.numType() < 0)
        return;
    type = dialog.numType();
    showType();
    emit edited();
}

void TokenEditorNum::onValueChanged(int newValue)
{
    number = newValue;
    spin->updateGeometry();
    emit edited();
}

} // namespace token_controls
