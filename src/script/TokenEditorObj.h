#pragma once

#include <QComboBox>

namespace token_controls {

// An object operand in place: the object types by name. A type outside the list (a damaged file)
// gets an extra entry of its own and is kept until another one is chosen.
class TokenEditorObj : public QComboBox
{
    Q_OBJECT

public:
    explicit TokenEditorObj(int objectType, QWidget* parent = nullptr);

    int objectType() const { return type; }

    // Only as wide as the chosen name, so the operand reads like a word of the sentence.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void edited();

protected:
    void wheelEvent(QWheelEvent* event) override;

private slots:
    void onIndexChanged(int index);

private:
    int type;
};

} // namespace token_controls
