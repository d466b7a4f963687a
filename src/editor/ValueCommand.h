#pragma once

#include <QUndoCommand>
#include <QUndoStack>

#include <functional>
#include <utility>

// The generic "change one value" edit: a setter, the old and the new value. Two commands with the same
// merge id and key in a row merge (typing into one field is one step); a merge that lands back on the
// old value removes itself. Commands with mergeId -1 never merge.
template <typename T>
class ValueCommand : public QUndoCommand
{
public:
    using Setter = std::function<void(const T&)>;

    ValueCommand(const QString& text, int mergeId, int key, T oldValue, T newValue, Setter setter)
        : QUndoCommand(text)
        , mergeId(mergeId)
        , key(key)
        , before(std::move(oldValue))
        , after(std::move(newValue))
        , set(std::move(setter))
    {
    }

    int id() const override { return mergeId; }

    bool mergeWith(const QUndoCommand* other) override
    {
        const auto* next = dynamic_cast<const ValueCommand<T>*>(other);
        if (next == nullptr || next->key != key)
            return false;
        after = next->after;
        setObsolete(after == before);
        return true;
    }

    void redo() override { set(after); }
    void undo() override { set(before); }

private:
    int mergeId;
    int key;
    T before;
    T after;
    Setter set;
};

// Pushes a value change when it changes anything; the setter must apply the value through the document
// (which announces it), never write a widget.
template <typename T>
void pushValue(QUndoStack* stack, const QString& text, int mergeId, int key, const T& oldValue,
               const T& newValue, typename ValueCommand<T>::Setter setter)
{
    if (stack == nullptr || oldValue == newValue)
        return;
    stack->push(new ValueCommand<T>(text, mergeId, key, oldValue, newValue, std::move(setter)));
}
